// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/window/qt/QtMenus.h"

#include "platform/window/Menu.h"
#include "platform/window/qt/WindowSystem.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QWindow>

namespace platform {

namespace {

/// The pointer within so many points of the top edge brings the bar.
constexpr int barReach = 2;
/// A mask that the bar has no part in.
constexpr QRect nothingOfBar(-2, -2, 1, 1);

MenuItem* itemWithShortcut(Menu& menu, const QKeySequence& keys) {
    for (int i = 0; i < menu.count(); ++i) {
        MenuItem& item = menu.itemAt(i);
        if (item.submenu) {
            if (MenuItem* found = itemWithShortcut(*item.submenu, keys))
                return found;
        } else if (!item.shortcut.isEmpty() && QKeySequence(item.shortcut, QKeySequence::PortableText) == keys) {
            return &item;
        }
    }
    return nullptr;
}

/// Places the widget's window above the other. A popup that takes the pointer and the keyboard for itself must name, on
/// Wayland, the user's last press, and is dismissed when another one came meanwhile: as a fast user and a busy machine
/// have it. There a plain popup is asked for, which nobody dismisses, and the keyboard stays with the window.
void standAbove(QWidget& widget, QWindow* parent) {
    widget.winId();
    QWindow& window = *widget.windowHandle();
    window.setTransientParent(parent);
    if (isWayland())
        window.setFlags((window.flags() & ~Qt::WindowType_Mask) | Qt::ToolTip);
}

} // namespace

QtMenus::QtMenus(QWindow& window, Menu& menu, MenuTarget& target)
    : _window(window)
    , _menu(menu)
    , _target(target) {}

QtMenus::~QtMenus() = default;

void QtMenus::fill(QMenu& menu, Menu& model) {
    menu.clear();
    model.willOpen();
    for (int i = 0; i < model.count(); ++i) {
        MenuItem& item = model.itemAt(i);
        if (item.separator) {
            menu.addSeparator();
            continue;
        }
        if (item.submenu) {
            QMenu* submenu = menu.addMenu(item.title);
            Menu* shown = item.submenu.get();
            QObject::connect(submenu, &QMenu::aboutToShow, submenu, [this, &menu, submenu, shown] {
                fill(*submenu, *shown);
                standAbove(*submenu, menu.windowHandle());
            });
            submenu->addSeparator(); // an empty menu would not open
            continue;
        }
        const bool enabled = _target.validateMenuItem(item);
        if (item.hidden)
            continue;
        // A title may hold the ampersand that a menu would take for an underline.
        QString title = QString(item.title).replace(QLatin1Char('&'), QStringLiteral("&&"));
        const QString key = item.shortcut.isEmpty() ? item.keyHint : item.shortcut;
        if (!key.isEmpty())
            title += QLatin1Char('\t') + key;
        QAction* action = menu.addAction(title);
        action->setEnabled(enabled);
        action->setCheckable(item.state);
        action->setChecked(item.state);
        QObject::connect(action, &QAction::triggered, action,
                         [this, copy = copyOf(item)] { _target.performMenuItem(copy); });
    }
}

MenuItem QtMenus::copyOf(const MenuItem& item) {
    MenuItem copy;
    copy.title = item.title;
    copy.action = item.action;
    copy.tag = item.tag;
    return copy;
}

void QtMenus::popUp(Menu& menu, QPoint globalPosition) {
    _contextMenu = std::make_unique<QMenu>();
    fill(*_contextMenu, menu);
    standAbove(*_contextMenu, &_window);
    _contextMenu->popup(globalPosition);
}

bool QtMenus::isBarShown() const {
    return _bar && _bar->isVisible();
}

bool QtMenus::pointerMoved(const QMouseEvent& event) {
    if (passToBar(event) || isMenuOpen())
        return true;
    const double y = event.position().y();
    if (y <= barReach) {
        showBar();
    } else if (isBarShown() && y > _bar->height()) {
        hideBar();
    }
    return false;
}

void QtMenus::showBar() {
    if (isBarShown())
        return;
    if (!_bar) {
        _bar = std::make_unique<QMenuBar>();
        _bar->setNativeMenuBar(false);
        for (int i = 0; i < _menu.count(); ++i) {
            MenuItem& item = _menu.itemAt(i);
            if (!item.submenu)
                continue;
            // Not the bar's children: they would stand above the bar's own window, which is none on the desktop.
            QMenu* menu = _barMenus.emplace_back(std::make_unique<QMenu>(item.title)).get();
            standAbove(*menu, &_window);
            _bar->addMenu(menu);
            Menu* model = item.submenu.get();
            QObject::connect(menu, &QMenu::aboutToShow, menu, [this, menu, model] { fill(*menu, *model); });
            menu->addSeparator();
        }
        // The bar lies within the movie's window, so that it stays above the movie and moves with it.
        _bar->winId();
        _bar->windowHandle()->setParent(&_window);
    }
    _bar->setGeometry(0, 0, _window.width(), _bar->sizeHint().height());
    if (isWayland())
        _bar->windowHandle()->setMask(nothingOfBar); // what of it has the pointer: an empty region would be all
    _bar->show();
}

void QtMenus::hideBar() {
    // After Escape one of its titles stays marked, for the arrow keys.
    QFocusEvent left(QEvent::FocusOut);
    QCoreApplication::sendEvent(_bar.get(), &left);
    _bar->hide();
}

bool QtMenus::hasWindowsPointer() const {
    return isWayland() && (isBarShown() || isMenuOpen());
}

bool QtMenus::isMenuOpen() const {
    return QApplication::activePopupWidget();
}

bool QtMenus::passToBar(const QMouseEvent& event) {
    if (!isWayland() || !isBarShown() || event.position().y() >= _bar->height())
        return false;
    // The bar starts in the window's corner.
    QMouseEvent passed(event.type(), event.position(), event.globalPosition(), event.button(), event.buttons(),
                       event.modifiers());
    QCoreApplication::sendEvent(_bar.get(), &passed);
    return true;
}

bool QtMenus::pressed(const QMouseEvent& event) {
    _tookPreviousPress = _tookPress;
    _tookPress = passToBar(event);
    if (_tookPress || !isMenuOpen())
        return _tookPress;
    while (QWidget* menu = QApplication::activePopupWidget())
        if (!menu->close())
            break;
    return _tookPress = true;
}

bool QtMenus::released(const QMouseEvent& event) {
    if (_tookPress)
        passToBar(event);
    return _tookPress;
}

bool QtMenus::passToOpenMenu(QKeyEvent& event) {
    QWidget* menu = QApplication::activePopupWidget();
    if (!menu)
        return false;
    QCoreApplication::sendEvent(menu, &event);
    return true;
}

bool QtMenus::performShortcut(const QKeySequence& keys, bool isRepeat) {
    MenuItem* item = itemWithShortcut(_menu, keys);
    if (!item || !_target.validateMenuItem(*item))
        return false;
    if (!isRepeat)
        _target.performMenuItem(copyOf(*item));
    return true;
}

} // namespace platform
