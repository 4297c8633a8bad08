// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/QVImageSubView.h"
#include "subtitles/QVSubtitle.h"
#include "subtitles/vobsub/QVVobSubSubtitles.h"
#include "tests/overlays/FakePicture.h"
#include "tests/overlays/OverlayRig.h"
#include "tests/support/FakeSubtitles.h"
#include "tests/support/Files.h"

namespace {

std::shared_ptr<QVSubtitle> cueAt(const platform::Rect& rect) {
    auto cue = std::make_shared<QVSubtitle>(std::make_shared<TwoPixels>(), 0, 100);
    cue->setRect(rect);
    return cue;
}

class ImageSubView : public testing::Test {
protected:
    ImageSubView() {
        picture.aspect = 1.33F;
        picture.frame = {128, 0, 768, 576};
        // From here on the user chose nothing, and the tracks say how their images come.
        rig.settings.defaults().setObject(QVariantMap(), kQVOverlayStyles);
        view.setBackgroundOn(false);
        view.setFrameOn(false);
    }
    /// A track whose frame has the size.
    std::shared_ptr<QVSubtitles> track(const char* size) {
        writeFile(folder.filePath("film.sub"));
        const QByteArray index = QByteArray("# VobSub index file, v7 (do not modify this line!)\nsize: ") + size +
                                 "\nscale: 100%, 100%\nid: en, index: 0\n";
        const auto tracks = QVVobSubSubtitles::subtitlesWithFilePath(
            rig.settings.environment, writeFile(folder.filePath("film.idx"), index), owner);
        return tracks.empty() ? nullptr : tracks.front();
    }
    void select(const std::shared_ptr<QVSubtitles>& selected) {
        current = selected;
        view.currentSubtitlesChanged(QVSubtitlesChangedNotification{selected});
    }

    OverlayRig rig;
    FakePicture picture;
    QTemporaryDir folder;
    PlainOwner owner;
    std::shared_ptr<QVSubtitles> current;
    QVImageSubView view{rig.settings.environment, rig.window, picture, kQVDefaultOverlayStyle};
};

void expectFrame(const QVImageSubView& view, const platform::Rect& expected) {
    EXPECT_NEAR(view.frame().x(), expected.x(), 0.01);
    EXPECT_NEAR(view.frame().y(), expected.y(), 0.01);
    EXPECT_NEAR(view.frame().width(), expected.width(), 0.01);
    EXPECT_NEAR(view.frame().height(), expected.height(), 0.01);
}

} // namespace

TEST_F(ImageSubView, a_cue_stands_where_its_frame_lies_over_the_picture) {
    EXPECT_EQ(view.aspect(), 1);
    select(track("720x480"));
    view.setSubtitle(cueAt({60, 20, 600, 50}));
    expectFrame(view, {192, 24, 640, 60});
    // The window may stand anywhere, and the picture changes its size.
    rig.window.setFrame(platform::Rect(1000, 500, 1024, 768));
    picture.frame = {256, 100, 384, 288};
    view.movieViewSizeChanged({});
    expectFrame(view, {1288, 612, 320, 30});
    // A film that is wider than a television: its frame reaches beyond it, above and below.
    picture.aspect = 2.35F;
    picture.frame = {0, 0, 720, 300};
    view.movieViewSizeChanged({});
    EXPECT_NEAR(view.aspect(), 16.0 / 9, 1e-6);
    expectFrame(view, {1060, 500 - 52.5 + 20 * 405 / 480.0, 600, 50 * 405 / 480.0});
    // Its bar lies across the cue, which moves up, until it is hidden.
    picture.frame = {0, 36, 720, 316};
    picture.bar = true;
    view.movieViewSizeChanged({});
    EXPECT_NEAR(view.frame().y(), 500 + 36 + 16, 0.01);
    picture.bar = false;
    view.movieViewSizeChanged({});
    EXPECT_NEAR(view.frame().y(), 500 + 36 - 44.5 + 20 * 405 / 480.0, 0.01);
}

