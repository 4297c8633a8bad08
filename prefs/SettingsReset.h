// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/UserDefaults.h"

#include <QList>
#include <QString>

#include <functional>
#include <vector>

/// Takes some settings back to their registered values, also where this run overrides them, and brings back what was
/// there before: as long as this object lives, and of each setting until somebody changes it anew. Main thread.
class SettingsReset {
public:
    /// A setting, or, of one that is a dictionary, one of its members.
    struct Setting {
        QString key;
        QString member = {};
    };
    /// The store outlives it. `announce` tells the others of each setting that has changed, once all of them are
    /// stored.
    SettingsReset(platform::UserDefaults& settings, QList<Setting> resettable,
                  std::function<void(const Setting&)> announce);

    /// Whether one of the settings reads otherwise than registered.
    bool isNeeded() const;
    /// Nothing where it is not needed: what can be undone stays then.
    void reset();
    /// Whether there is something to bring back.
    bool canUndo() const;
    void undo();

private:
    struct Remembered {
        Setting setting;
        platform::UserDefaults::OwnValues values;
    };
    platform::UserDefaults::OwnValues valuesOf(const Setting& setting) const;
    void put(const Setting& setting, const platform::UserDefaults::OwnValues& values);
    bool isAtDefault(const Setting& setting) const;
    void tell(const QList<Setting>& changed) const;

    platform::UserDefaults& _settings;
    QList<Setting> _resettable;
    std::function<void(const Setting&)> _announce;
    std::vector<Remembered> _remembered;
};
