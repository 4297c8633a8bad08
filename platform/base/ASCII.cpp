// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/ASCII.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace platform {

bool isASCII(std::string_view bytes) {
    std::uint64_t all = 0;
    for (; bytes.size() >= sizeof all; bytes.remove_prefix(sizeof all)) {
        std::uint64_t word = 0;
        std::memcpy(&word, bytes.data(), sizeof word);
        if (word & 0x8080808080808080U)
            return false;
    }
    return std::ranges::all_of(bytes, [](char byte) { return (static_cast<unsigned char>(byte) & 0x80U) == 0; });
}

} // namespace platform
