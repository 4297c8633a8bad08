// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "platform/base/NotificationCenter.h"
#include "platform/base/QtRunLoop.h"
#include "platform/base/UserDefaults.h"
#include "subtitles/SubtitleOwner.h"

#include <memory>

/// Stands in for the movie of a track.
class NoMovie final : public SubtitleOwner {
public:
    std::int32_t timeScale() const override { return 600; }
    float frameRate() override { return 25; }
    std::int32_t time() const override { return 0; }
};

/// The environment of the benchmarks while it lives; its settings are not kept.
class Settings {
public:
    Settings() {
        class Nowhere final : public platform::SettingsStorage {
            QVariantMap load() override { return {}; }
            bool store(const QVariantMap&) override { return true; }
        };
        sThis = this;
        platform::RunLoop::setMain(&_loop);
        _defaults = std::make_unique<platform::UserDefaults>(std::make_unique<Nowhere>());
        platform::UserDefaults::setStandard(_defaults.get());
    }

    static Environment environment() { return {sThis->_loop, sThis->_notifications, *sThis->_defaults}; }

private:
    inline static Settings* sThis = nullptr;
    platform::QtRunLoop _loop;
    platform::NotificationCenter _notifications;
    std::unique_ptr<platform::UserDefaults> _defaults;
};
