// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/e2e/PlayerFixture.h"

#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <vector>

// A user of one screen with a movie that has subtitles beside it.
class SubtitledMovie : public PlayerFixture {
protected:
    using Files = std::map<std::string, std::string>; // extension and content

    // A red movie of ten seconds, numbered, in a folder of its own with subtitles beside it.
    std::string movie(const Files& subtitles) {
        const std::filesystem::path folder = user.folder() / ("movies" + std::to_string(++_folders));
        std::filesystem::create_directories(folder);
        for (const auto& [extension, content] : subtitles)
            std::ofstream(folder / ("film." + extension), std::ios::binary) << content;
        std::filesystem::create_symlink(numbered("subtitled.mp4", red, 300), folder / "film.mp4");
        return (folder / "film.mp4").string();
    }

    // Stands at the beginning of the movie; each jump is of two seconds.
    void startStanding(const std::string& file, std::vector<std::string> options = {}) {
        options.insert(options.end(), {"--set", "QVPlaylistAutoPlay=0", "--set", "QVJumpInterval=2", file});
        startRecorded(LUMARO_PROGRAM, environment, options);
        ASSERT_TRUE(frameBecomes(0));
    }

    void jump(int direction, int seconds) {
        probe.tap(direction > 0 ? XK_Right : XK_Left, {XK_Control_L});
        ASSERT_TRUE(frameBecomes(seconds * 30));
    }

    // What startStanding adds to the environment.
    std::map<std::string, std::string> environment;

private:
    int _folders = 0;
};
