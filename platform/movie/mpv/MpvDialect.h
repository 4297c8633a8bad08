// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

namespace platform {

/// What differs between the versions of libmpv that are loaded at run time.
struct MpvDialect {
    /// The option that takes the colour behind the picture.
    const char* backgroundOption;
    /// What the loadfile command takes before the options of a file: nothing, or the place in the list as well.
    enum class LoadArguments { flags, flagsAndIndex } loadArguments;
    /// When a decoder that is made anew for other options may go on with a seek: at once, or not until it has decoded a
    /// picture of the old place, which takes longer than any number of threads gains.
    enum class NewDecoder { seeksAtOnce, decodesFirst } newDecoder;
    /// The property that holds the subtitles' text that is due, with its markup.
    const char* subtitleText;
};

/// Options that start scripts of the library's own, which nobody here talks to: each takes a thread and memory. A
/// version knows some of them.
inline constexpr std::array scriptOptions = {"load-stats-overlay", "load-osd-console", "load-console",
                                             "load-auto-profiles", "load-select",      "load-positioning",
                                             "load-commands"};

/// That of a library whose mpv_client_api_version() is `version`.
MpvDialect mpvDialect(unsigned long version);

} // namespace platform
