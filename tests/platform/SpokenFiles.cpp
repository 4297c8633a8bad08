// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/SpokenFiles.h"

#include "platform/base/TextEncoding.h"
#include "tests/support/EncodedText.h"

#include <QStringList>

#include <algorithm>

namespace {

bool holds(std::uint32_t encoding, const QString& text) {
    const auto bytes = lossyData(text, encoding);
    return bytes && platform::stringWithData({bytes->constData(), static_cast<std::size_t>(bytes->size())}, encoding)
                            .value_or(QString()) == text;
}

/// With the signs of a typewriter for those that the encoding does not have.
QString typed(QString text, std::uint32_t encoding) {
    const std::pair<const char*, const char*> substitutes[] = {
        {"’", "'"}, {"‘", "'"}, {"“", "\""}, {"”", "\""}, {"„", "\""}, {"…", "..."},   {"–", "-"},
        {"—", "-"}, {"£", "L"}, {"€", "E"},  {"œ", "oe"}, {"ґ", "г"},  {"\u200C", ""}, {"·", "."}};
    for (const auto& [sign, substitute] : substitutes) {
        if (text.contains(QString::fromUtf8(sign)) && !holds(encoding, QString::fromUtf8(sign)))
            text.replace(QString::fromUtf8(sign), QString::fromUtf8(substitute));
    }
    return text;
}

QString marked(const QString& line, std::minstd_rand& draw) {
    switch (draw() % 6) {
    case 0:
    case 1:
        return QStringLiteral("<i>%1</i>").arg(line);
    case 2:
        return QStringLiteral("<font color=\"#ffff00\">%1</font>").arg(line);
    case 3:
        return QStringLiteral("{\\an8}<b>%1</b>").arg(line);
    case 4:
        return QStringLiteral("<font face=\"Arial\" size=\"18\"><i>%1</i></font>").arg(line);
    default:
        return line;
    }
}

QString time(std::size_t second) {
    return QStringLiteral("%1:%2:%3")
        .arg(second / 3600, 2, 10, QLatin1Char('0'))
        .arg(second / 60 % 60, 2, 10, QLatin1Char('0'))
        .arg(second % 60, 2, 10, QLatin1Char('0'));
}

} // namespace

std::vector<SpokenText> spokenTexts() {
    std::vector<SpokenText> all;
    for (const auto texts : {textsInLatinLetters(), textsOfEasternEurope(), textsInOtherLetters()})
        all.insert(all.end(), texts.begin(), texts.end());
    return all;
}

SpokenFile spokenFile(const SpokenText& text, std::uint32_t encoding, std::size_t cues, Markup markup,
                      std::minstd_rand& draw) {
    QStringList lines = typed(QString::fromUtf8(text.lines), encoding).split(u'\n');
    // ISO 8859-5 and such lack a letter now and then; such a line was typed otherwise.
    erase_if(lines, [encoding](const QString& line) { return !holds(encoding, line); });
    std::shuffle(lines.begin(), lines.end(), draw);
    SpokenFile file;
    for (std::size_t cue = 0; cue < cues && !lines.isEmpty(); ++cue) {
        QString line = lines[static_cast<qsizetype>(cue) % lines.size()];
        // Beyond the first round, two lines that have not met.
        if (static_cast<qsizetype>(cue) >= lines.size())
            line = QStringLiteral("- ") + line + QStringLiteral("\r\n- ") +
                   lines[static_cast<qsizetype>(draw() % static_cast<unsigned long>(lines.size()))];
        if (markup == Markup::tags)
            line = marked(line, draw);
        file.text += QStringLiteral("%1\r\n%2,000 --> %3,500\r\n%4\r\n\r\n")
                         .arg(QString::number(cue + 1), time(3 * cue), time(3 * cue + 2), line);
    }
    const QByteArray bytes = lossyData(file.text, encoding).value_or(QByteArray());
    file.bytes.assign(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    return file;
}
