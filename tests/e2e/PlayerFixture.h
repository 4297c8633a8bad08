// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/e2e/LumaroProcess.h"
#include "tools/screen/MediaFixture.h"
#include "tools/screen/XProbe.h"
#include "tools/screen/XvfbServer.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

// One user before one screen of 1280 by 720, with a player started by the test.
class PlayerFixture : public testing::Test {
protected:
    static constexpr int screenWidth = 1280;
    static constexpr int screenHeight = 720;
    static constexpr harness::Color red{200, 0, 0};
    static constexpr harness::Color green{0, 150, 0};
    static constexpr harness::Color blue{0, 0, 200};

    static const harness::MediaFixture& media();
    // 30 frames a second, 16:9, so that it fills the screen; a keyframe each second.
    static std::string numbered(const std::string& name, const harness::Color& color, int frames);

    // Starts the player with tracing on and nothing asked at launch. Options of the test follow, and override.
    LumaroProcess& start(const std::vector<std::string>& arguments, const std::string& workingDirectory = {});
    // The same on another display (of LumaroProcess).
    LumaroProcess& startOn(const std::string& display, const std::vector<std::string>& arguments);
    // The same with another program and environment.
    LumaroProcess& startRecorded(const std::string& program, const std::map<std::string, std::string>& environment,
                                 const std::vector<std::string>& arguments);
    // What has it draw through OpenGL; under the leak sanitizer the drivers stay until the end.
    static std::map<std::string, std::string> openGLEnvironment();
    // Another launch by the same user, with these options alone: settings are for the first one.
    std::unique_ptr<LumaroProcess> startAnother(const std::vector<std::string>& arguments,
                                                const std::string& workingDirectory = {});

    // What the numbered movie that fills the screen shows now.
    std::optional<int> frame();
    testing::AssertionResult frameBecomes(const std::function<bool(int)>& wanted, const std::string& what);
    testing::AssertionResult frameBecomes(int wanted);
    // The frame once it has stood for a while, or none when it never does.
    std::optional<int> settledFrame();
    // Whether the picture (of a numbered movie that fills the screen) has the colour.
    testing::AssertionResult colorBecomes(const harness::Color& color,
                                          harness::Seconds timeout = harness::defaultTimeout);
    testing::AssertionResult logs(const std::string& text, std::size_t from = 0);
    // How many lines of the log hold the text so far.
    std::size_t timesLogged(const std::string& text) const;
    bool isLogged(const std::string& text) const { return timesLogged(text) > 0; }
    // How many keys the player has heard of.
    std::size_t keysHeard() const { return timesLogged("Char:"); }
    // Presses a key after which a window of the player's own stands over the middle of the screen, with the keyboard.
    testing::AssertionResult opensWindow(harness::KeySym key, const std::vector<harness::KeySym>& modifiers);
    // The panel over the middle of the screen once there is one, other than `before`, that has the keyboard. 0 for
    // none.
    harness::WindowId nextPanel(harness::WindowId before = 0);
    // Presses the key again and again until the condition holds: for panels, whose appearing cannot be seen from
    // outside.
    bool tapUntil(harness::KeySym key, const std::function<bool()>& condition);
    // Letters and what else stands in paths and addresses.
    void type(const std::string& text);
    // Leaves with Escape; the status and what went wrong inside.
    testing::AssertionResult quitsCleanly();

    void TearDown() override;

    LumaroUser user;
    harness::XvfbServer server{screenWidth, screenHeight};
    harness::XProbe probe{server.display()};
    std::unique_ptr<LumaroProcess> player;
};