TEST_F(ImageSubView, the_scale_is_that_of_the_current_track) {
    select(track("720x480"));
    view.setSubtitle(cueAt({0, 0, 720, 480}));
    expectFrame(view, {128, 0, 768, 576});
    select(track("360x240"));
    view.setSubtitle(cueAt({0, 0, 360, 240}));
    expectFrame(view, {128, 0, 768, 576});
    select(track("0x0"));
    EXPECT_EQ(view.scaleX(), 1);
    EXPECT_EQ(view.scaleY(), 1);
    select(nullptr);
    EXPECT_EQ(view.aspect(), 1);
}

TEST_F(ImageSubView, images_come_and_go_like_texts) {
    select(track("720x480"));
    view.setMaxAlpha(0.5F);
    EXPECT_EQ(view.alphaValue(), 0) << "nothing to show yet";
    ImageSubtitleView& shown = view;
    shown.setFadingInInterval(0.25);
    shown.setFadingOutInterval(0.75);
    EXPECT_EQ(view.fadingInInterval(), 0.25);
    EXPECT_EQ(view.fadingOutInterval(), 0.75);
    view.show();
    EXPECT_FALSE(view.isVisible());
    const auto cue = cueAt({0, 0, 10, 10});
    view.setSubtitle(cue);
    rig.settings.runLoop.advance(2);
    EXPECT_EQ(view.alphaValue(), 0.5F);
    const auto revision = view.contentRevision();
    view.setSubtitle(cue);
    EXPECT_EQ(view.contentRevision(), revision);
    view.setSubtitle(nullptr);
    EXPECT_FALSE(view.image().isNull()) << "the image goes before it has faded";
    rig.settings.runLoop.advance(2);
    EXPECT_EQ(view.alphaValue(), 0);
    EXPECT_TRUE(view.image().isNull());
    // Switched off and on again, and a cue without an image.
    view.setSubtitle(cue);
    view.hide();
    rig.settings.runLoop.advance(2);
    view.setMaxAlpha(0.75F);
    EXPECT_EQ(view.alphaValue(), 0);
    view.show();
    rig.settings.runLoop.advance(2);
    EXPECT_EQ(view.alphaValue(), 0.75F);
    view.setSubtitle(std::make_shared<QVSubtitle>());
    rig.settings.runLoop.advance(2);
    EXPECT_EQ(view.alphaValue(), 0);
}

TEST_F(ImageSubView, what_the_user_chose_stands_above_what_the_track_asks_for) {
    QVImageSubView shown(rig.settings.environment, rig.window, picture); // of the style that nobody has changed
    shown.setMaxAlpha(0.6F);
    shown.setFadingInInterval(0.3);
    shown.setFadingOutInterval(0.4);
    EXPECT_EQ(shown.maxAlpha(), 0.6F);
    EXPECT_EQ(shown.fadingInInterval(), 0.3);
    EXPECT_EQ(shown.fadingOutInterval(), 0.4);
    const auto tell = [&](const QStringList& styleKeys) {
        rig.settings.notifications.post(QVPreferencesChangedNotification{kQVVobSubOverlayStyle, styleKeys});
    };
    const auto choose = [&](const QString& styleKey, float value) {
        QVOverlayStyleDefaults::overlayStyleDefaultsWithKey(rig.settings.defaults(), kQVVobSubOverlayStyle)
            ->setObject(value, styleKey);
        tell({styleKey});
    };
    choose(kMaxAlpha, 0.8F);
    EXPECT_EQ(shown.maxAlpha(), 0.8F);
    EXPECT_EQ(shown.fadingInInterval(), 0.3) << "the track's, where nothing was chosen";
    choose(kFadingInInterval, 2);
    shown.setMaxAlpha(0.5F); // another track
    shown.setFadingInInterval(0.1);
    EXPECT_EQ(shown.maxAlpha(), 0.8F);
    EXPECT_EQ(shown.fadingInInterval(), 2);
    // Taken back, the track's count again.
    rig.settings.defaults().setObject(QVariantMap(), kQVOverlayStyles);
    tell({kMaxAlpha, kFadingInInterval});
    EXPECT_EQ(shown.maxAlpha(), 0.5F);
    EXPECT_EQ(shown.fadingInInterval(), 0.1);
}
