// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/SampleStill.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <array>
#include <cmath>

namespace {

struct Palette {
    QColor skyAbove;
    QColor skyBelow;
    QColor light;                // the sun, or the moon
    std::array<QColor, 3> hills; // from the farthest
};

const Palette& paletteOf(SampleStill still) {
    static const Palette day{
        QColor(0x9CC9EE), QColor(0xF6F1E2), QColor(0xFFFBEF), {QColor(0xC3D3DB), QColor(0xDDE3CF), QColor(0xF2EFE3)}};
    static const Palette night{
        QColor(0x0B1026), QColor(0x2A2F4F), QColor(0xE8E4CF), {QColor(0x1B2036), QColor(0x12182A), QColor(0x090D18)}};
    return still == SampleStill::light ? day : night;
}

/// A ridge of hills across the place, from `height` (a share of the place's) upwards and downwards.
QPainterPath ridge(const QRectF& place, double height, double waves, double phase) {
    constexpr int points = 48;
    constexpr double swing = 0.08;
    QPainterPath path(place.bottomLeft());
    for (int i = 0; i <= points; ++i) {
        const double x = static_cast<double>(i) / points;
        const double y = height + swing * std::sin(waves * x + phase) + swing * 0.4 * std::sin(2.7 * waves * x);
        path.lineTo(place.x() + x * place.width(), place.y() + y * place.height());
    }
    path.lineTo(place.bottomRight());
    path.closeSubpath();
    return path;
}

} // namespace

void paintStill(QPainter& painter, const QRectF& place, SampleStill still) {
    const Palette& palette = paletteOf(still);
    painter.save();
    painter.setClipRect(place, Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    QLinearGradient sky(place.topLeft(), place.bottomLeft());
    sky.setColorAt(0, palette.skyAbove);
    sky.setColorAt(0.8, palette.skyBelow);
    painter.fillRect(place, sky);
    const double radius = place.height() * 0.08;
    painter.setBrush(palette.light);
    painter.drawEllipse(place.topLeft() + QPointF(place.width() * 0.72, place.height() * 0.28), radius, radius);
    constexpr struct {
        double height;
        double waves;
        double phase;
    } ridges[] = {{0.6, 5, 0.4}, {0.72, 7, 2}, {0.86, 4, 3.4}};
    for (std::size_t i = 0; i < palette.hills.size(); ++i)
        painter.fillPath(ridge(place, ridges[i].height, ridges[i].waves, ridges[i].phase), palette.hills[i]);
    painter.restore();
}

void paintDesktop(QPainter& painter, const QRectF& place, SampleStill still) {
    const bool light = still == SampleStill::light;
    painter.fillRect(place, light ? QColor(0xB9C6D2) : QColor(0x2B3440));
    const double unit = place.height() / 20;
    const QRectF window(place.x() + 3 * unit, place.y() + 2 * unit, place.width() - 9 * unit,
                        place.height() - 5 * unit);
    painter.fillRect(window, light ? QColor(0xFAFAFA) : QColor(0x1C2128));
    painter.fillRect(QRectF(window.topLeft(), QSizeF(window.width(), 1.5 * unit)),
                     light ? QColor(0x8FA3B5) : QColor(0x46525F));
    for (double y = window.y() + 3 * unit; y + unit < window.bottom(); y += 1.5 * unit)
        painter.fillRect(QRectF(window.x() + unit, y, window.width() - 2 * unit, 0.5 * unit),
                         light ? QColor(0xD5D9DD) : QColor(0x39424D));
}
