// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/EncodingDetection.h"

#include "platform/base/TextEncoding.h"
#include "tests/platform/SpokenFiles.h"
#include "tests/support/EncodedText.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace platform;

namespace {

constexpr std::uint32_t windows1250 = 15, windows1251 = 11, windows1253 = 13, windows1254 = 14;
constexpr std::uint32_t windows1255 = 0x80000505, windows1256 = 0x80000506, windows1257 = 0x80000507;
constexpr std::uint32_t windows874 = 0x8000041D, dos852 = 0x80000412, dos866 = 0x8000041B;

std::string encoded(const QString& text, std::uint32_t encoding) {
    const QByteArray bytes = lossyData(text, encoding).value_or(QByteArray());
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

QString readAutomatically(const std::string& bytes) {
    return stringWithData(bytes, detectedTextEncoding(bytes)).value_or(QString());
}

SpokenText textIn(std::string_view language) {
    const std::vector<SpokenText> all = spokenTexts();
    return *std::ranges::find(all, language, &SpokenText::language);
}

struct Tally {
    int files = 0;
    int right = 0;
    std::string wrong;

    void add(const SpokenText& text, std::uint32_t encoding, std::size_t cues, Markup markup, std::minstd_rand& draw) {
        const SpokenFile file = spokenFile(text, encoding, cues, markup, draw);
        ++files;
        if (readAutomatically(file.bytes) == file.text)
            ++right;
        else
            wrong += std::string(text.language) + " " + std::to_string(encoding) + "\n";
    }
};

} // namespace

TEST(EncodingDetection, files_of_ten_cues_that_look_like_others_are_read_right) {
    const struct {
        const char* language;
        std::uint32_t encoding;
        Markup markup;
    } cases[] = {
        // Tags are Latin letters among those of the language.
        {"Persian", windows1256, Markup::tags},
        {"Arabic", windows1256, Markup::tags},
        {"Hebrew", windows1255, Markup::tags},
        {"Russian", windows1251, Markup::tags},
        {"Turkish", windows1254, Markup::tags},
        // Few letters beyond ASCII, which read as letters of Western Europe.
        {"Serbian (Latin)", windows1250, Markup::none},
        {"Croatian", windows1250, Markup::none},
        {"Bosnian", windows1250, Markup::none},
        {"Lithuanian", windows1257, Markup::none},
        {"Latvian", windows1257, Markup::none},
        {"Estonian", windows1257, Markup::none},
        // What only old machines write.
        {"Thai", windows874, Markup::none},
        {"Russian", dos866, Markup::none},
        {"Polish", dos852, Markup::none},
        {"Czech", dos852, Markup::tags},
    };
    for (const auto& c : cases) {
        std::minstd_rand draw(1);
        for (int index = 0; index < 4; ++index) {
            const SpokenFile file = spokenFile(textIn(c.language), c.encoding, 10, c.markup, draw);
            EXPECT_EQ(readAutomatically(file.bytes).toStdString(), file.text.toStdString()) << c.language;
        }
    }
}

TEST(EncodingDetection, a_capital_with_an_accent_is_no_quotation_mark) {
    const QString text = QStringLiteral("Άκου με. Άσε με ήσυχο, Άννα.\nΆλλη μια φορά, σε παρακαλώ.\nΌχι, δεν μπορώ.\n");
    EXPECT_EQ(readAutomatically(encoded(text, windows1253)), text);
    const QString quoted = QStringLiteral("Σ’ αγαπώ. Τ’ ακούς;\nΠες μου κάτι απ’ όσα ξέρεις.\nΌχι, δεν μπορώ.\n");
    EXPECT_EQ(readAutomatically(encoded(quoted, 0x80000207)), quoted);
}

TEST(EncodingDetection, texts_in_16_bit_units_need_no_mark) {
    for (const char* language : {"English", "Russian", "Thai", "Japanese", "Chinese"}) {
        for (const std::uint32_t encoding : {textEncoding::utf16LittleEndian, textEncoding::utf16BigEndian}) {
            std::minstd_rand draw(1);
            const SpokenFile file = spokenFile(textIn(language), encoding, 10, Markup::tags, draw);
            EXPECT_EQ(detectedTextEncoding(file.bytes), encoding) << language;
        }
    }
    EXPECT_EQ(detectedTextEncoding(std::string("a\0b\0c", 5)), textEncoding::utf16LittleEndian);
    for (const std::string& narrow : {std::string("{1}{2}a\0b\nHe said no.", 20), std::string(64, '\0')})
        EXPECT_EQ(detectedTextEncoding(narrow), textEncoding::utf8);
}

TEST(EncodingDetection, sequences_of_ASCII_bytes_that_stand_for_others_are_found) {
    const QString japanese = QStringLiteral("1\n00:00:01,000 --> 00:00:02,000\nおはよう、警部さん。\n");
    const QString korean = QStringLiteral("1\n00:00:01,000 --> 00:00:02,000\n안녕하세요\n");
    const QString chinese = QStringLiteral("1\n00:00:01,000 --> 00:00:02,000\n早上好，你好吗？\n");
    for (const auto& [text, encoding] :
         {std::pair(japanese, 21U), {korean, 0x80000840U}, {chinese, 0x80000830U}, {chinese, 0x80000A05U}}) {
        EXPECT_EQ(readAutomatically(encoded(text, encoding)).toStdString(), text.toStdString()) << encoding;
    }
    EXPECT_EQ(detectedTextEncoding("~{ plain \x1B[0m"), textEncoding::utf8);
}

TEST(EncodingDetection, languages_that_are_not_known_read_like_their_neighbours) {
    for (const char* text :
         {"Galego: Bos días, señor. ¿Que pasou coa túa irmá?\nNon o sei, marchou onte pola mañá.\n",
          "Gaeilge: Cá bhfuil tú ag dul anocht, a chroí?\nNíl a fhios agam. Tá sé fuar amuigh.\n",
          "Føroyskt: Góðan morgun. Hvussu gongur tað við tær?\nEg veit ikki, hann fór burtur í gjár.\n"})
        EXPECT_EQ(readAutomatically(encoded(QString::fromUtf8(text), textEncoding::windows1252)),
                  QString::fromUtf8(text));
}

TEST(EncodingDetection, what_stands_between_the_lines_does_not_decide) {
    std::minstd_rand draw(1);
    const QString foreign =
        QStringLiteral("1\r\n00:00:00,000 --> 00:00:09,000\r\nTranslated for everybody who loves old "
                       "movies\r\nand shared with the kind permission of its author\r\n\r\n");
    for (const auto& [language, encoding] : {std::pair("Russian", windows1251),
                                             {"Serbian (Latin)", windows1250},
                                             {"Greek", windows1253},
                                             {"Chinese", textEncoding::gb18030}}) {
        const SpokenFile file = spokenFile(textIn(language), encoding, 10, Markup::tags, draw);
        const std::string before = encoded(foreign, textEncoding::ascii);
        EXPECT_EQ(readAutomatically(before + file.bytes), foreign + file.text) << language;
        QString shouted = file.text.toUpper();
        if (encoding == windows1253) // Greek has no accents then
            shouted = shouted.normalized(QString::NormalizationForm_D).remove(QChar(0x301));
        EXPECT_EQ(readAutomatically(encoded(shouted, encoding)), shouted) << language;
        // A line that is not valid in any encoding of the language.
        EXPECT_EQ(detectedTextEncoding(file.bytes + "99\r\n\xFF\x81\x8D\xFF\r\n"), encoding) << language;
    }
}

TEST(EncodingDetection, nearly_all_old_files_in_forty_languages_are_read_right) {
    for (const auto& [cues, share] : {std::pair(std::size_t(200), 0.99), {std::size_t(10), 0.95}}) {
        Tally tally;
        std::minstd_rand draw(7);
        for (const SpokenText& text : spokenTexts())
            for (const std::uint32_t encoding : text.encodings)
                for (const Markup markup : {Markup::none, Markup::tags})
                    tally.add(text, encoding, cues, markup, draw);
        EXPECT_GT(tally.files, 200);
        EXPECT_GE(tally.right, tally.files * share) << cues << " cues, wrong:\n" << tally.wrong;
    }
}

TEST(EncodingDetection, files_of_old_and_other_machines_are_read_right) {
    const struct {
        const char* language;
        std::vector<std::uint32_t> encodings;
    } cases[] = {
        {"French", {30}},
        {"Czech", {9, 0x8000001D}},
        {"Turkish", {0x80000414, 0x80000023}},
        {"Lithuanian", {0x8000020D, 0x80000406, 0x80000204}},
        {"Estonian", {0x8000020D, 0x8000020F, 0x80000204, 0x80000406}},
        {"Russian", {0x80000A02, 0x80000205, 0x80000007, 0x80000413}},
        {"Ukrainian", {0x80000A08, 0x80000205, 0x80000007}},
        {"Bulgarian", {0x80000205, 0x8000041B, 0x80000007, 0x80000413}},
        {"Greek", {0x80000207, 0x80000405, 0x8000041C}},
        {"Hebrew", {0x80000208, 0x80000417}},
        {"Arabic", {0x80000206}},
        {"Japanese", {3}},
        {"Thai", {0x8000020B}},
        {"Traditional Chinese", {0x80000A06}},
    };
    for (const auto& [language, encodings] : cases) {
        for (const std::uint32_t encoding : encodings) {
            std::minstd_rand draw(3);
            const SpokenFile file = spokenFile(textIn(language), encoding, 100, Markup::none, draw);
            EXPECT_TRUE(readAutomatically(file.bytes) == file.text) << language << ' ' << encoding;
        }
    }
    // Two encodings have the same letters; only the usual one has these quotation marks.
    const QString baltic = QStringLiteral("„Labas rytas“, – tarė jis, – kaip gyvuoji, šaunuoli?\nAš… nežinau.\n");
    EXPECT_EQ(readAutomatically(encoded(baltic, windows1257)), baltic);
}
