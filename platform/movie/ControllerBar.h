// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRectF>
#include <QString>

#include <optional>
#include <span>

class QPainter;

namespace platform {

/// The controller bar: play or pause, the movies before and behind, a mute button with a volume slider, a time slider
/// between the time and the duration, and the tracks. It lays itself out in a width, draws a state, and turns presses
/// into commands; it keeps no state but which control is pressed. Coordinates: origin top left of the bar, y down, in
/// points of a bar `height` high; it is shown larger on a high screen, and over the picture.
class ControllerBar {
public:
    static constexpr double height = 16;
    /// The height at which it is shown on a screen so high: whole points of the screen.
    static double heightOnScreen(double screenHeight);

    enum class Control { none, play, previous, next, mute, volume, time, tracks };

    struct State {
        bool playing = false;
        bool muted = false;
        /// 0 to 1 of the full volume; louder shows as 1.
        double volume = 1.0;
        /// 0 to 1 of the duration.
        double position = 0;
        /// Up to where the movie has arrived, in shares of the duration; 0 where there is nothing to show of that.
        double arrived = 0;
        /// As they are shown; empty for none.
        QString time = {};
        QString duration = {};
        /// That under the pointer.
        Control pointed = Control::none;
        friend bool operator==(const State&, const State&) = default;
    };
    /// What a press or a drag asks for: that a button acts, or that a slider has a value.
    struct Command {
        Control control = Control::none;
        /// The new volume or position, 0 to 1.
        double value = 0;
    };

    /// Where the controls stand in a bar of a size. Those that a narrow bar has no space for are empty: the time slider
    /// keeps its least width as long as anything else can go.
    struct Layout {
        QRectF play, previous, next, mute, volume, timeText, time, durationText, tracks;

        Control controlAt(QPointF point) const;
        /// The share of the time slider at a place, 0 to 1.
        double placeAt(double x) const;
        /// The place of a share.
        double placeOf(double share) const;
    };
    /// The texts of the state count, what they say does not.
    static Layout layout(const QSizeF& size, const State& state);

    /// The state as coarsely as a bar of the size shows it: states that are equal after it look the same.
    static State shownState(const State& state, const QSizeF& size);

    /// What is behind the controls: a dark strip, or what was painted before.
    enum class Ground { strip, none };
    /// `marks` are places of the time slider, 0 to 1.
    static void draw(QPainter& painter, const QSizeF& size, const State& state, std::span<const double> marks,
                     Ground ground = Ground::strip);
    Command press(QPointF point, const Layout& layout);
    Command drag(QPointF point, const Layout& layout) const;
    void release();

private:
    Control _pressed = Control::none;
};

} // namespace platform
