// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/MarkupTags.h"

#include <QLatin1StringView>

#include <algorithm>

using namespace Qt::StringLiterals;
using platform::TextFace;

namespace {

enum class Kind { face, color, lineBreak, leftOut };

/// What may stand between a tag's name and its end.
enum class Extras { attributes, anything };

struct Tag {
    QLatin1StringView name;
    Kind kind;
    TextFace face = TextFace::italic;
    Extras extras = Extras::attributes;
};

constexpr Tag tags[] = {
    {"i"_L1, Kind::face, TextFace::italic},
    {"em"_L1, Kind::face, TextFace::italic},
    {"b"_L1, Kind::face, TextFace::bold},
    {"strong"_L1, Kind::face, TextFace::bold},
    {"u"_L1, Kind::face, TextFace::underlined},
    {"ins"_L1, Kind::face, TextFace::underlined},
    {"s"_L1, Kind::face, TextFace::struckOut},
    {"strike"_L1, Kind::face, TextFace::struckOut},
    {"del"_L1, Kind::face, TextFace::struckOut},
    {"font"_L1, Kind::color, TextFace::italic, Extras::anything},
    {"c"_L1, Kind::color},
    {"br"_L1, Kind::lineBreak},
    {"v"_L1, Kind::leftOut, TextFace::italic, Extras::anything},
    {"lang"_L1, Kind::leftOut, TextFace::italic, Extras::anything},
    {"ruby"_L1, Kind::leftOut},
    {"rt"_L1, Kind::leftOut},
    {"span"_L1, Kind::leftOut},
    {"p"_L1, Kind::leftOut},
    {"div"_L1, Kind::leftOut},
    {"center"_L1, Kind::leftOut},
    {"big"_L1, Kind::leftOut},
    {"small"_L1, Kind::leftOut},
    {"sub"_L1, Kind::leftOut},
    {"sup"_L1, Kind::leftOut},
    {"tt"_L1, Kind::leftOut},
    {"a"_L1, Kind::leftOut},
};

/// The characters at the beginning of which a test is true.
template <class Test>
QStringView leading(QStringView text, Test test) {
    const auto end = std::ranges::find_if_not(text, test);
    return text.first(end - text.begin());
}

bool isDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

bool isLetter(QChar character) {
    return character.isLetter();
}

bool isHexadecimalDigit(QChar character) {
    return isDigit(character) || (character.toLower() >= u'a' && character.toLower() <= u'f');
}

/// A colour of a web page, by name or number, the sign in front of the number left out or not. None for what is not
/// known, or could not be seen.
QColor webColor(QStringView text) {
    const QStringView trimmed = text.trimmed();
    const bool bareNumber = trimmed.size() == 6 && std::ranges::all_of(trimmed, isHexadecimalDigit);
    const QColor color = QColor::fromString(bareNumber ? u'#' + trimmed.toString() : trimmed.toString());
    return color.alpha() == 255 ? color : QColor();
}

/// "&HBBGGRR&" or "$BBGGRR": digits after the signs, the last two of which are red.
QColor reversedColor(QStringView text) {
    const QStringView signs = leading(text, [](QChar at) { return QStringView(u"&$Hh#").contains(at); });
    const QStringView digits = leading(text.sliced(signs.size()), isHexadecimalDigit);
    bool valid = false;
    const unsigned value = digits.right(8).toUInt(&valid, 16);
    return valid ? QColor::fromRgb(value & 0xFFU, value >> 8U & 0xFFU, value >> 16U & 0xFFU) : QColor();
}

/// The classes that stand for colours in WebVTT: ".yellow.bg_blue".
QColor classColor(QStringView classes) {
    constexpr QLatin1StringView names[] = {"white"_L1,  "lime"_L1,    "cyan"_L1, "red"_L1,
                                           "yellow"_L1, "magenta"_L1, "blue"_L1, "black"_L1};
    const QStringView word = leading(classes, [](QChar at) { return !at.isSpace(); });
    for (const QStringView name : word.split(u'.'))
        if (std::ranges::any_of(names, [&](QLatin1StringView known) { return known == name; }))
            return QColor::fromString(name.toString());
    return {};
}

/// The value of an attribute, with or without quotes; empty when there is none.
QStringView attribute(QStringView attributes, QLatin1StringView wanted) {
    while (true) {
        attributes = attributes.trimmed();
        const qsizetype equals = attributes.indexOf(u'=');
        if (equals < 0)
            return {};
        // What has no value stands in front of the name.
        const QStringView name = attributes.first(equals).trimmed();
        const QStringView value = attributes.sliced(equals + 1).trimmed();
        const bool quoted = value.startsWith(u'"') || value.startsWith(u'\'');
        const QStringView inner = value.sliced(quoted ? 1 : 0);
        const auto belongs = [&](QChar at) { return quoted ? at != value.front() : !at.isSpace(); };
        const qsizetype length = leading(inner, belongs).size();
        if (name.compare(wanted, Qt::CaseInsensitive) == 0 ||
            (name.endsWith(wanted, Qt::CaseInsensitive) && name.chopped(wanted.size()).back().isSpace()))
            return inner.first(length);
        attributes = inner.sliced(std::min(inner.size(), length + 1));
    }
}

/// "00:01:02.500", which begins a part of a cue.
bool isTimeStamp(QStringView tag) {
    return tag.contains(u':') &&
           std::ranges::all_of(tag, [](QChar at) { return at == u':' || at == u'.' || isDigit(at); });
}

bool mayFollow(const Tag& tag, QStringView extras) {
    if (extras.isEmpty() || extras == "/"_L1 || extras.startsWith(u'.'))
        return true;
    if (!extras.front().isSpace() && extras.front() != u'/')
        return false;
    const QStringView words = extras.trimmed();
    return words.isEmpty() || words == "/"_L1 || tag.extras == Extras::anything || words.contains(u'=');
}

/// The number at the beginning, or none.
std::optional<int> numberOf(QStringView text) {
    bool valid = false;
    const int number = leading(text, isDigit).toInt(&valid);
    return valid ? std::optional(number) : std::nullopt;
}

/// Columns of three, `perRow` numbers for each row, from the bottom left.
void takePlace(int number, int perRow, SubtitlePlacement::Place::Row second, SubtitlePlacement::Place::Row third,
               MarkupPen& pen) {
    using platform::LineSide;
    constexpr LineSide sides[] = {LineSide::left, LineSide::middle, LineSide::right};
    const SubtitlePlacement::Place::Row rows[] = {SubtitlePlacement::Place::Row::bottom, second, third};
    const int row = (number - 1) / perRow, column = (number - 1) % perRow;
    if (number > 0 && row < 3 && column < 3)
        pen.setPlace({rows[row], sides[column]});
}

void takeCode(QStringView code, MarkupPen& pen) {
    using Row = SubtitlePlacement::Place::Row;
    // One name begins with a digit: "1c".
    const qsizetype digits = leading(code, isDigit).size();
    const QStringView name = code.first(digits + leading(code.sliced(digits), isLetter).size());
    const QStringView value = code.sliced(name.size()).trimmed();
    const std::optional<int> number = numberOf(value);
    const auto switchFace = [&](TextFace face) { pen.set(face, number == 1); };
    if (name == "i"_L1)
        switchFace(TextFace::italic);
    else if (name == "u"_L1)
        switchFace(TextFace::underlined);
    else if (name == "s"_L1)
        switchFace(TextFace::struckOut);
    else if (name == "b"_L1) // a switch, or the weight of the letters
        pen.set(TextFace::bold, number == 1 || number >= 600);
    else if (name == "c"_L1 || name == "1c"_L1)
        pen.setColor(reversedColor(value));
    else if (name == "p"_L1)
        pen.setHidden(number.value_or(0) > 0);
    else if (name == "an"_L1 && number)
        takePlace(*number, 3, Row::middle, Row::top, pen);
    else if (name == "a"_L1 && number)
        takePlace(*number, 4, Row::top, Row::middle, pen);
    else if (name.startsWith(u'r')) // with the name of a style that is not here
        pen.reset();
}

} // namespace

