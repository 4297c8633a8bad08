// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/ControllerBar.h"

#include "settings/SettingsKeys.h"
#include "tests/support/PlaybackRig.h"

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
