// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/UserDefaults.h"

/// The application's settings. Main thread.
class QVUserDefaults {
public:
    QVUserDefaults() = delete;

    /// Registers the resource "UserDefaults" of type "plist" and migrates the settings of older builds: once for each
    /// store, before anything is read from it.
    static void prepare(platform::UserDefaults& defaults);
    /// The process's store; whoever installed it has prepared it.
    static platform::UserDefaults& standardUserDefaults();
};
