// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/MovieView.h"

#include "platform/movie/Movie.h"
#include "platform/window/Window.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/ScriptedToolkit.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <utility>
#include <vector>

using platform::ControllerBar;
using platform::Movie;
using platform::MovieView;

namespace {

struct ViewRig {
    ViewRig() {
        window.setHost(&host);
        window.contentView().addSubview(view);
        view.setFrame(platform::Rect(0, 0, 640, 496));
        view.setMovieObject(std::make_shared<Movie>(ScriptedToolkit::plainMovie(QUrl("file:///a.mp4")), player));
        view.start();
        view.stop();
        host.areas.clear();
    }
    /// What was to be drawn again since it was asked for last.
    std::vector<platform::Rect> drawnAgain() { return std::exchange(host.areas, {}); }

    ScriptedPlayer player;
    RecordingHost host;
    platform::Window window{platform::Rect(0, 0, 640, 496)};
    MovieView view{player};
    const std::vector<platform::Rect> bar{platform::Rect(0, 0, 640, 16)};
    const std::vector<platform::Rect> nothing;
};

} // namespace

TEST(MovieView, the_controller_bar_is_drawn_again_when_its_knob_moves_by_half_a_point) {
    ViewRig rig;
    rig.view.start();
    EXPECT_EQ(rig.drawnAgain(), rig.bar) << "its button shows that it plays";
    // The knob's middle stays within the slider by half its width of 8.
    const double halfPoints = (ControllerBar::layout(QSizeF(640, 16), {}).time.width() - 8) * 2;
    long shown = 0;
    for (int frame = 1; frame <= 100; ++frame) {
        rig.player.advance(0.04);
        const long now = std::lround(rig.player.time() * halfPoints / 36000);
        EXPECT_EQ(rig.drawnAgain(), std::exchange(shown, now) == now ? rig.nothing : rig.bar) << frame;
    }
    EXPECT_GT(shown, 20) << "the movie moved on";
}

TEST(MovieView, a_frame_is_marked_for_drawing_and_painted_at_once_when_it_is_due) {
    ViewRig rig;
    rig.player.showFrame(true);
    EXPECT_EQ(rig.drawnAgain(), std::vector{platform::Rect(0, 16, 640, 480)});
    EXPECT_EQ(rig.host.paintedAtOnce, 1);
    // Another picture in place of one that may have stood elsewhere.
    rig.player.showFrame(false);
    EXPECT_EQ(rig.drawnAgain(), std::vector{rig.window.contentView().bounds()});
    EXPECT_EQ(rig.host.paintedAtOnce, 1);
}

TEST(MovieView, the_controller_bar_grows_with_its_screen_and_is_pressed_where_it_shows) {
    ViewRig rig;
    rig.window.setFrame(platform::Rect(0, 0, 3840, 2160));
    rig.view.setFrame(rig.window.contentView().bounds());
    EXPECT_EQ(rig.view.pictureRect(), platform::Rect(0, 32, 3840, 2128));
    rig.view.showController(false, true);
    EXPECT_EQ(rig.view.frame(), platform::Rect(0, 32, 3840, 2128));
    rig.view.showController(true, true);
    EXPECT_EQ(rig.view.frame(), platform::Rect(0, 0, 3840, 2160));
    // The bar's own coordinates are half of what is shown.
    const auto press = [&](QPointF point) {
        platform::MouseEvent event;
        event.button = platform::MouseButton::left;
        event.locationInWindow = point;
        return rig.view.mouseDown(event);
    };
    EXPECT_TRUE(press(2 * ControllerBar::layout(QSizeF(1920, 16), {}).time.center()));
    EXPECT_EQ(rig.player.time(), 18000);
    EXPECT_FALSE(press(QPointF(100, 33)));
    EXPECT_TRUE(press(QPointF(100, 31)));
}

TEST(MovieView, the_controller_bar_is_drawn_again_for_what_it_shows_only) {
    ViewRig rig;
    rig.view.setVolume(0.5F);
    EXPECT_EQ(rig.drawnAgain(), rig.bar);
    rig.view.setVolume(0.501F);
    EXPECT_EQ(rig.drawnAgain(), rig.nothing) << "less than a pixel";
    rig.view.setMuted(true);
    EXPECT_EQ(rig.drawnAgain(), rig.bar);
    rig.view.setVolume(1);
    rig.drawnAgain();
    rig.view.setVolume(2);
    EXPECT_EQ(rig.drawnAgain(), rig.nothing) << "louder shows as full";

    rig.view.showController(false, false);
    rig.drawnAgain();
    rig.view.setMuted(false);
    EXPECT_EQ(rig.drawnAgain(), rig.nothing) << "hidden";
}
