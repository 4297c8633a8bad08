// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/ControllerBar.h"

#include "platform/window/ScreenScale.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace platform {

namespace {

constexpr double margin = 4;
constexpr double buttonWidth = 22;
constexpr double volumeWidth = 48;
constexpr double gap = 4;
/// A digit of the texts, and the space beside them.
constexpr double digitWidth = 6;
constexpr double textMargin = 4;
/// Half the width of a slider's knob: its middle runs this far inside the slider's ends.
constexpr double knob = 4;
/// So wide the time slider stays, as long as anything else can go.
constexpr double leastSlider = 100;

double trackLength(const QRectF& slider) {
    return std::max(slider.width() - 2 * knob, 0.0);
}

double valueAt(const QRectF& slider, double x) {
    const double length = trackLength(slider);
    return length > 0 ? std::clamp((x - slider.left() - knob) / length, 0.0, 1.0) : 0.0;
}

double coarse(double value, const QRectF& slider) {
    // Half a point is a pixel of a dense screen.
    const double steps = std::max(trackLength(slider) * 2, 1.0);
    return std::round(std::clamp(value, 0.0, 1.0) * steps) / steps;
}

double textWidth(const QString& text) {
    return text.isEmpty() ? 0 : static_cast<double>(text.size()) * digitWidth + textMargin;
}

} // namespace

double ControllerBar::heightOnScreen(double screenHeight) {
    return std::round(height * screenScale(screenHeight));
}

ControllerBar::Layout ControllerBar::layout(const QSizeF& size, const State& state) {
    double volume = volumeWidth;
    double steps = 2 * buttonWidth;
    double tracks = buttonWidth;
    // Both are as wide as the longer one, so that nothing moves as the time goes on.
    double text = std::max(textWidth(state.time), textWidth(state.duration));
    const auto slider = [&] {
        return size.width() - 2 * margin - 2 * buttonWidth - steps - volume - 2 * gap - 2 * text - tracks;
    };
    // What a person misses least goes first.
    for (double* part : {&volume, &text, &steps, &tracks})
        if (slider() < leastSlider)
            *part = 0;

    Layout layout;
    double x = margin;
    const auto take = [&x, &size](double width) {
        const QRectF rect(x, 0, width, size.height());
        x += width;
        return width > 0 ? rect : QRectF();
    };
    // The corners of the bar belong to what stands next to them.
    layout.play = take(buttonWidth).adjusted(-margin, 0, 0, 0);
    layout.previous = take(steps / 2);
    layout.next = take(steps / 2);
    layout.mute = take(buttonWidth);
    layout.volume = take(volume);
    take(gap);
    layout.timeText = take(text);
    layout.time = take(std::max(slider(), 0.0));
    layout.durationText = take(text);
    take(gap);
    if (tracks > 0)
        layout.tracks = take(tracks).adjusted(0, 0, margin, 0);
    return layout;
}

ControllerBar::Control ControllerBar::Layout::controlAt(QPointF point) const {
    for (const auto& [rect, control] : {std::pair{play, Control::play},
                                        {previous, Control::previous},
                                        {next, Control::next},
                                        {mute, Control::mute},
                                        {volume, Control::volume},
                                        {time, Control::time},
                                        {tracks, Control::tracks}})
        if (rect.contains(point))
            return control;
    return Control::none;
}

double ControllerBar::Layout::placeAt(double x) const {
    return valueAt(time, x);
}

double ControllerBar::Layout::placeOf(double share) const {
    return time.left() + knob + share * trackLength(time);
}

ControllerBar::State ControllerBar::shownState(const State& state, const QSizeF& size) {
    State shown = state;
    const Layout places = layout(size, state);
    shown.volume = places.volume.isEmpty() ? (state.volume > 0 ? (state.volume > 0.5 ? 1.0 : 0.5) : 0.0)
                                           : coarse(state.volume, places.volume);
    shown.position = coarse(state.position, places.time);
    shown.arrived = coarse(state.arrived, places.time);
    return shown;
}

ControllerBar::Command ControllerBar::press(QPointF point, const Layout& layout) {
    _pressed = layout.controlAt(point);
    if (_pressed != Control::volume && _pressed != Control::time)
        return {std::exchange(_pressed, Control::none)};
    return drag(point, layout);
}

ControllerBar::Command ControllerBar::drag(QPointF point, const Layout& layout) const {
    if (_pressed == Control::none)
        return {};
    return {_pressed, valueAt(_pressed == Control::time ? layout.time : layout.volume, point.x())};
}

void ControllerBar::release() {
    _pressed = Control::none;
}

} // namespace platform
