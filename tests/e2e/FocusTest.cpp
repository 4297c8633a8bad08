// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/e2e/PreferencesFixture.h"

#include <filesystem>
#include <memory>
#include <string>
#include <thread>
#include <vector>

using namespace harness;

namespace {

/// A screen with a window manager and another program on it, which the keyboard can go to.
class Focus : public PreferencesFixture {
protected:
    std::unique_ptr<ChildProcess> startBeside(const std::vector<std::string>& arguments) {
        ChildProcess::Options options;
        options.arguments = arguments;
        options.environment = {{"DISPLAY", server.display()}, {"HOME", user.folder().string()}};
        return std::make_unique<ChildProcess>(options);
    }
    std::unique_ptr<ChildProcess> startOther() {
        return startBeside({"ffplay", "-v", "error", "-f", "lavfi", "-i", "color=c=0x00C800:s=320x180"});
    }
    // Switches a row of the preferences' first page on, by its letter.
    testing::AssertionResult switchOn(KeySym letter, const std::string& key) {
        if (const auto opened = opens(); !opened)
            return opened;
        probe.tap(letter, {XK_Alt_L});
        const auto stored = stores(key, "<true/>");
        probe.tap(XK_Escape);
        return !stored ? stored : closes() ? testing::AssertionSuccess() : testing::AssertionFailure() << "it stays";
    }
    bool isSeen() { return probe.pixel(40, screenHeight - 40).isNear(red); }

    void SetUp() override {
        const std::filesystem::path isThere = user.folder() / "manager";
        _manager = startBeside({"openbox", "--startup", "touch " + isThere.string()});
        ASSERT_TRUE(waitUntil([&] { return std::filesystem::exists(isThere); })) << _manager->errorOutput();
    }

private:
    std::unique_ptr<ChildProcess> _manager;
};

} // namespace

TEST_F(Focus, a_player_hidden_for_another_program_is_brought_back) {
    start({"--set", "QVMainWindowLayer=0", numbered("red.mp4", red, 900)});
    ASSERT_TRUE(waitUntil([&] { return isSeen(); }));
    ASSERT_TRUE(logs("-[QVAppController applicationDidBecomeActive:]"));
    ASSERT_TRUE(switchOn(XK_h, "QVHideOnDeactivate"));
    auto other = startOther();
    ASSERT_TRUE(waitUntil([&] { return !isSeen(); })) << "it is not hidden";
    // The window manager's own list of windows, held open as long as a user would.
    EXPECT_TRUE(waitUntil([&] {
        probe.press(XK_Alt_L);
        probe.tap(XK_Tab);
        std::this_thread::sleep_for(Seconds(0.5));
        probe.release(XK_Alt_L);
        return waitUntil([&] { return isSeen(); }, Seconds(5));
    })) << "the window manager does not bring it back";
    other.reset();

    auto another = startOther();
    ASSERT_TRUE(waitUntil([&] { return !isSeen(); })) << "it is not hidden";
    EXPECT_EQ(startAnother({})->waitForExit(), 0);
    EXPECT_TRUE(waitUntil([&] { return isSeen(); })) << "a second launch does not bring it back";
    another.reset();
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Focus, only_another_program_pauses) {
    start({"--set", "QVMainWindowLayer=0", numbered("red.mp4", red, 900)});
    ASSERT_TRUE(waitUntil([&] { return isSeen(); }));
    ASSERT_TRUE(logs("-[QVAppController applicationDidBecomeActive:]"));
    ASSERT_TRUE(switchOn(XK_u, "QVPauseOnDeactivate"));
    const auto window = probe.windowAt(320, 220);
    probe.click(300, 200, 3);
    ASSERT_TRUE(waitUntil([&] { return probe.windowAt(320, 220) != window; })) << "no menu opened";
    const auto plays = [&] {
        const std::optional<int> before = frame();
        return waitUntil([&] { return frame().has_value() && frame() != before; }, Seconds(2));
    };
    EXPECT_TRUE(plays()) << "a menu of its own pauses it";
    probe.tap(XK_Escape);
    ASSERT_TRUE(waitUntil([&] { return probe.windowAt(320, 220) == window; }));
    auto other = startOther();
    EXPECT_TRUE(logs("QVMovieView: Saved movie state: playing: 1"));
    other.reset();
    EXPECT_TRUE(logs("QVMovieView: Restored movie state: playing: 1"));
    EXPECT_TRUE(plays());
    ASSERT_TRUE(quitsCleanly());
}
