// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/ColorText.h"

#include "platform/base/NumberText.h"

#include <QByteArray>

#include <algorithm>
#include <array>

namespace {

constexpr int significantDigits = 6;

float clampedComponent(double value) {
    return static_cast<float>(std::clamp(value, 0.0, 1.0));
}

quint16 heldComponent(float component) {
    return QColor::fromRgbF(component, 0, 0).rgba64().red();
}

/// The shortest text that reads back as the same component: a colour holds 16 bits of each, in which 0.5 is 0.500008.
QByteArray componentText(float component) {
    QByteArray text;
    for (int digits = 1; digits <= significantDigits; ++digits) {
        text = platform::generalText(static_cast<double>(component), digits);
        QByteArrayView rest(text);
        if (heldComponent(clampedComponent(platform::takeNumber(rest).value_or(0))) == heldComponent(component))
            break;
    }
    return text;
}

} // namespace

std::optional<QColor> JHColorFromString(const QString& text) {
    if (text.isEmpty())
        return std::nullopt;
    std::array<float, 4> components = {0, 0, 0, 1};
    const QByteArray bytes = text.toUtf8();
    QByteArrayView rest(bytes);
    for (float& component : components) {
        const auto number = platform::takeNumber(rest);
        if (!number)
            break;
        component = clampedComponent(*number);
    }
    return QColor::fromRgbF(components[0], components[1], components[2], components[3]);
}

QString JHStringFromColor(const std::optional<QColor>& color) {
    if (!color || !color->isValid())
        return {};
    const QColor rgb = color->toRgb();
    QByteArray text;
    for (const float component : {rgb.redF(), rgb.greenF(), rgb.blueF(), rgb.alphaF()}) {
        if (!text.isEmpty())
            text += ' ';
        text += componentText(component);
    }
    return QString::fromLatin1(text);
}

QSizeF JHSizeFromString(const QString& text) {
    const QByteArray bytes = text.toUtf8();
    QByteArrayView rest(bytes);
    QSizeF size(0, 0);
    const auto width = platform::takeNumber(rest);
    if (!width)
        return size;
    size.setWidth(static_cast<double>(static_cast<float>(*width)));
    if (const auto height = platform::takeNumber(rest))
        size.setHeight(static_cast<double>(static_cast<float>(*height)));
    return size;
}

QString JHStringFromSize(const QSizeF& size) {
    return QString::fromLatin1(platform::generalText(size.width(), significantDigits) + ' ' +
                               platform::generalText(size.height(), significantDigits));
}
