// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/e2e/PlayerFixture.h"

#include <filesystem>
#include <string>
#include <vector>

using namespace harness;

namespace {

/// A Wayland compositor in a window that fills the screen, so that it is looked at and pressed from outside.
class Wayland : public PlayerFixture {
protected:
    void SetUp() override {
        std::filesystem::create_directories(user.runtimeFolder());
        std::filesystem::permissions(user.runtimeFolder(), std::filesystem::perms::owner_all);
        ChildProcess::Options options;
        options.arguments = {"weston",
                             "--backend=x11-backend.so",
                             "--use-pixman",
                             "--width=" + std::to_string(screenWidth),
                             "--height=" + std::to_string(screenHeight),
                             "--socket=wayland-test",
                             "--no-config",
                             "--idle-time=0"};
        options.environment = {{"DISPLAY", server.display()}, {"XDG_RUNTIME_DIR", user.runtimeFolder().string()}};
        compositor = std::make_unique<ChildProcess>(options);
        ASSERT_TRUE(waitUntil([&] { return std::filesystem::exists(user.runtimeFolder() / "wayland-test"); }))
            << compositor->errorOutput();
        ASSERT_TRUE(waitUntil([&] { return probe.hasVisibleWindow(); }));
    }

    void startStanding(const std::vector<std::string>& movies) {
        std::vector<std::string> arguments = {"--set", "QVPlaylistAutoPlay=0"};
        arguments.insert(arguments.end(), movies.begin(), movies.end());
        probe.movePointer(screenWidth / 2, screenHeight / 2);
        startOn("wayland-test", arguments);
        ASSERT_TRUE(frameBecomes(0));
    }

    std::unique_ptr<ChildProcess> compositor;
};

} // namespace

TEST_F(Wayland, fills_the_screen_and_takes_keys) {
    startStanding({numbered("red.mp4", red, 300), numbered("short2.mp4", green, 90)});
    probe.tap(XK_Right);
    ASSERT_TRUE(frameBecomes(1));
    probe.tap(XK_Right, {XK_Control_L});
    ASSERT_TRUE(frameBecomes(299)) << "ten seconds on";
    probe.tap(XK_Next);
    ASSERT_TRUE(colorBecomes(green));
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Wayland, what_quitting_keeps_is_kept_when_the_compositor_dies) {
    startStanding({numbered("red.mp4", red, 300)});
    probe.tap(XK_Down);
    ASSERT_TRUE(logs("Volume: 90%"));
    compositor->kill();
    EXPECT_EQ(player->waitForExit(), 1);
    EXPECT_NE(user.settingsText().find("<real>0.9"), std::string::npos) << user.settingsText();
}
