// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/screen/ChildProcess.h"

#include <QTemporaryDir>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

// The folders of one user: settings and the place of the running player. Every process started for the same user shares
// them, as on a real desktop. Movies of the test's own may lie there too.
class LumaroUser {
public:
    LumaroUser() { configureSystem("<key>QVLastVersionSeen</key><integer>1000000</integer>"); }
    std::filesystem::path folder() const { return _folder.path().toStdString(); }
    std::filesystem::path settingsFile() const { return folder() / "config/lumaro/org.lumaro.Lumaro.plist"; }
    // Where the system's administrator configures the player for every user.
    std::filesystem::path systemFolder() const { return folder() / "etc"; }
    // Keys and values of a property list. To begin with there is one entry: the questions of a first launch are
    // answered.
    void configureSystem(const std::string& entries) const {
        std::filesystem::create_directories(systemFolder() / "lumaro");
        std::ofstream file(systemFolder() / "lumaro/UserDefaults.plist");
        file << "<plist version=\"1.0\"><dict>" << entries << "</dict></plist>\n";
    }
    // What the settings file holds; empty without one.
    std::string settingsText() const {
        std::ifstream file(settingsFile());
        return {std::istreambuf_iterator<char>(file), {}};
    }
    std::filesystem::path runtimeFolder() const { return folder() / "run"; }

private:
    QTemporaryDir _folder;
};

// The real program, started for a user on a display: of X11, or the name of a Wayland socket ("wayland-...") in the
// user's runtime folder, or "offscreen" for a window that nobody sees. An empty display is none (for what needs no
// screen).
class LumaroProcess : public harness::ChildProcess {
public:
    LumaroProcess(const LumaroUser& user, const std::string& display, const std::vector<std::string>& arguments,
                  const std::string& workingDirectory = {})
        : ChildProcess(optionsFor(user, display, arguments, workingDirectory)) {}
    // Another program, or environment, on top of that.
    LumaroProcess(const LumaroUser& user, const std::string& display, const std::vector<std::string>& arguments,
                  const std::string& program, const std::map<std::string, std::string>& environment)
        : ChildProcess(optionsOf(program, environment, optionsFor(user, display, arguments, {}))) {}

    // The lines that say that something went wrong in the program itself: sanitizers, failed assertions, and what the
    // libraries complain of.
    std::vector<std::string> faults() const;

private:
    static Options optionsFor(const LumaroUser& user, const std::string& display,
                              const std::vector<std::string>& arguments, const std::string& workingDirectory);
    static Options optionsOf(const std::string& program, const std::map<std::string, std::string>& environment,
                             Options options) {
        options.arguments.front() = program;
        for (const auto& [name, value] : environment)
            options.environment[name] = value;
        return options;
    }
};
