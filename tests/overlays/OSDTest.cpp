// SPDX-License-Identifier: GPL-3.0-or-later
#include "context/Notifications.h"
#include "overlays/ClockText.h"
#include "overlays/OSDTexts.h"
#include "overlays/OverlaysOnDemand.h"
#include "overlays/QVFeedbackOverlay.h"
#include "overlays/QVOSDOverlay.h"
#include "tests/overlays/OverlayRig.h"

#include <gtest/gtest.h>

namespace {

class CountingTexts final : public OSDTexts {
public:
    mutable int asked = 0;
    std::int32_t time = 61;
    std::int32_t timeInSeconds() const override { return ++asked, time; }
    std::int32_t durationInSeconds() const override { return 7325; }
    QString name = "A film";
    QString currentMovieInfo() const override { return ++asked, name + " (1/2)"; }
    QString currentSubtitlesInfo() const override { return ++asked, "English"; }
    QString loopingInfo() const override { return ++asked, "Looping"; }
    QString volumeInfo() const override { return ++asked, "Volume: 50%"; }
};

class OSD : public testing::Test {
protected:
    template <class Notification>
    int refreshesOf(const Notification& notification) {
        const int before = texts.asked;
        rig.settings.notifications.post(notification);
        return texts.asked - before;
    }

    OverlayRig rig;
    CountingTexts texts;
    QVOSDOverlay osd{rig.settings.environment, rig.window, texts};
};

} // namespace

TEST_F(OSD, refreshes_only_on_what_its_display_shows) {
    const struct {
        int type, movie, time, subtitles, volume, looping;
    } cases[] = {{0, 0, 0, 0, 0, 0}, {1, 1, 1, 0, 0, 0}, {2, 1, 1, 0, 0, 0},
                 {3, 0, 0, 1, 0, 0}, {4, 0, 0, 0, 0, 1}, {5, 0, 0, 0, 1, 0}};
    for (const auto& c : cases) {
        osd.setDisplayType(c.type);
        EXPECT_EQ(refreshesOf(QVPlaylistMovieChangedNotification{}), c.movie) << c.type;
        EXPECT_EQ(refreshesOf(QVMovieInterestingTimeNotification{}), c.time) << c.type;
        EXPECT_EQ(refreshesOf(QVSubtitlesChangedNotification{}), c.subtitles) << c.type;
        EXPECT_EQ(refreshesOf(QVMovieVolumeChangedNotification{nullptr}), c.volume) << c.type;
        EXPECT_EQ(refreshesOf(QVPlaylistLoopingChangedNotification{nullptr}), c.looping) << c.type;
        const int asked = texts.asked;
        osd.setDisplayType(c.type);
        EXPECT_EQ(texts.asked, asked) << c.type;
    }
}

TEST_F(OSD, follows_the_movies_text_which_names_its_chapter_as_it_plays) {
    osd.setDisplayType(2);
    texts.name = "A film, its second chapter";
    rig.settings.notifications.post(QVMovieInterestingTimeNotification{});
    EXPECT_EQ(osd.text(), "Movie: A film, its second chapter (1/2)");
}

TEST_F(OSD, is_made_when_there_is_something_to_show) {
    OSDOnDemand display(rig.settings.environment, rig.window, texts);
    const std::size_t before = rig.window.childWindows().size();
    display.setDisplayType(0);
    EXPECT_EQ(display.displayType(), 0);
    EXPECT_EQ(rig.window.childWindows().size(), before) << "its fonts hold up the first picture";
    display.cycleDisplays(-1);
    EXPECT_EQ(display.displayType(), 5);
    EXPECT_EQ(display.overlay().text(), "Volume: 50%");
    display.setDisplayType(0);
    EXPECT_EQ(display.displayType(), 0);
    EXPECT_EQ(rig.window.childWindows().size(), before + 1);
}

TEST_F(OSD, cycles_through_its_displays_both_ways) {
    const QString shown[] = {QString(),    "Time: 0:01:01/2:02:05", "Movie: A film (1/2)", "English", "Looping",
                             "Volume: 50%"};
    for (const int type : {1, 2, 3, 4, 5}) {
        osd.cycleDisplays(+1);
        EXPECT_EQ(osd.displayType(), type);
        EXPECT_EQ(osd.text(), shown[type]);
        EXPECT_TRUE(osd.isVisible());
    }
    osd.cycleDisplays(+1);
    EXPECT_EQ(osd.displayType(), 0);
    EXPECT_FALSE(osd.isVisible());
    osd.cycleDisplays(-1);
    EXPECT_EQ(osd.displayType(), 5);
    osd.setDisplayType(3);
    osd.setDisplayType(9);
    EXPECT_EQ(osd.text(), shown[3]);
    EXPECT_TRUE(osd.isVisible()) << "a type that there is not changes nothing";
}

