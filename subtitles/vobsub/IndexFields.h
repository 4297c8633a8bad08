// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/NumberText.h"

#include <cstdint>
#include <optional>
#include <string_view>

/// Takes the fields of a line of a VobSub index one after the other, as scanf's conversions take them. What does not
/// fit is not taken. A number that does not fit 32 or 64 bits is the nearest that does.
class IndexFields {
public:
    /// The line outlives the reader.
    explicit IndexFields(std::string_view line)
        : _rest(line) {}

    std::string_view rest() const { return _rest; }
    void skipBlanks();
    bool take(char literal);
    /// Goes on behind the next occurrence of a text.
    bool goBehind(std::string_view text);
    /// Takes exactly so many bytes; none when there are fewer.
    std::optional<std::string_view> takeBytes(std::size_t count);
    /// What stands up to the next blank, of at most 79 bytes; empty at the end.
    std::string_view takeWord();
    /// "%d", "%lld" and "%llx": blanks and a sign may stand before the digits, "0x" before hexadecimal ones.
    std::optional<std::int32_t> takeDecimal();
    std::optional<std::int64_t> takeLongDecimal() { return platform::takeInteger<10>(_rest); }
    std::optional<std::int64_t> takeHexadecimal() { return platform::takeInteger<16>(_rest); }

private:
    std::string_view _rest;
};
