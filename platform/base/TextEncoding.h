// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace platform {

/// Encodings by number. The numbers are stored in the user's settings, so they never change.
namespace textEncoding {
inline constexpr std::uint32_t automatic = 0;
inline constexpr std::uint32_t ascii = 1;
inline constexpr std::uint32_t utf8 = 4;
inline constexpr std::uint32_t utf16 = 10;
inline constexpr std::uint32_t utf16BigEndian = 0x90000100;
inline constexpr std::uint32_t utf16LittleEndian = 0x94000100;
inline constexpr std::uint32_t windows1252 = 12;
inline constexpr std::uint32_t gb18030 = 0x80000632;
} // namespace textEncoding

/// The numbers of the encodings that text can be decoded with here; not "automatic". Any thread.
const std::vector<std::uint32_t>& availableTextEncodings();
/// The encoding's name for the user, in the user's language; empty for an unknown number. Main thread.
QString localizedNameOfTextEncoding(std::uint32_t encoding);

/// Decodes pieces of bytes, each for itself and strictly. Keeps what it needs between the calls, so a decoder is used
/// by one thread at a time.
class TextDecoder {
public:
    /// Decodes nothing.
    TextDecoder();
    /// An unknown number (automatic is one) decodes nothing.
    explicit TextDecoder(std::uint32_t encoding);
    TextDecoder(TextDecoder&&) noexcept;
    TextDecoder& operator=(TextDecoder&&) noexcept;
    ~TextDecoder();

    std::uint32_t encoding() const { return _encoding; }
    /// Appends the text of all the bytes. False, and the text as it was, when they are not valid in the encoding.
    bool append(std::string_view bytes, QString& text);

private:
    struct Converter;

    std::uint32_t _encoding;
    std::unique_ptr<Converter> _converter;
};

/// The bytes' text, or none when they are not valid in the encoding. Any thread.
std::optional<QString> stringWithData(std::string_view bytes, std::uint32_t encoding);

} // namespace platform
