// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/MpvDialect.h"

#include <mpv/client.h>

namespace platform {

MpvDialect mpvDialect(unsigned long version) {
    // 2.5 came with mpv 0.40, in which the name before is but another one for it.
    const char* const text = version >= MPV_MAKE_VERSION(2, 5) ? "sub-text/ass" : "sub-text-ass";
    // 2.3 came with mpv 0.38, in which "background" says what kind of one there is.
    if (version >= MPV_MAKE_VERSION(2, 3))
        return {"background-color", MpvDialect::LoadArguments::flagsAndIndex, MpvDialect::NewDecoder::decodesFirst,
                text};
    return {"background", MpvDialect::LoadArguments::flags, MpvDialect::NewDecoder::seeksAtOnce, text};
}

} // namespace platform
