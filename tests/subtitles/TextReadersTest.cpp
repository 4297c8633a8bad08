// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/PathNames.h"
#include "subtitles/input/LineReader.h"
#include "subtitles/input/ScanFormat.h"
#include "tests/subtitles/SubtitleFiles.h"

#include <array>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct FileCase {
    const char* what;
    std::string bytes;
    std::vector<ExpectedCue> cues;
};

const std::string timing = "00:00:01,500 --> 00:00:03,250\n";
constexpr std::int32_t largest = 2147483647;
constexpr std::int32_t smallest = -largest - 1;

class TextReaders : public SubtitleFiles {
protected:
    void check(const char* name, const std::vector<FileCase>& cases) {
        for (const FileCase& c : cases)
            EXPECT_EQ(cues(QString::fromUtf8(name), c.bytes), c.cues) << c.what;
    }
};

} // namespace

TEST_F(TextReaders, subrip_blocks_become_cues) {
    check("film.srt",
          {
              {"numbers, carriage returns, no blank line at the end",
               "1\r\n00:00:01,500 --> 00:00:03,250\r\n Hello\r\nWorld \r\n\r\n2\r\n00:00:04,000 --> "
               "00:00:05,000\r\n<i>Bye</i>",
               {{900, 1950, "Hello\r\nWorld"}, {2400, 3000, "<i>Bye</i>"}}},
              {"a later cue cuts the one before it",
               timing + "A\n\n00:00:02,000 --> 00:00:04,000\nB\n",
               {{900, 1200, "A"}, {1200, 2400, "B"}}},
              {"blocks without a blank line between",
               timing + "A\n2\n00:00:05,000 --> 00:00:06,000\nB\n",
               {{900, 1950, "A\n2\n00:00:05,000 --> 00:00:06,000\nB"}}},
              {"timing without text", timing + "\n" + timing + "A\n", {{900, 1950, "A"}}},
              {"only blanks as text", timing + "  \n\n", {{900, 1950, ""}}},
              {"blanks and signs in the timing", " 0:\t0: 1,+500-->0:0:3,250 X1:2\nA\n", {{900, 1950, "A"}}},
              {"a full stop is no comma", timing + "A\n\n00:00:05.000 --> 00:00:06.000\nB\n", {{900, 1950, "A"}}},
              {"the end before the start", "00:00:03,000 --> 00:00:01,000\nA\n", {{1800, 600, "A"}}},
              {"before the beginning", "-1:00:00,000 --> 00:00:01,000\nA\n", {{-2160000, 600, "A"}}},
              {"times that do not fit",
               "99999999999:0:0,0 --> -99999999999:0:0,0\nA\n",
               {{1288490240, -1288490240, "A"}}},
              {"a NUL ends its line", timing + std::string("A\0B\nC\n", 6), {{900, 1950, "AC"}}},
              {"a line that is no UTF-8 is left out",
               "\xEF\xBB\xBF" + timing + "A\n\xC3\nB\n\xC3\xA9",
               {{900, 1950, "A\nB\n\xC3\xA9"}}},
              {"a character cut by the end of a piece goes with both pieces",
               timing + "A\n" + std::string(998, 'x') + "\xC3\xA9y\nC\n",
               {{900, 1950, "A\nC"}}},
              {"white space beyond ASCII is trimmed",
               timing + "\xC2\xA0\xE3\x80\x80\xC3\xA9t\xC3\xA9\xE2\x80\xA8\xC2\x85\n",
               {{900, 1950, "\xC3\xA9t\xC3\xA9"}}},
              {"19 lines in front", std::string(19, '\n') + timing + "A\n", {{900, 1950, "A"}}},
              {"20 lines in front", std::string(20, '\n') + timing + "A\n", {}},
              {"empty", "", {}},
              {"no timing", "Hello\n", {}},
          });
}

TEST_F(TextReaders, a_long_subrip_line_joins_without_a_break) {
    const std::string line(10'000'000, 'x');
    const auto track = load(QStringLiteral("film.srt"), timing + line + "\n\n");
    ASSERT_TRUE(track);
    ASSERT_EQ(track->count(), 1U);
    EXPECT_EQ(track->cues().front()->text().size(), 10'000'000);
}

