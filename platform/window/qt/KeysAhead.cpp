// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/window/qt/KeysAhead.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QTimer>
#include <QWindow>

#include <utility>

namespace platform {

namespace {

/// A window manager that has not given the keyboard by then does not want to.
constexpr int timeoutMilliseconds = 1000;

} // namespace

void KeysAhead::await(QWindow& owner, QWindow& window) {
    // isActive() is true of each window that belongs to an active one.
    if (QGuiApplication::focusWindow() != &window)
        new KeysAhead(owner, window);
}

KeysAhead::KeysAhead(QWindow& owner, QWindow& window)
    : QObject(&window)
    , _owner(owner)
    , _window(window) {
    owner.installEventFilter(this);
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow* focused) {
        if (focused == &_window)
            arrived();
    });
    connect(&window, &QWindow::visibleChanged, this, [this](bool visible) {
        if (!visible)
            end();
    });
    connect(&owner, &QObject::destroyed, this, &KeysAhead::end);
    QTimer::singleShot(timeoutMilliseconds, this, &KeysAhead::end);
}

KeysAhead::~KeysAhead() = default;

bool KeysAhead::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress:
        _keys.emplace_back(static_cast<QKeyEvent*>(event)->clone());
        return true;
    case QEvent::FocusIn:
    case QEvent::MouseButtonPress:
        end();
        return false;
    default:
        return false; // of keys that were down before, the owner has to hear that they are released
    }
}

void KeysAhead::arrived() {
    // One of the keys may close the window, and so be the end of all that is here.
    const auto keys = std::exchange(_keys, {});
    const QPointer<QWindow> window = &_window;
    end();
    for (const auto& key : keys) {
        if (window && window->isVisible())
            QCoreApplication::sendEvent(window, key.get());
    }
}

void KeysAhead::end() {
    _owner.removeEventFilter(this);
    disconnect(&_window, nullptr, this, nullptr);
    disconnect(qGuiApp, nullptr, this, nullptr);
    deleteLater();
}

} // namespace platform
