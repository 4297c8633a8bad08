// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>

namespace platform {

/// An encoding as it is stored, as ICU calls it, and as the user reads it (a key of the string tables).
struct TextEncodingEntry {
    std::uint32_t number;
    const char* converter;
    const char* name;
};

std::span<const TextEncodingEntry> textEncodingTable();
/// Null for an unknown number.
const TextEncodingEntry* textEncodingEntry(std::uint32_t number);

} // namespace platform
