// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SettingText.h"

#include "platform/base/UserDefaults.h"
#include "settings/SettingsKeys.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace {

/// The type of a setting's value; an unknown one when there is no such setting.
int typeOf(const QString& key, const platform::UserDefaults& defaults) {
    // For these nothing is registered: they have no value until the program has written one.
    if (key == kQVNewVersionLastTimeChecked || key == kQVAskDonationAfter)
        return QMetaType::QDateTime;
    if (key == kQVSavedState)
        return QMetaType::QVariantMap;
    if (key == kNSNavLastRootDirectory)
        return QMetaType::QString;
    return defaults.registeredObjectForKey(key).typeId();
}

bool isAnyOf(const QString& text, std::initializer_list<const char*> words) {
    return std::any_of(words.begin(), words.end(), [&text](const char* word) {
        return text.compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
    });
}

QVariant readSwitch(const QString& text) {
    if (isAnyOf(text, {"YES", "true", "1"}))
        return true;
    return isAnyOf(text, {"NO", "false", "0"}) ? QVariant(false) : QVariant();
}

QVariant readInteger(const QString& text) {
    bool isNumber = false;
    // Not base 0, which takes a leading 0 for octal.
    const qlonglong number = text.toLongLong(&isNumber, text.startsWith(QLatin1String("0x")) ? 16 : 10);
    return isNumber ? QVariant(number) : QVariant();
}

QVariant readNumber(const QString& text) {
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? QVariant(number) : QVariant();
}

QVariant readDate(const QString& text) {
    const QDateTime date = QDateTime::fromString(text, Qt::ISODate);
    return date.isValid() ? QVariant(date) : QVariant();
}

QVariant readList(const QString& text) {
    const QJsonDocument json = QJsonDocument::fromJson(text.toUtf8());
    return json.isArray() ? QVariant(json.array().toVariantList()) : QVariant();
}

QVariant readDictionary(const QString& text) {
    const QJsonDocument json = QJsonDocument::fromJson(text.toUtf8());
    return json.isObject() ? QVariant(json.object().toVariantMap()) : QVariant();
}

struct Kind {
    const char* name;
    QVariant (*read)(const QString& text);
};

Kind kindOf(int type) {
    switch (type) {
    case QMetaType::Bool:
        return {"YES or NO", readSwitch};
    case QMetaType::Int:
    case QMetaType::LongLong:
        return {"a whole number", readInteger};
    case QMetaType::Float:
    case QMetaType::Double:
        return {"a number", readNumber};
    case QMetaType::QDateTime:
        return {"a date as 2026-01-31 or 2026-01-31T20:15:00Z", readDate};
    case QMetaType::QVariantList:
        return {"a list as [1, 2]", readList};
    case QMetaType::QVariantMap:
        return {"a dictionary as {\"name\": 1}", readDictionary};
    default:
        return {"a text", [](const QString& text) { return QVariant(text); }};
    }
}

} // namespace

SettingText SettingText::parse(const QString& key, const QString& text, const platform::UserDefaults& defaults) {
    const int type = typeOf(key, defaults);
    if (type == QMetaType::UnknownType)
        return {{}, QStringLiteral("there is no setting '%1'").arg(key)};
    const Kind kind = kindOf(type);
    if (const QVariant value = kind.read(text); value.isValid())
        return {value, {}};
    return {{}, QStringLiteral("the setting '%1' takes %2, not '%3'").arg(key, QLatin1String(kind.name), text)};
}
