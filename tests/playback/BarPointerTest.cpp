// SPDX-License-Identifier: GPL-3.0-or-later
#include "playback/BarPointer.h"

#include "playback/FloatingBar.h"
#include "playback/PlacePreview.h"
#include "settings/SettingsKeys.h"
#include "tests/support/PlaybackRig.h"

#include <gtest/gtest.h>

using platform::ControllerBar;

namespace {

struct PointerRig : PlaybackRig {
    explicit PointerRig(bool hasBarBelow) {
        window.orderFront();
        settings.defaults().setBool(hasBarBelow, kQVControllerVisible);
        platform::MovieInfo info = ScriptedToolkit::plainMovie(QUrl("file:///movies/a.mp4"));
        info.chapters = {{0, "One"}, {18000, "Two"}};
        movie = std::make_shared<QVMovie>(settings.environment, movies, info);
        view.setMovie(movie);
    }
    /// A point of the bar below the picture, at a share of its time slider.
    QPointF onSlider(double share) const {
        const QSizeF size(view.frame().width(), 16);
        const auto layout = ControllerBar::layout(size, view.controllerState());
        return QPointF(view.frame().minX() + layout.placeOf(share), view.frame().minY() + 8);
    }
    void over(std::int32_t way) {
        settings.defaults().setInteger(way, kQVControllerOverPicture);
        changePreference(kQVControllerOverPicture);
    }
    bool floats() const { return bars.floatingBar() && bars.floatingBar()->isVisible(); }
    bool shows() const { return bars.preview() && bars.preview()->isVisible(); }
    /// Answers a keyframe that was asked for; false when nobody wants it any more.
    bool answer(std::size_t index, Qt::GlobalColor color) {
        const auto completion = toolkit.keyframes.at(index).completion.lock();
        QImage picture(16, 9, QImage::Format_RGB32);
        picture.fill(color);
        if (completion)
            (*completion)(picture);
        return completion != nullptr;
    }
    QColor pictureColor() const {
        return bars.preview()->picture().isNull() ? QColor() : bars.preview()->picture().pixelColor(3, 3);
    }

    std::shared_ptr<QVMovie> movie;
    BarPointer bars{settings.environment, window, view, toolkit};
};

} // namespace

TEST(BarPointer, the_place_under_the_pointer_is_named_and_pictured_and_nothing_is_read_before) {
    PointerRig rig(true);
    rig.bars.moved(QPointF(700, 400));
    EXPECT_FALSE(rig.shows());
    EXPECT_TRUE(rig.toolkit.keyframes.empty());

    rig.bars.moved(rig.onSlider(0.75));
    ASSERT_TRUE(rig.shows());
    EXPECT_EQ(rig.bars.preview()->text(), "0:00:45\nTwo");
    ASSERT_EQ(rig.toolkit.keyframes.size(), 1U);
    EXPECT_NEAR(rig.toolkit.keyframes[0].seconds, 45, 0.1);

    // Of those asked for meanwhile only the newest is decoded, and the one under way is shown when it is its own.
    rig.bars.moved(rig.onSlider(0.2));
    rig.bars.moved(rig.onSlider(0.3));
    rig.bars.moved(rig.onSlider(0.4));
    EXPECT_EQ(rig.bars.preview()->text(), "0:00:24\nOne");
    EXPECT_EQ(rig.toolkit.keyframes.size(), 1U);
    EXPECT_TRUE(rig.answer(0, Qt::red));
    EXPECT_FALSE(rig.pictureColor().isValid()) << "of another place";
    ASSERT_EQ(rig.toolkit.keyframes.size(), 2U);
    EXPECT_NEAR(rig.toolkit.keyframes[1].seconds, 24, 0.1);
    EXPECT_TRUE(rig.answer(1, Qt::green));
    EXPECT_EQ(rig.pictureColor(), QColor(Qt::green));
    rig.bars.moved(rig.onSlider(0.75));
    EXPECT_EQ(rig.pictureColor(), QColor(Qt::red)) << "kept";
    EXPECT_EQ(rig.toolkit.keyframes.size(), 2U);

    rig.bars.moved(rig.onSlider(0.5));
    rig.bars.moved(std::nullopt);
    EXPECT_FALSE(rig.shows());
    EXPECT_FALSE(rig.answer(2, Qt::blue)) << "given up";
}

TEST(BarPointer, what_cannot_be_pictured_has_its_time_and_what_has_no_duration_nothing) {
    struct Case {
        const char* url;
        std::int32_t duration;
        bool shows;
    };
    for (const Case& c : {Case{"https://films.example/a.mp4", 36000, true},
                          Case{"https://films.example/live", 0, false}, Case{"file:///movies/growing.ts", 0, false}}) {
        PointerRig rig(true);
        platform::MovieInfo info = ScriptedToolkit::plainMovie(QUrl(c.url));
        info.duration = c.duration;
        rig.view.setMovie(std::make_shared<QVMovie>(rig.settings.environment, rig.movies, info));
        rig.bars.moved(rig.onSlider(0.5));
        EXPECT_EQ(rig.shows(), c.shows) << c.url;
        EXPECT_TRUE(rig.toolkit.keyframes.empty()) << c.url;
    }
}

TEST(BarPointer, the_bar_over_the_picture_comes_and_goes_as_the_setting_says) {
    PointerRig rig(false);
    rig.bars.moved(QPointF(700, 400));
    EXPECT_FALSE(rig.floats()) << "off at first";
    rig.over(1);
    EXPECT_TRUE(rig.floats()) << "at once";
    rig.settings.runLoop.advance(60);
    EXPECT_TRUE(rig.floats());
    rig.over(2);
    EXPECT_FALSE(rig.floats());
    EXPECT_EQ(rig.view.coveredHeight(), 0);

    rig.bars.moved(QPointF(701, 400));
    ASSERT_TRUE(rig.floats());
    EXPECT_GE(rig.view.coveredHeight(), rig.bars.floatingBar()->frame().height()) << "subtitles stand on it";
    rig.settings.runLoop.advance(1.9);
    EXPECT_TRUE(rig.floats());
    rig.settings.runLoop.advance(0.2);
    EXPECT_FALSE(rig.floats());

    // Whoever has the pointer on the bar is using it.
    rig.bars.moved(QPointF(702, 400));
    const QPointF onBar = rig.bars.floatingBar()->frame().center();
    rig.bars.moved(onBar);
    rig.settings.runLoop.advance(60);
    EXPECT_TRUE(rig.floats());
    EXPECT_TRUE(rig.shows()) << "the place under it";
    platform::MouseEvent press;
    press.button = platform::MouseButton::left;
    press.locationInWindow = onBar;
    rig.window.dispatchMouseDown(press);
    rig.window.dispatchMouseUp(press);
    EXPECT_NEAR(rig.view.time(), rig.bars.floatingBar()->barPlaceAt(onBar)->share * 36000, 1) << "it is pressed";

    rig.view.toggleController();
    EXPECT_FALSE(rig.floats()) << "one of them is enough";
    rig.bars.moved(QPointF(703, 400));
    EXPECT_FALSE(rig.floats());
    rig.view.toggleController();
    EXPECT_TRUE(rig.floats());
}
