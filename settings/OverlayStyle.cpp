// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/OverlayStyle.h"

#include "platform/base/PropertyValue.h"
#include "settings/ColorText.h"

#include <algorithm>

namespace value = platform::propertyValue;

namespace {

// The stored forms of the types.

void take(const QVariant& stored, std::optional<QColor>& color) {
    color = JHColorFromString(value::toString(stored));
}
void take(const QVariant& stored, QString& text) {
    text = value::toString(stored);
}
void take(const QVariant& stored, std::int32_t& number) {
    number = value::toInteger(stored);
}
void take(const QVariant& stored, bool& flag) {
    flag = value::toBool(stored);
}
void take(const QVariant& stored, float& number) {
    number = value::toFloat(stored);
}
void take(const QVariant& stored, double& number) {
    number = static_cast<double>(value::toFloat(stored));
}
void take(const QVariant& stored, QSizeF& size) {
    size = JHSizeFromString(value::toString(stored));
}

QVariant given(const QString& text) {
    return text.isNull() ? QVariant() : QVariant(text);
}
QVariant given(const std::optional<QColor>& color) {
    return given(JHStringFromColor(color));
}
QVariant given(std::int32_t number) {
    return number;
}
QVariant given(bool flag) {
    return flag;
}
QVariant given(float number) {
    return number;
}
QVariant given(double number) {
    return static_cast<float>(number);
}
QVariant given(const QSizeF& size) {
    return JHStringFromSize(size);
}

} // namespace

const std::array<OverlayStyle::Entry, 19>& OverlayStyle::entries() {
    static const std::array<Entry, 19> table{{
        {kTextColor, &OverlayStyle::textColor},
        {kTextFontName, &OverlayStyle::textFontName},
        {kTextFontSize, &OverlayStyle::textFontSize},
        {kShadowOn, &OverlayStyle::shadowOn},
        {kShadowColor, &OverlayStyle::shadowColor},
        {kShadowRadius, &OverlayStyle::shadowBlurRadius},
        {kShadowOffset, &OverlayStyle::shadowOffset},
        {kBackgroundOn, &OverlayStyle::backgroundOn},
        {kBackgroundColor, &OverlayStyle::backgroundColor},
        {kBackgroundRounded, &OverlayStyle::backgroundRounded},
        {kBackgroundRadius, &OverlayStyle::backgroundRadius},
        {kFrameOn, &OverlayStyle::frameOn},
        {kFrameWidth, &OverlayStyle::frameWidth},
        {kAlignment, &OverlayStyle::alignment},
        {kFadingInInterval, &OverlayStyle::fadingInInterval},
        {kFadingOutInterval, &OverlayStyle::fadingOutInterval},
        {kFadingDelayInterval, &OverlayStyle::fadingDelayInterval},
        {kMinAlpha, &OverlayStyle::minAlpha},
        {kMaxAlpha, &OverlayStyle::maxAlpha},
    }};
    return table;
}

const QString& OverlayStyle::keyOf(const Field& field) {
    return std::ranges::find(entries(), field, &Entry::field)->key;
}

void OverlayStyle::read(const Field& field, const QVariant& stored) {
    std::visit([&](auto member) { take(stored, this->*member); }, field);
}

QVariant OverlayStyle::stored(const Field& field) const {
    return std::visit([&](auto member) { return given(this->*member); }, field);
}
