// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVariant>

namespace platform {
class UserDefaults;
} // namespace platform

/// A value for a setting, read from what the user wrote at the terminal.
struct SettingText {
    /// Of the kind that the setting has; invalid when the text is wrong.
    QVariant value;
    /// Not empty when the text is wrong: what to tell the user.
    QString error;

    /// Reads `text` as the kind of the key's registered value, or of the keys that have none. Switches are YES, true or
    /// 1 and NO, false or 0, whole numbers decimal or hexadecimal ("0x..."), numbers and dates written with a point and
    /// as ISO 8601 has it, lists and dictionaries in JSON.
    static SettingText parse(const QString& key, const QString& text, const platform::UserDefaults& defaults);
};
