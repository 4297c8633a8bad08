// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/RunLoop.h"

namespace platform {

namespace {
RunLoop* sMain = nullptr;
}

RunLoop& RunLoop::main() {
    Q_ASSERT(sMain);
    return *sMain;
}

void RunLoop::setMain(RunLoop* loop) {
    sMain = loop;
}

} // namespace platform
