// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/e2e/SubtitledMovie.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

// A user who changes the preferences while a movie stands or plays.
class PreferencesFixture : public SubtitledMovie {
protected:
    bool isLogged(const std::string& text) {
        return std::ranges::any_of(player->errorLines(),
                                   [&](const std::string& line) { return line.find(text) != std::string::npos; });
    }
    std::size_t keysHeard() {
        const std::vector<std::string> lines = player->errorLines();
        return static_cast<std::size_t>(std::ranges::count_if(
            lines, [](const std::string& line) { return line.find("Char:") != std::string::npos; }));
    }
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
        probe.tap(XK_comma, {XK_Control_L});
        if (!harness::waitUntil([&] { return probe.windowAt(screenWidth / 2, screenHeight / 2) != _movie; }))
            return testing::AssertionFailure() << "no window opened";
        // It has the keyboard when the player no longer hears of a key that nobody knows.
        const bool hasKeyboard = harness::waitUntil([&] {
            const std::size_t heard = keysHeard();
            probe.tap(XK_F8);
            return harness::staysTrue([&] { return keysHeard() == heard; }, harness::Seconds(0.3));
        });
        return hasKeyboard ? testing::AssertionSuccess() : testing::AssertionFailure() << "it has not the keyboard";
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
