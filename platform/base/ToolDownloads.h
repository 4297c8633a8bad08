// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/Downloads.h"

namespace platform {

class Bundle;

/// Downloads by a program of ours (tools/fetch): the network library, its threads and its certificates are nobody's
/// until something is fetched, and what hangs in it is killed.
class ToolDownloads final : public Downloads {
public:
    /// The bundle that holds the program outlives it.
    explicit ToolDownloads(const Bundle& bundle)
        : _bundle(bundle) {}

    [[nodiscard]] std::unique_ptr<Download> fetch(const DownloadRequest& request,
                                                  std::function<void(const DownloadAnswer&)> answered) override;

private:
    const Bundle& _bundle;
};

} // namespace platform
