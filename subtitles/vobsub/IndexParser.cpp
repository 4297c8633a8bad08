// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/vobsub/IndexParser.h"

#include "platform/base/EncodingDetection.h"
#include "platform/base/TextEncoding.h"
#include "subtitles/input/LineReader.h"
#include "subtitles/input/ScanFormat.h"
#include "subtitles/input/TimeOfDay.h"
#include "subtitles/vobsub/IndexFields.h"

#include <algorithm>
#include <iterator>
#include <span>
#include <utility>

namespace {

/// A DVD has 32; an index with more than this is not meant to be read.
constexpr std::size_t maximumStreams = 256;
constexpr std::int32_t lastStreamNumber = 31;

using LanguageName = IndexParser::LanguageName;

/// A word that may stand for a value, by its first letters in upper case.
struct Choice {
    std::string_view beginning;
    std::int32_t value;
};

constexpr Choice smoothChoices[] = {{"OLD", 2}, {"2", 2}, {"ON", 1}, {"1", 1}, {"OFF", 0}, {"0", 0}};
constexpr Choice switchChoices[] = {{"ON", 1}, {"1", 1}, {"OFF", 0}, {"0", 0}};
constexpr Choice horizontalChoices[] = {{"LEFT", 0}, {"CENTER", 1}, {"RIGHT", 2}};
constexpr Choice verticalChoices[] = {{"TOP", 0}, {"CENTER", 1}, {"BOTTOM", 2}};

char upperCase(char letter) {
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

std::optional<std::int32_t> chosen(std::string_view word, std::span<const Choice> choices) {
    for (const Choice& choice : choices) {
        if (std::ranges::equal(word.substr(0, choice.beginning.size()), choice.beginning, {}, upperCase))
            return choice.value;
    }
    return std::nullopt;
}

/// A colour written as 0xRRGGBB.
VobSubColor colorOf(std::int64_t value, std::uint8_t alpha) {
    const auto byte = [bits = static_cast<std::uint64_t>(value)](unsigned place) {
        return static_cast<std::uint8_t>(bits >> place & 0xFFU);
    };
    return {byte(16), byte(8), byte(0), alpha};
}

/// All of the numbers, with commas between them.
template <std::size_t count>
std::optional<std::array<std::int64_t, count>> hexadecimals(IndexFields& fields) {
    std::array<std::int64_t, count> values{};
    for (std::size_t i = 0; i < count; ++i) {
        const auto value = i == 0 || fields.take(',') ? fields.takeHexadecimal() : std::nullopt;
        if (!value)
            return std::nullopt;
        values[i] = *value;
    }
    return values;
}

/// Decimal numbers with the same literal between them, as many as there are.
struct Decimals {
    std::array<std::int32_t, 4> values{};
    std::size_t count = 0;
};

Decimals decimals(IndexFields& fields, char between, std::size_t most) {
    Decimals result;
    while (result.count < most && (result.count == 0 || fields.take(between))) {
        const auto value = fields.takeDecimal();
        if (!value)
            break;
        result.values[result.count++] = *value;
    }
    return result;
}

bool takeNegativeSign(IndexFields& fields) {
    fields.skipBlanks();
    const bool negative = fields.take('-');
    if (!negative)
        fields.take('+');
    return negative;
}

std::int32_t millisecondsOf(const Decimals& time, bool negative) {
    const std::int64_t value = milliseconds(time.values[0], time.values[1], time.values[2], time.values[3]);
    return clampedTo32Bits(negative ? -value : value);
}

/// A time with an optional sign, all four parts of it.
std::optional<std::int32_t> takeTime(IndexFields& fields) {
    const bool negative = takeNegativeSign(fields);
    const Decimals time = decimals(fields, ':', 4);
    return time.count == 4 ? std::optional(millisecondsOf(time, negative)) : std::nullopt;
}

QString textOf(std::string_view bytes) {
    return platform::stringWithData(bytes, platform::detectedTextEncoding(bytes))
        .value_or(QString::fromLatin1(bytes.data(), static_cast<qsizetype>(bytes.size())))
        .trimmed();
}

class Parser {
public:
    explicit Parser(const LanguageName& languageName)
        : _languageName(languageName) {}

    bool take(std::string_view line);
    VobSubIndex finish() {
        closeStream();
        return std::move(_index);
    }

private:
    using Reader = bool (Parser::*)(IndexFields fields);
    struct Key {
        std::string_view text;
        Reader read;
    };
    static const Key keys[16];

    bool readHeader(std::string_view line);
    void readComment(std::string_view line);
    bool readKey(std::string_view line);

    bool readSize(IndexFields fields);
    bool readOrigin(IndexFields fields);
    bool readScale(IndexFields fields);
    bool readAlpha(IndexFields fields);
    bool readSmooth(IndexFields fields);
    bool readFades(IndexFields fields);
    bool readAlignment(IndexFields fields);
    bool readTimeOffset(IndexFields fields);
    bool readForced(IndexFields fields);
    bool readLanguageInUse(IndexFields fields);
    bool readPalette(IndexFields fields);
    bool readCustomColors(IndexFields fields);
    bool readStream(IndexFields fields);
    bool readName(IndexFields fields);
    bool readDelay(IndexFields fields);
    bool readTimestamp(IndexFields fields);
    void closeStream();

    const LanguageName& _languageName;
    VobSubIndex _index;
    std::optional<std::int32_t> _version;
    std::optional<QVVobSubStreamInfo> _stream;
    /// The bytes that name the open stream, decoded only when it is closed: a file may name it any number of times.
    std::optional<std::string_view> _streamName;
    std::int32_t _delay = 0;
    /// Carries what the last comment said.
    QVVobSubPos _cell;
};

/// In the order in which a line is searched for them. Each ends in its only colon.
const Parser::Key Parser::keys[16] = {
    {"size:", &Parser::readSize},          {"org:", &Parser::readOrigin},
    {"scale:", &Parser::readScale},        {"alpha:", &Parser::readAlpha},
    {"smooth:", &Parser::readSmooth},      {"fadein/out:", &Parser::readFades},
    {"align:", &Parser::readAlignment},    {"time offset:", &Parser::readTimeOffset},
    {"forced subs:", &Parser::readForced}, {"langidx:", &Parser::readLanguageInUse},
    {"palette:", &Parser::readPalette},    {"custom colors:", &Parser::readCustomColors},
    {"id:", &Parser::readStream},          {"alt:", &Parser::readName},
    {"delay:", &Parser::readDelay},        {"timestamp:", &Parser::readTimestamp},
};

bool Parser::take(std::string_view line) {
    IndexFields fields(line);
    fields.skipBlanks();
    const std::string_view content = fields.rest();
    if (content.empty())
        return true;
    if (!_version)
        return readHeader(content);
    if (content.front() != '#')
        return readKey(content);
    readComment(content);
    return true;
}

bool Parser::readHeader(std::string_view line) {
    _version = IndexParser::headerVersion(line);
    return _version.has_value();
}

void Parser::readComment(std::string_view line) {
    IndexFields fields(line);
    if (!fields.goBehind("Vob/Cell ID:"))
        return;
    const auto vob = fields.takeDecimal();
    if (!vob)
        return;
    _cell._vobid = static_cast<std::int8_t>(*vob);
    const auto cell = fields.take(',') ? fields.takeDecimal() : std::nullopt;
    if (!cell)
        return;
    _cell._cellid = static_cast<std::int8_t>(*cell);
    fields.skipBlanks();
    for (const char letter : {'(', 'P', 'T', 'S', ':'}) {
        if (!fields.take(letter))
            return;
    }
    _cell._celltimestamp = fields.takeLongDecimal().value_or(_cell._celltimestamp);
}

bool Parser::readKey(std::string_view line) {
    // Every key ends in a colon, so only the colons are looked at.
    const Key* found = std::end(keys);
    std::size_t behind = 0;
    for (std::size_t colon = line.find(':'); colon != std::string_view::npos; colon = line.find(':', colon + 1)) {
        const std::string_view beginning = line.substr(0, colon + 1);
        if (colon == 0 || (line[colon - 1] >= '0' && line[colon - 1] <= '9'))
            continue;
        const Key* const key =
            std::find_if(std::begin(keys), found, [&](const Key& one) { return beginning.ends_with(one.text); });
        if (key != found) {
            found = key;
            behind = colon + 1;
        }
    }
    return found != std::end(keys) && (this->*found->read)(IndexFields(line.substr(behind)));
}

bool Parser::readSize(IndexFields fields) {
    const Decimals values = decimals(fields, 'x', 2);
    _index._size = {static_cast<float>(values.values[0]), static_cast<float>(values.values[1])};
    return values.count == 2;
}

bool Parser::readOrigin(IndexFields fields) {
    const Decimals values = decimals(fields, ',', 2);
    _index._origin = {static_cast<float>(values.values[0]), static_cast<float>(values.values[1])};
    return values.count == 2;
}

bool Parser::readScale(IndexFields fields) {
    constexpr std::int32_t firstVersionWithTwo = 5;
    const auto x = fields.takeDecimal();
    fields.skipBlanks(); // as scanf does before a percent sign
    const auto y = *_version < firstVersionWithTwo             ? x
                   : x && fields.take('%') && fields.take(',') ? fields.takeDecimal()
                                                               : std::nullopt;
    if (!x || !y)
        return false;
    _index._scaleX = static_cast<float>(*x) / 100.0F;
    _index._scaleY = static_cast<float>(*y) / 100.0F;
    return true;
}

bool Parser::readAlpha(IndexFields fields) {
    const auto value = fields.takeDecimal();
    _index._alpha = static_cast<float>(value.value_or(0)) / 100.0F;
    return value.has_value();
}

bool Parser::readSmooth(IndexFields fields) {
    const auto value = chosen(fields.takeWord(), smoothChoices);
    _index._smooth = value.value_or(0);
    return value.has_value();
}

bool Parser::readFades(IndexFields fields) {
    constexpr std::int32_t usual = 50;
    Decimals values = decimals(fields, ',', 2);
    fields.skipBlanks();
    // A number may be left out, but not replaced by something else.
    if (values.count < 2 && !fields.rest().empty())
        return false;
    for (std::size_t i = values.count; i < 2; ++i)
        values.values[i] = usual;
    _index._fadeIn = values.values[0] / 1000.0;
    _index._fadeOut = values.values[1] / 1000.0;
    return true;
}

bool Parser::readAlignment(IndexFields fields) {
    const auto on = chosen(fields.takeWord(), switchChoices);
    if (!on)
        return false;
    _index._align = *on != 0;
    if (!_index._align)
        return true;
    if (!fields.goBehind("at"))
        return false;
    const auto horizontal = chosen(fields.takeWord(), horizontalChoices);
    const auto vertical = chosen(fields.takeWord(), verticalChoices);
    _index._alignH = horizontal.value_or(0);
    _index._alignV = vertical.value_or(0);
    return horizontal && vertical;
}

bool Parser::readTimeOffset(IndexFields fields) {
    const bool negative = takeNegativeSign(fields);
    const Decimals time = decimals(fields, ':', 4);
    std::int32_t offset = 0;
    if (time.count == 1)
        offset = clampedTo32Bits(negative ? -std::int64_t{time.values[0]} : time.values[0]);
    else if (time.count == 4)
        offset = millisecondsOf(time, negative);
    _index._timeOffset = static_cast<std::uint32_t>(offset);
    return true;
}

bool Parser::readForced(IndexFields fields) {
    const auto on = chosen(fields.takeWord(), switchChoices);
    _index._onlyForced = on.value_or(0) != 0;
    return on.has_value();
}

bool Parser::readLanguageInUse(IndexFields fields) {
    const auto value = fields.takeDecimal();
    _index._idxInUse = value.value_or(0);
    return value.has_value();
}

bool Parser::readPalette(IndexFields fields) {
    const auto values = hexadecimals<16>(fields);
    if (values)
        std::ranges::transform(*values, _index._originalPalette.begin(),
                               [](std::int64_t value) { return colorOf(value, 0); });
    return values.has_value();
}

bool Parser::readCustomColors(IndexFields fields) {
    const auto on = chosen(fields.takeWord(), switchChoices);
    const auto transparency = on && fields.goBehind("tridx:") ? fields.takeHexadecimal() : std::nullopt;
    const auto colors = transparency && fields.goBehind("colors:") ? hexadecimals<4>(fields) : std::nullopt;
    if (!colors)
        return false;
    _index._hasCustomPalette = *on != 0;
    _index._trIdx = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        // Four digits, the first of which is for the first colour.
        const unsigned place = 12 - 4 * static_cast<unsigned>(i);
        const bool transparent = (static_cast<std::uint64_t>(*transparency) >> place & 0xFU) == 1;
        _index._trIdx |= transparent ? 1 << i : 0;
        _index._customPalette[i] = colorOf((*colors)[i], transparent ? 0 : 255);
    }
    return true;
}

bool Parser::readStream(IndexFields fields) {
    const auto code = fields.take(' ') ? fields.takeBytes(2) : std::nullopt;
    const auto number = code && fields.goBehind("index:") ? fields.takeDecimal() : std::nullopt;
    if (!number || *number < 0 || *number > lastStreamNumber)
        return false;
    closeStream();
    if (_index._streams.size() == maximumStreams)
        return false;
    _stream.emplace();
    _stream->_index = *number;
    _stream->_languageID = QString::fromLatin1(code->data(), 2);
    _streamName.reset();
    _delay = 0;
    return true;
}

bool Parser::readName(IndexFields fields) {
    _streamName = fields.rest();
    return _stream.has_value();
}

bool Parser::readDelay(IndexFields fields) {
    const auto delay = takeTime(fields);
    _delay = clampedTo32Bits(std::int64_t{_delay} + delay.value_or(0));
    return _stream && delay;
}

bool Parser::readTimestamp(IndexFields fields) {
    const auto time = takeTime(fields);
    const auto position = time && fields.goBehind("filepos:") ? fields.takeHexadecimal() : std::nullopt;
    if (!_stream || !position)
        return false;
    QVVobSubPos record = _cell;
    record._pos = *position;
    record._timestamp = clampedTo32Bits(std::int64_t{*time} + _delay);
    std::vector<QVVobSubPos>& records = _stream->_subPos;
    if (_delay < 0 && !records.empty() && records.back()._timestamp > record._timestamp) {
        // Only as much of a negative delay is used as leaves the times in order.
        _delay = clampedTo32Bits(_delay + records.back()._timestamp - record._timestamp);
        record._timestamp = records.back()._timestamp;
    }
    records.push_back(record);
    return true;
}

void Parser::closeStream() {
    if (!_stream)
        return;
    _stream->_languageName = _streamName ? textOf(*_streamName) : _languageName(_stream->_languageID);
    _stream->_subPos.shrink_to_fit();
    _index._streams.push_back(*std::exchange(_stream, std::nullopt));
}

} // namespace

std::optional<std::int32_t> IndexParser::headerVersion(std::string_view line) {
    constexpr std::int32_t newestVersion = 7;
    std::array<std::int32_t, 1> version{};
    const Scan scan = scanLine(line, "# VobSub index file, v%d (do not modify this line!)", version);
    return scan.filled == 1 && version[0] <= newestVersion ? std::optional(version[0]) : std::nullopt;
}

IndexParser::Result IndexParser::parse(std::string_view text, const LanguageName& languageName) {
    Parser parser(languageName);
    LineReader lines(text);
    while (const auto line = lines.next()) {
        if (!parser.take(*line))
            return {std::nullopt, *line};
    }
    return {parser.finish(), {}};
}
