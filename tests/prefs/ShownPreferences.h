// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/Localization.h"
#include "prefs/QVPreferencesController.h"
#include "settings/QVPreferencesChangedNotification.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FakeVersions.h"
#include "tests/support/StandingPicture.h"
#include "tests/support/TestEnvironment.h"

#include <QStringList>
#include <QVariantMap>
#include <QWidget>

#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>
#include <string>

/// The window of the preferences in English, and the keys that were announced since it was made.
class ShownPreferences : public testing::Test {
protected:
    explicit ShownPreferences(const QVariantMap& stored = {})
        : env(stored) {
        platform::setLocalizationLanguages({"en"});
        _posts = env.notifications.observe<QVPreferencesChangedNotification>(
            [this](const auto& posted) { keys << posted.key; });
    }
    ~ShownPreferences() override { platform::setLocalizationLanguages({}); }

    /// Anew, with these values among the user's.
    void show(const QVariantMap& values = {}) {
        for (auto value = values.begin(); value != values.end(); ++value)
            env.defaults().setObject(value.value(), value.key());
        controller.emplace(env.environment, desktop, pictures, versions);
        controller->showAbove(nullptr);
    }
    template <class Control>
    Control& control(const char* name) {
        if (auto* found = controller->window().findChild<Control*>(name))
            return *found;
        throw std::runtime_error(std::string("there is no ") + name);
    }

    TestEnvironment env;
    FakeDesktop desktop;
    StandingPicture pictures;
    FakeVersions versions;
    QStringList keys;
    std::optional<QVPreferencesController> controller;

private:
    platform::Subscription _posts;
};
