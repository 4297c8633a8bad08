// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/NumberText.h"

#include <array>
#include <charconv>
#include <cmath>

namespace platform {

namespace {

template <class... Form>
QByteArray toText(Form... form) {
    std::array<char, 64> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), form...);
    return error == std::errc{} ? QByteArray(buffer.data(), end - buffer.data()) : QByteArray("0");
}

} // namespace

std::optional<double> takeNumber(QByteArrayView& text) {
    qsizetype start = 0;
    while (start < text.size() && isBlank(text[start]))
        ++start;
    if (start < text.size() && text[start] == '+' && !(start + 1 < text.size() && text[start + 1] == '-'))
        ++start;
    double value = 0;
    const char* last = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data() + start, last, value);
    if (error != std::errc{} || !std::isfinite(value))
        return std::nullopt;
    text = QByteArrayView(end, last - end);
    return value;
}

QByteArray generalText(double value, int digits) {
    return std::isfinite(value) ? toText(value, std::chars_format::general, digits) : QByteArray("0");
}

QByteArray shortestText(float value) {
    return toText(value);
}
QByteArray shortestText(double value) {
    return toText(value);
}

} // namespace platform
