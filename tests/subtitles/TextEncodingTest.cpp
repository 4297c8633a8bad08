// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/TextEncoding.h"

#include "platform/base/LanguageNames.h"
#include "platform/base/Localization.h"
#include "subtitles/JHStringEncodings.h"
#include "tests/subtitles/EncodingTexts.h"
#include "tests/subtitles/SubtitleFiles.h"
#include "tests/support/CapturedLog.h"
#include "tests/support/EncodedText.h"

using namespace platform;

namespace {

std::string bytesOf(const QByteArray& bytes) {
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

std::string encoded(const QString& text, std::uint32_t encoding) {
    return bytesOf(lossyData(text, encoding).value_or(QByteArray()));
}

/// A SubRip file with a cue for each line.
QString subRip(const QStringList& lines) {
    QString file;
    for (qsizetype index = 0; index < lines.size(); ++index)
        file += QStringLiteral("%1\r\n00:%2:00,000 --> 00:%2:30,000\r\n%3\r\n\r\n")
                    .arg(index + 1)
                    .arg(index)
                    .arg(lines[index]);
    return file;
}

class AutomaticEncoding : public SubtitleFiles {
protected:
    /// The texts of the cues of a file in some encoding, which automatic has to find.
    QStringList read(const QString& name, const std::string& bytes) {
        const auto track = load(name, bytes);
        QStringList texts;
        if (track) {
            found = track->encoding();
            for (const auto& cue : track->cues())
                texts.append(cue->text());
        }
        return texts;
    }
    std::uint32_t found = 0;
};

} // namespace

TEST(TextEncoding, bytes_are_decoded_strictly) {
    const struct {
        std::uint32_t encoding;
        std::string bytes;
        const char* text; // null: not valid
    } cases[] = {
        {4, "caf\xC3\xA9", "café"},
        {4, "caf\xC3", nullptr},
        {4, "\xED\xA0\x80", nullptr},
        {4, "\xC0\x80", nullptr},
        {4, "", ""},
        {1, "abc", "abc"},
        {1, "caf\xE9", nullptr},
        {12, "caf\xE9 \x80", "café €"},
        {11, "\xCF\xF0", "Пр"},
        {8, "\x83\x7C", "ポ"},
        {8, "\x83", nullptr},
        {21, "\x1B$B$\"\x1B(B", "あ"},
        {0x80000A03, "\xA4\xA4", "中"},
        {10, std::string("a\0", 2), "a"},
        {10, std::string("\xFE\xFF\0a", 4), "a"},
        {10, "a", nullptr},
        {10, std::string("\0\xD8", 2), nullptr},
        {0, "a", nullptr},
        {99, "a", nullptr},
    };
    for (const auto& c : cases) {
        const auto text = stringWithData(c.bytes, c.encoding);
        EXPECT_EQ(text.has_value(), c.text != nullptr) << c.encoding;
        EXPECT_EQ(text.value_or(QString()).toStdString(), c.text ? c.text : "") << c.encoding;
    }
}

TEST(TextEncoding, texts_are_encoded_with_substitutes) {
    EXPECT_EQ(encoded(QStringLiteral("caf\u00E9"), 12), "caf\xE9");
    EXPECT_EQ(encoded(QStringLiteral("\u0416a"), 1).size(), 2U);
    EXPECT_EQ(encoded(QString(), 4), "");
    EXPECT_FALSE(lossyData(QStringLiteral("a"), 0));
}

TEST(TextEncoding, the_list_has_a_name_for_each_number_and_finds_it_again) {
    JHStringEncodings& manager = JHStringEncodings::sharedManager();
    EXPECT_EQ(static_cast<std::size_t>(manager.availableEncodings().size()), availableTextEncodings().size());
    for (const std::uint32_t number : availableTextEncodings()) {
        const QString name = localizedNameOfTextEncoding(number);
        EXPECT_EQ(manager.encodingForLocalizedEncodingName(name), number) << name.toStdString();
    }
    // The numbers stand in users' settings.
    for (const auto& [number, name] : {std::pair{0x80000208U, "Hebrew (ISO 8859-8)"},
                                       {0x80000416U, "Icelandic (DOS)"},
                                       {0x80000506U, "Arabic (Windows)"},
                                       {0x80000632U, "Chinese (GB 18030)"},
                                       {0x80000840U, "Korean (ISO 2022-KR)"},
                                       {0x80000A08U, "Ukrainian (KOI8-U)"}})
        EXPECT_EQ(localizedNameOfTextEncoding(number).toStdString(), name);
    EXPECT_EQ(manager.encodingForLocalizedEncodingName(localizedNameOfTextEncoding(0)), 0U);
    EXPECT_EQ(manager.encodingForLocalizedEncodingName(QStringLiteral("None such")), JHStringEncodings::noEncoding);
    CapturedLog log;
    EXPECT_EQ(JHStringEncodings::localizedNamesOfStringEncodings({4, 99, 12}).size(), 2);
    EXPECT_TRUE(log.contains("ERROR: JHStringEncodings: Invalid  encoding in the list: 99"));
}

TEST(TextEncoding, languages_have_names_in_the_user_s_language) {
    CapturedLog log;
    setLocalizationLanguages({QStringLiteral("de")});
    EXPECT_EQ(localizedNameForLanguageID(QStringLiteral("fr")), QStringLiteral("Französisch"));
    setLocalizationLanguages({QStringLiteral("en")});
    EXPECT_EQ(localizedNameForLanguageID(QStringLiteral("fr")), QStringLiteral("French"));
    EXPECT_TRUE(log.lines().isEmpty());
    for (const char* unknown : {"qq", "", "--"})
        EXPECT_EQ(localizedNameForLanguageID(QString::fromUtf8(unknown)), QString::fromUtf8(unknown));
    EXPECT_EQ(log.count(QStringLiteral("ERROR: QVLocalizedNameForLanguageID(): Unable to ")), 3);
    setLocalizationLanguages({});
}

TEST_F(AutomaticEncoding, texts_of_many_languages_are_read_right) {
    for (const EncodingText& sample : encodingTexts) {
        const QStringList lines = QString::fromUtf8(sample.text).split(u'\n');
        EXPECT_EQ(read(QStringLiteral("film.srt"), encoded(subRip(lines), sample.encoding)), lines) << sample.language;
        for (const std::uint32_t wide : {textEncoding::utf16LittleEndian, textEncoding::utf16BigEndian}) {
            const QString marked = QChar(QChar::ByteOrderMark) + subRip(lines);
            EXPECT_EQ(read(QStringLiteral("film.srt"), encoded(marked, wide)), lines) << sample.language;
            EXPECT_EQ(found, textEncoding::utf16);
            EXPECT_EQ(read(QStringLiteral("film.srt"), encoded(subRip(lines), wide)), lines) << sample.language;
            EXPECT_EQ(found, wide);
        }
        const QString marked = QChar(QChar::ByteOrderMark) + subRip(lines);
        EXPECT_EQ(read(QStringLiteral("film.srt"), encoded(marked, 4)), lines) << sample.language;
        EXPECT_EQ(read(QStringLiteral("film.srt"), encoded(subRip(lines), 4)), lines) << sample.language;
        EXPECT_EQ(found, textEncoding::utf8);

        QString frames;
        for (qsizetype index = 0; index < lines.size(); ++index)
            frames += QStringLiteral("{%1}{%2}%3\r\n").arg(index * 100).arg(index * 100 + 50).arg(lines[index]);
        EXPECT_EQ(read(QStringLiteral("film.sub"), encoded(frames, sample.encoding)), lines) << sample.language;
    }
}

TEST_F(AutomaticEncoding, a_chosen_encoding_of_16_bit_units_needs_no_mark) {
    const QStringList lines = QString::fromUtf8(encodingTexts[0].text).split(u'\n');
    for (const auto& [chosen, written] : {std::pair(textEncoding::utf16, textEncoding::utf16LittleEndian),
                                          {textEncoding::utf16, textEncoding::utf16BigEndian},
                                          {textEncoding::utf16LittleEndian, textEncoding::utf16LittleEndian},
                                          {textEncoding::utf16BigEndian, textEncoding::utf16BigEndian}}) {
        chooseEncoding(chosen);
        EXPECT_EQ(read(QStringLiteral("film.srt"), encoded(subRip(lines), written)), lines) << chosen;
        EXPECT_EQ(found, chosen);
    }
}

TEST_F(AutomaticEncoding, the_wider_encoding_of_windows_is_told_by_all_of_the_text) {
    constexpr std::uint32_t windows1250 = 15, windows1253 = 13, windows949 = 0x80000422;
    // What tells it comes after more than the detector looks at.
    const struct {
        const char* what;
        std::uint32_t encoding;
        const char* usual;
        const char* telling;
    } cases[] = {
        {"Hungarian", windows1250, "Az őrült kutya átugrotta a hűvös, zöld mezőt, és elszaladt az erdő felé.",
         "„Őrült vagy” – mondta…"},
        {"Greek", windows1253, "Το πλοίο έφυγε νωρίς το πρωί και κανείς δεν το είδε να γυρίζει.", "Ά… «ναι» – είπε"},
        {"Korean", windows949, "배는 아침 일찍 떠났고 아무도 돌아오는 것을 보지 못했다.", "똠방각하 햏햏"},
        {"Slovene", windows1250, "Zakaj ne poveš, kaj počneš? Žal mi je, že smo šli čez reko.",
         "„Saj še ni konec,“ je rekel…"},
    };
    for (const auto& c : cases) {
        QStringList lines(200, QString::fromUtf8(c.usual));
        lines.append(QString::fromUtf8(c.telling));
        EXPECT_EQ(read(QStringLiteral("film.srt"), encoded(subRip(lines), c.encoding)), lines) << c.what;
        EXPECT_EQ(found, c.encoding) << c.what;
    }
}

TEST_F(AutomaticEncoding, damage_spoils_no_more_than_its_own_line) {
    const QStringList lines = QString::fromUtf8(encodingTexts[0].text).split(u'\n');
    // Cut in the middle of a character.
    const std::string cut = encoded(subRip({lines[0]}), 4) + "2\r\n00:09:00,000 --> 00:09:30,000\r\nza\xC5";
    EXPECT_EQ(read(QStringLiteral("cut.srt"), cut).value(0), lines[0]);
    EXPECT_EQ(found, textEncoding::utf8);
    // One line of another encoding among many.
    const std::string mixed = encoded(subRip(QStringList(8, QStringLiteral("d\u00E9j\u00E0 vu"))), 4) +
                              "9\r\n00:09:00,000 --> 00:09:30,000\r\ncaf\xE9\r\nau lait\r\n";
    const QStringList sound = read(QStringLiteral("mixed.srt"), mixed);
    EXPECT_EQ(sound.value(7), QStringLiteral("d\u00E9j\u00E0 vu"));
    EXPECT_EQ(sound.value(8), QStringLiteral("au lait"));
    // A wide text with half a character, half a unit at its end.
    const std::string half =
        encoded(QChar(QChar::ByteOrderMark) + subRip({QStringLiteral("a\xD83D") + QChar(0xD800), lines[1]}),
                textEncoding::utf16LittleEndian) +
        "x";
    EXPECT_EQ(read(QStringLiteral("half.srt"), half).value(1), lines[1]);
    // Nothing to go by.
    EXPECT_EQ(read(QStringLiteral("short.srt"), "0:0:1,0 --> 0:0:2,0\n\x80\x81\x8D\n"),
              QStringList(QStringLiteral("\u20AC\u0081\u008D")));
}
