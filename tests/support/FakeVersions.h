// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "prefs/VersionChecking.h"

/// A version check that counts how often it was asked for.
struct FakeVersions final : VersionChecking {
    bool mirrors = true;
    bool checking = false;
    int checks = 0;
    bool hasMirrors() const override { return mirrors; }
    bool isChecking() const override { return checking; }
    void checkNow() override { ++checks; }
};
