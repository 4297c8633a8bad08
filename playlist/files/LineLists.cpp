// SPDX-License-Identifier: GPL-3.0-or-later
#include "playlist/files/LineLists.h"

#include "platform/base/TextEncoding.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <optional>
#include <utility>

namespace listFile {

namespace {

constexpr qsizetype maximumTitle = 500;

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\f\v\x1a";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool startsWithoutCase(std::string_view text, std::string_view lowerCase) {
    const auto lowered = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    return text.size() >= lowerCase.size() &&
           std::equal(lowerCase.begin(), lowerCase.end(), text.begin(),
                      [&lowered](char wanted, char c) { return lowered(c) == wanted; });
}

bool isWithoutCase(std::string_view text, std::string_view lowerCase) {
    return text.size() == lowerCase.size() && startsWithoutCase(text, lowerCase);
}

/// Calls `take` with each line that is more than blanks, until it answers false.
template <class Take>
void eachLine(std::string_view text, Take take) {
    const auto next = [&text](char end, std::size_t from) { return std::min(text.find(end, from), text.size()); };
    std::size_t feed = next('\n', 0), carriageReturn = next('\r', 0);
    for (std::size_t at = 0; at < text.size();) {
        // Each is looked for once a line that it ends: a file may have but one of them.
        feed = feed < at ? next('\n', at) : feed;
        carriageReturn = carriageReturn < at ? next('\r', at) : carriageReturn;
        const std::size_t end = std::min(feed, carriageReturn);
        const std::string_view line = trimmed(text.substr(at, end - at));
        if (!line.empty() && !take(line))
            return;
        at = end + 1;
    }
}

class Decoder {
public:
    explicit Decoder(std::uint32_t encoding)
        : _decoder(encoding) {}

    QString text(std::string_view bytes) {
        QString decoded;
        if (std::ranges::all_of(bytes, [](char c) { return static_cast<unsigned char>(c) < 0x80U; }))
            return QString::fromLatin1(bytes.data(), static_cast<qsizetype>(bytes.size()));
        if (!_decoder.append(bytes, decoded))
            decoded = QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
        return decoded;
    }
    QString title(std::string_view bytes) { return text(bytes.substr(0, 4096)).simplified().left(maximumTitle); }
    void setAddress(std::string_view bytes, Entry& entry) {
        bytes = bytes.substr(0, maximumAddress + 1);
        entry.address = QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size()));
        entry.text = text(bytes);
    }

private:
    platform::TextDecoder _decoder;
};

/// Whole seconds; -1 where there is no number above 0.
std::int32_t secondsOf(std::string_view text) {
    std::int32_t seconds = -1;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), seconds);
    return result.ec == std::errc() && seconds > 0 ? seconds : -1;
}

/// Between the length and the title there may be attributes, in whose values commas mean nothing.
std::size_t commaBeforeTitle(std::string_view text) {
    bool isQuoted = false;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '"')
            isQuoted = !isQuoted;
        else if (text[at] == ',' && !isQuoted)
            return at;
    }
    return text.find(',');
}

Contents readM3u(std::string_view text, Decoder decoder) {
    Contents contents;
    contents.kind = Kind::list;
    Entry next;
    constexpr std::string_view information = "#extinf:";
    eachLine(text, [&](std::string_view line) {
        if (startsWithoutCase(line, "#ext-x-")) {
            contents.kind = Kind::stream;
            return false;
        }
        if (startsWithoutCase(line, information)) {
            line = trimmed(line.substr(information.size()));
            next.seconds = secondsOf(line);
            const std::size_t comma = commaBeforeTitle(line);
            next.title = comma < line.size() ? decoder.title(line.substr(comma + 1)) : QString();
        } else if (line.front() != '#') {
            contents.isCut = contents.entries.size() == maximumEntries;
            if (contents.isCut)
                return false;
            decoder.setAddress(line, next);
            contents.entries.push_back(std::exchange(next, {}));
        }
        return true;
    });
    if (contents.kind == Kind::stream)
        contents.entries.clear();
    return contents;
}

/// A line of a PLS file such as File12=film.avi.
struct NumberedLine {
    std::string_view key; // in the file's letters, without the number
    std::uint32_t number = 0;
    std::string_view value;
};

std::optional<NumberedLine> numberedLine(std::string_view line) {
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos)
        return std::nullopt;
    const std::string_view key = trimmed(line.substr(0, equals));
    const std::size_t digits = std::min(key.find_first_of("0123456789"), key.size());
    NumberedLine numbered{key.substr(0, digits), 0, trimmed(line.substr(equals + 1))};
    const auto result = std::from_chars(key.data() + digits, key.data() + key.size(), numbered.number);
    if (result.ec != std::errc() || result.ptr != key.data() + key.size())
        return std::nullopt;
    return numbered;
}

Contents readPls(std::string_view text, Decoder decoder) {
    std::map<std::uint32_t, Entry> entries;
    Contents contents;
    contents.kind = Kind::list;
    eachLine(text, [&](std::string_view line) {
        const auto numbered = numberedLine(line);
        if (!numbered)
            return true;
        const bool isKnown = entries.contains(numbered->number);
        if (!isKnown && entries.size() == maximumEntries) {
            contents.isCut = true;
            return true;
        }
        if (isWithoutCase(numbered->key, "file"))
            decoder.setAddress(numbered->value, entries[numbered->number]);
        else if (isWithoutCase(numbered->key, "title"))
            entries[numbered->number].title = decoder.title(numbered->value);
        else if (isWithoutCase(numbered->key, "length"))
            entries[numbered->number].seconds = secondsOf(numbered->value);
        return true;
    });
    for (auto& [number, entry] : entries) {
        if (!entry.address.isEmpty())
            contents.entries.push_back(std::move(entry));
    }
    return contents;
}

} // namespace

Contents readLines(std::string_view text, std::uint32_t encoding) {
    bool isPls = false;
    eachLine(text, [&isPls](std::string_view line) {
        isPls = startsWithoutCase(line, "[playlist]");
        return false;
    });
    return isPls ? readPls(text, Decoder(encoding)) : readM3u(text, Decoder(encoding));
}

} // namespace listFile
