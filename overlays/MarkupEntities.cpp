// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/MarkupEntities.h"

#include <QLatin1StringView>

#include <algorithm>
#include <array>

namespace {

using namespace Qt::StringLiterals;

/// The longest name or number that is looked for, with what surrounds it.
constexpr qsizetype maximumLength = 12;

constexpr char32_t firstOfLatin1 = 160;
constexpr std::array latin1Names{
    "nbsp"_L1,   "iexcl"_L1,  "cent"_L1,   "pound"_L1,  "curren"_L1, "yen"_L1,    "brvbar"_L1, "sect"_L1,   "uml"_L1,
    "copy"_L1,   "ordf"_L1,   "laquo"_L1,  "not"_L1,    "shy"_L1,    "reg"_L1,    "macr"_L1,   "deg"_L1,    "plusmn"_L1,
    "sup2"_L1,   "sup3"_L1,   "acute"_L1,  "micro"_L1,  "para"_L1,   "middot"_L1, "cedil"_L1,  "sup1"_L1,   "ordm"_L1,
    "raquo"_L1,  "frac14"_L1, "frac12"_L1, "frac34"_L1, "iquest"_L1, "Agrave"_L1, "Aacute"_L1, "Acirc"_L1,  "Atilde"_L1,
    "Auml"_L1,   "Aring"_L1,  "AElig"_L1,  "Ccedil"_L1, "Egrave"_L1, "Eacute"_L1, "Ecirc"_L1,  "Euml"_L1,   "Igrave"_L1,
    "Iacute"_L1, "Icirc"_L1,  "Iuml"_L1,   "ETH"_L1,    "Ntilde"_L1, "Ograve"_L1, "Oacute"_L1, "Ocirc"_L1,  "Otilde"_L1,
    "Ouml"_L1,   "times"_L1,  "Oslash"_L1, "Ugrave"_L1, "Uacute"_L1, "Ucirc"_L1,  "Uuml"_L1,   "Yacute"_L1, "THORN"_L1,
    "szlig"_L1,  "agrave"_L1, "aacute"_L1, "acirc"_L1,  "atilde"_L1, "auml"_L1,   "aring"_L1,  "aelig"_L1,  "ccedil"_L1,
    "egrave"_L1, "eacute"_L1, "ecirc"_L1,  "euml"_L1,   "igrave"_L1, "iacute"_L1, "icirc"_L1,  "iuml"_L1,   "eth"_L1,
    "ntilde"_L1, "ograve"_L1, "oacute"_L1, "ocirc"_L1,  "otilde"_L1, "ouml"_L1,   "divide"_L1, "oslash"_L1, "ugrave"_L1,
    "uacute"_L1, "ucirc"_L1,  "uuml"_L1,   "yacute"_L1, "thorn"_L1,  "yuml"_L1};
static_assert(latin1Names.size() == 256 - firstOfLatin1);

struct Named {
    QLatin1StringView name;
    char32_t character;
};
constexpr Named otherNames[] = {
    {"amp"_L1, U'&'},         {"lt"_L1, U'<'},          {"gt"_L1, U'>'},          {"quot"_L1, U'"'},
    {"apos"_L1, U'\''},       {"AMP"_L1, U'&'},         {"LT"_L1, U'<'},          {"GT"_L1, U'>'},
    {"QUOT"_L1, U'"'},        {"NBSP"_L1, U'\u00A0'},   {"ndash"_L1, U'\u2013'},  {"mdash"_L1, U'\u2014'},
    {"lsquo"_L1, U'\u2018'},  {"rsquo"_L1, U'\u2019'},  {"sbquo"_L1, U'\u201A'},  {"ldquo"_L1, U'\u201C'},
    {"rdquo"_L1, U'\u201D'},  {"bdquo"_L1, U'\u201E'},  {"lsaquo"_L1, U'\u2039'}, {"rsaquo"_L1, U'\u203A'},
    {"hellip"_L1, U'\u2026'}, {"bull"_L1, U'\u2022'},   {"dagger"_L1, U'\u2020'}, {"Dagger"_L1, U'\u2021'},
    {"permil"_L1, U'\u2030'}, {"prime"_L1, U'\u2032'},  {"Prime"_L1, U'\u2033'},  {"euro"_L1, U'\u20AC'},
    {"trade"_L1, U'\u2122'},  {"larr"_L1, U'\u2190'},   {"uarr"_L1, U'\u2191'},   {"rarr"_L1, U'\u2192'},
    {"darr"_L1, U'\u2193'},   {"minus"_L1, U'\u2212'},  {"infin"_L1, U'\u221E'},  {"ne"_L1, U'\u2260'},
    {"le"_L1, U'\u2264'},     {"ge"_L1, U'\u2265'},     {"OElig"_L1, U'\u0152'},  {"oelig"_L1, U'\u0153'},
    {"Scaron"_L1, U'\u0160'}, {"scaron"_L1, U'\u0161'}, {"Yuml"_L1, U'\u0178'},   {"fnof"_L1, U'\u0192'},
    {"circ"_L1, U'\u02C6'},   {"tilde"_L1, U'\u02DC'},  {"ensp"_L1, U'\u2002'},   {"emsp"_L1, U'\u2003'},
    {"thinsp"_L1, U'\u2009'}, {"zwnj"_L1, U'\u200C'},   {"zwj"_L1, U'\u200D'},    {"lrm"_L1, U'\u200E'},
    {"rlm"_L1, U'\u200F'},    {"sung"_L1, U'\u266A'},
};

constexpr char32_t firstOfWindows1252 = 128;
/// 0 where there is none.
constexpr std::array<char32_t, 32> windows1252{
    U'\u20AC', 0,         U'\u201A', U'\u0192', U'\u201E', U'\u2026', U'\u2020', U'\u2021',
    U'\u02C6', U'\u2030', U'\u0160', U'\u2039', U'\u0152', 0,         U'\u017D', 0,
    0,         U'\u2018', U'\u2019', U'\u201C', U'\u201D', U'\u2022', U'\u2013', U'\u2014',
    U'\u02DC', U'\u2122', U'\u0161', U'\u203A', U'\u0153', 0,         U'\u017E', U'\u0178'};

char32_t named(QStringView name) {
    const auto latin1 = std::ranges::find_if(latin1Names, [&](QLatin1StringView known) { return known == name; });
    if (latin1 != latin1Names.end())
        return firstOfLatin1 + static_cast<char32_t>(latin1 - latin1Names.begin());
    const auto other = std::ranges::find_if(otherNames, [&](const Named& known) { return known.name == name; });
    return other != std::end(otherNames) ? other->character : 0;
}

/// The character of a number without its "#"; 0 when there is none.
char32_t numbered(QStringView number) {
    const bool hexadecimal = number.startsWith(u'x', Qt::CaseInsensitive);
    const QStringView digits = number.mid(hexadecimal ? 1 : 0);
    const auto isDigit = [&](QChar digit) {
        return (digit >= u'0' && digit <= u'9') || (hexadecimal && digit.toLower() >= u'a' && digit.toLower() <= u'f');
    };
    bool valid = std::ranges::all_of(digits, isDigit); // no sign, no blank
    const char32_t code = valid ? digits.toUInt(&valid, hexadecimal ? 16 : 10) : 0;
    if (!valid || code > QChar::LastValidCodePoint || QChar::isSurrogate(code))
        return 0;
    if (code >= firstOfWindows1252 && code < firstOfLatin1)
        return windows1252[code - firstOfWindows1252];
    const bool isBlank = code == U'\n' || code == U'\t';
    const bool standsForObjects = code == QChar::ObjectReplacementCharacter;
    return isBlank || (QChar::category(code) != QChar::Other_Control && !standsForObjects) ? code : 0;
}

} // namespace

namespace MarkupEntities {

Entity at(QStringView text) {
    const qsizetype end = text.left(maximumLength).indexOf(u';');
    if (end < 2 || text.front() != u'&')
        return {};
    const QStringView name = text.sliced(1, end - 1);
    const char32_t code = name.front() == u'#' ? numbered(name.sliced(1)) : named(name);
    if (code == 0)
        return {};
    return {QString::fromUcs4(&code, 1), end + 1};
}

} // namespace MarkupEntities
