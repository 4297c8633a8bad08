// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/screen/ChildProcess.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

// A folder that goes with the object.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return _path; }

private:
    std::filesystem::path _path;
};

// The folders of one user: settings and the place of the running player. Every process started for the same user shares
// them, as on a real desktop.
class LumaroUser {
public:
    std::filesystem::path settingsFile() const { return _folder.path() / "config/lumaro/org.lumaro.Lumaro.plist"; }
    std::filesystem::path runtimeFolder() const { return _folder.path() / "run"; }
    std::filesystem::path folder() const { return _folder.path(); }

private:
    TemporaryFolder _folder;
};

// The real program, started for a user on a display, with tracing on unless a test says otherwise. First-time questions
// and the open panel are off, no sound device is used.
class LumaroProcess : public harness::ChildProcess {
public:
    // An empty display: none (for what needs no screen).
    LumaroProcess(const LumaroUser& user, const std::string& display, const std::vector<std::string>& arguments,
                  const std::string& workingDirectory = {});

    // The lines that say that something went wrong in the program itself: sanitizers and failed assertions.
    std::vector<std::string> faults() const;

private:
    static Options optionsFor(const LumaroUser& user, const std::string& display,
                              const std::vector<std::string>& arguments, const std::string& workingDirectory);
};
