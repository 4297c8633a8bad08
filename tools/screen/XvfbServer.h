// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/screen/ChildProcess.h"

#include <memory>
#include <string>

namespace harness {

// A virtual X screen of its own, 24 bits deep, without a window manager. It picks a free display number by itself, so
// that any number of them run side by side, and ends with this object.
class XvfbServer {
public:
    // Returns when the server takes connections; throws std::runtime_error when it does not within a few seconds.
    XvfbServer(int width, int height);

    const std::string& display() const { return _display; } // ":7"
    // Like a crash. Whoever is connected ends, or must have gone: an XProbe, too.
    void kill() { _process->kill(); }
    int width() const { return _width; }
    int height() const { return _height; }

private:
    int _width;
    int _height;
    std::string _display;
    std::unique_ptr<ChildProcess> _process;
};

} // namespace harness
