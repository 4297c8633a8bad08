// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/packets/PacketText.h"

#include <QStringList>

#include <algorithm>
#include <initializer_list>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// As TimedCue::place, and none at the bottom in the middle.
int placeAt(int row, int column) {
    const int place = row * 3 + column + 1;
    return place == 2 ? 0 : place;
}

// SubStation Alpha

/// Braces without a code in them hold what nobody is to see.
QString withoutRemarks(const QString& text) {
    QString result;
    qsizetype at = 0;
    for (qsizetype brace = text.indexOf(u'{'); brace >= 0; brace = text.indexOf(u'{', at)) {
        const qsizetype end = text.indexOf(u'}', brace);
        if (end < 0)
            break;
        const QStringView inner = QStringView(text).sliced(brace, end + 1 - brace);
        result += QStringView(text).sliced(at, brace - at);
        if (inner.contains(u'\\'))
            result += u'{' + inner.sliced(inner.indexOf(u'\\')).toString();
        at = end + 1;
    }
    return at == 0 ? text : result + text.sliced(at);
}

/// Takes the first place that the codes of a text say out of it; cues that stand at once are put together.
int takePlace(QString& text) {
    constexpr QLatin1StringView code = "\\an"_L1;
    int place = -1;
    for (qsizetype at = text.indexOf(code); at >= 0; at = text.indexOf(code, at)) {
        const int number = at + code.size() < text.size() ? text[at + code.size()].digitValue() : -1;
        if (number < 1) {
            at += code.size();
            continue;
        }
        if (place < 0)
            place = number == 2 ? 0 : number;
        text.remove(at, code.size() + 1);
    }
    text.remove("{}"_L1);
    return place;
}

/// "ReadOrder,Layer,Style,Name,MarginL,MarginR,MarginV,Effect,Text"
void takeEvent(QString event, const SubStationStyles& styles, TimedCue& cue) {
    constexpr int fieldsInFront = 8;
    qsizetype begin = 0;
    QString style;
    for (int field = 0; field < fieldsInFront; ++field) {
        const qsizetype comma = event.indexOf(u',', begin);
        if (comma < 0)
            return;
        if (field == 2)
            style = event.sliced(begin, comma - begin).trimmed();
        begin = comma + 1;
    }
    while (style.startsWith(u'*'))
        style.remove(0, 1);
    const SubStationStyles::Style look = styles.named(style);
    cue.text = withoutRemarks(event.sliced(begin));
    const int said = takePlace(cue.text);
    cue.place = said < 0 ? look.place : said;
    // A tag rather than a code: codes switch it off and on within.
    if (look.isUnderlined)
        cue.text.prepend("{\\u1}"_L1);
    if (look.isItalic)
        cue.text.prepend("{\\i1}"_L1);
    if (look.isBold)
        cue.text.prepend("{\\b1}"_L1);
}

// Web pages

/// White space is one blank, a break ends a line, and of tags only those stay that a text may have.
QString textOfPage(const QString& page, std::initializer_list<QLatin1StringView> kept) {
    QString text;
    for (qsizetype at = 0; at < page.size();) {
        const QStringView rest = QStringView(page).sliced(at);
        if (rest.startsWith("<!--"_L1)) {
            const qsizetype end = rest.indexOf("-->"_L1);
            at = end < 0 ? page.size() : at + end + 3;
            continue;
        }
        const qsizetype end = rest.front() == u'<' ? rest.indexOf(u'>') : -1;
        const bool isTag = end > 1 && (rest[1].isLetter() || rest[1] == u'/' || rest[1] == u'!');
        if (isTag) {
            QStringView name = rest.sliced(1, end - 1);
            if (name.startsWith(u'/'))
                name = name.sliced(1);
            const auto stop = std::ranges::find_if_not(name, [](QChar c) { return c.isLetterOrNumber(); });
            name = name.first(stop - name.begin());
            const auto is = [&name](QLatin1StringView tag) { return name.compare(tag, Qt::CaseInsensitive) == 0; };
            if (is("br"_L1) || (is("p"_L1) && !text.isEmpty() && rest[1] != u'/'))
                text += u'\n';
            else if (std::ranges::any_of(kept, is))
                text += rest.first(end + 1);
            at += end + 1;
            continue;
        }
        const bool isSpace = page[at] == u' ' || page[at] == u'\n' || page[at] == u'\t';
        if (!isSpace)
            text += page[at];
        else if (!text.isEmpty() && !text.back().isSpace())
            text += u' ';
        ++at;
    }
    return text;
}

// Others

/// "^I" and the like switch a face on, and off again.
QString withSwitches(const QString& text) {
    constexpr std::pair<QChar, QChar> faces[] = {{u'I', u'i'}, {u'B', u'b'}, {u'U', u'u'}};
    QString result = text;
    for (const auto& [code, tag] : faces) {
        const QString mark = QStringLiteral("^") + code;
        bool isOn = false;
        for (qsizetype at = result.indexOf(mark); at >= 0; at = result.indexOf(mark, at)) {
            result.replace(at, 2, QLatin1String(isOn ? "</" : "<") + tag + u'>');
            isOn = !isOn;
        }
    }
    return result;
}