TEST_F(TextReaders, microdvd_lines_become_cues) {
    const std::string cut = "{0}{25}" + std::string(985, 'a');
    check("film.sub",
          {
              {"lines of a cue", "{100}{200}Hello|World\r\n", {{2400, 4800, "Hello\nWorld"}}},
              {"whole seconds", "{110}{149}A\n", {{2400, 3000, "A"}}},
              {"no end reaches to the next", "{0}{}One\n{250}{300}Two\n", {{0, 6000, "One"}, {6000, 7200, "Two"}}},
              {"no end, and none follows", "{50}{}One", {{1200, 3600, "One"}}},
              {"an end is only cut",
               "{0}{100}One\n{50}{80}Two\n{200}{300}Three\n",
               {{0, 1200, "One"}, {1200, 1800, "Two"}, {4800, 7200, "Three"}}},
              {"a cue of no length", "{0}{10}One\n{50}{80}Two\n", {{0, 0, "One"}, {1200, 1800, "Two"}}},
              {"a rate is a text", "{1}{1}23.976\n", {{0, 0, "23.976"}}},
              {"style codes", "{10}{20}{y:i}Italic\n", {{0, 0, "Italic"}}},
              {"a brace in the text", "{0}{50}lost} kept\n", {{0, 1200, "kept"}}},
              {"blanks in the braces", "{ 25 } { 50 }A\n", {{600, 1200, "A"}}},
              {"anything that begins with a number", "{25}x}A\n", {{600, 3000, "A"}}},
              {"only the first bar of a run breaks", "{0}{25}a||b\n", {{0, 600, "a\n|b"}}},
              {"no text", "{0}{25}\n{25}{50}||\n{50}{75}A\n", {{600, 1200, "|"}, {1200, 1800, "A"}}},
              {"lines of other kinds", "{0}{25}A\nB\n{x}{25}C\n", {{0, 600, "A"}}},
              {"a cut line goes on", cut + "bcdefghij|k\n", {{0, 600, std::string(985, 'a') + "bcdefghij\nk"}}},
              {"frames that do not fit", "{-99999999999}{99999999999}A\n", {{smallest, largest, "A"}}},
              {"no number", "{}{25}A\n", {}},
          });
}

TEST_F(TextReaders, tmplayer_lines_become_cues) {
    check("film.txt", {
                          {"until the next, the last for three seconds",
                           "00:00:05:Hello|World\r\n00:00:09:Bye\r\n",
                           {{3000, 5400, "Hello\nWorld"}, {5400, 7200, "Bye"}}},
                          {"numbered lines", "00:00:05,1=Top\n00:00:05,2=Bottom\n", {{3000, 4800, "Top\nBottom"}}},
                          {"a first line alone", "00:00:05,1=Top\n", {}},
                          {"any separator", "0:00:07 Text\n0:00:08Text\n", {{4200, 4800, "Text"}, {4800, 6600, "ext"}}},
                          {"an arrow is another format's", "00:00:01:A\n00:00:02.500 --> 00:00:03.250\nB\n", {}},
                          {"an arrow far behind",
                           "0:0:1:A\n" + std::string(19, '\n') + "0:0:2:-->\n",
                           {{600, 1200, "A"}, {1200, 3000, "-->"}}},
                          {"a jump back", "0:0:9:A\n0:0:5:B\n", {{5400, 3000, "A"}, {3000, 4800, "B"}}},
                          {"a time alone", "0:0:1\n0:0:2:A\n", {{1200, 3000, "A"}}},
                          {"the last time there is", "99999999999:0:0:A\n", {{1288490240, 1288492040, "A"}}},
                      });
}

