// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subtitles/input/ReadingMode.h"

#include <cstddef>
#include <optional>
#include <string_view>

/// Walks over the lines of a text in memory: strictly in pieces of at most 999 bytes, each up to a line feed; repairing
/// in whole lines, which a carriage return ends as well. The text outlives the reader. A copy goes on by itself.
class LineReader {
public:
    static constexpr std::size_t maximumPieceLength = 999;

    explicit LineReader(std::string_view text, ReadingMode mode = ReadingMode::strict)
        : _rest(text)
        , _mode(mode) {}

    /// The next piece with its line end, or so much of a longer line as fits. A piece is read as a C string, so it ends
    /// before a NUL byte in it. None at the end of the text.
    std::optional<std::string_view> next();
    bool isAtEnd() const { return _rest.empty(); }

private:
    std::size_t pieceLength() const;
    std::size_t lineLength();

    std::string_view _rest;
    ReadingMode _mode;
    /// Up to there carriage returns are followed by no line feed.
    const char* _bareReturnsEnd = nullptr;
};
