// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/LanguageModel.h"

#include <QChar>

#include <algorithm>
#include <cmath>

namespace platform {

namespace {

// Films have names and words of other languages, so nothing is out of the question.
constexpr Surprise foreignASCII = 35;   // among other alphabets: as if it were any letter
constexpr Surprise strangeASCII = 90;   // a letter that a language of Latin letters has no use for
constexpr Surprise strangeLetter = 120; // one that the language does not write
constexpr Surprise maximumSurprise = 255;

bool isWritten(char16_t character) {
    return QChar::isLetter(character) || QChar::isMark(character);
}

bool isASCII(char16_t character) {
    return character < 0x80;
}

bool isKana(char16_t character) {
    return character >= 0x3041 && character <= 0x30FE;
}

bool isHangul(char16_t character) {
    return character >= 0xAC00 && character <= 0xD7A3;
}

bool isHan(char16_t character) {
    return character >= 0x4E00 && character <= 0x9FFF;
}

} // namespace

char16_t smallLetter(char16_t character) {
    return isWritten(character) ? QChar(character).toLower().unicode() : betweenWords;
}

LanguageModel::LanguageModel(const LanguageSample& sample)
    : _sample(&sample) {
    const QString text = QString::fromUtf8(sample.text);
    std::u16string letters(1, betweenWords);
    for (const QChar character : text + QString::fromUtf8(sample.letters))
        letters.push_back(smallLetter(character.unicode()));
    if (sample.writing == Writing::latin) {
        for (char16_t letter = u'a'; letter <= u'z'; ++letter)
            letters.push_back(letter);
    } else {
        std::erase_if(letters, [](char16_t letter) { return letter != betweenWords && isASCII(letter); });
    }
    std::ranges::sort(letters);
    letters.erase(std::unique(letters.begin(), letters.end()), letters.end());
    _letters = std::move(letters);
    if (sample.writing != Writing::characters)
        count(text);
}

/// Pairs that the text does not have are guessed from how often their second letter is there at all.
void LanguageModel::count(QStringView text) {
    constexpr double unseenLetter = 0.3; // as if the text had each so many times more
    constexpr double pairsFromLetters = 4;
    const std::size_t size = _letters.size();
    std::vector<double> pairs(size * size);
    std::vector<double> firsts(size);
    std::vector<double> letters(size, unseenLetter);
    double all = unseenLetter * static_cast<double>(size);
    std::size_t before = 0;
    for (const QChar character : text) {
        std::size_t letter = place(smallLetter(character.unicode()));
        if (letter == foreign)
            letter = 0;
        ++pairs[before * size + letter];
        ++firsts[before];
        ++letters[letter];
        ++all;
        before = letter;
    }
    _surprises.resize(size * size);
    for (std::size_t first = 0; first < size; ++first) {
        for (std::size_t second = 0; second < size; ++second) {
            const double likely = (pairs[first * size + second] + pairsFromLetters * letters[second] / all) /
                                  (firsts[first] + pairsFromLetters);
            _surprises[first * size + second] =
                static_cast<std::uint8_t>(std::clamp(-10 * std::log(likely), 0.0, double(maximumSurprise)));
        }
    }
}

std::size_t LanguageModel::place(char16_t letter) const {
    const auto found = std::ranges::lower_bound(_letters, letter);
    return found != _letters.end() && *found == letter ? static_cast<std::size_t>(found - _letters.begin()) : foreign;
}

Surprise LanguageModel::follows(std::size_t before, std::size_t letter) const {
    return _surprises[before * _letters.size() + letter];
}

Surprise LanguageModel::foreignLetter(char16_t letter) const {
    if (!isASCII(letter))
        return strangeLetter;
    return _sample->writing == Writing::latin ? strangeASCII : foreignASCII;
}

Surprise LanguageModel::surpriseOf(QStringView text) const {
    // There are thousands of characters, so a usual one says as much as two letters.
    constexpr Surprise usualKana = 42;
    constexpr Surprise usual = 55;
    constexpr Surprise rare = 95;
    constexpr Surprise halfWidth = 75;
    constexpr Surprise notOfTheLanguage = 140;
    const bool hasHangul = place(u'\uC774') != foreign;
    const bool hasKana = place(u'\u306E') != foreign;
    Surprise sum = 0;
    char16_t before = betweenWords;
    for (const QChar character : text) {
        const char16_t unicode = character.unicode();
        const char16_t letter = smallLetter(unicode);
        if (isASCII(unicode))
            sum += letter == betweenWords ? 0 : foreignASCII;
        else if (place(letter) != foreign && letter != betweenWords)
            sum += isKana(unicode) ? usualKana : usual;
        else if ((hasKana && isKana(unicode)) || (hasHangul && isHangul(unicode)))
            sum += rare - 15;
        else if (isHan(unicode))
            sum += hasHangul ? notOfTheLanguage : rare;
        else if (unicode >= 0xFF61 && unicode <= 0xFF9F)
            sum += hasKana ? halfWidth : notOfTheLanguage;
        else if ((unicode >= 0x3000 && unicode <= 0x301F) || (unicode >= 0xFF01 && unicode <= 0xFF5E))
            sum += 30;
        else
            sum += letter == betweenWords ? surpriseOfSign(unicode) : notOfTheLanguage;
        // A character of two bytes hardly follows a letter of a Latin word.
        if (before != betweenWords && isASCII(before) && letter != betweenWords && !isASCII(letter))
            sum += 40;
        before = letter;
    }
    return sum;
}

Surprise surpriseOfSign(char16_t character) {
    constexpr std::u16string_view setTexts = u"\u00A0\u00AB\u00BB\u2018\u2019\u201C\u201D\u201E\u2026\u2013\u2014"
                                             u"\u00BF\u00A1\u200C\u200E\u200F\u060C\u061B\u061F\u2015";
    constexpr std::u16string_view sometimes =
        u"\u20AC\u00A3\u00B0\u00A7\u201A\u2039\u203A\u2116\u2022\u00B7\u00AD\u0E2F";
    if (character < 0x80)
        return 0;
    if (setTexts.find(character) != setTexts.npos)
        return 25;
    if (sometimes.find(character) != sometimes.npos)
        return 50;
    const bool isControl = character < 0xA0 || character == 0xFFFD || (character >= 0xE000 && character <= 0xF8FF);
    return isControl ? 140 : QChar::isDigit(character) ? 60 : 90;
}

} // namespace platform
