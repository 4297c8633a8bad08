// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRectF>

#include <optional>
#include <span>

class QPainter;

namespace platform {

/// The controller bar: play or pause, a mute button with a volume slider, and a time slider. It lays itself out in a
/// width, draws a state, and turns presses into commands; it keeps no state but which control is pressed. Coordinates:
/// origin top left of the bar, y down, in points of a bar `height` high; on a high screen it is shown larger.
class ControllerBar {
public:
    static constexpr double height = 16;
    /// The height at which it is shown on a screen so high: whole points of the screen.
    static double heightOnScreen(double screenHeight);

    struct State {
        bool playing = false;
        bool muted = false;
        /// 0 to 1 of the full volume; louder shows as 1.
        double volume = 1.0;
        /// 0 to 1 of the duration.
        double position = 0;
        friend bool operator==(const State&, const State&) = default;
    };
    struct Command {
        enum class Kind { none, togglePlay, toggleMute, setVolume, seek };
        Kind kind = Kind::none;
        /// The new volume or position, 0 to 1.
        double value = 0;
    };

    /// The state as coarsely as a bar of the size shows it: states that are equal after it look the same.
    static State shownState(const State& state, const QSizeF& size);

    /// `marks` are places of the time slider, 0 to 1.
    void draw(QPainter& painter, const QSizeF& size, const State& state, std::span<const double> marks) const;
    Command press(QPointF point, const QSizeF& size);
    Command drag(QPointF point, const QSizeF& size);
    void release();

    /// Where the controls stand in a bar of a size.
    static QRectF playButton(const QSizeF& size);
    static QRectF muteButton(const QSizeF& size);
    static QRectF volumeSlider(const QSizeF& size);
    static QRectF timeSlider(const QSizeF& size);

private:
    Command::Kind _pressed = Command::Kind::none;
};

} // namespace platform
