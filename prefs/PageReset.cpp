// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/PageReset.h"

#include "settings/QVPreferencesChangedNotification.h"

#include <QKeySequence>
#include <QPushButton>
#include <QShortcut>
#include <QTabWidget>

#include <utility>

PageReset::PageReset(const Environment& environment, const Parts& parts, std::function<void()> show)
    : _environment(environment)
    , _parts(parts)
    , _show(std::move(show)) {
    connect(&parts.pages, &QTabWidget::currentChanged, this, [this] { update(); });
    connect(&parts.reset, &QPushButton::clicked, this, [this] { carryOut(&SettingsReset::reset); });
    connect(&parts.undo, &QPushButton::clicked, this, [this] { carryOut(&SettingsReset::undo); });
    parts.undo.setShortcut(QKeySequence::Undo);
    _onPreferences =
        environment.notifications.observe<QVPreferencesChangedNotification>([this](const auto&) { update(); });
}

void PageReset::add(const QWidget& control, const QString& key) {
    for (int page = 0; page < _parts.pages.count(); ++page) {
        if (const QWidget* widget = _parts.pages.widget(page); widget->isAncestorOf(&control))
            _settings[widget] << SettingsReset::Setting{key};
    }
}

SettingsReset* PageReset::current() {
    const QWidget* page = _parts.pages.currentWidget();
    const auto settings = _settings.find(page);
    if (settings == _settings.end())
        return nullptr;
    std::unique_ptr<SettingsReset>& reset = _resets[page];
    if (!reset)
        reset = std::make_unique<SettingsReset>(
            _environment.settings, settings->second, [this](const SettingsReset::Setting& setting) {
                _environment.notifications.post(QVPreferencesChangedNotification{setting.key, {}});
            });
    return reset.get();
}

void PageReset::carryOut(void (SettingsReset::*action)()) {
    SettingsReset* reset = current();
    if (!reset)
        return;
    const bool hadKeyboard = _parts.reset.hasFocus() || _parts.undo.hasFocus();
    (reset->*action)();
    _show();
    update();
    // The button that was pressed has nothing left to do; the other one is the next step.
    if (hadKeyboard)
        (_parts.undo.isVisible() ? _parts.undo : _parts.reset).setFocus();
}

void PageReset::update() {
    const SettingsReset* reset = current();
    _parts.reset.setEnabled(reset && reset->isNeeded());
    _parts.undo.setVisible(reset && reset->canUndo());
}
