// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/QVOverlayStyleDefaults.h"

#include "platform/base/PropertyValue.h"
#include "platform/base/UserDefaults.h"
#include "settings/ColorText.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"

namespace value = platform::propertyValue;

namespace {

constexpr const char* kClassName = "QVOverlayStyleDefaults";

double singlePrecision(const QVariant& stored) {
    return static_cast<double>(value::toFloat(stored));
}

} // namespace

std::optional<QVOverlayStyleDefaults>
QVOverlayStyleDefaults::overlayStyleDefaultsWithKey(platform::UserDefaults& defaults, const QString& selectorKey) {
    QString name = defaults.stringForKey(selectorKey);
    if (name.isNull()) {
        trace("WARNING: %@: No default settings found for key: %@.", kClassName, selectorKey);
        name = defaults.stringForKey(kQVDefaultOverlayStyle);
    }
    if (!defaults.dictionaryForKey(kQVOverlayDefaultStyles).contains(name)) {
        logAlways("ERROR: %@: No defaults found for key: %@.", kClassName, name);
        return std::nullopt;
    }
    return QVOverlayStyleDefaults(defaults, name);
}

QVOverlayStyleDefaults::QVOverlayStyleDefaults(platform::UserDefaults& defaults, QString key)
    : _defaults(&defaults)
    , _key(std::move(key)) {}

QVariant QVOverlayStyleDefaults::objectForKey(const QString& styleKey) const {
    for (const QString& styles : {kQVOverlayStyles, kQVOverlayDefaultStyles}) {
        const QVariant entry = value::toDictionary(_defaults->dictionaryForKey(styles).value(_key)).value(styleKey);
        if (entry.isValid())
            return entry;
    }
    return {};
}

void QVOverlayStyleDefaults::setObject(const QVariant& object, const QString& styleKey) {
    if (!object.isValid())
        return;
    QVariantMap styles = _defaults->dictionaryForKey(kQVOverlayStyles);
    QVariantMap style = value::toDictionary(styles.value(_key));
    style.insert(styleKey, object);
    styles.insert(_key, style);
    _defaults->setObject(styles, kQVOverlayStyles);
}

void QVOverlayStyleDefaults::setColorObject(const std::optional<QColor>& color, const QString& styleKey) {
    const QString text = JHStringFromColor(color);
    setObject(text.isNull() ? QVariant() : QVariant(text), styleKey);
}

std::optional<QColor> QVOverlayStyleDefaults::textColor() const {
    return JHColorFromString(value::toString(objectForKey(kTextColor)));
}
void QVOverlayStyleDefaults::setTextColor(const std::optional<QColor>& color) {
    setColorObject(color, kTextColor);
}

QString QVOverlayStyleDefaults::textFontName() const {
    return value::toString(objectForKey(kTextFontName));
}
void QVOverlayStyleDefaults::setTextFontName(const QString& name) {
    setObject(name.isNull() ? QVariant() : QVariant(name), kTextFontName);
}

std::int32_t QVOverlayStyleDefaults::textFontSize() const {
    return value::toInteger(objectForKey(kTextFontSize));
}
void QVOverlayStyleDefaults::setTextFontSize(std::int32_t size) {
    setObject(size, kTextFontSize);
}

bool QVOverlayStyleDefaults::shadowOn() const {
    return value::toBool(objectForKey(kShadowOn));
}
void QVOverlayStyleDefaults::setShadowOn(bool flag) {
    setObject(flag, kShadowOn);
}

std::optional<QColor> QVOverlayStyleDefaults::shadowColor() const {
    return JHColorFromString(value::toString(objectForKey(kShadowColor)));
}
void QVOverlayStyleDefaults::setShadowColor(const std::optional<QColor>& color) {
    setColorObject(color, kShadowColor);
}

float QVOverlayStyleDefaults::shadowBlurRadius() const {
    return value::toFloat(objectForKey(kShadowRadius));
}
void QVOverlayStyleDefaults::setShadowBlurRadius(float radius) {
    setObject(radius, kShadowRadius);
}

QSizeF QVOverlayStyleDefaults::shadowOffset() const {
    return JHSizeFromString(value::toString(objectForKey(kShadowOffset)));
}
void QVOverlayStyleDefaults::setShadowOffset(const QSizeF& offset) {
    setObject(JHStringFromSize(offset), kShadowOffset);
}

bool QVOverlayStyleDefaults::backgroundOn() const {
    return value::toBool(objectForKey(kBackgroundOn));
}
void QVOverlayStyleDefaults::setBackgroundOn(bool flag) {
    setObject(flag, kBackgroundOn);
}

std::optional<QColor> QVOverlayStyleDefaults::backgroundColor() const {
    return JHColorFromString(value::toString(objectForKey(kBackgroundColor)));
}
void QVOverlayStyleDefaults::setBackgroundColor(const std::optional<QColor>& color) {
    setColorObject(color, kBackgroundColor);
}

bool QVOverlayStyleDefaults::backgroundRounded() const {
    return value::toBool(objectForKey(kBackgroundRounded));
}
void QVOverlayStyleDefaults::setBackgroundRounded(bool flag) {
    setObject(flag, kBackgroundRounded);
}

float QVOverlayStyleDefaults::backgroundRadius() const {
    return value::toFloat(objectForKey(kBackgroundRadius));
}
void QVOverlayStyleDefaults::setBackgroundRadius(float radius) {
    setObject(radius, kBackgroundRadius);
}

bool QVOverlayStyleDefaults::frameOn() const {
    return value::toBool(objectForKey(kFrameOn));
}
void QVOverlayStyleDefaults::setFrameOn(bool flag) {
    setObject(flag, kFrameOn);
}

float QVOverlayStyleDefaults::frameWidth() const {
    return value::toFloat(objectForKey(kFrameWidth));
}
void QVOverlayStyleDefaults::setFrameWidth(float width) {
    setObject(width, kFrameWidth);
}

std::int32_t QVOverlayStyleDefaults::alignment() const {
    return value::toInteger(objectForKey(kAlignment));
}
void QVOverlayStyleDefaults::setAlignment(std::int32_t code) {
    setObject(code, kAlignment);
}

double QVOverlayStyleDefaults::fadingInInterval() const {
    return singlePrecision(objectForKey(kFadingInInterval));
}
void QVOverlayStyleDefaults::setFadingInInterval(double seconds) {
    setObject(static_cast<float>(seconds), kFadingInInterval);
}

double QVOverlayStyleDefaults::fadingOutInterval() const {
    return singlePrecision(objectForKey(kFadingOutInterval));
}
void QVOverlayStyleDefaults::setFadingOutInterval(double seconds) {
    setObject(static_cast<float>(seconds), kFadingOutInterval);
}

double QVOverlayStyleDefaults::fadingDelayInterval() const {
    return singlePrecision(objectForKey(kFadingDelayInterval));
}
void QVOverlayStyleDefaults::setFadingDelayInterval(double seconds) {
    setObject(static_cast<float>(seconds), kFadingDelayInterval);
}

float QVOverlayStyleDefaults::minAlpha() const {
    return value::toFloat(objectForKey(kMinAlpha));
}
void QVOverlayStyleDefaults::setMinAlpha(float alpha) {
    setObject(alpha, kMinAlpha);
}

float QVOverlayStyleDefaults::maxAlpha() const {
    return value::toFloat(objectForKey(kMaxAlpha));
}
void QVOverlayStyleDefaults::setMaxAlpha(float alpha) {
    setObject(alpha, kMaxAlpha);
}
