// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/subtitles/SubtitleFiles.h"

namespace {

/// What a file gives in each mode; without cues, where no reader takes it.
struct ModeCase {
    const char* what;
    std::string bytes;
    std::vector<ExpectedCue> strict;
    std::size_t lostStrictly;
    std::vector<ExpectedCue> repaired;
    std::size_t lostRepairing = 0;
};

using Cues = std::vector<ExpectedCue>;

const std::string one = "1\n00:00:01,000 --> 00:00:02,000\nA\n\n";
const Cues oneCue{{600, 1200, "A"}};

class Repair : public SubtitleFiles {
protected:
    void choose(ReadingMode mode) { settings.defaults().setBool(mode == ReadingMode::repairing, kQVSubtitlesRepair); }
    void check(const char* name, const std::vector<ModeCase>& cases) {
        chooseEncoding(4);
        for (const ModeCase& c : cases) {
            for (const ReadingMode mode : {ReadingMode::strict, ReadingMode::repairing}) {
                const bool isStrict = mode == ReadingMode::strict;
                choose(mode);
                const auto track = load(QString::fromUtf8(name), c.bytes);
                EXPECT_EQ(track ? cuesOf(*track) : Cues(), isStrict ? c.strict : c.repaired)
                    << c.what << (isStrict ? ", strictly" : ", repairing");
                EXPECT_EQ(track ? track->losses() : 0, isStrict ? c.lostStrictly : c.lostRepairing)
                    << c.what << (isStrict ? ", strictly" : ", repairing");
            }
        }
    }
};

} // namespace

TEST_F(Repair, subrip_files_are_read_as_they_were_meant) {
    const std::string longLine(1500, 'x');
    const std::string accents = std::string(998, 'x') + "\xC3\xA9y";
    check("film.srt",
          {
              {"nothing wrong", one, oneCue, 0, oneCue},
              {"full stops", "1\n00:00:01.000 --> 00:00:02.000\nA\n", {}, 0, oneCue},
              {"a full stop among commas",
               one + "2\n00:00:03.000 --> 00:00:04,000\nB\nC\n",
               oneCue,
               3,
               {{600, 1200, "A"}, {1800, 2400, "B\nC"}}},
              {"no milliseconds", "1\n00:00:01 --> 00:00:02\nA\n", {}, 0, oneCue},
              {"blanks in the times", "1\n00 : 00 : 01 , 000 --> 0: 0 :2 . 000 \nA\n", {}, 0, oneCue},
              {"a blank line in a cue",
               "1\n00:00:01,000 --> 00:00:02,000\nA\n\nB\n \n\n2\n00:00:03,000 --> 00:00:04,000\nC\n",
               {{600, 1200, "A"}, {1800, 2400, "C"}},
               1,
               {{600, 1200, "A\n\nB"}, {1800, 2400, "C"}}},
              {"a blank line before the text",
               one + "2\n00:00:03,000 --> 00:00:04,000\n\nB\n",
               oneCue,
               1,
               {{600, 1200, "A"}, {1800, 2400, "B"}}},
              {"a blank line after each",
               "1\n\n00:00:01,000 --> 00:00:02,000\n\nA\n\n2\n\n00:00:03,000 --> 00:00:04,000\n\nB\n\n",
               {},
               2,
               {{600, 1200, "A"}, {1800, 2400, "B"}}},
              {"no blank line between the blocks",
               "1\n00:00:01,000 --> 00:00:02,000\nA\n2\n00:00:03,000 --> 00:00:04,000\n1984\nB\n",
               {{600, 1200, "A\n2\n00:00:03,000 --> 00:00:04,000\n1984\nB"}},
               0,
               {{600, 1200, "A"}, {1800, 2400, "1984\nB"}}},
              {"a timing without a text", "1\n00:00:00,000 --> 00:00:01,000\n\n\n" + one, oneCue, 0, oneCue},
              {"a timing that can't be made out ends a text all the same", one + "2\n00:00:x --> 00:00:04,000\nB\n\n",
               oneCue, 2, oneCue, 2},
              {"carriage returns", "1\r00:00:01,000 --> 00:00:02,000\rA\rB\r\r", {}, 0, {{600, 1200, "A\nB"}}},
              {"two carriage returns a line",
               "1\r\r\n00:00:01,000 --> 00:00:02,000\r\r\nA\r\r\nB\r\r\n\r\r\n",
               {{600, 1200, "A\r\r\nB"}},
               0,
               {{600, 1200, "A\nB"}}},
              {"a long line",
               "00:00:01,000 --> 00:00:02,000\n" + longLine + "\n",
               {{600, 1200, longLine}},
               0,
               {{600, 1200, longLine}}},
              {"a character cut by the end of a piece",
               "00:00:01,000 --> 00:00:02,000\n" + accents + "\nB\n\xC3\n",
               {{600, 1200, "B"}},
               0,
               {{600, 1200, accents + "\nB"}}},
              {"an end before the start, and nothing after it",
               "00:00:03,000 --> 00:00:01,000\nA\n",
               {{1800, 600, "A"}},
               0,
               {{1800, 4800, "A"}}},
              {"an end before the start, and another cue",
               "00:00:03,000 --> 00:00:01,000\nA\n\n00:00:04,000 --> 00:00:05,000\nB\n",
               {{1800, 600, "A"}, {2400, 3000, "B"}},
               0,
               {{1800, 2400, "A"}, {2400, 3000, "B"}}},
              {"an early cue at the end",
               "00:00:03,000 --> 00:00:04,000\nA\n\n00:00:01,000 --> 00:00:02,000\nB\n",
               {{1800, 600, "A"}, {600, 1200, "B"}},
               0,
               {{1800, 2400, "A"}, {600, 1200, "B"}}},
              {"words in front", "Words\n" + one, oneCue, 1, oneCue, 1},
          });
}

