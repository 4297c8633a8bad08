// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/StylePreview.h"
#include "overlays/QVFeedbackOverlay.h"
#include "overlays/QVImageOverlay.h"
#include "overlays/QVTextSubView.h"
#include "subtitles/QVSubtitle.h"
#include "tests/overlays/FakePicture.h"
#include "tests/overlays/OverlayRig.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using Page = QVOverlayStyleEditedNotification::Page;

class StylePreviewTest : public testing::Test {
protected:
    /// What is to be seen of a style above the window: the overlays that are not fully transparent.
    std::vector<const QVStyledOverlay*> seen(const QString& key) const {
        std::vector<const QVStyledOverlay*> overlays;
        for (const platform::Window* child : rig.window.childWindows()) {
            const auto* overlay = dynamic_cast<const QVStyledOverlay*>(child);
            if (overlay && overlay->style() == key && overlay->isOrderedIn() && overlay->alphaValue() > 0)
                overlays.push_back(overlay);
        }
        return overlays;
    }
    void page(const QString& key, Page page) {
        rig.settings.notifications.post(QVOverlayStyleEditedNotification{key, page});
    }
    void change(const QString& key, const QString& styleKey, const QVariant& value) {
        QVOverlayStyleDefaults::overlayStyleDefaultsWithKey(rig.settings.defaults(), key)->setObject(value, styleKey);
        rig.settings.notifications.post(QVPreferencesChangedNotification{key, {styleKey}});
    }
    void advance(double seconds) { rig.settings.runLoop.advance(seconds); }
    static std::shared_ptr<QVSubtitle> cue(const QString& text) { return std::make_shared<QVSubtitle>(text, 0, 100); }

    OverlayRig rig;
    FakePicture picture;
    StylePreview preview{rig.settings.environment, rig.window, picture};
};

} // namespace

TEST_F(StylePreviewTest, a_style_is_seen_while_its_page_is_open) {
    for (const QString& key : {kQVSubtitlesOverlayStyle, kQVFeedbackOverlayStyle, kQVOSDOverlayStyle,
                               kQVVobSubOverlayStyle, kQVFullscreenOverlayStyle}) {
        SCOPED_TRACE(key.toStdString());
        const std::size_t one = key == kQVFullscreenOverlayStyle ? 0 : 1; // the window is there anyway
        page(key, Page::opened);
        advance(2);
        ASSERT_EQ(seen(key).size(), one);
        if (one) {
            EXPECT_TRUE(rig.window.frame().intersects(seen(key).front()->frame()));
            EXPECT_FALSE(seen(key).front()->frame().isEmpty());
            change(key, kMaxAlpha, 0.5F);
            EXPECT_EQ(seen(key).front()->alphaValue(), 0.5F) << "it follows at once";
            change(key, kMinAlpha, 0.2F); // a hidden overlay would still be seen
        }
        advance(10);
        EXPECT_EQ(seen(key).size(), one) << "it stays";
        page(key, Page::closed);
        advance(2);
        EXPECT_EQ(seen(key).size(), 0U);
    }
    // The next page may open before the one before has closed.
    page(kQVOSDOverlayStyle, Page::opened);
    page(kQVFeedbackOverlayStyle, Page::opened);
    page(kQVOSDOverlayStyle, Page::closed);
    advance(2);
    EXPECT_EQ(seen(kQVOSDOverlayStyle).size(), 0U);
    EXPECT_EQ(seen(kQVFeedbackOverlayStyle).size(), 1U);
}

