// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/PropertyValue.h"

#include "platform/base/NumberText.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace platform::propertyValue {

namespace {

bool isNumber(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return true;
    default:
        return false;
    }
}

} // namespace

double toDouble(const QVariant& value) {
    if (isNumber(value))
        return value.toDouble();
    if (value.typeId() != QMetaType::QString)
        return 0;
    const QByteArray text = value.toString().toUtf8();
    QByteArrayView rest(text);
    return takeNumber(rest).value_or(0);
}

float toFloat(const QVariant& value) {
    const double number = toDouble(value);
    constexpr double most = std::numeric_limits<float>::max();
    return std::isfinite(number) ? static_cast<float>(std::clamp(number, -most, most)) : 0;
}

std::int32_t toInteger(const QVariant& value) {
    const double number = std::trunc(toDouble(value));
    if (std::isnan(number))
        return 0;
    return static_cast<std::int32_t>(std::clamp(number, static_cast<double>(std::numeric_limits<std::int32_t>::min()),
                                                static_cast<double>(std::numeric_limits<std::int32_t>::max())));
}

bool toBool(const QVariant& value) {
    if (value.typeId() == QMetaType::QString) {
        const QString text = value.toString().trimmed();
        if (text.compare(QLatin1String("YES"), Qt::CaseInsensitive) == 0 ||
            text.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0)
            return true;
    }
    return toDouble(value) != 0;
}

QString toString(const QVariant& value) {
    return value.typeId() == QMetaType::QString ? value.toString() : QString();
}

QVariantMap toDictionary(const QVariant& value) {
    return value.typeId() == QMetaType::QVariantMap ? value.toMap() : QVariantMap();
}

} // namespace platform::propertyValue
