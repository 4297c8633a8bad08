// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/LanguageList.h"

#include "platform/base/LanguageNames.h"
#include "platform/base/UserDefaults.h"
#include "settings/PreferredLanguages.h"
#include "settings/SettingsKeys.h"

#include <QComboBox>
#include <QEvent>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

namespace {

/// "Portuguese (BR)". What is no language stands as it was written.
QString nameOf(const QString& text) {
    const QString tag = platform::languageTagOf(text);
    if (tag.isEmpty())
        return text;
    const QString name = platform::localizedNameForLanguageID(tag.section(u'-', 0, 0));
    const QString country = tag.section(u'-', 1);
    return country.isEmpty() ? name : QStringLiteral("%1 (%2)").arg(name, country);
}

} // namespace

LanguageList::LanguageList(const Parts& parts, Choose choose)
    : _parts(parts)
    , _choose(std::move(choose)) {
    // Two hundred names are looked up when somebody is about to read them.
    _parts.add.installEventFilter(this);
    connect(&_parts.add, &QComboBox::activated, this, [this] { add(_parts.add.currentData().toString()); });
    connect(&_parts.up, &QPushButton::clicked, this, [this] { move(-1); });
    connect(&_parts.down, &QPushButton::clicked, this, [this] { move(1); });
    connect(&_parts.remove, &QPushButton::clicked, this, [this] { remove(); });
    connect(&_parts.list, &QListWidget::currentRowChanged, this, [this] { enableButtons(); });
}

bool LanguageList::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::MouseButtonPress)
        offerLanguages();
    return QObject::eventFilter(watched, event);
}

void LanguageList::offerLanguages() {
    if (_parts.add.count() > 0)
        return;
    for (const auto& [tag, name] : platform::localizedLanguages())
        _parts.add.addItem(name, tag);
    _parts.add.setCurrentIndex(-1);
}

void LanguageList::show(const platform::UserDefaults& settings) {
    const QStringList now = PreferredLanguages::of(settings);
    _isSystems = settings.stringArrayForKey(kQVPreferredLanguages).isEmpty();
    if (now != tags())
        show(now, std::max(0, _parts.list.currentRow()));
    else
        enableButtons();
}

void LanguageList::show(const QStringList& tags, qsizetype selected) {
    {
        const QSignalBlocker silently(&_parts.list);
        _parts.list.clear();
        for (const QString& tag : tags) {
            auto* item = new QListWidgetItem(nameOf(tag), &_parts.list);
            item->setData(Qt::UserRole, tag);
        }
        _parts.list.setCurrentRow(static_cast<int>(std::min(selected, tags.size() - 1)));
    }
    enableButtons();
}

void LanguageList::choose(const QStringList& tags, qsizetype selected) {
    show(tags, selected);
    _choose(tags, kQVPreferredLanguages);
}

QStringList LanguageList::tags() const {
    QStringList tags;
    for (int row = 0; row < _parts.list.count(); ++row)
        tags << _parts.list.item(row)->data(Qt::UserRole).toString();
    return tags;
}

/// One that is listed already is only selected.
void LanguageList::add(const QString& tag) {
    _parts.add.setCurrentIndex(-1);
    const QStringList now = tags();
    if (const qsizetype known = now.indexOf(tag); known >= 0)
        _parts.list.setCurrentRow(static_cast<int>(known));
    else if (!tag.isEmpty())
        choose(now + QStringList(tag), now.size());
}

void LanguageList::move(int by) {
    QStringList now = tags();
    const int row = _parts.list.currentRow();
    if (row < 0 || row + by < 0 || row + by >= now.size())
        return;
    now.move(row, row + by);
    choose(now, row + by);
}

void LanguageList::remove() {
    QStringList now = tags();
    const int row = _parts.list.currentRow();
    if (row < 0)
        return;
    now.removeAt(row);
    choose(now, row);
}

void LanguageList::enableButtons() {
    const int row = _parts.list.currentRow();
    const int count = _parts.list.count();
    const auto enable = [this](QPushButton& button, bool enabled) {
        // The keyboard would go on to the next button, which does the opposite.
        if (!enabled && button.window()->focusWidget() == &button)
            _parts.list.setFocus();
        button.setEnabled(enabled);
    };
    enable(_parts.up, row > 0);
    enable(_parts.down, row >= 0 && row + 1 < count);
    // The only language of the system would come back.
    enable(_parts.remove, row >= 0 && (count > 1 || !_isSystems));
}
