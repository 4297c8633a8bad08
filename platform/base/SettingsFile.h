// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/UserDefaults.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace platform {

template <class Value>
class Delivery;

/// What a file of settings holds, as messages call it, and which version of it is understood: kept under "Version"
/// where it is not 0. One of a later version is left alone.
struct SettingsFormat {
    QString contents = QStringLiteral("settings");
    std::int32_t version = 0;
};

/// Settings in one XML property list. It is written whole to a temporary file beside it, synced, and renamed over it,
/// so that a crash at any moment leaves the old or the new settings, never a mixture. Symbolic links and the
/// permissions of a file that stands there are kept; a new one is for its owner alone. A damaged file is renamed aside
/// ("NAME.damaged-YYYYMMDD-HHMMSS") and reported in the log, never overwritten.
///
/// Several players may have the file: storing changes those keys in it that differ from what this one loaded or stored
/// last, and leaves all others as they are there now. Players that store at once wait for each other, half a second at
/// the longest.
class SettingsFile final : public SettingsStorage {
public:
    explicit SettingsFile(const QString& path, const SettingsFormat& format = {});
    ~SettingsFile() override;

    /// `$XDG_CONFIG_HOME/lumaro/org.lumaro.Lumaro.plist`, with ~/.config where the variable is unset or relative.
    static QString defaultPath();
    /// A file of what a program keeps and no user chooses: `$XDG_STATE_HOME/lumaro/NAME`, with ~/.local/state.
    static QString statePath(const QString& name);
    /// Begins to read it on a thread; load() has less to wait for then. Once, before load().
    void readAhead();

    QVariantMap load() override;
    std::optional<StorageTrouble> trouble() const override;
    /// Where the file is gone, or damaged by now, the whole domain is stored.
    bool store(const QVariantMap& domain) override;

    /// On a thread. One that waits for another's lock is left behind at the end of the process, like all of them.
    void storeInBackground(const QVariantMap& domain, std::function<void(bool)> stored) override;

private:
    class Contents;
    std::shared_ptr<Contents> _contents;
    std::vector<std::shared_ptr<Delivery<bool>>> _underWay;
};

} // namespace platform
