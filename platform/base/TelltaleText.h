// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// What of a subtitle file's bytes tells its encoding: the first lines that are not plain ASCII, and some more that
/// tell the language. Without tags, which would look like a language of their own. Lines of numbers and times are left
/// out.
class TelltaleText {
public:
    explicit TelltaleText(std::string_view bytes);

    const std::vector<std::string>& lines() const { return _lines; }

    struct Pair {
        unsigned char first;
        unsigned char second;
        std::uint32_t count;
    };
    /// How often a byte follows another; each line begins after a line end.
    const std::vector<Pair>& pairs() const { return _pairs; }

private:
    void countPairs();

    std::vector<std::string> _lines;
    std::vector<Pair> _pairs;
};

} // namespace platform
