// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/ControllerBar.h"

#include "platform/window/ScreenScale.h"

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace platform {

namespace {

constexpr double margin = 6;
constexpr double buttonWidth = 16;
constexpr double volumeWidth = 48;
constexpr double gap = 6;
/// Half the width of a slider's knob: its middle runs this far inside the slider's ends.
constexpr double knob = 4;

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

void drawSlider(QPainter& painter, const QRectF& slider, double value) {
    const double length = trackLength(slider);
    if (length <= 0)
        return;
    const double middle = slider.center().y();
    const double at = slider.left() + knob + std::clamp(value, 0.0, 1.0) * length;
    const QRectF track(slider.left() + knob, middle - 1.5, length, 3);
    painter.setBrush(QColor(255, 255, 255, 60));
    painter.drawRoundedRect(track, 1.5, 1.5);
    painter.setBrush(QColor(255, 255, 255, 150));
    painter.drawRoundedRect(QRectF(track.left(), track.top(), at - track.left(), 3), 1.5, 1.5);
    painter.setBrush(QColor(235, 235, 235));
    painter.drawEllipse(QPointF(at, middle), knob, knob);
}

void drawMarks(QPainter& painter, const QRectF& slider, std::span<const double> marks) {
    painter.setBrush(QColor(255, 255, 255, 170));
    for (const double mark : marks)
        painter.drawRect(
            QRectF(slider.left() + knob + mark * trackLength(slider) - 0.5, slider.center().y() - 4, 1, 8));
}

void drawSpeaker(QPainter& painter, const QRectF& button, const ControllerBar::State& state) {
    const QPointF c = button.center();
    const bool silent = state.muted || state.volume <= 0;
    const QColor color(235, 235, 235, silent ? 140 : 255);
    painter.setBrush(color);
    painter.drawPolygon(QPolygonF({c + QPointF(-5, -1.5), c + QPointF(-3, -1.5), c + QPointF(0, -4), c + QPointF(0, 4),
                                   c + QPointF(-3, 1.5), c + QPointF(-5, 1.5)}));
    painter.setPen(QPen(color, 1.2));
    painter.setBrush(Qt::NoBrush);
    if (silent) {
        painter.drawLine(c + QPointF(2, -2), c + QPointF(6, 2));
        painter.drawLine(c + QPointF(2, 2), c + QPointF(6, -2));
    } else {
        // Angles in sixteenths of a degree: an arc opening to the left.
        painter.drawArc(QRectF(c.x() - 1, c.y() - 2, 4, 4), -60 * 16, 120 * 16);
        if (state.volume > 0.5)
            painter.drawArc(QRectF(c.x() - 3, c.y() - 4, 8, 8), -60 * 16, 120 * 16);
    }
    painter.setPen(Qt::NoPen);
}

} // namespace

double ControllerBar::heightOnScreen(double screenHeight) {
    return std::round(height * screenScale(screenHeight));
}

QRectF ControllerBar::playButton(const QSizeF& size) {
    return QRectF(margin, 0, buttonWidth, size.height());
}

QRectF ControllerBar::muteButton(const QSizeF& size) {
    return QRectF(playButton(size).right() + gap, 0, buttonWidth, size.height());
}

QRectF ControllerBar::volumeSlider(const QSizeF& size) {
    return QRectF(muteButton(size).right(), 0, volumeWidth, size.height());
}

QRectF ControllerBar::timeSlider(const QSizeF& size) {
    const double left = volumeSlider(size).right() + gap;
    return QRectF(left, 0, std::max(size.width() - margin - left, 0.0), size.height());
}

ControllerBar::State ControllerBar::shownState(const State& state, const QSizeF& size) {
    State shown = state;
    shown.volume = coarse(state.volume, volumeSlider(size));
    shown.position = coarse(state.position, timeSlider(size));
    return shown;
}

void ControllerBar::draw(QPainter& painter, const QSizeF& size, const State& state,
                         std::span<const double> marks) const {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(QRectF(QPointF(0, 0), size), QColor(24, 24, 26, 215));
    painter.fillRect(QRectF(0, 0, size.width(), 1), QColor(255, 255, 255, 28));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(235, 235, 235));
    const QPointF c = playButton(size).center();
    if (state.playing) {
        painter.drawRect(QRectF(c.x() - 4, c.y() - 4.5, 3, 9));
        painter.drawRect(QRectF(c.x() + 1, c.y() - 4.5, 3, 9));
    } else {
        painter.drawPolygon(QPolygonF({c + QPointF(-3.5, -5), c + QPointF(5, 0), c + QPointF(-3.5, 5)}));
    }
    drawSpeaker(painter, muteButton(size), state);
    drawSlider(painter, volumeSlider(size), state.volume);
    drawMarks(painter, timeSlider(size), marks);
    drawSlider(painter, timeSlider(size), state.position);
    painter.restore();
}

ControllerBar::Command ControllerBar::press(QPointF point, const QSizeF& size) {
    using Kind = Command::Kind;
    _pressed = Kind::none;
    if (playButton(size).contains(point))
        return {Kind::togglePlay};
    if (muteButton(size).contains(point))
        return {Kind::toggleMute};
    if (volumeSlider(size).contains(point))
        _pressed = Kind::setVolume;
    else if (timeSlider(size).contains(point))
        _pressed = Kind::seek;
    return drag(point, size);
}

ControllerBar::Command ControllerBar::drag(QPointF point, const QSizeF& size) {
    switch (_pressed) {
    case Command::Kind::setVolume:
        return {_pressed, valueAt(volumeSlider(size), point.x())};
    case Command::Kind::seek:
        return {_pressed, valueAt(timeSlider(size), point.x())};
    default:
        return {};
    }
}

void ControllerBar::release() {
    _pressed = Command::Kind::none;
}

} // namespace platform
