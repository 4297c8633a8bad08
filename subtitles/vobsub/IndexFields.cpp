// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/vobsub/IndexFields.h"

#include "platform/base/NumberText.h"
#include "subtitles/input/TimeOfDay.h"

#include <algorithm>

void IndexFields::skipBlanks() {
    _rest.remove_prefix(static_cast<std::size_t>(std::ranges::find_if_not(_rest, platform::isBlank) - _rest.begin()));
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
    const auto length = static_cast<std::size_t>(std::ranges::find_if(_rest, platform::isBlank) - _rest.begin());
    return *takeBytes(std::min(length, maximumWordLength));
}

std::optional<std::int32_t> IndexFields::takeDecimal() {
    const auto number = takeLongDecimal();
    return number ? std::optional(clampedTo32Bits(*number)) : std::nullopt;
}
