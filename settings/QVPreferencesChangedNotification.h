// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/// Posted after a setting was written on the user's behalf.
struct QVPreferencesChangedNotification {
    /// The changed key (a constant of SettingsKeys.h); the style panel passes a style selector key.
    QString key;
    /// The style keys that changed, with a style selector key.
    QStringList styleKeys = {};
};
