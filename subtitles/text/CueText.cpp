// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/text/CueText.h"

#include <algorithm>
#include <string>

namespace CueText {

void splitSegments(std::string_view rest, LineReader& lines, const std::function<void(std::string_view)>& append) {
    constexpr std::string_view separators = "|\r\n";
    while (!rest.empty()) {
        const std::size_t run = rest.find_first_of(separators);
        if (run == std::string_view::npos) {
            append(rest);
            rest = lines.next().value_or(std::string_view());
            continue;
        }
        const std::size_t next = std::min(rest.size(), rest.find_first_not_of(separators, run));
        if (rest[run] == '|') {
            std::string segment(rest.substr(0, next));
            segment[run] = '\n';
            append(segment);
        } else {
            append(rest.substr(0, next));
        }
        rest.remove_prefix(next);
    }
}

QString trimmed(const QString& text) {
    const QStringView kept = QStringView(text).trimmed();
    return kept.isEmpty() ? QString(QLatin1String("")) : kept.toString();
}

} // namespace CueText
