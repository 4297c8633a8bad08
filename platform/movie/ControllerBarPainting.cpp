// SPDX-License-Identifier: GPL-3.0-or-later
// What the controller bar looks like.
#include "platform/movie/ControllerBar.h"

#include <QFont>
#include <QPainter>
#include <QPolygonF>

#include <algorithm>

namespace platform {

namespace {

using Control = ControllerBar::Control;

const QColor full(235, 235, 235);
constexpr double knob = 4;
/// Of the texts, points of the bar.
constexpr int textSize = 10;

void drawSlider(QPainter& painter, const QRectF& slider, double value, double arrived, bool pointed) {
    const double length = slider.width() - 2 * knob;
    if (length <= 0)
        return;
    const double middle = slider.center().y();
    const double at = slider.left() + knob + std::clamp(value, 0.0, 1.0) * length;
    const QRectF track(slider.left() + knob, middle - 1.5, length, 3);
    painter.setBrush(QColor(255, 255, 255, 60));
    painter.drawRoundedRect(track, 1.5, 1.5);
    if (arrived > value) {
        painter.setBrush(QColor(255, 255, 255, 60));
        painter.drawRoundedRect(QRectF(track.left(), track.top(), std::min(arrived, 1.0) * length, 3), 1.5, 1.5);
    }
    painter.setBrush(QColor(255, 255, 255, 150));
    painter.drawRoundedRect(QRectF(track.left(), track.top(), at - track.left(), 3), 1.5, 1.5);
    painter.setBrush(pointed ? QColor(Qt::white) : full);
    painter.drawEllipse(QPointF(at, middle), knob, knob);
}

void drawMarks(QPainter& painter, const ControllerBar::Layout& layout, std::span<const double> marks) {
    painter.setBrush(QColor(255, 255, 255, 170));
    for (const double mark : marks)
        painter.drawRect(QRectF(layout.placeOf(mark) - 0.5, layout.time.center().y() - 4, 1, 8));
}

void drawPlay(QPainter& painter, QPointF c, bool playing) {
    if (playing) {
        painter.drawRect(QRectF(c.x() - 4, c.y() - 4.5, 3, 9));
        painter.drawRect(QRectF(c.x() + 1, c.y() - 4.5, 3, 9));
    } else {
        painter.drawPolygon(QPolygonF({c + QPointF(-3.5, -5), c + QPointF(5, 0), c + QPointF(-3.5, 5)}));
    }
}

/// A triangle that points at a line, to the right (1) or to the left (-1).
void drawStep(QPainter& painter, QPointF c, double direction) {
    painter.drawPolygon(
        QPolygonF({c + QPointF(-4 * direction, -4), c + QPointF(2 * direction, 0), c + QPointF(-4 * direction, 4)}));
    painter.drawRect(QRectF(c.x() + (direction > 0 ? 2.5 : -4.5), c.y() - 4, 2, 8));
}

void drawSpeaker(QPainter& painter, QPointF c, const QColor& color, const ControllerBar::State& state) {
    const bool silent = state.muted || state.volume <= 0;
    QColor shown = color;
    if (silent)
        shown.setAlpha(140);
    painter.setBrush(shown);
    painter.drawPolygon(QPolygonF({c + QPointF(-5, -1.5), c + QPointF(-3, -1.5), c + QPointF(0, -4), c + QPointF(0, 4),
                                   c + QPointF(-3, 1.5), c + QPointF(-5, 1.5)}));
    painter.setPen(QPen(shown, 1.2));
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

/// A screen with two lines of text on it.
void drawTracks(QPainter& painter, QPointF c, const QColor& color) {
    painter.setPen(QPen(color, 1.2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(c.x() - 6, c.y() - 4.5, 12, 9), 1.5, 1.5);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRect(QRectF(c.x() - 4, c.y() - 0.5, 3, 1.2));
    painter.drawRect(QRectF(c.x(), c.y() - 0.5, 4, 1.2));
    painter.drawRect(QRectF(c.x() - 4, c.y() + 1.7, 5, 1.2));
    painter.drawRect(QRectF(c.x() + 2, c.y() + 1.7, 2, 1.2));
}

void drawText(QPainter& painter, const QRectF& place, const QString& text, Qt::Alignment side) {
    if (place.isEmpty())
        return;
    QFont font;
    font.setPixelSize(textSize);
    painter.setFont(font);
    painter.setPen(full);
    painter.drawText(place, static_cast<int>(side | Qt::AlignVCenter | Qt::TextDontClip), text);
    painter.setPen(Qt::NoPen);
}

} // namespace

void ControllerBar::draw(QPainter& painter, const QSizeF& size, const State& state, std::span<const double> marks,
                         Ground ground) {
    const Layout places = layout(size, state);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (ground == Ground::strip) {
        painter.fillRect(QRectF(QPointF(0, 0), size), QColor(24, 24, 26, 215));
        painter.fillRect(QRectF(0, 0, size.width(), 1), QColor(255, 255, 255, 28));
    }
    painter.setPen(Qt::NoPen);
    // What would be pressed stands on a lighter ground.
    const auto begin = [&](const QRectF& button, Control control) {
        if (state.pointed == control) {
            painter.setBrush(QColor(255, 255, 255, 40));
            painter.drawRoundedRect(button.adjusted(1, 1, -1, -1), 3, 3);
        }
        painter.setBrush(full);
        return !button.isEmpty();
    };
    if (begin(places.play, Control::play))
        drawPlay(painter, places.play.center(), state.playing);
    if (begin(places.previous, Control::previous))
        drawStep(painter, places.previous.center(), -1);
    if (begin(places.next, Control::next))
        drawStep(painter, places.next.center(), 1);
    if (begin(places.mute, Control::mute))
        drawSpeaker(painter, places.mute.center(), full, state);
    if (begin(places.tracks, Control::tracks))
        drawTracks(painter, places.tracks.center(), full);
    drawSlider(painter, places.volume, state.volume, 0, state.pointed == Control::volume);
    drawText(painter, places.timeText, state.time, Qt::AlignHCenter);
    drawText(painter, places.durationText, state.duration, Qt::AlignHCenter);
    drawMarks(painter, places, marks);
    drawSlider(painter, places.time, state.position, state.arrived, state.pointed == Control::time);
    painter.restore();
}

} // namespace platform
