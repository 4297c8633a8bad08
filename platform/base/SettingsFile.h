// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/UserDefaults.h"

namespace platform {

/// Settings in one XML property list. It is written whole to a temporary file beside it, synced, and renamed over it,
/// so that a crash at any moment leaves the old or the new settings, never a mixture. Symbolic links and the
/// permissions of a file that stands there are kept; a new one is for its owner alone. A damaged file is renamed aside
/// ("NAME.damaged-YYYYMMDD-HHMMSS") and reported in the log, never overwritten.
class SettingsFile final : public SettingsStorage {
public:
    explicit SettingsFile(const QString& path);

    /// `$XDG_CONFIG_HOME/lumaro/org.lumaro.Lumaro.plist`, with ~/.config where the variable is unset or relative.
    static QString defaultPath();

    QVariantMap load() override;
    bool store(const QVariantMap& domain) override;

private:
    QString _path;
    bool _writable = true;
};

} // namespace platform
