// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/text/MicroDVDLine.h"

#include "subtitles/input/ScanFormat.h"
#include "subtitles/input/TimeOfDay.h"

#include <QByteArray>

#include <algorithm>
#include <array>

namespace {

/// How long a cue without an end lasts when no other follows.
constexpr std::int64_t framesWithoutEnd = 100;

/// The length of the code that a text begins with; 0 when it begins with none.
std::size_t codeLength(std::string_view text) {
    const auto isLetter = [](char byte) { return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z'); };
    if (text.size() < 4 || text[0] != '{' || !isLetter(text[1]) || text[2] != ':')
        return 0;
    const std::size_t end = text.find_first_of("{}|", 3);
    return end != std::string_view::npos && text[end] == '}' ? end + 1 : 0;
}

} // namespace

std::optional<MicroDVDFrames> MicroDVDLine::scanFrames(std::string_view line, ReadingMode mode) {
    std::array<std::int32_t, 2> numbers{};
    const auto withoutEnd = [&](std::size_t consumed) {
        return MicroDVDFrames{numbers[0], clampedTo32Bits(numbers[0] + framesWithoutEnd), true, consumed};
    };
    for (const char* format : {"{%d}{%d}", "{%d } {%d }"}) {
        const Scan scan = scanLine(line, format, numbers);
        if (scan.filled != 2)
            continue;
        if (mode == ReadingMode::repairing && numbers[1] < numbers[0])
            return withoutEnd(scan.consumed);
        return MicroDVDFrames{numbers[0], numbers[1], false, scan.consumed};
    }
    const Scan scan = scanLine(line, "{%d}", numbers);
    if (scan.filled != 1)
        return std::nullopt;
    return withoutEnd(scan.consumed + (line.substr(scan.consumed).starts_with("{}") ? 2 : 0));
}

std::string MicroDVDLine::withoutCodes(std::string_view text) {
    std::string kept;
    kept.reserve(text.size());
    while (!text.empty()) {
        const std::size_t code = codeLength(text);
        const std::size_t plain = code > 0 ? 0 : std::min(text.find('{', 1), text.size());
        kept.append(text.substr(0, plain));
        text.remove_prefix(code + plain);
    }
    return kept;
}

std::optional<double> MicroDVDLine::frameRate(std::string_view text) {
    constexpr double least = 1;
    constexpr double most = 1000;
    QByteArray number(text.data(), static_cast<qsizetype>(std::min<std::size_t>(text.size(), 32)));
    bool isNumber = false;
    const double rate = number.trimmed().replace(',', '.').toDouble(&isNumber);
    return isNumber && rate >= least && rate <= most ? std::optional(rate) : std::nullopt;
}
