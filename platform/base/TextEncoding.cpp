// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/TextEncoding.h"

#include "platform/base/Localization.h"
#include "platform/base/TextEncodingTable.h"

#include <QLatin1String>

#include <algorithm>
#include <cstring>
#include <unicode/ucnv.h>
#include <unicode/ucsdet.h>
#include <unicode/ustring.h>

namespace platform {

namespace {

using textEncoding::gb18030;
using textEncoding::utf16;
using textEncoding::utf16BigEndian;
using textEncoding::utf8;

struct CloseConverter {
    void operator()(UConverter* converter) const { ucnv_close(converter); }
};
using ConverterHandle = std::unique_ptr<UConverter, CloseConverter>;

struct CloseDetector {
    void operator()(UCharsetDetector* detector) const { ucsdet_close(detector); }
};

/// A converter that stops at the first byte that is not valid; null for an unknown encoding.
ConverterHandle openStrictly(const char* name) {
    UErrorCode error = U_ZERO_ERROR;
    ConverterHandle converter(ucnv_open(name, &error));
    if (U_FAILURE(error))
        return nullptr;
    ucnv_setToUCallBack(converter.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &error);
    return U_SUCCESS(error) ? std::move(converter) : nullptr;
}

bool isASCII(std::string_view bytes) {
    std::uint64_t all = 0;
    for (; bytes.size() >= sizeof all; bytes.remove_prefix(sizeof all)) {
        std::uint64_t word = 0;
        std::memcpy(&word, bytes.data(), sizeof word);
        if (word & 0x8080808080808080U)
            return false;
    }
    return std::ranges::all_of(bytes, [](char byte) { return (static_cast<unsigned char>(byte) & 0x80U) == 0; });
}

/// Whether bytes below 128 always stand for the ASCII characters.
bool keepsASCII(const char* converter) {
    for (const char* shifting : {"UTF-16", "UTF-32", "ISO-2022", "HZ-", "IBM864"}) {
        if (std::strncmp(converter, shifting, std::strlen(shifting)) == 0)
            return false;
    }
    return true;
}

bool startsWith(std::string_view bytes, std::string_view beginning) {
    return bytes.substr(0, beginning.size()) == beginning;
}

// A lead byte without its followers at the end of what was read is no fault of the text.
bool isValidUTF8(std::string_view bytes) {
    for (int dropped = 0; dropped <= 3; ++dropped) {
        if (QUtf8StringView(bytes.data(), static_cast<qsizetype>(bytes.size())).isValidUtf8())
            return true;
        if (bytes.empty() || isASCII(bytes.substr(bytes.size() - 1)))
            return false;
        bytes.remove_suffix(1);
    }
    return false;
}

bool decodesStrictly(std::string_view bytes, std::uint32_t encoding) {
    TextDecoder decoder(encoding);
    for (std::size_t dropped = 0; dropped <= 3 && dropped < bytes.size(); ++dropped) {
        QString text;
        if (decoder.append(bytes.substr(0, bytes.size() - dropped), text))
            return true;
    }
    return false;
}

constexpr std::size_t detectorsSample = 8192; // the detector looks at no more

/// The lines that tell encodings apart.
std::string tellingLines(std::string_view bytes, char escape) {
    std::string lines;
    while (!bytes.empty() && lines.size() < detectorsSample) {
        const std::string_view line = bytes.substr(0, bytes.find('\n'));
        bytes.remove_prefix(std::min(bytes.size(), line.size() + 1));
        if (!isASCII(line) || (escape && line.find(escape) != std::string_view::npos))
            lines.append(line.substr(0, detectorsSample - lines.size())).push_back('\n');
    }
    return lines;
}

/// GB 18030 has no character of the one byte 0x80. ICU refuses it up to release 72 and takes it for a euro sign in 76,
/// and then guesses Chinese where there is none.
bool hasSingleEuro(std::string_view bytes) {
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        const auto byte = static_cast<unsigned char>(bytes[at]);
        if (byte == 0x80)
            return true;
        // Of four bytes, the third and fourth are like the first and second.
        if (byte > 0x80)
            ++at;
    }
    return false;
}

/// The number for a name of the detector. What it calls ISO is in practice the Windows encoding that contains it.
std::uint32_t numberForDetected(const char* name) {
    constexpr struct {
        const char* detected;
        std::uint32_t number;
    } wider[] = {{"ISO-8859-1", textEncoding::windows1252},
                 {"ISO-8859-9", 14},
                 {"EUC-KR", 0x80000422},
                 {"ISO-8859-8-I", 0x80000505},
                 {"ISO-8859-8", 0x80000505}};
    for (const auto& entry : wider) {
        if (std::strcmp(entry.detected, name) == 0)
            return entry.number;
    }
    for (const TextEncodingEntry& entry : textEncodingTable()) {
        if (ucnv_compareNames(entry.converter, name) == 0)
            return entry.number;
    }
    return textEncoding::automatic;
}

/// The Windows encodings have letters and quotation marks where those of ISO have control characters.
bool hasBytesOfWindows(std::string_view bytes) {
    return std::ranges::any_of(bytes, [](char byte) {
        const auto value = static_cast<unsigned char>(byte);
        return value >= 0x80 && value < 0xA0;
    });
}

/// Slovene, which the detector does not know: its letters č, š and ž in Windows 1250 are all that a text
/// has beyond ASCII, and in Windows 1252 two of the three hardly occur.
bool looksSlovene(std::string_view bytes) {
    std::size_t letters = 0;
    std::size_t itsOwn = 0;
    std::size_t sOrZ = 0;
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        const bool hasCaron = value == 0x8A || value == 0x8E || value == 0x9A || value == 0x9E;
        letters += value >= 0xC0 || hasCaron;
        itsOwn += value == 0xC8 || value == 0xE8 || hasCaron;
        sOrZ += hasCaron;
    }
    return itsOwn * 10 >= letters * 9 && sOrZ * 5 >= itsOwn && sOrZ > 0;
}

