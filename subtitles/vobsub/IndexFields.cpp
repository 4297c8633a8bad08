// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/vobsub/IndexFields.h"

#include "subtitles/input/TimeOfDay.h"

#include <algorithm>
#include <limits>

namespace {

int digitValue(char byte) {
    if (byte >= '0' && byte <= '9')
        return byte - '0';
    if (byte >= 'a' && byte <= 'f')
        return byte - 'a' + 10;
    if (byte >= 'A' && byte <= 'F')
        return byte - 'A' + 10;
    return std::numeric_limits<int>::max();
}

bool hasPrefix(std::string_view text) {
    return text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X') && digitValue(text[2]) < 16;
}

} // namespace

void IndexFields::skipBlanks() {
    _rest.remove_prefix(static_cast<std::size_t>(std::ranges::find_if_not(_rest, isBlank) - _rest.begin()));
}

bool IndexFields::take(char literal) {
    const bool fits = _rest.starts_with(literal);
    _rest.remove_prefix(fits);
    return fits;
}

bool IndexFields::goBehind(std::string_view text) {
    const std::size_t at = _rest.find(text);
    if (at == std::string_view::npos)
        return false;
    _rest.remove_prefix(at + text.size());
    return true;
}

std::optional<std::string_view> IndexFields::takeBytes(std::size_t count) {
    if (_rest.size() < count)
        return std::nullopt;
    const std::string_view bytes = _rest.substr(0, count);
    _rest.remove_prefix(count);
    return bytes;
}

std::string_view IndexFields::takeWord() {
    constexpr std::size_t maximumWordLength = 79;
    skipBlanks();
    const auto length = static_cast<std::size_t>(std::ranges::find_if(_rest, isBlank) - _rest.begin());
    return *takeBytes(std::min(length, maximumWordLength));
}

std::optional<std::int32_t> IndexFields::takeDecimal() {
    const auto number = takeLongDecimal();
    return number ? std::optional(clampedTo32Bits(*number)) : std::nullopt;
}

std::optional<std::int64_t> IndexFields::takeNumber(int base) {
    skipBlanks();
    const bool negative = take('-');
    if (!negative)
        take('+');
    if (base == 16 && hasPrefix(_rest))
        _rest.remove_prefix(2);
    if (_rest.empty() || digitValue(_rest.front()) >= base)
        return std::nullopt;
    constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
    std::int64_t value = 0;
    for (; !_rest.empty() && digitValue(_rest.front()) < base; _rest.remove_prefix(1)) {
        const int digit = digitValue(_rest.front());
        value = value > (most - digit) / base ? most : value * base + digit;
    }
    return negative ? -value : value;
}
