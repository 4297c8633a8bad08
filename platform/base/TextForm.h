// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

// What the form of a text's bytes says about its encoding, whatever its language. Any thread.
namespace platform {

/// Valid UTF-8 but for a last character that was cut off.
bool isValidUTF8(std::string_view bytes);
/// A text of UTF-8 with a few lines that somebody spoilt; other encodings hardly ever look like it.
bool isMostlyUTF8(std::string_view bytes);

/// The encoding with the order of the bytes of a text in 16-bit units without a mark, which shows in the zeros of its
/// digits and line ends; none for another text.
std::optional<std::uint32_t> wideEncodingWithoutMark(std::string_view bytes);

/// The encoding of a text whose bytes are all of ASCII, but some stand for others after a sequence that says so.
std::optional<std::uint32_t> shiftingEncoding(std::string_view bytes);

} // namespace platform