TEST_F(OSD, a_time_that_reads_the_same_draws_nothing_anew) {
    osd.setDisplayType(1);
    rig.settings.runLoop.advance(2);
    const std::uint64_t revision = osd.contentRevision();
    rig.settings.notifications.post(QVMovieInterestingTimeNotification{});
    EXPECT_EQ(osd.contentRevision(), revision);
    ++texts.time;
    rig.settings.notifications.post(QVMovieInterestingTimeNotification{});
    EXPECT_EQ(osd.text(), "Time: 0:01:02/2:02:05");
    EXPECT_GT(osd.contentRevision(), revision);
}

TEST_F(OSD, long_names_stay_on_the_screen_and_beside_each_other) {
    QVFeedbackOverlay feedback(rig.settings.environment, rig.window);
    const double line = osd.frame().height();
    texts.name = QString("a film of a very long name ").repeated(40);
    osd.setDisplayType(2);
    rig.settings.runLoop.advance(1);
    EXPECT_EQ(osd.frame().height(), line) << "shortened, not wrapped";
    EXPECT_GT(osd.frame().width(), 800) << "the whole edge is its own";
    EXPECT_LE(osd.frame().maxX(), 1024 - 20);
    feedback.postFeedback(texts.name);
    EXPECT_EQ(feedback.frame().height(), line);
    EXPECT_GE(feedback.frame().x() - osd.frame().maxX(), 20);
    EXPECT_GE(osd.frame().x(), 20);
    EXPECT_LE(feedback.frame().maxX(), 1024 - 20);
    osd.setDisplayType(0);
    rig.settings.runLoop.advance(1);
    EXPECT_GT(feedback.frame().width(), 800);
    osd.setDisplayType(2);
    rig.settings.runLoop.advance(5);
    EXPECT_GT(osd.frame().width(), 800) << "when the message has gone";
    osd.setAlignmentStyle(0x121);
    feedback.postFeedback("another");
    EXPECT_GT(osd.frame().width(), 800) << "not at one edge";
    osd.setAlignmentStyle(0x111);
    EXPECT_LT(osd.frame().width(), 512);
}

TEST(ClockText, hours_are_neither_padded_nor_limited) {
    for (const auto& [seconds, text] :
         {std::pair{0, "0:00:00"}, {3599, "0:59:59"}, {3600, "1:00:00"}, {360000, "100:00:00"}})
        EXPECT_EQ(stringWithTimeIntervalInSeconds(seconds), text);
}

TEST(QVFeedbackOverlay, a_message_is_held_in_full_after_the_last_one) {
    OverlayRig rig;
    QVFeedbackOverlay feedback(rig.settings.environment, rig.window);
    feedback.setFadingInInterval(0.2);
    feedback.setFadingDelayInterval(2);
    feedback.setFadingOutInterval(0.5);
    feedback.postFeedback("one");
    rig.settings.runLoop.advance(0.5);
    feedback.postFeedback("two");
    rig.settings.runLoop.advance(1.95);
    EXPECT_EQ(feedback.alphaValue(), feedback.maxAlpha());
    rig.settings.runLoop.advance(0.3);
    const float fading = feedback.alphaValue();
    EXPECT_LT(fading, feedback.maxAlpha());
    feedback.postFeedback("three");
    EXPECT_EQ(feedback.alphaValue(), fading);
    rig.settings.runLoop.advance(0.3);
    EXPECT_EQ(feedback.alphaValue(), feedback.maxAlpha());
    rig.settings.runLoop.advance(3);
    EXPECT_FALSE(feedback.isVisible());
    const QString lines = "one\n" + QString(76, 'x');
    feedback.postFeedback(lines);
    rig.settings.runLoop.advance(4.1);
    EXPECT_EQ(feedback.alphaValue(), feedback.maxAlpha()) << "several lines went before they could be read";
    rig.settings.runLoop.advance(0.7);
    EXPECT_FALSE(feedback.isVisible());
    rig.settings.defaults().setBool(false, kQVDisplayFeedback);
    feedback.postFeedback("four");
    EXPECT_EQ(feedback.text(), lines);
    EXPECT_FALSE(feedback.isVisible());
}
