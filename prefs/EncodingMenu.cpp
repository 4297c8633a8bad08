// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/EncodingMenu.h"

#include "platform/base/Localization.h"

#include <QKeyEvent>
#include <QPushButton>

#include <algorithm>
#include <utility>

namespace {

/// Ampersands of a name are no mnemonics.
QString itemText(QString title) {
    return title.replace(u'&', QStringLiteral("&&"));
}

bool isBefore(const QString& left, const QString& right) {
    return QString::localeAwareCompare(left, right) < 0;
}

} // namespace

EncodingMenu::EncodingMenu(QPushButton& button, Chosen onRecent, Chosen onAvailable)
    : _button(button)
    , _onRecent(std::move(onRecent))
    , _onAvailable(std::move(onAvailable)) {
    _separator = _menu.addSeparator();
    _submenu.setTitle(platform::localizedString(QStringLiteral("More Encodings")));
    _menu.addMenu(&_submenu);
    _submenu.installEventFilter(this);
    _filterItem = _submenu.addAction(QString());
    _filterItem->setEnabled(false);
    _submenu.addSeparator();
    connect(&_submenu, &QMenu::aboutToShow, this, [this] { setFilter(QString()); });
    connect(&_submenu, &QMenu::triggered, this, [this](QAction* item) {
        item->setChecked(!item->isChecked()); // what is checked says the owner
        _onAvailable(item->data().toString());
    });
    connect(&_menu, &QMenu::triggered, this, [this](QAction* item) {
        // The submenu's choices come by here, too.
        if (item->associatedObjects().contains(&_menu)) {
            selectItemWithTitle(item->data().toString());
            _onRecent(_selected);
        }
    });
    _button.setMenu(&_menu);
}

void EncodingMenu::fill(const QStringList& recent, const QStringList& available) {
    for (const QString& title : recent)
        insertItem(title);
    QStringList sorted = available;
    std::ranges::sort(sorted, isBefore);
    for (const QString& title : sorted) {
        QAction* item = _submenu.addAction(itemText(title));
        item->setData(title);
        item->setCheckable(true);
    }
}

QAction* EncodingMenu::itemWithTitle(const QMenu& menu, const QString& title) const {
    for (QAction* item : menu.actions()) {
        if (item->data().isValid() && item->data().toString() == title)
            return item;
    }
    return nullptr;
}

bool EncodingMenu::hasItemWithTitle(const QString& title) const {
    return itemWithTitle(_menu, title) != nullptr;
}

void EncodingMenu::insertItem(const QString& title) {
    if (hasItemWithTitle(title))
        return;
    const QList<QAction*> items = _menu.actions();
    const auto next = std::ranges::find_if(
        items, [&](const QAction* item) { return item == _separator || isBefore(title, item->data().toString()); });
    auto* item = new QAction(itemText(title), &_menu);
    item->setData(title);
    item->setCheckable(true);
    _menu.insertAction(*next, item);
}

void EncodingMenu::removeItemWithTitle(const QString& title) {
    delete itemWithTitle(_menu, title);
}

void EncodingMenu::selectItemWithTitle(const QString& title) {
    _selected = title;
    _button.setText(itemText(title));
    _button.setAccessibleDescription(title);
    for (QAction* item : _menu.actions()) {
        if (item->data().isValid())
            item->setChecked(item->data().toString() == title);
    }
}

QString EncodingMenu::titleOfSelectedItem() const {
    return hasItemWithTitle(_selected) ? _selected : QString();
}

QStringList EncodingMenu::itemTitles() const {
    QStringList titles;
    for (const QAction* item : _menu.actions()) {
        if (item->data().isValid())
            titles.append(item->data().toString());
    }
    return titles;
}

void EncodingMenu::setChecked(const QString& title, bool checked) {
    if (QAction* item = itemWithTitle(_submenu, title))
        item->setChecked(checked);
}

bool EncodingMenu::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (key.key() == Qt::Key_Backspace) {
        setFilter(_filter.chopped(std::min<qsizetype>(1, _filter.size())));
        return true;
    }
    const QString typed = key.text();
    // A blank chooses the item, unless a name is being typed.
    const bool isText = !typed.isEmpty() && typed.front().isPrint() && (!typed.front().isSpace() || !_filter.isEmpty());
    if (!isText || (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)))
        return QObject::eventFilter(watched, event);
    setFilter(_filter + typed);
    return true;
}

void EncodingMenu::setFilter(const QString& text) {
    _filter = text;
    _filterItem->setText(text.isEmpty() ? platform::localizedString(QStringLiteral("Type to search"))
                                        : platform::localizedFormat(QStringLiteral("Search: %@"), {itemText(text)}));
    QAction* first = nullptr;
    for (QAction* item : _submenu.actions()) {
        if (!item->data().isValid())
            continue;
        const bool isMatch = item->data().toString().contains(text, Qt::CaseInsensitive);
        item->setVisible(isMatch);
        if (isMatch && !first)
            first = item;
    }
    if (!text.isEmpty() && first)
        _submenu.setActiveAction(first);
}
