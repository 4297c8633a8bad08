// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/FileChoice.h"

#include <functional>
#include <memory>
#include <optional>

class QWindow;

namespace platform {

/// Has the desktop ask a question by a panel of its own, above a window that it knows by the name `parent` (empty for
/// none). The answer comes by the event loop, once; it is empty where the desktop has no such panel, or the panel
/// failed. The panel goes with what is returned.
using ForeignFilePanel =
    std::function<std::shared_ptr<void>(const FileQuestion& question, const QString& parent,
                                        std::function<void(const std::optional<FileChoice>&)> answered)>;

/// These run until they are answered or the event loop is ended; the window behind them takes no input. Main thread.
std::optional<FileChoice> runForeignPanel(const ForeignFilePanel& ask, const FileQuestion& question, QWindow* above);
FileChoice runQtPanel(const FileQuestion& question, QWindow* above);

} // namespace platform
