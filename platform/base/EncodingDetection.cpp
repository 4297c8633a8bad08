// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/EncodingDetection.h"

#include "platform/base/LanguageModel.h"
#include "platform/base/TelltaleText.h"
#include "platform/base/TextEncoding.h"
#include "platform/base/TextForm.h"

#include <QStringView>

#include <algorithm>
#include <array>
#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace platform {

namespace {

/// What is seldom met must read better by so much to be taken.
Surprise surpriseOfEncoding(std::uint32_t encoding) {
    constexpr Surprise old = 60;
    constexpr Surprise lessUsual = 20;
    constexpr std::uint32_t ofDOSAndMac[] = {30,         0x8000001D, 0x80000023, 0x80000007, 0x80000006,
                                             0x80000405, 0x80000406, 0x80000410, 0x80000412, 0x80000413,
                                             0x80000414, 0x80000417, 0x8000041B, 0x8000041C};
    constexpr std::uint32_t ofISO[] = {9,          0x80000204, 0x80000205, 0x80000206, 0x80000207,
                                       0x80000208, 0x8000020B, 0x8000020D, 0x8000020F, 0x80000A06};
    if (std::ranges::find(ofDOSAndMac, encoding) != std::end(ofDOSAndMac))
        return old;
    return std::ranges::find(ofISO, encoding) != std::end(ofISO) ? lessUsual : 0;
}

/// An encoding of single bytes: what each of them reads as.
class ByteTable {
public:
    explicit ByteTable(std::uint32_t encoding) {
        TextDecoder decoder(encoding);
        for (std::size_t byte = 0; byte < size; ++byte) {
            const char single = static_cast<char>(byte);
            QString text;
            const bool decoded = decoder.append({&single, 1}, text) && text.size() == 1;
            Character& character = _characters[byte];
            const char16_t unicode = decoded ? text[0].unicode() : char16_t(QChar::ReplacementCharacter);
            character.letter = smallLetter(unicode);
            character.isSmall = character.letter == unicode && QChar::isLower(unicode);
            character.isCapital = character.letter != betweenWords && character.letter != unicode;
            character.isLatin = QChar::script(unicode) == QChar::Script_Latin;
            character.isOfEnd = unicode == u'\u2019';
            // Greek words in capitals have no accents.
            const bool isAccentedGreekCapital = unicode >= 0x386 && unicode <= 0x38F && character.isCapital;
            character.isOfBeginning =
                isAccentedGreekCapital || std::u16string_view(u"\u201A\u201E\u00BF\u00A1").find(unicode) != SIZE_MAX;
            character.sign = character.letter == betweenWords ? surpriseOfSign(unicode) : 0;
        }
    }