TEST_F(TextReaders, the_registry_offers_a_file_to_the_reader_of_its_extension_and_then_to_all) {
    const std::string micro = "{0}{25}A\n";
    const struct {
        const char* name;
        std::string bytes;
        std::int32_t type;
    } cases[] = {
        {"a.srt", timing + "A\n", QVSubtitles::typeSubRip},
        {"a.txt", micro, QVSubtitles::typeMicroDVD},
        {"a.TXT", timing + "A\n", QVSubtitles::typeSubRip},
        {"a.txt", timing + "A\n", QVSubtitles::typeSubRip},
        {"a.srt", "1\n00:00:01.500 --> 00:00:03.250\nA\n", QVSubtitles::typeNone},
        {"a.sub", "0:0:1:A\n", QVSubtitles::typeTMPlayer},
        {"a.srt", micro, QVSubtitles::typeMicroDVD},
        {"a", micro, QVSubtitles::typeMicroDVD},
        {"a.srt", std::string(50'000, '\1'), QVSubtitles::typeNone},
        {"a.srt", "\xFF\xFE{", QVSubtitles::typeNone},
    };
    for (const auto& c : cases) {
        const auto track = load(QString::fromUtf8(c.name), c.bytes);
        const QByteArray odd = folder.path().toUtf8() + "/\xE9" + c.name;
        if (std::ofstream file(odd.toStdString(), std::ios::binary); file) {
            file << c.bytes;
            file.close();
            const auto same = open(platform::pathOfBytes(odd));
            EXPECT_EQ(same ? same->type() : QVSubtitles::typeNone, c.type) << "where its name is no UTF-8";
            if (same)
                same->preload();
            EXPECT_EQ(same ? cuesOf(*same) : std::vector<ExpectedCue>(),
                      track ? cuesOf(*track) : std::vector<ExpectedCue>());
        }
        ::unlink(odd.constData()); // the folder's own end does not know how to
        EXPECT_EQ(track ? track->type() : QVSubtitles::typeNone, c.type) << c.name << ": " << c.bytes.substr(0, 20);
    }
}

TEST_F(TextReaders, only_files_are_read) {
    const QString pipe = folder.filePath(QStringLiteral("pipe.srt"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    for (const QString& path : {pipe, folder.path(), folder.filePath(QStringLiteral("missing.srt")), QString()})
        EXPECT_TRUE(registry.subtitlesWithFilePath(path, owner).empty()) << path.toStdString();
}

TEST(ScanFormat, numbers_are_read_as_scanf_reads_them) {
    constexpr std::string_view plain = "%d:%d";
    const struct {
        std::string_view line;
        std::string_view format;
        std::size_t filled;
        std::size_t consumed;
        std::array<std::int32_t, 2> values;
    } cases[] = {
        {"12:34", plain, 2, 5, {12, 34}},
        {" \t12: -34x", plain, 2, 9, {12, -34}},
        {"+1:\n2", plain, 2, 5, {1, 2}},
        {"12 :34", plain, 1, 2, {12, 0}},
        {"12 :34", "%d :%d", 2, 6, {12, 34}},
        {"12:34", "%d : %d", 2, 5, {12, 34}},
        {"- 1:2", plain, 0, 1, {0, 0}},
        {"+-1:2", plain, 0, 1, {0, 0}},
        {"12", plain, 1, 2, {12, 0}},
        {"", plain, 0, 0, {0, 0}},
        {"2147483648:-99999999999999999999", plain, 2, 32, {largest, smallest}},
        {"7 ", "%d%c", 2, 2, {7, ' '}},
        {"7\xFF", "%d%c", 2, 2, {7, 255}},
        {"7", "%d%c", 1, 1, {7, 0}},
    };
    for (const auto& c : cases) {
        std::array<std::int32_t, 2> values{};
        const Scan scan = scanLine(c.line, c.format, values);
        EXPECT_EQ(scan.filled, c.filled) << c.line;
        EXPECT_EQ(scan.consumed, c.consumed) << c.line;
        EXPECT_EQ(values, c.values) << c.line;
    }
}

TEST(LineReader, lines_come_in_pieces_of_999_bytes) {
    const std::string longLine = std::string(1000, 'a') + "\n";
    const std::string exact = std::string(998, 'b') + "\nc";
    const std::string text = longLine + exact;
    LineReader lines(text);
    std::vector<std::size_t> sizes;
    while (const auto piece = lines.next())
        sizes.push_back(piece->size());
    EXPECT_EQ(sizes, (std::vector<std::size_t>{999, 2, 999, 1}));
    EXPECT_TRUE(lines.isAtEnd());

    LineReader withNul(std::string_view("ab\0cd\nef", 8));
    EXPECT_EQ(withNul.next(), "ab");
    EXPECT_EQ(withNul.next(), "ef");
}
