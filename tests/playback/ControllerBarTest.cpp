// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/ControllerBar.h"

#include "settings/SettingsKeys.h"
#include "tests/support/PlaybackRig.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

using platform::ControllerBar;

namespace {

/// A rig whose bar stands at the window's lower edge: a 640 by 480 movie, twice as large.
struct BarRig : PlaybackRig {
    BarRig() {
        settings.defaults().setBool(true, kQVControllerVisible);
        settings.defaults().setInteger(movieSize::normal, kQVDefaultMovieSize);
        changePreference(kQVDefaultMovieSize);
        show();
    }
    /// A press, drag or release at a point of the bar, y down.
    platform::MouseEvent at(double x) const {
        platform::MouseEvent event;
        event.button = platform::MouseButton::left;
        event.locationInWindow = QPointF(view.frame().minX() + x, view.frame().minY() + 8);
        return event;
    }
    const QSizeF size{640, 16};
};

} // namespace

TEST(ControllerBar, its_controls_play_seek_and_change_the_volume) {
    BarRig rig;
    rig.window.dispatchMouseDown(rig.at(ControllerBar::playButton(rig.size).center().x()));
    rig.window.dispatchMouseUp(rig.at(0));
    EXPECT_TRUE(rig.view.isPlaying());

    const QRectF slider = ControllerBar::timeSlider(rig.size);
    rig.window.dispatchMouseDown(rig.at(slider.center().x()));
    EXPECT_NEAR(rig.view.time(), 18000, 1);
    rig.window.dispatchMouseDragged(rig.at(5000));
    EXPECT_EQ(rig.view.time(), 36000) << "the slider is followed outside the bar";
    rig.window.dispatchMouseDragged(rig.at(-5000));
    EXPECT_EQ(rig.view.time(), 0);
    rig.window.dispatchMouseUp(rig.at(0));

    rig.window.dispatchMouseDown(rig.at(ControllerBar::muteButton(rig.size).center().x()));
    EXPECT_TRUE(rig.view.isMuted());
    Posts<QVMovieVolumeChangedNotification> volumes(rig.settings.notifications);
    rig.window.dispatchMouseDown(rig.at(ControllerBar::volumeSlider(rig.size).center().x()));
    EXPECT_FALSE(rig.view.isMuted());
    EXPECT_NEAR(rig.view.volume(), 0.5, 0.01);
    EXPECT_EQ(volumes.count, 1);
}

TEST(ControllerBar, it_shows_whether_it_plays_how_loud_and_where) {
    const QSizeF size(640, 16);
    const auto drawn = [&](const ControllerBar::State& state) {
        QImage image(640, 16, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::black);
        QPainter painter(&image);
        ControllerBar().draw(painter, size, state, {});
        return image;
    };
    const auto brightness = [](const QImage& image, const QPointF& at) { return qGray(image.pixel(at.toPoint())); };
    const QPointF button = ControllerBar::playButton(size).center();
    EXPECT_GT(brightness(drawn({.playing = false}), button), 200) << "a triangle";
    EXPECT_LT(brightness(drawn({.playing = true}), button), 50) << "between two bars";

    EXPECT_EQ(drawn({}), drawn({.playing = false, .muted = false, .volume = 1, .position = 0})) << "without a movie";

    const auto speaker = [&](bool muted, double volume) {
        return drawn({.muted = muted, .volume = volume}).copy(ControllerBar::muteButton(size).toRect());
    };
    const auto light = [&](const QImage& image) {
        int sum = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                sum += qGray(image.pixel(x, y));
        return sum;
    };
    EXPECT_EQ(speaker(true, 1), speaker(false, 0));
    EXPECT_EQ(speaker(false, 0.01), speaker(false, 0.5));
    EXPECT_EQ(speaker(false, 0.51), speaker(false, 1));
    EXPECT_GT(light(speaker(false, 0.5)), light(speaker(true, 0.5)) + 500);
    EXPECT_GT(light(speaker(false, 1)), light(speaker(false, 0.5)) + 500) << "one more wave";

    for (const double value : {0.0, 0.25, 0.75, 1.0}) {
        const QImage image = drawn({.volume = value, .position = 1 - value});
        for (const auto& [slider, at] : {std::pair{ControllerBar::volumeSlider(size), value},
                                         std::pair{ControllerBar::timeSlider(size), 1 - value}}) {
            const QPointF knob(slider.left() + 4 + at * (slider.width() - 8), slider.center().y());
            EXPECT_GT(brightness(image, knob), 200) << value;
            if (at > 0) {
                EXPECT_NEAR(brightness(image, knob - QPointF(7, 0)), 180, 30) << value;
            }
            if (at < 1) {
                EXPECT_NEAR(brightness(image, knob + QPointF(7, 0)), 75, 25) << value;
            }
        }
    }
}

TEST(ControllerBar, it_marks_where_the_chapters_begin) {
    ScriptedToolkit toolkit;
    platform::MovieInfo info = ScriptedToolkit::plainMovie(QUrl("file:///movies/chapters.mp4"));
    info.chapters = {{0, "One"}, {9000, "Two"}, {27000, {}}};
    platform::MovieView view(toolkit.player());
    view.setFrame(platform::Rect(0, 0, 640, 116));
    view.setMovieObject(std::make_shared<platform::Movie>(info, toolkit.player()));
    QImage image(640, 116, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    QPainter painter(&image);
    view.draw(painter, view.bounds());
    const QRectF slider = ControllerBar::timeSlider(QSizeF(640, 16));
    std::vector<int> marked; // shares of the slider, above its line
    for (int x = static_cast<int>(slider.left()) + 10; x < slider.right(); ++x)
        if (qGray(image.pixel(x, 100 + 5)) > 60 && qGray(image.pixel(x - 1, 100 + 5)) <= 60)
            marked.push_back(qRound((x - slider.left() - 4) * 100 / (slider.width() - 8)));
    EXPECT_EQ(marked, (std::vector<int>{25, 75}));
}
