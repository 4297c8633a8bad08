// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <string_view>

/// The text of a subtitle file as the readers take it: bytes whose line ends, digits and braces are those of ASCII.
struct SubtitleText {
    QByteArray bytes;
    /// Of the file, for the user: what was asked for, or what was found for "automatic".
    std::uint32_t encoding = 0;
    /// What the bytes are to be decoded with: another one than the file's when that was wide.
    std::uint32_t decodeWith = 0;

    std::string_view view() const { return {bytes.constData(), static_cast<std::size_t>(bytes.size())}; }

    /// Drops a byte-order mark that fits the encoding. A text of 16-bit units with a mark becomes UTF-8, with what is
    /// no character in it replaced; so does one for which automatic (0) found an encoding that the readers cannot take
    /// apart byte by byte.
    static SubtitleText fromBytes(QByteArray bytes, std::uint32_t encoding);
    /// As much of a file as a probe looks at. Empty when it cannot be read or is no regular file.
    static SubtitleText beginningOfFile(const QString& path);
    /// All of it in UTF-8, without the lines that are not valid in its encoding, whose number is added to `lost`.
    QByteArray asUTF8(std::size_t& lost) const;
};

/// How many lines of a file a probe looks at.
inline constexpr int probedLines = 20;
