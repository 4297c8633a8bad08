// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/CommandLine.h"
#include "platform/base/UserDefaults.h"

#include <memory>

/// The user's settings with this run's own on top. The process's while it lives.
class RunSettings {
public:
    explicit RunSettings(std::unique_ptr<platform::SettingsStorage> storage);
    RunSettings(const RunSettings&) = delete;
    RunSettings& operator=(const RunSettings&) = delete;
    ~RunSettings();

    /// Takes the settings of the command line over; false, with a complaint, when one is unknown or
    /// its value of another kind.
    bool apply(const CommandLine& line);

    platform::UserDefaults& defaults() { return _defaults; }

private:
    platform::UserDefaults _defaults;
};
