// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/qt/LostDisplay.h"

#include <QCoreApplication>
#include <QSemaphore>
#include <QString>
#include <QThread>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace platform {

namespace {

std::function<void()>& whoIsTold() {
    static std::function<void()> told;
    return told;
}

QtMessageHandler sFormerHandler = nullptr;

/// Main thread.
void tell() {
    const auto told = std::exchange(whoIsTold(), nullptr);
    if (!told)
        return;
    told();
    std::fflush(nullptr);
    // Threads are under way, which would find the statics gone.
    std::_Exit(EXIT_FAILURE);
}

void messageArrived(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (sFormerHandler)
        sFormerHandler(type, context, message);
    else
        std::fprintf(stderr, "%s\n", qFormatLogMessage(type, context, message).toLocal8Bit().constData());
    // "The X11 connection broke (error 1). Did the X11 server die?", also on behalf of Xlib, and "The Wayland
    // connection broke. Did the Wayland compositor die?"
    const bool isLost = message.startsWith(QLatin1String("The X11 connection broke")) ||
                        message.startsWith(QLatin1String("The Wayland connection "));
    QCoreApplication* const application = QCoreApplication::instance();
    if (!isLost || !application)
        return;
    if (QThread::currentThread() == application->thread()) {
        tell();
        return;
    }
    // The thread that reads from the compositor would end the process as soon as this returns.
    constexpr int timeoutMilliseconds = 2000;
    QMetaObject::invokeMethod(application, tell, Qt::QueuedConnection);
    QSemaphore().tryAcquire(1, timeoutMilliseconds);
}

} // namespace

LostDisplay::LostDisplay(std::function<void()> lost) {
    whoIsTold() = std::move(lost);
    sFormerHandler = qInstallMessageHandler(messageArrived);
}

LostDisplay::~LostDisplay() {
    qInstallMessageHandler(sFormerHandler);
    whoIsTold() = nullptr;
}

} // namespace platform
