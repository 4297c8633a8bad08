// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/packets/PacketFormat.h"

#include "subtitles/input/LineReader.h"
#include "subtitles/input/ScanFormat.h"
#include "subtitles/text/CueText.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<PacketFormatFacts, 14> formats = {{
    {PacketFormat::webVTT, "WebVTT"_L1, "webvtt", "vtt webvtt"_L1},
    {PacketFormat::subStation, "SubStation Alpha"_L1, "ass", "ass ssa"_L1},
    {PacketFormat::subViewer, "SubViewer"_L1, "subviewer", "sbv"_L1},
    {PacketFormat::subViewer1, "SubViewer 1"_L1, "subviewer1", ""_L1},
    {PacketFormat::mpl2, "MPL2"_L1, "mpl2", "mpl mpl2"_L1},
    {PacketFormat::sami, "SAMI"_L1, "sami", "smi sami"_L1},
    {PacketFormat::lrc, "LRC"_L1, "lrc", "lrc"_L1},
    {PacketFormat::ttml, "TTML"_L1, nullptr, "ttml dfxp"_L1},
    {PacketFormat::jacoSub, "JACOsub"_L1, "jacosub", "jss js"_L1},
    {PacketFormat::pjs, "PJS"_L1, "pjs", "pjs"_L1},
    {PacketFormat::realText, "RealText"_L1, "realtext", "rt"_L1},
    {PacketFormat::spruce, "Spruce"_L1, "stl", "stl"_L1},
    {PacketFormat::mpSub, "MPSub"_L1, "mpsub", ""_L1},
    {PacketFormat::aqTitle, "AQTitle"_L1, "aqtitle", "aqt"_L1},
}};

bool beginsWith(std::string_view line, std::string_view word) {
    return line.size() >= word.size() && std::ranges::equal(word, line.substr(0, word.size()), [](char a, char b) {
               return a == (b >= 'A' && b <= 'Z' ? static_cast<char>(b - 'A' + 'a') : b);
           });
}

/// Whether a line is of the form, up to its end.
template <std::size_t Numbers>
bool scans(std::string_view line, std::string_view form) {
    std::array<std::int32_t, Numbers> numbers{};
    return scanLine(line, form, numbers).filled == Numbers;
}

/// The same for a form that ends in "%c", which is to be this one.
template <std::size_t Numbers>
bool scansUpTo(std::string_view line, std::string_view form, char last) {
    std::array<std::int32_t, Numbers + 1> values{};
    return scanLine(line, form, values).filled == values.size() && values.back() == last;
}

/// Whether an element of the name begins here: "<tt", "<tt:tt".
bool beginsElement(std::string_view line, std::string_view name) {
    if (!beginsWith(line, name))
        return false;
    const std::string_view rest = line.substr(name.size());
    return rest.empty() || rest.front() == ' ' || rest.front() == '\t' || rest.front() == '>';
}

/// What a file's first words tell, whose first line with anything on it this is.
std::optional<PacketFormat> formatOfFirst(std::string_view line) {
    if (line.starts_with("WEBVTT") && (line.size() == 6 || line[6] == ' ' || line[6] == '\t'))
        return PacketFormat::webVTT;
    if (beginsWith(line, "****") && line.find("SCRIPT") != std::string_view::npos)
        return PacketFormat::subViewer1;
    if (beginsWith(line, "format=time") || (beginsWith(line, "format=") && scans<1>(line.substr(7), "%d")))
        return PacketFormat::mpSub;
    return std::nullopt;
}

/// What a line tells wherever it stands.
std::optional<PacketFormat> formatOfLine(std::string_view line) {
    if (beginsWith(line, "[script info]") || beginsWith(line, "[v4 styles]") || beginsWith(line, "[v4+ styles]") ||
        (beginsWith(line, "dialogue:") && line.find(',') != std::string_view::npos))
        return PacketFormat::subStation;
    if (beginsElement(line, "<sami"))
        return PacketFormat::sami;
    if (beginsElement(line, "<tt") || beginsElement(line, "<tt:tt"))
        return PacketFormat::ttml;
    if (beginsElement(line, "<window"))
        return PacketFormat::realText;
    if (scans<8>(line, "%d:%d:%d.%d,%d:%d:%d.%d"))
        return PacketFormat::subViewer;
    if (scans<8>(line, "%d:%d:%d.%d %d:%d:%d.%d") && line.find("-->") == std::string_view::npos)
        return PacketFormat::jacoSub;
    if (scans<8>(line, "%d:%d:%d:%d , %d:%d:%d:%d"))
        return PacketFormat::spruce;
    if (scansUpTo<3>(line, "[%d:%d:%d%c", ']'))
        return PacketFormat::subViewer1;
    if (scansUpTo<2>(line, "[%d][%d%c", ']') ||
        (scansUpTo<1>(line, "[%d]%c", '[') && line.find("[]") < line.find(']') + 3))
        return PacketFormat::mpl2;
    if (scansUpTo<3>(line, "[%d:%d.%d%c", ']'))
        return PacketFormat::lrc;
    if (scans<1>(line, "-->> %d"))
        return PacketFormat::aqTitle;
    if (scansUpTo<2>(line, "%d,%d,%c", '"'))
        return PacketFormat::pjs;
    return std::nullopt;
}

} // namespace

std::span<const PacketFormatFacts> packetFormats() {
    return formats;
}

const PacketFormatFacts& factsOf(PacketFormat format) {
    return formats[static_cast<std::size_t>(format)];
}

std::optional<PacketFormat> packetFormatOf(std::string_view beginning) {
    // Scripts and pages may say much before they say what they are.
    constexpr int maximumLines = 100;
    LineReader lines(beginning, ReadingMode::repairing);
    bool isFirst = true;
    for (int count = 0; count < maximumLines; ++count) {
        const auto line = lines.next();
        if (!line)
            break;
        std::string_view words = CueText::trimmed(*line);
        // A page may stand on one line, behind what it says of its own form.
        while (beginsWith(words, "<?xml") && words.find("?>") != std::string_view::npos)
            words = CueText::trimmed(words.substr(words.find("?>") + 2));
        if (words.empty())
            continue;
        if (const auto format = isFirst ? formatOfFirst(words) : std::nullopt)
            return format;
        isFirst = false;
        if (const auto format = formatOfLine(words))
            return format;
    }
    return std::nullopt;
}