/// What the sample left open: the encoding of Windows that all of the bytes ask for in place of one of ISO.
std::uint32_t widened(std::uint32_t number, std::string_view bytes) {
    constexpr struct {
        std::uint32_t iso;
        std::uint32_t windows;
    } pairs[] = {{9, 15}, {0x80000207, 13}};
    for (const auto& pair : pairs) {
        if (number == pair.iso && hasBytesOfWindows(bytes))
            return pair.windows;
    }
    if (number == textEncoding::windows1252 && looksSlovene(bytes))
        return 15;
    return number;
}

/// A text of UTF-8 with a few lines that somebody spoilt; other encodings hardly ever look like it.
bool isMostlyUTF8(std::string_view bytes) {
    constexpr std::size_t soundForASpoiltOne = 4;
    std::size_t sound = 0;
    std::size_t spoilt = 0;
    while (!bytes.empty()) {
        const std::string_view line = bytes.substr(0, bytes.find('\n'));
        bytes.remove_prefix(std::min(bytes.size(), line.size() + 1));
        if (!isASCII(line))
            ++(QUtf8StringView(line.data(), static_cast<qsizetype>(line.size())).isValidUtf8() ? sound : spoilt);
    }
    return sound > 0 && sound >= soundForASpoiltOne * spoilt;
}

} // namespace

const std::vector<std::uint32_t>& availableTextEncodings() {
    static const std::vector<std::uint32_t> numbers = [] {
        std::vector<std::uint32_t> found;
        for (const TextEncodingEntry& entry : textEncodingTable()) {
            if (openStrictly(entry.converter))
                found.push_back(entry.number);
        }
        return found;
    }();
    return numbers;
}

QString localizedNameOfTextEncoding(std::uint32_t encoding) {
    if (encoding == textEncoding::automatic)
        return localizedString(QStringLiteral("Automatic"));
    const TextEncodingEntry* entry = textEncodingEntry(encoding);
    return entry ? localizedString(QString::fromLatin1(entry->name)) : QString();
}

struct TextDecoder::Converter {
    ConverterHandle handle;
    bool keepsASCII;
};

TextDecoder::TextDecoder()
    : TextDecoder(textEncoding::automatic) {}

TextDecoder::TextDecoder(std::uint32_t encoding)
    : _encoding(encoding) {
    if (encoding == utf8)
        return;
    const TextEncodingEntry* entry = textEncodingEntry(encoding);
    // Without a mark the little end comes first, as on the machines that write such files.
    const char* name = encoding == utf16 ? "UTF-16LE" : entry ? entry->converter : nullptr;
    if (ConverterHandle handle = name ? openStrictly(name) : nullptr)
        _converter = std::make_unique<Converter>(Converter{std::move(handle), keepsASCII(name)});
}

TextDecoder::TextDecoder(TextDecoder&&) noexcept = default;
TextDecoder& TextDecoder::operator=(TextDecoder&&) noexcept = default;
TextDecoder::~TextDecoder() = default;

