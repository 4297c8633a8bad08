// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/QVTextSubView.h"
#include "platform/window/Fonts.h"
#include "subtitles/QVSubtitle.h"
#include "tests/overlays/FakePicture.h"
#include "tests/overlays/OverlayRig.h"

#include <gtest/gtest.h>

namespace {

std::shared_ptr<QVSubtitle> cue(const char* text) {
    return std::make_shared<QVSubtitle>(QString(text), 0, 100);
}

class TextSubView : public testing::Test {
protected:
    TextSubView() {
        rig.change(kTextFontSize, 36);
        rig.change(kAlignment, 0x110); // centred, on the picture's bottom edge
        view.setTextFontSizeMin(20);
    }
    void resizePicture(const platform::Rect& frame) {
        picture.frame = frame;
        rig.settings.notifications.post(QVMovieViewSizeChangedNotification{nullptr});
    }
    float letters() const { return platform::pointSizeOf(view.textFont()); }

    OverlayRig rig;
    FakePicture picture;
    QVTextSubView view{rig.settings.environment, rig.window, picture, kQVDefaultOverlayStyle};
};

} // namespace

TEST_F(TextSubView, the_same_cue_again_costs_nothing) {
    const auto first = cue("one");
    view.setSubtitle(first);
    rig.settings.runLoop.advance(2);
    const auto revision = view.contentRevision();
    view.setSubtitle(first);
    view.setSubtitle(first);
    EXPECT_EQ(view.contentRevision(), revision);
    view.setSubtitle(cue("two"));
    EXPECT_GT(view.contentRevision(), revision);
    EXPECT_EQ(view.alphaValue(), view.maxAlpha()) << "a cue that follows without a gap fades in";
}

TEST_F(TextSubView, a_cue_that_goes_fades_and_takes_its_text_along) {
    view.setSubtitle(cue("one"));
    rig.settings.runLoop.advance(2);
    EXPECT_TRUE(view.isVisible());
    view.setSubtitle(nullptr);
    EXPECT_EQ(view.text(), "one") << "the text goes before it has faded";
    rig.settings.runLoop.advance(1);
    EXPECT_EQ(view.alphaValue(), 0);
    EXPECT_EQ(view.text(), QString());
    // A cue without a text hides too, but is held: nothing is cleared.
    view.setSubtitle(cue("two"));
    view.setSubtitle(std::make_shared<QVSubtitle>());
    rig.settings.runLoop.advance(2);
    EXPECT_EQ(view.alphaValue(), 0);
    EXPECT_EQ(view.text(), "two");
}

TEST_F(TextSubView, display_that_is_switched_on_shows_a_cue_and_never_an_empty_panel) {
    view.show();
    rig.settings.runLoop.advance(2);
    EXPECT_FALSE(view.isVisible());
    view.setSubtitle(cue("one"));
    view.hide();
    rig.settings.runLoop.advance(2);
    EXPECT_FALSE(view.isVisible());
    view.show();
    rig.settings.runLoop.advance(2);
    EXPECT_EQ(view.alphaValue(), view.maxAlpha());
    EXPECT_EQ(view.text(), "one");
}

TEST_F(TextSubView, markup_moves_and_styles_a_text_at_once_when_the_setting_changes) {
    const auto setMarkup = [&](bool on) {
        rig.settings.defaults().setBool(on, kQVSubtitlesMarkup);
        rig.settings.notifications.post(QVPreferencesChangedNotification{kQVSubtitlesMarkup, {}});
    };
    const auto bottom = [&] { return view.frame().y() - picture.frame.y(); };
    EXPECT_TRUE(rig.settings.defaults().boolForKey(kQVSubtitlesMarkup)) << "not registered";
    view.setSubtitle(cue("{\\an8}<i>one</i> &amp; two"));
    rig.settings.runLoop.advance(2);
    EXPECT_EQ(view.text(), "one & two");
    const double top = picture.frame.height() - view.frame().height();
    EXPECT_EQ(bottom(), top);
    setMarkup(false);
    EXPECT_EQ(view.text(), "{\\an8}<i>one</i> &amp; two");
    EXPECT_EQ(bottom(), 0);
    setMarkup(true);
    EXPECT_EQ(bottom(), top);
    view.setSubtitle(cue("{\\an8}one & two"));
    EXPECT_EQ(bottom(), top);
    view.setSubtitle(cue("one & two"));
    EXPECT_EQ(bottom(), 0) << "the same letters at another place";
    view.setSubtitle(cue("{\\an8}<b></b>"));
    rig.settings.runLoop.advance(2);
    EXPECT_EQ(view.alphaValue(), 0) << "nothing is left to draw";
    view.show();
    EXPECT_FALSE(view.isVisible());
    setMarkup(false);
    view.show();
    EXPECT_TRUE(view.isVisible());
    setMarkup(true);
    rig.settings.runLoop.advance(2);
    EXPECT_EQ(view.alphaValue(), 0) << "codes that nobody wants to read any more";
}

TEST_F(TextSubView, the_letters_follow_the_size_of_the_picture) {
    view.setSubtitle(cue("some words"));
    const double large = view.frame().height();
    EXPECT_EQ(letters(), 36);
    resizePicture({256, 240, 512, 288});
    EXPECT_EQ(letters(), 20) << "half of 36 is less than the smallest size";
    EXPECT_LT(view.frame().height(), large);
    EXPECT_EQ(view.frame().y(), 240);
    EXPECT_NEAR(view.frame().center().x(), 512, 0.01);
    rig.change(kTextFontSize, 60);
    EXPECT_EQ(letters(), 30);
    resizePicture({-500, -300, 2048, 1152});
    EXPECT_EQ(letters(), 60);
    EXPECT_EQ(view.frame().y(), 0) << "below the parent's edge";
}
