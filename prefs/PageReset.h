// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "platform/base/NotificationCenter.h"
#include "prefs/SettingsReset.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <map>
#include <memory>

class QPushButton;
class QTabWidget;
class QWidget;

/// The two buttons below the pages of the preferences: one takes the settings of the page that is open back to what is
/// registered, the other, there only when it can do something, brings back what they were. Both announce each setting,
/// so that it acts at once. Main thread.
class PageReset final : public QObject {
public:
    struct Parts {
        QTabWidget& pages;
        QPushButton& reset;
        QPushButton& undo;
    };
    /// The widgets outlive it. `show` shows in the controls what is stored, after each of the two.
    PageReset(const Environment& environment, const Parts& parts, std::function<void()> show);

    /// Adds a setting to those of the page that the widget lies on; nothing where it lies on none.
    void add(const QWidget& control, const QString& key);
    /// The settings may have changed.
    void update();

private:
    SettingsReset* current();
    void carryOut(void (SettingsReset::*action)());

    Environment _environment;
    Parts _parts;
    std::function<void()> _show;
    std::map<const QWidget*, QList<SettingsReset::Setting>> _settings;
    std::map<const QWidget*, std::unique_ptr<SettingsReset>> _resets; // made when they are first asked for
    platform::Subscription _onPreferences;
};
