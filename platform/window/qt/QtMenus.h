// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QKeySequence>
#include <QPoint>

#include <memory>
#include <vector>

class QKeyEvent;
class QMenu;
class QMenuBar;
class QWindow;

namespace platform {

class Menu;
class MenuTarget;
struct MenuItem;

/// Presents a menu model over a window: as a menu bar that shows while the pointer is at the top, as a context menu,
/// and through its shortcuts. The visible menus are made from the model when they open.
class QtMenus {
public:
    QtMenus(QWindow& window, Menu& menu, MenuTarget& target);
    QtMenus(const QtMenus&) = delete;
    QtMenus& operator=(const QtMenus&) = delete;
    ~QtMenus();

    void popUp(QPoint globalPosition);
    /// The pointer moved in the window (its coordinates, origin top left).
    void pointerMoved(QPoint position);
    /// Gives a pressed key to the menu that is open; false without one. The window system turns the keyboard over to a
    /// menu a little after it opened: until then its keys arrive at the window.
    bool passToOpenMenu(QKeyEvent& event);
    /// Performs the enabled item with the shortcut; true when there is one. Automatic repeats of a held key are taken
    /// without effect.
    bool performShortcut(const QKeySequence& keys, bool isRepeat);
    bool isBarShown() const;

private:
    void showBar();
    void hideBar();
    void fill(QMenu& menu, Menu& model);
    void standAboveWindow(QMenu& menu);
    /// What performing needs; the item itself may be gone by then.
    static MenuItem copyOf(const MenuItem& item);

    QWindow& _window;
    Menu& _menu;
    MenuTarget& _target;
    std::unique_ptr<QMenuBar> _bar;
    std::vector<std::unique_ptr<QMenu>> _barMenus;
    std::unique_ptr<QMenu> _contextMenu;
};

} // namespace platform