TEST_F(StylePreviewTest, a_cue_takes_the_place_of_the_sample_which_returns_in_a_longer_gap) {
    QVTextSubView subtitles(rig.settings.environment, rig.window, picture);
    const auto isSample = [&] {
        const auto overlays = seen(kQVSubtitlesOverlayStyle);
        EXPECT_EQ(overlays.size(), 1U) << "never both, and never none";
        return overlays.size() == 1 && overlays.front() != &subtitles;
    };
    page(kQVSubtitlesOverlayStyle, Page::opened);
    EXPECT_TRUE(isSample());
    subtitles.setSubtitle(cue("one"));
    EXPECT_FALSE(isSample());
    EXPECT_EQ(subtitles.text(), "one");
    change(kQVSubtitlesOverlayStyle, kMinAlpha, 0.1F);
    advance(3);
    EXPECT_FALSE(isSample());
    EXPECT_EQ(subtitles.alphaValue(), 1) << "nobody hides the cue to show how that looks";
    change(kQVSubtitlesOverlayStyle, kMinAlpha, 0);
    subtitles.setSubtitle(nullptr);
    advance(0.3);
    EXPECT_TRUE(seen(kQVSubtitlesOverlayStyle).empty()) << "a short gap stays one";
    subtitles.setSubtitle(cue("two"));
    advance(3);
    EXPECT_FALSE(isSample());
    subtitles.setSubtitle(nullptr);
    advance(3);
    EXPECT_TRUE(isSample());
    subtitles.setSubtitle(cue("three"));
    page(kQVSubtitlesOverlayStyle, Page::closed);
    page(kQVSubtitlesOverlayStyle, Page::opened);
    EXPECT_FALSE(isSample()) << "a cue stands when the page opens";
    page(kQVSubtitlesOverlayStyle, Page::closed);
    subtitles.setSubtitle(nullptr);
    advance(3);
    EXPECT_TRUE(seen(kQVSubtitlesOverlayStyle).empty());
}

TEST_F(StylePreviewTest, a_message_keeps_its_time_and_the_sample_comes_after_it) {
    QVFeedbackOverlay feedback(rig.settings.environment, rig.window);
    page(kQVFeedbackOverlayStyle, Page::opened);
    feedback.postFeedback("Paused");
    advance(0.3);
    EXPECT_EQ(seen(kQVFeedbackOverlayStyle), (std::vector<const QVStyledOverlay*>{&feedback}));
    EXPECT_EQ(feedback.text(), "Paused");
    advance(feedback.readingTime() + feedback.fadingOutInterval());
    EXPECT_FALSE(feedback.isVisible());
    advance(3);
    ASSERT_EQ(seen(kQVFeedbackOverlayStyle).size(), 1U);
    EXPECT_NE(seen(kQVFeedbackOverlayStyle).front(), &feedback);
}

TEST_F(StylePreviewTest, what_fades_is_played_once_its_slider_rests) {
    page(kQVOSDOverlayStyle, Page::opened);
    advance(2);
    const auto* sample = seen(kQVOSDOverlayStyle).front();
    const auto alphas = [&](double seconds) { // smallest of the time
        float smallest = 1;
        for (double passed = 0; passed < seconds; passed += 0.05) {
            advance(0.05);
            smallest = std::min(smallest, sample->alphaValue());
        }
        return smallest;
    };
    for (const QString& styleKey : {kFadingInInterval, kFadingOutInterval, kFadingDelayInterval}) {
        SCOPED_TRACE(styleKey.toStdString());
        change(kQVOSDOverlayStyle, styleKey, 0.5F);
        EXPECT_EQ(alphas(0.2), 1) << "the slider may still move";
        change(kQVOSDOverlayStyle, styleKey, 1.0F);
        EXPECT_EQ(alphas(0.3), 1);
        EXPECT_LT(alphas(3), 0.1F);
        advance(3);
        EXPECT_EQ(sample->alphaValue(), 1);
    }
    change(kQVOSDOverlayStyle, kFadingOutInterval, 0);
    change(kQVOSDOverlayStyle, kMinAlpha, 0.3F);
    EXPECT_EQ(sample->alphaValue(), 0.3F) << "how it looks hidden is seen at once";
    change(kQVOSDOverlayStyle, kMinAlpha, 0.4F);
    EXPECT_EQ(sample->alphaValue(), 0.4F);
    change(kQVOSDOverlayStyle, kTextFontSize, 40);
    advance(2);
    EXPECT_EQ(sample->alphaValue(), 1) << "what else is changed is seen on it";
}
