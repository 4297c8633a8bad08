// SPDX-License-Identifier: GPL-3.0-or-later
// What the player remembers from one run to the next.
#include "tests/e2e/PlayerFixture.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <random>
#include <set>
#include <string>
#include <thread>
#include <vector>

using namespace harness;

namespace {

class Recall : public PlayerFixture {
protected:
    static inline const std::vector<std::string> restoring{"--set", "QVOnLaunchDefaultAction=1"};

    // Looks at every picture until one has stood for a second: all that were seen.
    std::set<int> shownUntilItStands() {
        std::set<int> seen;
        std::optional<int> last;
        auto since = std::chrono::steady_clock::now();
        waitUntil(
            [&] {
                const std::optional<int> now = frame();
                if (now)
                    seen.insert(*now);
                if (now != last)
                    since = std::chrono::steady_clock::now();
                last = now;
                return now && std::chrono::steady_clock::now() - since > std::chrono::seconds(1);
            },
            defaultTimeout, Seconds(0.0005));
        return seen;
    }
    // The position in the saved state, in units of the movie; none before it is saved.
    std::optional<long> savedTime() const {
        const std::string text = user.settingsText();
        const std::size_t key = text.find("<key>QVSavedTime</key>");
        const std::size_t value = text.find("<integer>", key);
        if (key == std::string::npos || value == std::string::npos)
            return std::nullopt;
        return std::atol(text.c_str() + value + 9);
    }
};

} // namespace

TEST_F(Recall, the_last_list_comes_back_at_its_picture_and_shows_no_other) {
    const std::string first = numbered("red.mp4", red, 300), second = numbered("green2.mp4", green, 300);
    std::vector<std::string> arguments = restoring;
    arguments.insert(arguments.end(), {first, second});
    start(arguments);
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 5; }, "playing"));
    probe.tap(XK_Right, {XK_Super_L});
    ASSERT_TRUE(colorBecomes(green));
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 70; }, "far from its beginning"));
    probe.tap(XK_space);
    const std::optional<int> left = settledFrame();
    ASSERT_TRUE(left);
    ASSERT_TRUE(quitsCleanly());

    start(restoring);
    EXPECT_EQ(shownUntilItStands(), std::set<int>{*left});
    EXPECT_TRUE(colorBecomes(green));
    probe.tap(XK_Left, {XK_Super_L});
    EXPECT_TRUE(colorBecomes(red)) << "the list has come back, too";
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 5 && seen < 60; }, "playing from the beginning"));
    // A file that is named is what is wanted.
    player->signal(SIGHUP);
    EXPECT_EQ(player->waitForExit(), 0);
    arguments = restoring;
    arguments.push_back(first);
    start(arguments);
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 5 && seen < 60; }, "playing from the beginning"));
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Recall, a_movie_that_is_opened_again_goes_on_and_shows_no_other_picture) {
    const std::string movie = numbered("long.mp4", blue, 240 * 30);
    start({movie});
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 5; }, "playing"));
    for (int jumps = 0; jumps < 8; ++jumps)
        probe.tap(XK_Right, {XK_Control_L});
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 75 * 30; }, "far from its beginning"));
    probe.tap(XK_space);
    const std::optional<int> left = settledFrame();
    ASSERT_TRUE(left);
    ASSERT_TRUE(quitsCleanly());

    start({"--set", "QVPlaylistAutoPlay=0", "--set", "QVDisplayFeedback=0", movie});
    EXPECT_EQ(shownUntilItStands(), std::set<int>{*left});
    probe.tap(XK_Left, {XK_Alt_L});
    EXPECT_TRUE(frameBecomes(0));
    ASSERT_TRUE(quitsCleanly());
    const std::filesystem::path file = user.folder() / "state/lumaro/movies.plist";
    EXPECT_EQ(std::filesystem::status(file).permissions(),
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
    start({"--set", "QVPlaylistAutoPlay=0", movie});
    EXPECT_TRUE(frameBecomes(0)) << "it was begun again";
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Recall, the_session_manager_is_told_that_all_is_saved_and_ends_the_player) {
    ChildProcess::Options options;
    options.arguments = {LUMARO_SESSION_MANAGER};
    ChildProcess manager(options);
    ASSERT_TRUE(manager.waitForErrorLine("address ")) << manager.errorOutput();
    const std::string address = manager.errorLines().front().substr(8);
    const std::string movie = numbered("long.mp4", blue, 240 * 30);
    std::vector<std::string> arguments = restoring;
    arguments.push_back(movie);
    for (const int request : {SIGUSR1, SIGUSR2}) {
        const std::size_t before = manager.lineCount();
        startRecorded(LUMARO_PROGRAM, {{"SESSION_MANAGER", address}}, arguments);
        ASSERT_TRUE(frameBecomes([](int seen) { return seen > 5; }, "playing"));
        ASSERT_TRUE(manager.waitForErrorLine("saved well", before)) << "as it begins";
        for (int jumps = 0; jumps < 3; ++jumps)
            probe.tap(XK_Right, {XK_Control_L});
        ASSERT_TRUE(frameBecomes([](int seen) { return seen > 29 * 30; }, "far from its beginning"));
        const std::optional<int> left = frame();
        ASSERT_TRUE(left);
        const std::size_t asked = manager.lineCount();
        manager.signal(request);
        ASSERT_TRUE(manager.waitForErrorLine("saved well", asked));
        if (request == SIGUSR1) {
            // The session goes on, and so does the movie; what was asked for is on the disk.
            ASSERT_TRUE(frameBecomes([&](int seen) { return seen > *left + 5; }, "later"));
            player->signal(SIGKILL);
            player->waitForExit();
        } else {
            EXPECT_EQ(player->waitForExit(), 0);
            EXPECT_TRUE(manager.waitForErrorLine("closed", asked));
        }
        start(restoring);
        ASSERT_TRUE(frameBecomes([&](int seen) { return seen >= *left && seen < *left + 5 * 30; }, "where it was"));
        ASSERT_TRUE(quitsCleanly());
        std::filesystem::remove(user.settingsFile());
        std::filesystem::remove_all(user.folder() / "state");
    }
}

