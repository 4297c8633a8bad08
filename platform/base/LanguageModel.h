// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/LanguageSamples.h"

#include <QString>

#include <cstdint>
#include <string_view>
#include <vector>

namespace platform {

/// A character as the statistics know it: small letters, and one sign for all that is between words.
constexpr char16_t betweenWords = 0;
char16_t smallLetter(char16_t character);

/// How surprising it is to find a character in a text, in tenths of its information (in nats): a sum over a text is the
/// smaller, the likelier it reads as that.
using Surprise = std::uint32_t;

/// What is known of a language: which letters follow which. Any thread.
class LanguageModel {
public:
    explicit LanguageModel(const LanguageSample& sample);

    const LanguageSample& sample() const { return *_sample; }

    /// A small letter's place in the language's alphabet, `foreign` when it has none there.
    std::size_t place(char16_t letter) const;
    static constexpr std::size_t foreign = SIZE_MAX;
    /// Of a letter after another, or after or before what is between words; all by their places.
    Surprise follows(std::size_t before, std::size_t letter) const;
    /// Of a letter that has no place.
    Surprise foreignLetter(char16_t letter) const;

    /// Of a text in a language of characters: each by itself.
    Surprise surpriseOf(QStringView text) const;

private:
    void count(QStringView text);

    const LanguageSample* _sample;
    std::u16string _letters; ///< sorted
    std::vector<std::uint8_t> _surprises;
};

/// Of a character that belongs to no word. What texts are set with costs little, what only a wrong encoding shows a
/// lot.
Surprise surpriseOfSign(char16_t character);

} // namespace platform
