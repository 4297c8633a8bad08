// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/input/ScanFormat.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace {

bool isBlank(char byte) {
    return byte == ' ' || (byte >= '\t' && byte <= '\r');
}

bool isDigit(char byte) {
    return byte >= '0' && byte <= '9';
}

class Scanner {
public:
    explicit Scanner(std::string_view line)
        : _line(line) {}

    std::size_t consumed() const { return _at; }
    void skipBlanks() {
        while (_at < _line.size() && isBlank(_line[_at]))
            ++_at;
    }
    bool take(char literal) {
        const bool fits = _at < _line.size() && _line[_at] == literal;
        _at += fits;
        return fits;
    }
    std::optional<std::int32_t> takeByte() {
        if (_at == _line.size())
            return std::nullopt;
        return static_cast<unsigned char>(_line[_at++]);
    }
    std::optional<std::int32_t> takeNumber() {
        skipBlanks();
        const bool negative = take('-');
        if (!negative)
            take('+');
        if (_at == _line.size() || !isDigit(_line[_at]))
            return std::nullopt;
        using Limits = std::numeric_limits<std::int32_t>;
        const std::int64_t most = negative ? -std::int64_t{Limits::min()} : Limits::max();
        std::int64_t value = 0;
        for (; _at < _line.size() && isDigit(_line[_at]); ++_at)
            value = std::min(most, value * 10 + (_line[_at] - '0'));
        return static_cast<std::int32_t>(negative ? -value : value);
    }

private:
    std::string_view _line;
    std::size_t _at = 0;
};

} // namespace

Scan scanLine(std::string_view line, std::string_view format, std::span<std::int32_t> values) {
    Scanner scanner(line);
    Scan scan;
    for (std::size_t at = 0; at < format.size(); ++at) {
        bool fits = true;
        if (format[at] == ' ') {
            scanner.skipBlanks();
        } else if (format[at] == '%') {
            ++at;
            const auto value = format[at] == 'c' ? scanner.takeByte() : scanner.takeNumber();
            fits = value.has_value();
            if (fits)
                values[scan.filled++] = *value;
        } else {
            fits = scanner.take(format[at]);
        }
        if (!fits)
            break;
    }
    scan.consumed = scanner.consumed();
    return scan;
}
