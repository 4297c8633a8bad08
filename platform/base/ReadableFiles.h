// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/Delivery.h"

#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

namespace platform {

/// Finds out which files can be read, on a thread of its own: a drive that does not answer holds nobody up. Main
/// thread, with the run loop installed.
class ReadableFiles final {
public:
    using Answered = std::function<void(const QStringList& readable)>;

    ReadableFiles() = default;
    ReadableFiles(const ReadableFiles&) = delete;
    ReadableFiles& operator=(const ReadableFiles&) = delete;
    ~ReadableFiles() { abandon(); }

    /// Tells which of the paths (of pathOfBytes()) are regular files that can be read, in their order: before it
    /// returns where the file system answers at once, else from the run loop, and never where it does not answer.
    void look(const QStringList& paths, Answered answered);
    /// Nobody is told any more.
    void abandon();

private:
    using Look = Delivery<QStringList>;
    std::vector<std::shared_ptr<Look>> _looks;
};

} // namespace platform
