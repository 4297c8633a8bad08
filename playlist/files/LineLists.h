// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "playlist/files/ListContents.h"

#include <cstdint>
#include <string_view>

namespace listFile {

/// Reads a list of lines, M3U or PLS, without a byte-order mark and in an encoding that has ASCII in it. Lines end in
/// line feeds, carriage returns, or both.
Contents readLines(std::string_view text, std::uint32_t encoding);

} // namespace listFile
