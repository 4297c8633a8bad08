// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QEvent>
#include <QObject>
#include <QWidget>

/// An event filter for controls on pages that scroll: turning the wheel over a control that nobody chose scrolls the
/// page, and changes nothing. Main thread.
class WheelGuard final : public QObject {
public:
    using QObject::QObject;

    void watch(QWidget& control) {
        control.setFocusPolicy(Qt::StrongFocus);
        control.installEventFilter(this);
    }

private:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Wheel || static_cast<QWidget*>(watched)->hasFocus())
            return false;
        event->ignore();
        return true;
    }
};
