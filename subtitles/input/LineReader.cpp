// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/input/LineReader.h"

#include <algorithm>
#include <cstring>

std::optional<std::string_view> LineReader::next() {
    if (_rest.empty())
        return std::nullopt;
    const std::size_t most = std::min(_rest.size(), maximumPieceLength);
    const void* lineFeed = std::memchr(_rest.data(), '\n', most);
    const std::size_t length =
        lineFeed ? static_cast<std::size_t>(static_cast<const char*>(lineFeed) - _rest.data()) + 1 : most;
    const std::string_view piece = _rest.substr(0, length);
    _rest.remove_prefix(length);
    const std::size_t nul = piece.find('\0');
    return nul == std::string_view::npos ? piece : piece.substr(0, nul);
}