// LUMARO_KILLS=100 for a thorough run.
TEST_F(Recall, killed_at_any_moment_it_comes_back_near_the_place) {
    const char* asked = std::getenv("LUMARO_KILLS");
    const int kills = asked ? std::atoi(asked) : 2;
    constexpr int framesPerSecond = 30;
    constexpr int allowed = 30 * framesPerSecond;
    std::mt19937 random(std::random_device{}());
    const std::string movie = numbered("long.mp4", blue, 240 * framesPerSecond);
    for (int kill = 0; kill < kills; ++kill) {
        std::vector<std::string> arguments = restoring;
        arguments.push_back(movie);
        start(arguments);
        ASSERT_TRUE(frameBecomes([](int seen) { return seen > 0; }, "playing"));
        for (int jumps = std::uniform_int_distribution(0, 12)(random); jumps > 0; --jumps)
            probe.tap(XK_Right, {XK_Control_L});
        // Long enough to be saved for the first time; then any moment.
        ASSERT_TRUE(waitUntil([&] { return savedTime().has_value(); }));
        const double playsOn = std::uniform_real_distribution(2.0, asked ? 45.0 : 6.0)(random);
        std::this_thread::sleep_for(std::chrono::duration<double>(playsOn));
        const std::optional<int> last = frame();
        ASSERT_TRUE(last);
        player->signal(SIGKILL);
        player->waitForExit();
        start(restoring);
        ASSERT_TRUE(frameBecomes(
            [&](int seen) { return seen > 0 && seen <= *last + 2 * framesPerSecond && seen >= *last - allowed; },
            "near " + std::to_string(*last) + ", " + std::to_string(playsOn) + " s after kill " +
                std::to_string(kill)));
        ASSERT_TRUE(quitsCleanly());
        std::filesystem::remove(user.settingsFile());
    }
}
