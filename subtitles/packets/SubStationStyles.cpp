// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/packets/SubStationStyles.h"

#include "subtitles/input/LineReader.h"
#include "subtitles/text/CueText.h"

#include <QStringList>

#include <algorithm>

namespace {

/// More styles than that nobody wrote.
constexpr qsizetype maximumStyles = 10'000;

QString after(std::string_view line, std::string_view name) {
    if (!line.starts_with(name))
        return {};
    line.remove_prefix(name.size());
    return QString::fromUtf8(line.data(), static_cast<qsizetype>(line.size())).trimmed();
}

QStringList fields(const QString& line) {
    QStringList result = line.split(u',');
    for (QString& field : result)
        field = field.trimmed();
    return result;
}

/// The older format counts from the left as well, with 4 more for the top and 8 more for the middle.
int placeOf(int alignment, bool isOld) {
    if (!isOld)
        return alignment >= 1 && alignment <= 9 && alignment != 2 ? alignment : 0;
    const int column = alignment & 3;
    if (column == 0)
        return 0;
    const int row = (alignment & 4) ? 6 : (alignment & 8) ? 3 : 0;
    return placeOf(row + column, false);
}

/// Whether a line's codes say where it stands or goes, or that it is a drawing.
bool placesLine(std::string_view line) {
    for (const std::string_view code : {"\\pos(", "\\move(", "\\org(", "\\clip(", "\\iclip("})
        if (line.find(code) != std::string_view::npos)
            return true;
    for (std::size_t at = line.find("\\p"); at != std::string_view::npos; at = line.find("\\p", at + 1))
        if (at + 2 < line.size() && line[at + 2] >= '1' && line[at + 2] <= '9')
            return true;
    return false;
}

} // namespace

SubStationStyles::SubStationStyles(std::string_view file) {
    LineReader lines(file, ReadingMode::repairing);
    bool isOld = false;
    bool isInStyles = false;
    QStringList columns;
    while (const auto line = lines.next()) {
        const std::string_view words = CueText::trimmed(*line);
        if (words.starts_with('[')) {
            isInStyles = words.starts_with("[V4") || words.starts_with("[v4");
            isOld = isInStyles && words.find('+') == std::string_view::npos;
        }
        if (words.starts_with("Dialogue:")) {
            // Styles stand in front of what has them.
            isInStyles = false;
            _placesLines = _placesLines || placesLine(words);
            if (areOfDesign())
                break;
        }
        if (!isInStyles || _styles.size() >= maximumStyles)
            continue;
        if (const QString format = after(words, "Format:"); !format.isEmpty())
            columns = fields(format.toLower());
        const QStringList values = fields(after(words, "Style:"));
        if (values.size() < 2)
            continue;
        const auto value = [&](const QString& column) {
            const qsizetype at = columns.indexOf(column);
            return at >= 0 && at < values.size() ? values[at] : QString();
        };
        const auto isOn = [&](const QString& column) { return value(column).toInt() != 0; };
        Style style{isOn(QStringLiteral("bold")), isOn(QStringLiteral("italic")), isOn(QStringLiteral("underline")),
                    placeOf(value(QStringLiteral("alignment")).toInt(), isOld)};
        QString name = value(QStringLiteral("name"));
        // A star in front of a name means nothing any more.
        while (name.startsWith(u'*'))
            name.remove(0, 1);
        _styles.insert(name, style);
    }
}
