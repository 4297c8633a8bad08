// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/input/LineReader.h"

#include <algorithm>
#include <cstring>

std::optional<std::string_view> LineReader::next() {
    if (_rest.empty())
        return std::nullopt;
    const std::string_view piece = _rest.substr(0, _mode == ReadingMode::strict ? pieceLength() : lineLength());
    _rest.remove_prefix(piece.size());
    const std::size_t nul = piece.find('\0');
    return nul == std::string_view::npos ? piece : piece.substr(0, nul);
}

std::size_t LineReader::pieceLength() const {
    const std::size_t most = std::min(_rest.size(), maximumPieceLength);
    const void* lineFeed = std::memchr(_rest.data(), '\n', most);
    return lineFeed ? static_cast<std::size_t>(static_cast<const char*>(lineFeed) - _rest.data()) + 1 : most;
}

std::size_t LineReader::lineLength() {
    const std::size_t end = _rest.find_first_of("\r\n");
    if (end == std::string_view::npos)
        return _rest.size();
    const char* const found = _rest.data() + end;
    // Each of a run ends a line: looked through for each of them, a long run would take its length squared.
    if (*found == '\r' && found < _bareReturnsEnd)
        return end + 1;
    // Carriage returns before a line feed belong to it, however many.
    const std::size_t next = std::min(_rest.find_first_not_of('\r', end), _rest.size());
    if (next < _rest.size() && _rest[next] == '\n')
        return next + 1;
    _bareReturnsEnd = _rest.data() + next;
    return end + 1;
}
