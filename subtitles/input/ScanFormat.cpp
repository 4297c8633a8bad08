// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/input/ScanFormat.h"

#include "platform/base/NumberText.h"
#include "subtitles/input/TimeOfDay.h"

#include <optional>

namespace {

class Scanner {
public:
    explicit Scanner(std::string_view line)
        : _line(line) {}

    std::size_t consumed() const { return _at; }
    void skipBlanks() {
        while (_at < _line.size() && platform::isBlank(_line[_at]))
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
        std::string_view rest = _line.substr(_at);
        const auto number = platform::takeInteger<10>(rest);
        _at = _line.size() - rest.size();
        return number ? std::optional(clampedTo32Bits(*number)) : std::nullopt;
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