bool TextDecoder::append(std::string_view bytes, QString& text) {
    if (_encoding != utf8 && !_converter)
        return false;
    if ((_encoding == utf8 || _converter->keepsASCII) && isASCII(bytes)) {
        text.append(QLatin1String(bytes.data(), static_cast<qsizetype>(bytes.size())));
        return true;
    }
    if (_encoding == utf16 && startsWith(bytes, "\xFE\xFF"))
        return TextDecoder(utf16BigEndian).append(bytes.substr(2), text);
    if (_encoding == utf16 && startsWith(bytes, "\xFF\xFE"))
        bytes.remove_prefix(2);
    if (bytes.size() > 0x20000000U)
        return false;

    const auto size = static_cast<std::int32_t>(bytes.size());
    const qsizetype before = text.size();
    // No encoding here makes more than two units of a byte.
    const std::int32_t capacity = _encoding == utf8 ? size : 2 * size;
    text.resize(before + capacity);
    UChar* target = reinterpret_cast<UChar*>(text.data() + before);
    UErrorCode error = U_ZERO_ERROR;
    std::int32_t length = 0;
    if (_encoding == utf8)
        u_strFromUTF8(target, capacity, &length, bytes.data(), size, &error);
    else
        length = ucnv_toUChars(_converter->handle.get(), target, capacity, bytes.data(), size, &error);
    const bool decoded = U_SUCCESS(error) && !(_encoding == gb18030 && hasSingleEuro(bytes));
    text.resize(decoded ? before + length : before);
    return decoded;
}

std::optional<QString> stringWithData(std::string_view bytes, std::uint32_t encoding) {
    QString text = QLatin1String("");
    if (!TextDecoder(encoding).append(bytes, text))
        return std::nullopt;
    return text;
}

std::optional<QByteArray> lossyData(const QString& text, std::uint32_t encoding) {
    const TextEncodingEntry* entry = textEncodingEntry(encoding);
    UErrorCode error = U_ZERO_ERROR;
    const ConverterHandle converter(entry ? ucnv_open(encoding == utf16 ? "UTF-16LE" : entry->converter, &error)
                                          : nullptr);
    if (!converter || U_FAILURE(error))
        return std::nullopt;
    const auto size = static_cast<std::int32_t>(std::min<qsizetype>(text.size(), 0x04000000));
    QByteArray bytes(UCNV_GET_MAX_BYTES_FOR_STRING(size, ucnv_getMaxCharSize(converter.get())), Qt::Uninitialized);
    const std::int32_t length = ucnv_fromUChars(converter.get(), bytes.data(), static_cast<std::int32_t>(bytes.size()),
                                                reinterpret_cast<const UChar*>(text.constData()), size, &error);
    if (U_FAILURE(error))
        return std::nullopt;
    bytes.truncate(length);
    return bytes;
}

std::uint32_t detectedTextEncoding(std::string_view bytes) {
    if (startsWith(bytes, "\xEF\xBB\xBF"))
        return utf8;
    if (startsWith(bytes, "\xFF\xFE") || startsWith(bytes, "\xFE\xFF"))
        return utf16;
    constexpr char escape = '\x1B';
    const bool escapes = isASCII(bytes) && bytes.find(escape) != std::string_view::npos;
    if (!escapes && (isValidUTF8(bytes) || isMostlyUTF8(bytes)))
        return utf8;

    const std::string sample = tellingLines(bytes, escapes ? escape : '\0');
    UErrorCode error = U_ZERO_ERROR;
    const std::unique_ptr<UCharsetDetector, CloseDetector> detector(ucsdet_open(&error));
    ucsdet_setText(detector.get(), sample.data(), static_cast<std::int32_t>(sample.size()), &error);
    std::int32_t count = 0;
    const UCharsetMatch** matches = ucsdet_detectAll(detector.get(), &count, &error);
    for (std::int32_t index = 0; U_SUCCESS(error) && index < count; ++index) {
        const char* name = ucsdet_getName(matches[index], &error);
        // Wide encodings were told by their mark or not at all: the lines were found by single bytes.
        if (U_FAILURE(error) || std::strncmp(name, "UTF-16", 6) == 0 || std::strncmp(name, "UTF-32", 6) == 0)
            continue;
        const std::uint32_t number = numberForDetected(name);
        if (number == utf8 || (number != textEncoding::automatic && decodesStrictly(sample, number)))
            return widened(number, bytes);
    }
    return escapes ? utf8 : textEncoding::windows1252;
}

} // namespace platform