/// Directives in capitals stand in front of the text, remarks in braces within it.
QString textOfJacoSub(QString text) {
    // Its times stand in front of it.
    constexpr int times = 2;
    for (int time = 0; time < times; ++time) {
        text = text.trimmed();
        const auto isOfTime = [](QChar c) { return c.isDigit() || c == u':' || c == u'.' || c == u'@'; };
        text.remove(0, std::ranges::find_if_not(text, isOfTime) - text.begin());
    }
    text = text.trimmed();
    const qsizetype blank = text.indexOf(u' ');
    const QStringView first = QStringView(text).first(std::max<qsizetype>(blank, 0));
    const auto isDirective = [](QChar c) { return c.isUpper() || c.isDigit() || c == u':' || c == u'-'; };
    if (!first.isEmpty() && first.front().isUpper() && first.size() <= 12 && std::ranges::all_of(first, isDirective))
        text.remove(0, blank + 1);
    QString result;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar next = at + 1 < text.size() ? text[at + 1] : QChar();
        if (text[at] == u'{') {
            const qsizetype end = text.indexOf(u'}', at);
            at = end < 0 ? text.size() : end;
        } else if (text[at] == u'~') {
            result += u'\u00A0';
        } else if (text[at] == u'\\' && !next.isNull()) {
            ++at;
            if (next == u'n')
                result += u'\n';
            else if (next == u'I' || next == u'B' || next == u'U')
                result += u'<' + QString(next.toLower()) + u'>';
            else if (next == u'i' || next == u'b' || next == u'u')
                result += "</"_L1 + QString(next) + u'>';
            else if (next == u'~' || next == u'{' || next == u'\\')
                result += next;
        } else {
            result += text[at];
        }
    }
    return result;
}

/// "line:10% align:start": above or below, left or right.
int placeOfSettings(QStringView settings) {
    int row = 0, column = 1;
    for (const QStringView setting : settings.split(u' ', Qt::SkipEmptyParts)) {
        const qsizetype colon = setting.indexOf(u':');
        const QStringView name = setting.first(std::max<qsizetype>(colon, 0)), value = setting.sliced(colon + 1);
        if (name == "align"_L1) {
            column = value == "start"_L1 || value == "left"_L1 ? 0 : value == "end"_L1 || value == "right"_L1 ? 2 : 1;
        } else if (name == "line"_L1) {
            const QStringView number = value.first(value.indexOf(u',') < 0 ? value.size() : value.indexOf(u','));
            bool isNumber = false;
            const double line = number.chopped(number.endsWith(u'%') ? 1 : 0).toDouble(&isNumber);
            // Lines are counted from the top, below 0 from the bottom; a screen has some fifteen.
            const double fromTop = number.endsWith(u'%') ? line / 100 : line < 0 ? 1 : line / 15;
            if (isNumber)
                row = fromTop < 0.34 ? 2 : fromTop < 0.6 ? 1 : 0;
        }
    }
    return placeAt(row, column);
}

bool isBlank(const QString& text) {
    QStringView rest = QStringView(text).trimmed();
    constexpr QLatin1StringView space = "&nbsp;"_L1;
    while (rest.startsWith(space, Qt::CaseInsensitive))
        rest = rest.sliced(space.size()).trimmed();
    return rest.isEmpty();
}

} // namespace

QByteArray preparedText(QByteArray utf8, PacketFormat format) {
    if (format != PacketFormat::webVTT)
        return utf8;
    QByteArray text = "WEBVTT\n\n";
    text.reserve(utf8.size() + text.size());
    for (qsizetype begin = 0; begin < utf8.size();) {
        const qsizetype found = utf8.indexOf("\n\n", begin);
        const qsizetype end = found < 0 ? utf8.size() : found + 2;
        const QByteArrayView block = QByteArrayView(utf8).sliced(begin, end - begin).trimmed();
        const bool isOther = block.startsWith("NOTE") || block.startsWith("STYLE") || block.startsWith("REGION");
        if (!isOther && block.contains("-->"))
            text.append(block).append("\n\n");
        begin = end;
    }
    return text;
}

TimedCue cueOfPacket(const platform::SubtitlePacket& packet, PacketFormat format, const SubStationStyles& styles) {
    // A damaged file may name any number: thirty years are more than any movie has, and can be counted with.
    constexpr std::int64_t farthest = std::int64_t{1} << 40;
    const std::int64_t start = std::clamp(packet.start, -farthest, farthest);
    TimedCue cue{start, packet.duration < 0 ? -1 : start + std::min(packet.duration, farthest), {}, 0};
    if (cue.end < 0)
        cue.end = cue.start - 1;
    // Some count the end of a C string in.
    const std::string_view bytes = packet.text.substr(0, packet.text.find('\0'));
    QString text = QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
    switch (format) {
    case PacketFormat::subStation:
        takeEvent(std::move(text), styles, cue);
        break;
    case PacketFormat::webVTT:
        cue.text = std::move(text);
        cue.place =
            placeOfSettings(QString::fromUtf8(packet.settings.data(), static_cast<qsizetype>(packet.settings.size())));
        break;
    case PacketFormat::sami:
        cue.text = textOfPage(text, {"i"_L1, "b"_L1, "u"_L1, "s"_L1, "em"_L1, "strong"_L1, "font"_L1});
        break;
    case PacketFormat::realText:
        cue.text = textOfPage(text, {"i"_L1, "b"_L1, "u"_L1, "s"_L1, "font"_L1});
        break;
    case PacketFormat::subViewer:
        cue.text = text.replace("[br]"_L1, "\n"_L1, Qt::CaseInsensitive);
        break;
    case PacketFormat::subViewer1:
    case PacketFormat::mpl2:
    case PacketFormat::pjs:
        cue.text = text.replace(u'|', u'\n');
        break;
    case PacketFormat::spruce:
        cue.text = withSwitches(text.replace(u'|', u'\n'));
        break;
    case PacketFormat::jacoSub:
        cue.text = textOfJacoSub(text);
        break;
    case PacketFormat::lrc:
    case PacketFormat::mpSub:
    case PacketFormat::aqTitle:
    case PacketFormat::ttml:
        cue.text = std::move(text);
        break;
    }
    cue.text = cue.text.trimmed();
    if (isBlank(cue.text))
        cue.text.clear();
    return cue;
}
