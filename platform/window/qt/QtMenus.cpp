// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/window/qt/QtMenus.h"

#include "platform/window/Menu.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QWindow>

namespace platform {

namespace {

/// The pointer within so many points of the top edge brings the bar.
constexpr int barReach = 2;

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
            QObject::connect(submenu, &QMenu::aboutToShow, submenu, [this, submenu, shown] { fill(*submenu, *shown); });
            submenu->addSeparator(); // an empty menu would not open
            continue;
        }
        const bool enabled = _target.validateMenuItem(item);
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

void QtMenus::popUp(QPoint globalPosition) {
    _contextMenu = std::make_unique<QMenu>();
    fill(*_contextMenu, _menu);
    standAboveWindow(*_contextMenu);
    _contextMenu->popup(globalPosition);
}

void QtMenus::standAboveWindow(QMenu& menu) {
    menu.winId();
    menu.windowHandle()->setTransientParent(&_window);
}

bool QtMenus::isBarShown() const {
    return _bar && _bar->isVisible();
}

void QtMenus::pointerMoved(QPoint position) {
    if (position.y() <= barReach) {
        showBar();
    } else if (isBarShown() && position.y() > _bar->height() && !_bar->activeAction()) {
        hideBar();
    }
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
            standAboveWindow(*menu);
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
    _bar->show();
}

void QtMenus::hideBar() {
    _bar->hide();
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
