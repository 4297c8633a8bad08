// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/window/Menu.h"

#include <algorithm>

namespace platform {

MenuItem& Menu::addItem(const QString& title, const QString& action, int tag) {
    MenuItem& item = *_items.emplace_back(std::make_unique<MenuItem>());
    item.title = title;
    item.action = action;
    item.tag = tag;
    return item;
}

void Menu::addSeparator() {
    addItem(QString(), QString(), 0).separator = true;
}

Menu& Menu::addSubmenu(const QString& title) {
    MenuItem& item = addItem(title, QString(), 0);
    item.submenu = std::make_unique<Menu>();
    return *item.submenu;
}

void Menu::removeItemAt(int index) {
    if (index >= 0 && index < count())
        _items.erase(_items.begin() + index);
}

void Menu::removeAllItems() {
    _items.clear();
}

void Menu::removeAllItemsBut(int count) {
    const int kept = std::max(count, 0);
    if (kept < this->count())
        _items.erase(_items.begin() + kept, _items.end());
}

} // namespace platform
