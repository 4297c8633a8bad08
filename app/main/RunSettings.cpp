// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/main/RunSettings.h"

#include "app/SettingText.h"
#include "app/main/Terminal.h"
#include "settings/QVUserDefaults.h"

#include <utility>

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
        const SettingText setting = SettingText::parse(key, text, _defaults);
        if (!setting.error.isEmpty()) {
            complain(setting.error);
            return false;
        }
        _defaults.setOverride(key, setting.value);
    }
    return true;
}
