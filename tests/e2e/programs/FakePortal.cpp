// SPDX-License-Identifier: GPL-3.0-or-later
// Plays the desktop's portal for files: fake_portal MANNER OPTION ADDRESS..., MANNER being the number of a
// FakePortal::Manner. Says what it is asked on standard error.
#include "tests/support/FakePortal.h"

#include <QCoreApplication>

#include <cstdio>

int main(int count, char** arguments) {
    QCoreApplication application(count, arguments);
    FakePortal portal(QDBusConnection::sessionBus());
    const QStringList given = QCoreApplication::arguments();
    portal.manner = static_cast<FakePortal::Manner>(given.value(1).toInt());
    portal.option = given.value(2);
    portal.addresses = given.mid(3);
    portal.onCall = [](const QString& call) { std::fprintf(stderr, "%s\n", qPrintable(call)); };
    if (!portal.offer())
        return 1;
    std::fprintf(stderr, "ready\n");
    return QCoreApplication::exec();
}
