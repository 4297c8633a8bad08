// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/Desktop.h"

#include <QtGlobal>

namespace platform {

namespace {
Desktop* sharedDesktop = nullptr;
}

Desktop& Desktop::shared() {
    Q_ASSERT_X(sharedDesktop, "Desktop::shared", "no desktop was installed");
    return *sharedDesktop;
}

void Desktop::setShared(Desktop* desktop) {
    sharedDesktop = desktop;
}

} // namespace platform
