// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/SettingsReset.h"

#include <algorithm>
#include <utility>

using platform::UserDefaults;

SettingsReset::SettingsReset(UserDefaults& settings, QList<Setting> resettable,
                             std::function<void(const Setting&)> announce)
    : _settings(settings)
    , _resettable(std::move(resettable))
    , _announce(std::move(announce)) {}

/// Of a member, what the whole setting reads of it: nobody overrides a member by itself.
UserDefaults::OwnValues SettingsReset::valuesOf(const Setting& setting) const {
    if (setting.member.isEmpty())
        return _settings.ownValues(setting.key);
    return {{}, _settings.dictionaryForKey(setting.key).value(setting.member)};
}

void SettingsReset::put(const Setting& setting, const UserDefaults::OwnValues& values) {
    if (setting.member.isEmpty()) {
        _settings.setOwnValues(values, setting.key);
        return;
    }
    QVariantMap members = _settings.dictionaryForKey(setting.key);
    if (values.user.isValid())
        members.insert(setting.member, values.user);
    else
        members.remove(setting.member);
    _settings.setChosenObject(members, setting.key);
}

bool SettingsReset::isAtDefault(const Setting& setting) const {
    const UserDefaults::OwnValues values = valuesOf(setting);
    if (!values.override.isValid() && !values.user.isValid())
        return true;
    return setting.member.isEmpty() &&
           _settings.objectForKey(setting.key) == _settings.registeredObjectForKey(setting.key);
}

void SettingsReset::tell(const QList<Setting>& changed) const {
    for (const Setting& setting : changed)
        _announce(setting);
}

bool SettingsReset::isNeeded() const {
    return !std::ranges::all_of(_resettable, [this](const Setting& setting) { return isAtDefault(setting); });
}

void SettingsReset::reset() {
    if (!isNeeded())
        return;
    _remembered.clear();
    QList<Setting> changed;
    for (const Setting& setting : std::as_const(_resettable)) {
        if (isAtDefault(setting))
            continue;
        _remembered.push_back({setting, valuesOf(setting)});
        put(setting, {});
        changed << setting;
    }
    tell(changed);
}

bool SettingsReset::canUndo() const {
    return std::ranges::any_of(_remembered,
                               [this](const Remembered& remembered) { return isAtDefault(remembered.setting); });
}

void SettingsReset::undo() {
    QList<Setting> changed;
    for (const Remembered& remembered : std::exchange(_remembered, {})) {
        if (!isAtDefault(remembered.setting))
            continue;
        put(remembered.setting, remembered.values);
        changed << remembered.setting;
    }
    tell(changed);
}
