// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>

namespace platform {

/// What the text is most likely encoded in (numbers as in TextEncoding.h): what its byte-order mark says, else 16-bit
/// units by their zeros, else UTF-8 if it is valid or nearly so, else the encoding in which it reads most like a
/// language that films are translated into; Windows 1252 for next to nothing. Looks for UTF-8 and for lines that are
/// not plain ASCII in all of the bytes, at the letters of the first 8 kB of such lines. Any thread.
std::uint32_t detectedTextEncoding(std::string_view bytes);

} // namespace platform
