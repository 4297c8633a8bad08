// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>

namespace platform {

enum class Writing : std::uint8_t {
    latin,
    /// Letters other than those of Latin.
    otherAlphabet,
    /// Thousands of characters; the text is only a list of the usual ones.
    characters,
};

/// How a language looks that films are translated into, and what its old files are encoded in.
struct LanguageSample {
    const char* language;
    Writing writing;
    /// The usual one first: it is taken where several read the same.
    std::span<const std::uint32_t> encodings;
    /// Its letters beyond ASCII that a short text may not have. UTF-8.
    const char* letters;
    /// What people say in films, in UTF-8. Letter frequencies are counted in it.
    const char* text;
};

// Ordered by where the old encodings come from.
std::span<const LanguageSample> westernLanguages();
std::span<const LanguageSample> easternLanguages();
std::span<const LanguageSample> cyrillicAndGreekLanguages();
std::span<const LanguageSample> asianLanguages();

} // namespace platform
