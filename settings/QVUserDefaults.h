// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/UserDefaults.h"

/// The road to the settings: registration and migration have run before anything is read. Main thread.
class QVUserDefaults {
public:
    QVUserDefaults() = delete;

    /// The shared store. The first call after a store was installed registers the resource "UserDefaults" of type
    /// "plist" and migrates the settings of older builds.
    static platform::UserDefaults& standardUserDefaults();
};
