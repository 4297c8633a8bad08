// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/main/RunSettings.h"

#include "app/main/Terminal.h"
#include "settings/QVUserDefaults.h"

#include <utility>

namespace {

QVariant settingValue(const QString& text, const QVariant& registered) {
    switch (registered.typeId()) {
    case QMetaType::Bool:
        return text == QStringLiteral("1") || text.compare(QStringLiteral("YES"), Qt::CaseInsensitive) == 0 ||
               text.compare(QStringLiteral("true"), Qt::CaseInsensitive) == 0;
    case QMetaType::LongLong:
    case QMetaType::Int:
        return text.toInt();
    case QMetaType::Double:
    case QMetaType::Float:
        return text.toDouble();
    default:
        return text;
    }
}

} // namespace

RunSettings::RunSettings(std::unique_ptr<platform::SettingsStorage> storage)
    : _defaults(std::move(storage)) {
    platform::UserDefaults::setStandard(&_defaults);
    QVUserDefaults::prepare(_defaults);
}

RunSettings::~RunSettings() {
    platform::UserDefaults::setStandard(nullptr);
}

bool RunSettings::apply(const CommandLine& line) {
    for (const auto& [key, text] : line.settings) {
        const QVariant known = _defaults.objectForKey(key);
        if (!known.isValid()) {
            complain(QStringLiteral("there is no setting '%1'").arg(key));
            return false;
        }
        _defaults.setOverride(key, settingValue(text, known));
    }
    return true;
}
