// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/screen/XvfbServer.h"

#include <stdexcept>

namespace harness {

XvfbServer::XvfbServer(int width, int height)
    : _width(width)
    , _height(height) {
    ChildProcess::Options options;
    // The number of the display is written to descriptor 1 once the server listens. -noreset keeps it up between
    // clients.
    options.arguments = {"Xvfb",      "-displayfd", "1",
                         "-screen",   "0",          std::to_string(width) + "x" + std::to_string(height) + "x24",
                         "-nolisten", "tcp",        "-noreset"};
    _process = std::make_unique<ChildProcess>(options);
    const bool listens =
        waitUntil([this] { return _process->output().find('\n') != std::string::npos || !_process->isRunning(); });
    const std::string number = _process->output();
    if (!listens || number.find('\n') == std::string::npos)
        throw std::runtime_error("Xvfb did not start: " + _process->errorOutput());
    _display = ":" + number.substr(0, number.find('\n'));
}

} // namespace harness