TEST_F(Repair, microdvd_files_are_read_as_they_were_meant) {
    check("film.sub",
          {
              {"exact times", "{110}{149}A\n", {{2400, 3000, "A"}}, 0, {{2640, 3576, "A"}}},
              {"rounded to what the movie has", "{0}{100000}A\n", {{0, 2400000, "A"}}, 0, {{0, 2400000, "A"}}},
              {"a rate on the first line",
               "{1}{1}23.976\n{100}{200}A\n",
               {{0, 0, "23.976"}, {2400, 4800, "A"}},
               0,
               {{2503, 5005, "A"}}},
              {"a rate with a comma",
               "{1}{1} 50,0 \r\n{100}{200}A\n",
               {{0, 0, "50,0"}, {2400, 4800, "A"}},
               0,
               {{1200, 2400, "A"}}},
              {"a rate nobody has, and a later one",
               "{1}{1}5000\n{1}{1}23.976\n",
               {{0, 0, "5000"}, {0, 0, "23.976"}},
               0,
               {{24, 24, "5000"}, {24, 24, "23.976"}}},
              {"a cue of the first frame after the rate",
               "{1}{1}30\n{1}{1}A\n",
               {{0, 0, "30"}, {0, 0, "A"}},
               0,
               {{20, 20, "A"}}},
              {"codes anywhere",
               "{25}{50}{y:i}One{c:$0000ff}|{Y:b}two {s:9}three\n",
               {{600, 1200, "three"}},
               0,
               {{600, 1200, "One\ntwo three"}}},
              {"braces that are no codes",
               "{25}{50}a} {b} {y:|i} {:i}{}\n{50}{75}{y:i}\n",
               {},
               0,
               {{600, 1200, "a} {b} {y:\ni} {:i}{}"}}},
              {"bars",
               "{25}{50}|a||b|\n{75}{100}||\n",
               {{600, 1200, "a\n|b"}, {1800, 2400, "|"}},
               0,
               {{600, 1200, "a\n\nb"}}},
              {"no end",
               "{25}{}A\n{50}{}{y:i}B",
               {{600, 1200, "A"}, {1200, 3600, "B"}},
               0,
               {{600, 1200, "A"}, {1200, 3600, "B"}}},
              {"an end before the start", "{75}{25}A\n", {{1800, 600, "A"}}, 0, {{1800, 4200, "A"}}},
              {"an early cue at the end",
               "{75}{100}A\n{25}{50}B\n",
               {{1800, 600, "A"}, {600, 1200, "B"}},
               0,
               {{1800, 2400, "A"}, {600, 1200, "B"}}},
              {"carriage returns",
               "{25}{50}A\r{50}{75}B\r",
               {{600, 1200, "B"}},
               0,
               {{600, 1200, "A"}, {1200, 1800, "B"}}},
              {"other lines", "{25}{50}A\nB\n\n{x}C\n", {{600, 1200, "A"}}, 2, {{600, 1200, "A"}}, 2},
              {"a line that is no UTF-8",
               "{25}{50}A|\xC3|\xC3\xA9\n",
               {{600, 1200, "A\n\xC3\xA9"}},
               0,
               {{600, 1200, "A\n\n\xC3\xA9"}}},
          });
}

