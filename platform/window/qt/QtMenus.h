// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QKeySequence>
#include <QPoint>

#include <memory>
#include <vector>

class QKeyEvent;
class QMenu;
class QMenuBar;
class QMouseEvent;
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

    /// The whole menu, or another one of the same target, which stays as long as this.
    void popUp(QPoint globalPosition) { popUp(_menu, globalPosition); }
    void popUp(Menu& menu, QPoint globalPosition);
    /// The pointer moved in the window; true when that was the menus'.
    bool pointerMoved(const QMouseEvent& event);
    /// Gives a pressed key to the menu that is open; false without one. The window system turns the keyboard over to a
    /// menu a little after it opened: until then its keys arrive at the window.
    bool passToOpenMenu(QKeyEvent& event);
    /// Performs the enabled item with the shortcut; true when there is one. Automatic repeats of a held key are taken
    /// without effect.
    bool performShortcut(const QKeySequence& keys, bool isRepeat);
    /// Whether the window's pointer is for the menu bar or an open menu, so that it must be seen.
    bool hasWindowsPointer() const;
    /// Whether a menu, or another popup of the program, is open.
    bool isMenuOpen() const;
    /// Pressed (a double click's second press as well) and released in the window: true when that was the menus'.
    bool pressed(const QMouseEvent& event);
    /// Whether the double click that was made of the last two presses is not the movie's: one of them was the menus'.
    bool tookDoubleClick() const { return _tookPress || _tookPreviousPress; }
    bool released(const QMouseEvent& event);

private:
    bool isBarShown() const;
    void showBar();
    void hideBar();
    /// On Wayland pressing the bar would give it the keyboard, and nobody gets it back when the bar goes: there the
    /// window has the pointer over the bar, too, and passes it on.
    bool passToBar(const QMouseEvent& event);
    void fill(QMenu& menu, Menu& model);
    /// What performing needs; the item itself may be gone by then.
    static MenuItem copyOf(const MenuItem& item);

    QWindow& _window;
    Menu& _menu;
    MenuTarget& _target;
    std::unique_ptr<QMenuBar> _bar;
    std::vector<std::unique_ptr<QMenu>> _barMenus;
    std::unique_ptr<QMenu> _contextMenu;
    bool _tookPress = false; // then the release is not the movie's either
    bool _tookPreviousPress = false;
};

} // namespace platform
