// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string_view>

/// Walks over the lines of a text in memory, in pieces of at most 999 bytes. The text outlives the reader.
class LineReader {
public:
    static constexpr std::size_t maximumPieceLength = 999;

    explicit LineReader(std::string_view text)
        : _rest(text) {}

    /// The next piece: up to and with the line feed, or so much of a longer line as fits. A piece is read as a C
    /// string, so it ends before a NUL byte in it. None at the end of the text.
    std::optional<std::string_view> next();
    bool isAtEnd() const { return _rest.empty(); }

private:
    std::string_view _rest;
};
