// SPDX-License-Identifier: GPL-3.0-or-later
// Rows of the preferences whose effect is seen only over a while, at the next movie or at the next start.
#include "tests/e2e/PreferencesFixture.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

using namespace harness;

namespace {

class PreferencesRows : public PreferencesFixture {
protected:
    // In the preferences: the letter of a page, of a control on it, and keys for that control.
    testing::AssertionResult change(KeySym page, KeySym control, const std::vector<KeySym>& then,
                                    const std::string& key, const std::string& value) {
        if (const auto opened = opens(); !opened)
            return opened;
        probe.tap(page, {XK_Alt_L});
        probe.tap(control, {XK_Alt_L});
        for (const KeySym next : then)
            probe.tap(next);
        const auto stored = stores(key, value);
        probe.tap(XK_Escape);
        return !stored ? stored : closes() ? testing::AssertionSuccess() : testing::AssertionFailure() << "it stays";
    }
    // Whether white letters stand below the number of the picture.
    bool hasCue() {
        return probe.picture({0, screenHeight * 3 / 4, screenWidth, screenHeight / 4})
                   .extentWhere([](const Color& color) {
                       return color.isNear({255, 255, 255});
                   })
                   .width > 0;
    }
    bool hasPanelAtRight() { return !probe.pixel(1249, 50).isNear(red); }
    bool hasDisplayAtLeft() { return !probe.pixel(40, 50).isNear(red); }
};

} // namespace

TEST_F(PreferencesRows, of_subtitle_files_act_on_the_cue_that_stands_and_on_the_next_movie) {
    // Seven seconds of this movie, and more of one with 23.976 pictures in a second.
    const Files cue{{"sub", "{0}{210}Counted in pictures\n"}};
    startStanding(movie(cue));
    for (const int seconds : {2, 4, 6, 8})
        jump(1, seconds);
    EXPECT_FALSE(hasCue());
    ASSERT_TRUE(change(XK_s, XK_t, {XK_Down}, "QVSubtitlesDefaultFPS", "<integer>1</integer>"));
    EXPECT_TRUE(waitUntil([&] { return hasCue(); }));
    ASSERT_TRUE(change(XK_s, XK_t, {XK_End}, "QVSubtitlesDefaultFPS", "<integer>5</integer>"));
    EXPECT_TRUE(waitUntil([&] { return !hasCue(); }));
    for (const bool finds : {false, true}) {
        ASSERT_TRUE(change(XK_s, XK_f, {}, "QVAutoloadSubtitles", finds ? "<true/>" : "<false/>"));
        startAnother({movie(cue)})->waitForExit();
        ASSERT_TRUE(frameBecomes(0));
        EXPECT_TRUE(waitUntil([&] { return hasCue() == finds; })) << finds;
        EXPECT_TRUE(staysTrue([&] { return hasCue() == finds; }, Seconds(0.5))) << finds;
    }
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(PreferencesRows, of_what_is_shown_over_the_movie_act_at_once) {
    start({"--set", "QVPlaylistAutoPlay=0", numbered("red.mp4", red, 900)});
    ASSERT_TRUE(frameBecomes(0));
    ASSERT_TRUE(change(XK_o, XK_f, {}, "QVDisplayFeedback", "<false/>"));
    ASSERT_TRUE(waitUntil([&] { return !hasPanelAtRight(); }));
    probe.tap(XK_m);
    EXPECT_TRUE(logs("Char: \"m\""));
    EXPECT_TRUE(staysTrue([&] { return !hasPanelAtRight(); }, Seconds(0.7)));
    ASSERT_TRUE(change(XK_o, XK_f, {}, "QVDisplayFeedback", "<true/>"));
    EXPECT_TRUE(tapUntil(XK_m, [&] { return hasPanelAtRight(); }));

    ASSERT_TRUE(change(XK_a, XK_h, {XK_End}, "QVCursorAutohideDelay", "<integer>11</integer>"));
    probe.movePointer(500, 400);
    ASSERT_TRUE(waitUntil([&] { return probe.pointerShows(); }));
    EXPECT_TRUE(staysTrue([&] { return probe.pointerShows(); }, Seconds(2.5))) << "never";
    ASSERT_TRUE(change(XK_a, XK_h, {XK_Home}, "QVCursorAutohideDelay", "<integer>1</integer>"));
    probe.movePointer(520, 420);
    EXPECT_TRUE(waitUntil([&] { return !probe.pointerShows(); }));
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(PreferencesRows, of_what_is_kept_act_at_the_next_start) {
    const std::string movie = numbered("red.mp4", red, 900);
    const auto begin = [&] {
        start({"--set", "QVPlaylistAutoPlay=0", movie});
        return frameBecomes(0);
    };
    // Eight of ten steps of the volume, and a display that shows the time.
    ASSERT_TRUE(begin());
    probe.tap(XK_Down);
    ASSERT_TRUE(logs("Set Text: Volume: 90"));
    probe.tap(XK_Down);
    ASSERT_TRUE(logs("Set Text: Volume: 80"));
    probe.tap(XK_d);
    ASSERT_TRUE(waitUntil([&] { return hasDisplayAtLeft(); }));
    ASSERT_TRUE(quitsCleanly());
    for (const bool isKept : {true, false}) {
        ASSERT_TRUE(begin());
        EXPECT_TRUE(waitUntil([&] { return hasDisplayAtLeft() == isKept; })) << isKept;
        EXPECT_TRUE(staysTrue([&] { return hasDisplayAtLeft() == isKept; }, Seconds(0.5))) << isKept;
        probe.tap(XK_Down);
        EXPECT_TRUE(logs(isKept ? "Set Text: Volume: 70" : "Set Text: Volume: 90"));
        if (isKept) {
            ASSERT_TRUE(change(XK_o, XK_k, {}, "QVOSDStateSave", "<false/>"));
            ASSERT_TRUE(change(XK_m, XK_k, {}, "QVVolumeSave", "<false/>"));
        }
        ASSERT_TRUE(quitsCleanly());
    }
    // Started without a file, the last list comes back where that was chosen, and nothing else does.
    ASSERT_TRUE(begin());
    ASSERT_TRUE(change(XK_m, XK_l, {}, "QVOnLaunchDefaultAction", "<integer>1</integer>"));
    ASSERT_TRUE(quitsCleanly());
    player = startAnother({"--set", "QVEnableTrace=1"});
    EXPECT_TRUE(colorBecomes(red));
    ASSERT_TRUE(change(XK_m, XK_n, {}, "QVOnLaunchDefaultAction", "<integer>0</integer>"));
    ASSERT_TRUE(quitsCleanly());
    player = startAnother({"--set", "QVEnableTrace=1"});
    ASSERT_TRUE(logs("-[QVAppController applicationDidBecomeActive:]"));
    EXPECT_TRUE(staysTrue([&] { return !probe.pixel(screenWidth / 4, screenHeight * 5 / 6).isNear(red); }, Seconds(1)));
    ASSERT_TRUE(quitsCleanly());
}
