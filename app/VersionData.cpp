// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/VersionData.h"

#include "platform/base/PercentEscapes.h"
#include "platform/base/PropertyList.h"
#include "platform/base/PropertyValue.h"

namespace versionData {

namespace {

const QString kRedirectURLProperty = QStringLiteral("RedirectURL");
const QString kVersionProperty = QStringLiteral("Version");
const QString kBuildNumberProperty = QStringLiteral("Build");
const QString kDownloadPageProperty = QStringLiteral("Page");

} // namespace

bool isDue(const QDateTime& lastCheck, std::int32_t period, const QDateTime& now) {
    if (!lastCheck.isValid())
        return true;
    constexpr std::int32_t daysOfPeriods[] = {0, 1, 7, 30};
    const std::int32_t days = period >= 1 && period <= 3 ? daysOfPeriods[period] : 0;
    return lastCheck.addSecs(days * kQVSecondsInDay) <= now;
}

std::optional<Contents> read(const QByteArray& bytes, const QString& bundleIdentifier) {
    const auto root = platform::propertyList::parse(bytes);
    if (!root || root->typeId() != QMetaType::QVariantMap)
        return std::nullopt;
    const QVariantMap list = root->toMap();
    Contents contents;
    if (const QVariant redirect = list.value(kRedirectURLProperty); redirect.typeId() == QMetaType::QString)
        contents.redirect = redirect.toString();
    if (const QVariant entry = list.value(bundleIdentifier); entry.typeId() == QMetaType::QVariantMap)
        contents.entry = entry.toMap();
    return contents;
}

std::optional<Record> recordOf(const QVariantMap& entry, const QString& kind) {
    const QVariant value = entry.value(kind);
    if (value.typeId() != QMetaType::QVariantMap)
        return std::nullopt;
    const QVariantMap record = value.toMap();
    return Record{platform::propertyValue::toString(record.value(kVersionProperty)),
                  platform::propertyValue::toString(record.value(kDownloadPageProperty)),
                  platform::propertyValue::toInteger(record.value(kBuildNumberProperty))};
}

QString shownVersion(const QString& version) {
    constexpr int maximumLength = 60;
    const QString line = version.simplified();
    return line.size() > maximumLength ? line.left(maximumLength - 1) + QChar(0x2026) : line;
}

QUrl urlOf(const QString& text) {
    const QUrl url(platform::stringByAddingPercentEscapes(text), QUrl::StrictMode);
    return url.isValid() ? url : QUrl();
}

} // namespace versionData