namespace MarkupTags {

Outcome takeTag(QStringView tag, MarkupPen& pen) {
    if (isTimeStamp(tag))
        return Outcome::taken;
    const bool closing = tag.startsWith(u'/');
    const QStringView body = closing ? tag.sliced(1).trimmed() : tag;
    const QStringView name = leading(body, isLetter);
    const QStringView extras = body.sliced(name.size());
    const auto known =
        std::ranges::find_if(tags, [&](const Tag& each) { return name.compare(each.name, Qt::CaseInsensitive) == 0; });
    if (known == std::end(tags) || !mayFollow(*known, extras))
        return Outcome::letters;
    switch (known->kind) {
    case Kind::face:
        // "<i/>" is a slip of the pen for "</i>".
        closing || extras.endsWith(u'/') ? pen.close(known->face) : pen.open(known->face);
        break;
    case Kind::color:
        if (closing)
            pen.closeColor();
        else
            pen.openColor(extras.startsWith(u'.') ? classColor(extras) : webColor(attribute(extras, "color"_L1)));
        break;
    case Kind::lineBreak:
        return Outcome::lineBreak;
    case Kind::leftOut:
        break;
    }
    return Outcome::taken;
}

void takeCodes(QStringView codes, MarkupPen& pen) {
    int parentheses = 0; // a code inside them belongs to an effect
    qsizetype start = -1;
    const auto takeUpTo = [&](qsizetype end) {
        if (start >= 0)
            takeCode(codes.sliced(start, end - start), pen);
        start = -1;
    };
    for (qsizetype at = 0; at < codes.size(); ++at) {
        if (codes[at] == u'(') {
            ++parentheses;
        } else if (codes[at] == u')') {
            parentheses = std::max(0, parentheses - 1);
        } else if (codes[at] == u'\\' && parentheses == 0) {
            takeUpTo(at);
            start = at + 1;
        }
    }
    takeUpTo(codes.size());
}

bool takeLineCode(QStringView code, MarkupPen& pen) {
    if (code.size() < 2 || code[1] != u':' || code.contains(u'\n'))
        return false;
    const bool ofCue = code.front().isUpper();
    const QStringView value = code.sliced(2);
    switch (code.front().toLower().unicode()) {
    case u'y':
        for (const QStringView part : value.split(u',')) {
            constexpr std::pair<QLatin1StringView, TextFace> faces[] = {{"i"_L1, TextFace::italic},
                                                                        {"b"_L1, TextFace::bold},
                                                                        {"u"_L1, TextFace::underlined},
                                                                        {"s"_L1, TextFace::struckOut}};
            for (const auto& [name, face] : faces)
                if (part.trimmed().compare(name, Qt::CaseInsensitive) == 0)
                    ofCue ? pen.set(face, true) : pen.addToLine(face);
        }
        return true;
    case u'c':
        ofCue ? pen.setColor(reversedColor(value)) : pen.setLineColor(reversedColor(value));
        return true;
    case u'f': // the font, its size and character set, and the place
    case u's':
    case u'h':
    case u'p':
    case u'o':
        return true;
    default:
        return false;
    }
}

} // namespace MarkupTags
