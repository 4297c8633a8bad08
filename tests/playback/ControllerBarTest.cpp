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
    const ControllerBar::State state{.time = "0:00:00", .duration = "0:01:00"};
};

} // namespace

TEST(ControllerBar, shows_what_has_arrived_and_of_a_live_movie_how_far_it_is_behind) {
    BarRig rig;
    rig.player().arrived = 9000;
    EXPECT_EQ(rig.view.controllerState().arrived, 0.25);
    const auto lightAt = [&](double share) {
        QImage picture(640, 16, QImage::Format_RGB32);
        QPainter painter(&picture);
        const ControllerBar::State shown = rig.view.controllerState();
        ControllerBar::draw(painter, rig.size, shown, {});
        const ControllerBar::Layout places = ControllerBar::layout(rig.size, shown);
        return qGray(picture.pixel(static_cast<int>(places.placeOf(share)), 8));
    };
    EXPECT_GT(lightAt(0.2), lightAt(0.3) + 10);

    rig.view.movie()->setTime(12000);
    rig.player().behind = 5;
    EXPECT_EQ(rig.view.controllerState().duration, u'\u2212' + QStringLiteral("0:00:05"));
    EXPECT_EQ(rig.view.controllerState().position, 12000.0 / 15000);
    rig.view.performController({ControllerBar::Control::time, 0.2});
    EXPECT_EQ(rig.view.time(), 3000);
    rig.player().behind = 1;
    EXPECT_EQ(rig.view.controllerState().duration, "Live");
}

TEST(ControllerBar, its_controls_play_seek_and_change_the_volume) {
    BarRig rig;
    rig.window.dispatchMouseDown(rig.at(ControllerBar::layout(rig.size, rig.state).play.center().x()));
    rig.window.dispatchMouseUp(rig.at(0));
    EXPECT_TRUE(rig.view.isPlaying());

    const QRectF slider = ControllerBar::layout(rig.size, rig.state).time;
    rig.window.dispatchMouseDown(rig.at(slider.center().x()));
    EXPECT_NEAR(rig.view.time(), 18000, 1);
    rig.window.dispatchMouseDragged(rig.at(5000));
    EXPECT_EQ(rig.view.time(), 36000) << "the slider is followed outside the bar";
    rig.window.dispatchMouseDragged(rig.at(-5000));
    EXPECT_EQ(rig.view.time(), 0);
    rig.window.dispatchMouseUp(rig.at(0));

    rig.window.dispatchMouseDown(rig.at(ControllerBar::layout(rig.size, rig.state).mute.center().x()));
    EXPECT_TRUE(rig.view.isMuted());
    Posts<QVMovieVolumeChangedNotification> volumes(rig.settings.notifications);
    rig.window.dispatchMouseDown(rig.at(ControllerBar::layout(rig.size, rig.state).volume.center().x()));
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
        ControllerBar::draw(painter, size, state, {});
        return image;
    };
    const auto brightness = [](const QImage& image, const QPointF& at) { return qGray(image.pixel(at.toPoint())); };
    const QPointF button = ControllerBar::layout(size, {}).play.center();
    EXPECT_GT(brightness(drawn({.playing = false}), button), 200) << "a triangle";
    EXPECT_LT(brightness(drawn({.playing = true}), button), 50) << "between two bars";

    EXPECT_EQ(drawn({}), drawn({.playing = false, .muted = false, .volume = 1, .position = 0})) << "without a movie";

    const auto speaker = [&](bool muted, double volume) {
        return drawn({.muted = muted, .volume = volume}).copy(ControllerBar::layout(size, {}).mute.toRect());
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
        for (const auto& [slider, at] : {std::pair{ControllerBar::layout(size, {}).volume, value},
                                         std::pair{ControllerBar::layout(size, {}).time, 1 - value}}) {
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
    const QRectF slider = ControllerBar::layout(QSizeF(640, 16), {}).time;
    std::vector<int> marked; // shares of the slider, above its line
    for (int x = static_cast<int>(slider.left()) + 10; x < slider.right(); ++x)
        if (qGray(image.pixel(x, 100 + 5)) > 60 && qGray(image.pixel(x - 1, 100 + 5)) <= 60)
            marked.push_back(qRound((x - slider.left() - 4) * 100 / (slider.width() - 8)));
    EXPECT_EQ(marked, (std::vector<int>{25, 75}));
}

TEST(ControllerBar, a_narrow_bar_drops_what_is_missed_least_and_keeps_its_slider) {
    using Control = ControllerBar::Control;
    const ControllerBar::State texts{.time = "0:00:00", .duration = "1:00:00"};
    struct Case {
        double width;
        std::vector<Control> left; // from the left to the right
    };
    const Case cases[] = {
        {640,
         {Control::play, Control::previous, Control::next, Control::mute, Control::volume, Control::time,
          Control::tracks}},
        {320, {Control::play, Control::previous, Control::next, Control::mute, Control::time, Control::tracks}},
        {200, {Control::play, Control::mute, Control::time, Control::tracks}},
        {160, {Control::play, Control::mute, Control::time}},
        {20, {Control::play}},
    };
    for (const Case& c : cases) {
        const auto layout = ControllerBar::layout(QSizeF(c.width, 16), texts);
        std::vector<Control> found;
        for (double x = 0.5; x < c.width; ++x) {
            const Control control = layout.controlAt(QPointF(x, 8));
            if (control != Control::none && (found.empty() || found.back() != control))
                found.push_back(control);
        }
        EXPECT_EQ(found, c.left) << c.width;
        EXPECT_TRUE(c.width < 150 || layout.time.width() >= 100) << c.width;
        EXPECT_TRUE(c.width > 300 || layout.timeText.isEmpty()) << c.width;
        EXPECT_EQ(layout.controlAt(QPointF(0, 0)), Control::play) << "the corner, too";
    }
}

TEST(ControllerBar, its_buttons_are_commands_and_the_one_under_the_pointer_stands_out) {
    BarRig rig;
    const auto layout = ControllerBar::layout(rig.size, rig.state);
    for (const QRectF& button : {layout.previous, layout.next, layout.tracks}) {
        rig.window.dispatchMouseDown(rig.at(button.center().x()));
        rig.window.dispatchMouseUp(rig.at(0));
    }
    EXPECT_EQ(rig.commands.names, (std::vector<std::string>{"previous-movie", "next-movie", "show-tracks"}));

    const auto draws = [&](double x) {
        rig.host.areas.clear();
        rig.view.pointerMoved(rig.at(x).locationInWindow);
        return !rig.host.areas.empty();
    };
    EXPECT_TRUE(draws(layout.next.center().x()));
    EXPECT_FALSE(draws(layout.next.center().x() + 2)) << "the same button";
    EXPECT_TRUE(draws(layout.tracks.center().x()));
    rig.host.areas.clear();
    rig.view.pointerMoved(std::nullopt);
    EXPECT_FALSE(rig.host.areas.empty());
}
