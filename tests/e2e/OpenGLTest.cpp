// SPDX-License-Identifier: GPL-3.0-or-later
// The same screen through OpenGL, as a graphics card draws it; here Mesa's software one does.
#include "tests/e2e/PlayerFixture.h"

#include <signal.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

using namespace harness;

namespace {

class OpenGL : public PlayerFixture {
protected:
    LumaroProcess& startOpenGL(const std::vector<std::string>& arguments) {
        return startRecorded(LUMARO_PROGRAM, openGLEnvironment(), arguments);
    }

    // Whether a library of that name is in the player's memory: Mesa's drivers are loaded for a context only.
    bool hasLoaded(const std::string& name) {
        std::ifstream maps("/proc/" + std::to_string(player->pid()) + "/maps");
        const std::string text{std::istreambuf_iterator<char>(maps), {}};
        return text.find(name) != std::string::npos;
    }

    // Whether what stands at the upper right over a red picture has a panel and a bright text.
    bool showsFeedback() {
        const Picture picture = probe.picture({screenWidth * 3 / 4, 0, screenWidth / 4, 120});
        const Region text = picture.extentWhere([](const Color& color) { return color.green > 150; });
        const Region panel = picture.extentWhere([](const Color& color) { return !color.isNear(red, 60); });
        return text.width > 10 && panel.width > text.width && panel.height > text.height;
    }
};

} // namespace

TEST_F(OpenGL, shows_the_frames_of_movies_and_what_stands_over_them) {
    startOpenGL({numbered("red.mp4", red, 300), numbered("short2.mp4", green, 90)});
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 3; }, "playing"));
    EXPECT_TRUE(hasLoaded("_dri.so") || hasLoaded("libgallium")) << "it draws without OpenGL";
    probe.tap(XK_space);
    EXPECT_TRUE(waitUntil([&] { return showsFeedback(); })) << "no feedback stands over the picture";
    const std::optional<int> paused = settledFrame();
    ASSERT_TRUE(paused);
    EXPECT_TRUE(waitUntil([&] { return !showsFeedback(); })) << "it does not fade";
    EXPECT_EQ(frame(), paused);
    probe.tap(XK_Right, {XK_Super_L});
    EXPECT_TRUE(colorBecomes(green)) << "the next movie is not shown";
    bool darkened = false;
    player->signal(SIGTERM);
    EXPECT_TRUE(waitUntil([&] {
        const int seen = probe.pixel(screenWidth / 4, screenHeight * 5 / 6).green;
        darkened = darkened || (seen > 8 && seen < 110);
        return !player->isRunning();
    }));
    EXPECT_TRUE(darkened) << "it did not fade out";
    EXPECT_EQ(player->waitForExit(), 0);
}

TEST_F(OpenGL, magnifies_and_follows_the_pointer_to_the_edges) {
    startOpenGL({media()
                     .make("quarters.mp4", {"-f", "lavfi", "-i", "color=c=0xC80000:s=1280x720:r=5:d=60", "-vf",
                                            "drawbox=x=640:w=640:color=0x009600:t=fill,"
                                            "drawbox=y=360:w=640:h=360:color=0x0000C8:t=fill",
                                            "-c:v", "libx264", "-preset", "ultrafast", "-pix_fmt", "yuv420p"})
                     .string()});
    const auto areSeen = [&](const Color& topLeft, const Color& topRight, const Color& bottomLeft) {
        return waitUntil([&] {
            return probe.pixel(200, 150).isNear(topLeft) && probe.pixel(1100, 150).isNear(topRight) &&
                   probe.pixel(200, 600).isNear(bottomLeft);
        });
    };
    ASSERT_TRUE(areSeen(red, green, blue));
    probe.tap(XK_2);
    ASSERT_TRUE(logs("Size: Double"));
    ASSERT_TRUE(areSeen(red, green, blue)) << "its middle stays in the middle";
    probe.drag(1100, 500, 300, 600);
    EXPECT_TRUE(areSeen(green, green, green)) << "it was not moved to its right edge";
    probe.drag(300, 200, 1200, 650);
    probe.drag(300, 200, 1200, 650);
    EXPECT_TRUE(areSeen(red, red, red)) << "its upper left corner is not reached";
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(OpenGL, goes_on_when_its_window_is_resized_and_hidden) {
    startOpenGL({numbered("red.mp4", red, 1200)});
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 3; }, "playing"));
    const WindowId window = probe.windowAt(screenWidth / 2, screenHeight / 2);
    int seen = frame().value_or(0);
    const auto movesOnIn = [&](int width, int height) {
        const int before = seen;
        return waitUntil([&] {
            seen = MediaFixture::frameNumber(probe, {0, 0, width, height}).value_or(0);
            return seen > before + 5;
        });
    };
    probe.resizeWindow(window, 960, 540);
    EXPECT_TRUE(movesOnIn(960, 540));
    EXPECT_TRUE(probe.pixel(950, 530).isNear(red) && !probe.pixel(970, 550).isNear(red));
    probe.resizeWindow(window, screenWidth, screenHeight);
    EXPECT_TRUE(movesOnIn(screenWidth, screenHeight));
    probe.setWindowShown(window, false);
    EXPECT_TRUE(waitUntil([&] { return !frame(); }));
    probe.setWindowShown(window, true);
    EXPECT_TRUE(movesOnIn(screenWidth, screenHeight));
    probe.tap(XK_space);
    EXPECT_TRUE(waitUntil([&] { return showsFeedback(); })) << "no feedback stands over the picture";
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(OpenGL, goes_on_when_its_context_is_lost) {
    std::map<std::string, std::string> environment = openGLEnvironment();
    std::string& preloaded = environment["LD_PRELOAD"];
    preloaded += (preloaded.empty() ? "" : ":") + std::string(LUMARO_LOST_CONTEXT_LIBRARY);
    const std::filesystem::path lost = user.folder() / "lost";
    environment["LUMARO_LOST_CONTEXT"] = lost.string();
    startRecorded(LUMARO_PROGRAM, environment, {numbered("red.mp4", red, 1200)});
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 3; }, "playing"));
    std::ofstream(lost) << "now\n";
    ASSERT_TRUE(logs("QtWindowHost: The OpenGL context is lost"));
    const int before = frame().value_or(0);
    EXPECT_TRUE(frameBecomes([&](int seen) { return seen > before + 30; }, "going on"));
    probe.tap(XK_space);
    EXPECT_TRUE(waitUntil([&] { return showsFeedback(); })) << "no feedback stands over the picture";
    ASSERT_TRUE(quitsCleanly());
}
