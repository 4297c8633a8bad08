// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/text/SubRipTiming.h"

#include "subtitles/CueTiming.h"
#include "subtitles/input/ScanFormat.h"
#include "subtitles/input/TimeOfDay.h"

#include <algorithm>
#include <array>

namespace {

std::optional<SubRipTiming> scanStrictly(std::string_view line) {
    std::array<std::int32_t, 8> n{};
    if (scanLine(line, "%d:%d:%d,%d --> %d:%d:%d,%d", n).filled != n.size())
        return std::nullopt;
    return SubRipTiming{milliseconds(n[0], n[1], n[2], n[3]), milliseconds(n[4], n[5], n[6], n[7])};
}

/// Takes a time off the front of a line.
std::optional<std::int32_t> takeTime(std::string_view& line) {
    constexpr struct {
        const char* format;
        std::size_t numbers;
    } forms[] = {{"%d : %d : %d , %d", 4}, {"%d : %d : %d . %d", 4}, {"%d : %d : %d", 3}};
    for (const auto& form : forms) {
        std::array<std::int32_t, 4> n{};
        const Scan scan = scanLine(line, form.format, n);
        if (scan.filled != form.numbers)
            continue;
        line.remove_prefix(scan.consumed);
        return milliseconds(n[0], n[1], n[2], n[3]);
    }
    return std::nullopt;
}

bool takeArrow(std::string_view& line) {
    constexpr std::string_view arrow = "-->";
    line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
    if (!line.starts_with(arrow))
        return false;
    line.remove_prefix(arrow.size());
    return true;
}

std::optional<SubRipTiming> scanRepairing(std::string_view line) {
    const auto start = takeTime(line);
    if (!start || !takeArrow(line))
        return std::nullopt;
    const auto end = takeTime(line);
    if (!end)
        return std::nullopt;
    if (*end < *start)
        return SubRipTiming{*start, clampedTo32Bits(std::int64_t{*start} + CueTiming::guessedMilliseconds)};
    return SubRipTiming{*start, *end};
}

} // namespace

std::optional<SubRipTiming> SubRipTiming::scan(std::string_view line, ReadingMode mode) {
    return mode == ReadingMode::strict ? scanStrictly(line) : scanRepairing(line);
}
