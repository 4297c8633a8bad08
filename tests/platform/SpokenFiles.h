// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/platform/SpokenTexts.h"

#include <QString>

#include <cstdint>
#include <random>
#include <string>
#include <vector>

enum class Markup : std::uint8_t { none, tags };

/// A SubRip file as somebody might have saved it, and what it says.
struct SpokenFile {
    std::string bytes;
    QString text;
};

/// Each text of every language.
std::vector<SpokenText> spokenTexts();

/// A file of so many cues, which are drawn from the lines of a text. What the encoding lacks is written as in ASCII.
SpokenFile spokenFile(const SpokenText& text, std::uint32_t encoding, std::size_t cues, Markup markup,
                      std::minstd_rand& draw);