TEST_F(Repair, tmplayer_files_have_whole_lines_and_no_cue_that_ends_before_it_starts) {
    check("film.txt", {
                          {"a jump back",
                           "0:0:9:A\n0:0:5:B\nC\n",
                           {{5400, 3000, "A"}, {3000, 4800, "B"}},
                           1,
                           {{5400, 7200, "A"}, {3000, 4800, "B"}},
                           1},
                          {"carriage returns",
                           "0:0:1:A|B\r0:0:2:C\r",
                           {{600, 2400, "A\nB\r0:0:2:C"}},
                           0,
                           {{600, 1200, "A\nB"}, {1200, 3000, "C"}}},
                      });
}

TEST_F(Repair, a_loaded_track_is_read_again_in_another_mode_only) {
    const auto track = load(QStringLiteral("film.sub"), "{110}{149}A\n{0}{25}B\n");
    EXPECT_EQ(track->mode(), ReadingMode::strict);
    const auto before = track->cues().front();
    track->preload();
    EXPECT_EQ(track->cues().front(), before) << "read again for nothing";
    choose(ReadingMode::repairing);
    track->preload();
    EXPECT_EQ(track->mode(), ReadingMode::repairing);
    EXPECT_EQ(cuesOf(*track), (Cues{{2640, 3576, "A"}, {0, 600, "B"}}));
    for (const auto& [time, text] : {std::pair{2700, "A"}, {300, "B"}, {3000, "A"}})
        EXPECT_EQ(track->subtitleForTime(time)->text(), QLatin1String(text)) << time;
    choose(ReadingMode::strict);
    track->preload();
    EXPECT_EQ(cuesOf(*track), (Cues{{2400, 0, "A"}, {0, 600, "B"}}));
}

TEST_F(Repair, exact_times_stay_exact_at_another_frame_rate_and_a_rate_of_the_file_stays) {
    choose(ReadingMode::repairing);
    const auto track = load(QStringLiteral("film.sub"), "{101}{149}A\n");
    track->setFrameRate(5);
    EXPECT_EQ(cuesOf(*track), (Cues{{2020, 2980, "A"}}));
    track->setFrameRate(3);
    EXPECT_EQ(cuesOf(*track), (Cues{{2424, 3576, "A"}}));
    EXPECT_EQ(track->frameRateChoice(), 3);
    ASSERT_TRUE(QFile::remove(track->path()));
    track->setFrameRate(5);
    EXPECT_EQ(cuesOf(*track), (Cues{{2424, 3576, "A"}})) << "the file has gone";
    EXPECT_EQ(track->frameRateChoice(), 3);

    const auto rated = load(QStringLiteral("rated.sub"), "{1}{1}25\n{101}{149}A\n");
    rated->setFrameRate(5);
    EXPECT_EQ(cuesOf(*rated), (Cues{{2424, 3576, "A"}}));
}
