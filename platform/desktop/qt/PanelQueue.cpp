// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/qt/PanelQueue.h"

#include "platform/window/qt/ForeignPanel.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <utility>

namespace platform {

namespace {

constexpr int foreignMilliseconds = 300;

bool isPanelUp() {
    return QGuiApplication::modalWindow() || QApplication::activePopupWidget() || ForeignPanel::isUp();
}

} // namespace

void PanelQueue::add(std::function<void()> work) {
    if (_works.empty())
        qApp->installEventFilter(this);
    _works.push_back(std::move(work));
    lookSoon();
}

void PanelQueue::clear() {
    _works.clear();
    qApp->removeEventFilter(this);
}

/// Whatever closes may have been the last panel.
bool PanelQueue::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Hide && watched->isWidgetType() && static_cast<QWidget*>(watched)->isWindow())
        lookSoon();
    return false;
}

void PanelQueue::lookSoon() {
    QMetaObject::invokeMethod(
        this, [this] { look(); }, Qt::QueuedConnection);
}

void PanelQueue::look() {
    while (!_works.empty() && !isPanelUp()) {
        const auto work = std::move(_works.front());
        _works.pop_front();
        if (_works.empty())
            qApp->removeEventFilter(this);
        work();
    }
    // Of a panel of the desktop's own nothing says here that it went.
    if (!_works.empty() && ForeignPanel::isUp())
        QTimer::singleShot(foreignMilliseconds, this, [this] { look(); });
}

} // namespace platform
