// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/window/qt/ForeignPanel.h"

#include <QGuiApplication>
#include <QTimer>

namespace platform {

namespace {

int sPanels = 0;

/// A window manager gives the keyboard back when the panel has gone.
constexpr int returnMilliseconds = 500;

} // namespace

ForeignPanel::ForeignPanel() {
    ++sPanels;
}

ForeignPanel::~ForeignPanel() {
    QTimer::singleShot(returnMilliseconds, qGuiApp, [] {
        if (--sPanels == 0 && QGuiApplication::applicationState() != Qt::ApplicationActive)
            emit qGuiApp->applicationStateChanged(QGuiApplication::applicationState());
    });
}

bool ForeignPanel::isUp() {
    return sPanels > 0;
}

} // namespace platform