    struct Character {
        char16_t letter;
        bool isSmall, isCapital, isLatin;
        bool isOfEnd, isOfBeginning; ///< stands after words, before words
        Surprise sign;
    };
    const Character& operator[](unsigned char byte) const { return _characters[byte]; }
    static constexpr std::size_t size = 256;

private:
    std::array<Character, size> _characters;
};

/// What does not depend on the language.
Surprise surpriseOfPair(unsigned char beforeByte, const ByteTable::Character& before,
                        const ByteTable::Character& character) {
    constexpr Surprise capitalWithinWord = 50;
    constexpr Surprise twoAlphabetsInWord = 80;
    constexpr Surprise endAtBeginning = 50;
    constexpr Surprise beginningAtEnd = 50;
    Surprise sum = character.sign;
    if (before.isSmall && character.isCapital)
        sum += capitalWithinWord;
    if (before.letter != betweenWords && character.letter != betweenWords && before.isLatin != character.isLatin)
        sum += twoAlphabetsInWord;
    if (character.isOfEnd && (beforeByte == ' ' || beforeByte == '\n'))
        sum += endAtBeginning;
    if (character.isOfBeginning && before.letter != betweenWords)
        sum += beginningAtEnd;
    return sum;
}

std::uint64_t surpriseOf(const TelltaleText& text, const ByteTable& table, const LanguageModel& model,
                         const std::array<std::size_t, ByteTable::size>& places) {
    std::uint64_t sum = 0;
    for (const auto& [first, second, count] : text.pairs()) {
        const ByteTable::Character& before = table[first];
        const ByteTable::Character& character = table[second];
        const std::size_t from = places[first] == LanguageModel::foreign ? 0 : places[first];
        Surprise one = surpriseOfPair(first, before, character);
        one += places[second] == LanguageModel::foreign ? model.foreignLetter(character.letter)
                                                        : model.follows(from, places[second]);
        sum += std::uint64_t(one) * count;
    }
    return sum;
}

/// A line that is not valid in the encoding counts, but does not decide: any file may have one that is spoilt.
std::uint64_t surpriseOf(const TelltaleText& text, std::uint32_t encoding, const LanguageModel& model) {
    constexpr Surprise ofAByteNotValid = 60;
    TextDecoder decoder(encoding);
    QString decoded;
    std::uint64_t sum = 0;
    for (const std::string_view line : text.lines()) {
        decoded.resize(0);
        sum += decoder.append(line, decoded) ? model.surpriseOf(decoded) : line.size() * std::uint64_t(ofAByteNotValid);
    }
    return sum;
}

/// What a text may turn out to be: a language in one of its encodings.
class Candidate {
public:
    Candidate(const LanguageModel& model, std::uint32_t encoding, const ByteTable* table)
        : _model(&model)
        , _table(table)
        , _encoding(encoding) {
        for (std::size_t byte = 0; table && byte < _places.size(); ++byte)
            _places[byte] = model.place((*table)[static_cast<unsigned char>(byte)].letter);
    }

    std::uint32_t encoding() const { return _encoding; }
    std::uint64_t surprise(const TelltaleText& text) const {
        return surpriseOfEncoding(_encoding) +
               (_table ? surpriseOf(text, *_table, *_model, _places) : surpriseOf(text, _encoding, *_model));
    }

private:
    const LanguageModel* _model;
    const ByteTable* _table; ///< null for an encoding of more than a byte for a character
    std::uint32_t _encoding;
    std::array<std::size_t, ByteTable::size> _places{};
};

/// Made for the first text that needs them, which takes some milliseconds.
class Candidates {
public:
    Candidates() {
        for (const auto samples :
             {westernLanguages(), easternLanguages(), cyrillicAndGreekLanguages(), asianLanguages()}) {
            for (const LanguageSample& sample : samples)
                add(sample);
        }
    }
    Candidates(const Candidates&) = delete;
    Candidates& operator=(const Candidates&) = delete;

    std::uint32_t likeliest(const TelltaleText& text) const {
        return std::ranges::min_element(_all, {}, [&text](const Candidate& one) { return one.surprise(text); })
            ->encoding();
    }

private:
    void add(const LanguageSample& sample) {
        const LanguageModel& model = *_models.emplace_back(std::make_unique<LanguageModel>(sample));
        for (const std::uint32_t encoding : sample.encodings) {
            const bool ofBytes = sample.writing != Writing::characters;
            _all.emplace_back(model, encoding,
                              ofBytes ? &_tables.try_emplace(encoding, encoding).first->second : nullptr);
        }
    }

    std::vector<std::unique_ptr<LanguageModel>> _models;
    std::map<std::uint32_t, ByteTable> _tables;
    std::vector<Candidate> _all;
};

/// The encoding in which the text reads most like a language.
std::uint32_t likeliestEncoding(const TelltaleText& text) {
    constexpr std::size_t fewestPairs = 5; // fewer say nothing
    if (text.pairs().size() < fewestPairs)
        return textEncoding::windows1252;
    static const Candidates candidates;
    return candidates.likeliest(text);
}

} // namespace

std::uint32_t detectedTextEncoding(std::string_view bytes) {
    if (bytes.starts_with("\xEF\xBB\xBF"))
        return textEncoding::utf8;
    if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF"))
        return textEncoding::utf16;
    if (const auto wide = wideEncodingWithoutMark(bytes))
        return *wide;
    if (const auto shifting = shiftingEncoding(bytes))
        return *shifting;
    if (isValidUTF8(bytes) || isMostlyUTF8(bytes))
        return textEncoding::utf8;
    return likeliestEncoding(TelltaleText(bytes));
}

} // namespace platform
