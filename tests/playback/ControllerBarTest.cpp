// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/ControllerBar.h"

#include "app/settings/SettingsKeys.h"
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
        platform::NotificationCenter::defaultCenter().post(QVPreferencesChangedNotification{kQVDefaultMovieSize});
        show();
    }
    /// A press, drag or release at a point of the bar, y down.
    platform::MouseEvent at(double x) const {
        platform::MouseEvent event;
        event.button = platform::MouseButton::left;
        event.locationInWindow = QPointF(view.frame().left() + x, view.frame().top() + 8);
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
    Posts<QVMovieVolumeChangedNotification> volumes;
    rig.window.dispatchMouseDown(rig.at(ControllerBar::volumeSlider(rig.size).center().x()));
    EXPECT_FALSE(rig.view.isMuted());
    EXPECT_NEAR(rig.view.volume(), 0.5, 0.01);
    EXPECT_EQ(volumes.count, 1);
}

TEST(ControllerBar, it_is_drawn_again_only_when_it_looks_different) {
    BarRig rig;
    QImage image(640, 496, QImage::Format_RGB32);
    image.fill(Qt::red);
    QPainter painter(&image);
    rig.view.draw(painter, rig.view.bounds());
    painter.end();
    EXPECT_EQ(image.pixelColor(320, 479), QColor(Qt::red)) << "the bar lies below the picture";
    EXPECT_NE(image.pixelColor(320, 482), QColor(Qt::red));

    rig.host.areas.clear();
    rig.view.start();
    EXPECT_EQ(rig.host.areas.size(), 1U);
    // 25 pictures, in which the slider's knob comes 9 points further.
    rig.player().advance(1);
    EXPECT_GT(rig.host.areas.size(), 15U);
    EXPECT_LT(rig.host.areas.size(), 21U);
    for (const QRectF& area : rig.host.areas)
        EXPECT_EQ(area, QRectF(rig.view.frame().topLeft(), rig.size));
}
