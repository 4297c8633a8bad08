// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace platform {

class Menu;

/// One entry of a menu. `action` names the operation that its target performs ("changeSize"); the tag is the
/// operation's argument.
struct MenuItem {
    QString title;
    QString action;
    int tag = 0;
    bool separator = false;
    bool state = false; // the check mark
    bool hidden = false;
    /// The shortcut as Qt's portable text ("Ctrl+O"); empty for none. It acts while no menu is open, too.
    QString shortcut;
    /// A key shown beside the item that the key map handles, not the menu ("Space").
    QString keyHint;
    std::unique_ptr<Menu> submenu;
};

/// A menu as a model: what the items say and what they do, without the window system. Presenters build the visible menu
/// when it opens. Main thread.
class Menu {
public:
    int count() const { return static_cast<int>(_items.size()); }
    MenuItem& itemAt(int index) { return *_items[static_cast<std::size_t>(index)]; }
    const MenuItem& itemAt(int index) const { return *_items[static_cast<std::size_t>(index)]; }

    MenuItem& addItem(const QString& title, const QString& action, int tag);
    void addSeparator();
    Menu& addSubmenu(const QString& title);
    void removeItemAt(int index);
    /// Removes every item.
    void removeAllItems();
    /// Keeps the first `count` items; a menu of that many or fewer is left alone.
    void removeAllItemsBut(int count);

    /// Who fills the menu each time before it is shown; without one the items stand as they were added.
    void setFiller(std::function<void(Menu&)> filler) { _filler = std::move(filler); }
    /// Presenters call it before they show the items.
    void willOpen() {
        if (_filler)
            _filler(*this);
    }

private:
    std::vector<std::unique_ptr<MenuItem>> _items;
    std::function<void(Menu&)> _filler;
};

/// Who performs the items' actions and says which are enabled.
class MenuTarget {
public:
    virtual ~MenuTarget() = default;
    /// Called before an item is shown or its shortcut acts: may change state, title and whether it is hidden, and
    /// answers whether it is enabled.
    virtual bool validateMenuItem(MenuItem& item) = 0;
    virtual void performMenuItem(const MenuItem& item) = 0;
};

} // namespace platform
