// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/MovieToolkit.h"

#include <cassert>

namespace platform {

namespace {
MovieToolkit* sShared = nullptr;
}

MovieToolkit& MovieToolkit::shared() {
    assert(sShared);
    return *sShared;
}

void MovieToolkit::setShared(MovieToolkit* toolkit) {
    sShared = toolkit;
}

} // namespace platform
