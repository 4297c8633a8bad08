// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/main/Terminal.h"

#include <QString>

#include <cstdio>

void complain(const QString& message) {
    std::fprintf(stderr, "lumaro: %s\n", message.toLocal8Bit().constData());
}
