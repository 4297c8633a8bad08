// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/main/RunEnvironment.h"

#include "platform/base/SettingsFile.h"

#include <memory>

RunEnvironment::RunEnvironment()
    : _settings(std::make_unique<platform::SettingsFile>(platform::SettingsFile::defaultPath()))
    , _environment{_loop, _notifications, _settings.defaults()} {}

RunEnvironment::Publication::Publication(platform::RunLoop& loop, platform::NotificationCenter& notifications) {
    platform::RunLoop::setMain(&loop);
    platform::NotificationCenter::setDefault(&notifications);
}

RunEnvironment::Publication::~Publication() {
    platform::NotificationCenter::setDefault(nullptr);
}
