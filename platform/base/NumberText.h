// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>

namespace platform {

/// Numbers as text, the same in every locale. Any thread.

/// Takes a decimal number ("-1", "+.5", "1e3") and the blanks before it off the front of the text. Nothing when no
/// finite number stands there; the text is then left as it was. What is too large for a double counts as no number.
std::optional<double> takeNumber(QByteArrayView& text);

/// White space as the C locale has it.
constexpr bool isBlank(char byte) {
    return byte == ' ' || (byte >= '\t' && byte <= '\r');
}

/// Takes an integer off the front of the text as scanf does: blanks and a sign may stand before its digits, "0x" before
/// those of base 16. A number that does not fit is the nearest that does. Without digits nothing; the blanks and the
/// sign are taken all the same.
template <int base>
std::optional<std::int64_t> takeInteger(std::string_view& text) {
    static_assert(base == 10 || base == 16);
    constexpr auto digitOf = [](char byte) {
        if (byte >= '0' && byte <= '9')
            return byte - '0';
        const char lower = static_cast<char>(byte | 0x20);
        return base == 16 && lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : base;
    };
    std::size_t at = 0;
    while (at < text.size() && isBlank(text[at]))
        ++at;
    const bool negative = at < text.size() && text[at] == '-';
    if (negative || (at < text.size() && text[at] == '+'))
        ++at;
    if (base == 16 && at + 2 < text.size() && text[at] == '0' && (text[at + 1] | 0x20) == 'x' &&
        digitOf(text[at + 2]) < base)
        at += 2;
    text.remove_prefix(at);
    if (text.empty() || digitOf(text.front()) >= base)
        return std::nullopt;
    constexpr std::int64_t maximum = std::numeric_limits<std::int64_t>::max();
    std::int64_t value = 0;
    for (at = 0; at < text.size() && digitOf(text[at]) < base; ++at) {
        const int digit = digitOf(text[at]);
        // The first comparison alone decides for every number that one meets.
        const bool fits = value < maximum / base - 1 || value <= (maximum - digit) / base;
        value = fits ? value * base + digit : maximum;
    }
    text.remove_prefix(at);
    return negative ? -value : value;
}

/// The form of printf's "%g" with so many significant digits. What is not finite is written as 0.
QByteArray generalText(double value, int digits = 6);

/// The shortest text that reads back as the same number.
QByteArray shortestText(float value);
QByteArray shortestText(double value);

} // namespace platform
