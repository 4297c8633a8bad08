// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>

/// Lines that are spoken in films, in UTF-8, none of which the player learned its letter frequencies from, and the
/// encodings that old files of the language are in.
struct SpokenText {
    const char* language;
    std::span<const std::uint32_t> encodings;
    const char* lines;
};

std::span<const SpokenText> textsInLatinLetters();
std::span<const SpokenText> textsOfEasternEurope();
std::span<const SpokenText> textsInOtherLetters();
