// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/e2e/SubtitledMovie.h"

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

// A user who changes the preferences while a movie stands or plays.
class PreferencesFixture : public SubtitledMovie {
protected:
    // Whether the settings file gets the key's value ("<true/>").
    testing::AssertionResult stores(const std::string& key, const std::string& value) {
        const std::string entry = "<key>" + key + "</key>";
        const auto isStored = [&] {
            const std::string text = user.settingsText();
            const auto at = text.find(entry);
            return at != std::string::npos && text.find(value, at) == text.find('<', at + entry.size());
        };
        if (harness::waitUntil(isStored))
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << key << " is not stored as " << value << ":\n" << user.settingsText();
    }
    // Opens the window by key over the middle of the screen.
    testing::AssertionResult opens() {
        _movie = probe.windowAt(screenWidth / 2, screenHeight / 2);
        return opensWindow(XK_comma, {XK_Control_L});
    }
    // What the settings file holds before the player starts.
    void writeSettings(const std::string& entries) {
        std::filesystem::create_directories(user.settingsFile().parent_path());
        std::ofstream(user.settingsFile())
            << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>" << entries
            << "</dict></plist>\n";
    }
    bool closes() {
        return harness::waitUntil([&] { return probe.windowAt(screenWidth / 2, screenHeight / 2) == _movie; });
    }

private:
    harness::WindowId _movie = 0;
};
