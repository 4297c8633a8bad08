// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/e2e/LumaroProcess.h"

#include <regex>
#include <sys/stat.h>

harness::ChildProcess::Options LumaroProcess::optionsFor(const LumaroUser& user, const std::string& display,
                                                         const std::vector<std::string>& arguments,
                                                         const std::string& workingDirectory) {
    std::filesystem::create_directories(user.runtimeFolder());
    ::chmod(user.runtimeFolder().c_str(), 0700);
    Options options;
    options.arguments = {LUMARO_PROGRAM};
    options.arguments.insert(options.arguments.end(), arguments.begin(), arguments.end());
    options.workingDirectory = workingDirectory;
    options.withoutEnvironment = {"DISPLAY",         "WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS",
                                  "QT_QPA_PLATFORM", "QT_SCALE_FACTOR", "LANG",
                                  "LC_ALL",          "http_proxy"};
    options.environment = {{"HOME", user.folder().string()},
                           {"XDG_CONFIG_HOME", (user.folder() / "config").string()},
                           {"XDG_STATE_HOME", (user.folder() / "state").string()},
                           {"XDG_DATA_HOME", (user.folder() / "data").string()},
                           {"XDG_CONFIG_DIRS", user.systemFolder().string()},
                           {"XDG_RUNTIME_DIR", user.runtimeFolder().string()},
                           // Never the machine's own: it could be sent to sleep.
                           {"DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nonexistent"},
                           {"LUMARO_RESOURCES", LUMARO_BINARY_DIR "/resources"},
                           {"LC_ALL", "C.UTF-8"}};
    if (display.starts_with("wayland")) {
        options.environment["WAYLAND_DISPLAY"] = display;
        options.environment["QT_QPA_PLATFORM"] = "wayland";
    } else if (display == "offscreen") {
        options.environment["QT_QPA_PLATFORM"] = display;
    } else if (!display.empty()) {
        options.environment["DISPLAY"] = display;
        options.environment["QT_QPA_PLATFORM"] = "xcb";
    }
    return options;
}

std::vector<std::string> LumaroProcess::faults() const {
    static const std::regex marks("AddressSanitizer|LeakSanitizer|runtime error:|ASSERT|terminate called|"
                                  "must be a top level window|ALSA lib |\\] pw[.]|^qt[.]");
    std::vector<std::string> result;
    for (const std::string& line : errorLines())
        if (std::regex_search(line, marks))
            result.push_back(line);
    return result;
}
