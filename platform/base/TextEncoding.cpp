// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/TextEncoding.h"

#include "platform/base/ASCII.h"
#include "platform/base/Localization.h"
#include "platform/base/TextEncodingTable.h"

#include <QLatin1String>

#include <algorithm>
#include <cstring>
#include <unicode/ucnv.h>
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

/// A converter that stops at the first byte that is not valid; null for an unknown encoding.
ConverterHandle openStrictly(const char* name) {
    UErrorCode error = U_ZERO_ERROR;
    ConverterHandle converter(ucnv_open(name, &error));
    if (U_FAILURE(error))
        return nullptr;
    ucnv_setToUCallBack(converter.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &error);
    return U_SUCCESS(error) ? std::move(converter) : nullptr;
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

} // namespace platform
