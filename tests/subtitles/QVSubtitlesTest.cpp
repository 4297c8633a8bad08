// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/QVSubtitles.h"

#include "tests/subtitles/SubtitleFiles.h"
#include "tests/support/CapturedLog.h"

namespace {

class Track : public SubtitleFiles {
protected:
    /// What is shown at a time, "" for nothing.
    static std::string shown(QVSubtitles& track, std::int32_t time) {
        const auto cue = track.subtitleForTime(time);
        return cue ? cue->text().toStdString() : "";
    }

    /// A from 1 to 2 s, B from 2 to 3 s, C from 5 to 6 s.
    const std::string three = "0:0:1,0 --> 0:0:2,0\nA\n\n0:0:2,0 --> 0:0:3,0\nB\n\n0:0:5,0 --> 0:0:6,0\nC\n\n";
};

} // namespace

TEST_F(Track, a_time_finds_its_cue_wherever_the_search_begins) {
    const auto track = load(QStringLiteral("film.srt"), three);
    ASSERT_TRUE(track);
    const struct {
        std::int32_t time;
        const char* text;
    } cases[] = {{-1, ""},   {0, ""},    {600, "A"},  {1199, "A"}, {1201, "B"}, {1800, "B"},
                 {1801, ""}, {2999, ""}, {3000, "C"}, {3600, "C"}, {3601, ""},  {2147483647, ""}};
    for (const auto& from : cases) {
        for (const auto& to : cases) {
            shown(*track, from.time);
            EXPECT_EQ(shown(*track, to.time), to.text) << from.time << " to " << to.time;
        }
    }
    shown(*track, 2000);
    EXPECT_EQ(track->current()->text(), QStringLiteral("C")) << "a gap leaves the cursor on the later cue";
    shown(*track, 9999);
    EXPECT_EQ(track->current()->text(), QStringLiteral("C"));
    track->reset();
    EXPECT_EQ(track->current()->text(), QStringLiteral("A"));
}

TEST_F(Track, a_time_finds_its_cue_in_a_file_out_of_order) {
    const std::string early = "0:0:0,500 --> 0:0:0,800\nearly\n\n";
    const std::string reversed = "0:0:4,0 --> 0:0:2,500\nnever\n\n";
    // The early one cuts the cue before it, to an end before its start.
    for (const std::string& file : {three + early, early + three + early, three + reversed + early}) {
        const auto track = load(QStringLiteral("film.srt"), file);
        ASSERT_TRUE(track);
        const std::pair<std::int32_t, const char*> times[] = {{299, ""},   {300, "early"}, {700, "A"}, {1300, "B"},
                                                              {1700, "B"}, {2500, ""},     {3601, ""}, {9999, ""}};
        for (const auto& [from, shownThere] : times) {
            for (const auto& [to, text] : times) {
                shown(*track, from);
                EXPECT_EQ(shown(*track, to), text) << from << " to " << to << "\n" << file;
            }
        }
    }
}

TEST_F(Track, loading_takes_the_settings_as_they_are_then) {
    const auto track = open(write(QStringLiteral("film.sub"), "{240}{480}caf\xE9|B\n"));
    ASSERT_TRUE(track);
    EXPECT_EQ(track->encoding(), QVSubtitles::noEncoding);
    EXPECT_EQ(track->subtitleForTime(0), nullptr);
    chooseEncoding(12);
    settings.defaults().setFloat(2.9F, kQVSubtitlesDefaultFPS);
    track->preload();
    EXPECT_EQ(cuesOf(*track), (std::vector<ExpectedCue>{{6000, 12000, "caf\xC3\xA9\nB"}}));
    EXPECT_EQ(track->encoding(), 12U);
    EXPECT_EQ(track->title(), QStringLiteral("film.sub"));
    EXPECT_TRUE(track->isTextBased() && !track->isImageBased());
    ASSERT_TRUE(track->current()) << "the only cue";
    EXPECT_EQ(track->current()->rect(), platform::Rect(0, 0, 0, 0));
    EXPECT_FALSE(track->current()->forced());
    const std::weak_ptr<const QVSubtitle> last = track->cues().back();
    track->unload();
    EXPECT_EQ(track->count(), 0U);
    EXPECT_EQ(track->current(), nullptr);
    EXPECT_TRUE(last.expired()) << "what was read with it is kept in memory";
    chooseEncoding(4);
    settings.defaults().setFloat(-3.0F, kQVSubtitlesDefaultFPS);
    track->preload();
    EXPECT_EQ(cuesOf(*track), (std::vector<ExpectedCue>{{5400, 11400, "B"}}))
        << "at the movie's 25 a second, in whole seconds; a line that is not valid UTF-8 is left out";
}

TEST_F(Track, a_frame_rate_is_the_choice_s_or_the_movie_s_or_25) {
    const auto track = open(write(QStringLiteral("film.sub"), "{0}{25}A\n"));
    const struct {
        float movie;
        std::int32_t choice;
        float rate;
    } cases[] = {{24, 0, 24}, {24, 1, 23.976F},  {24, 5, 30},  {24, 6, 24}, {24, -1, 24},
                 {0, 0, 25},  {INFINITY, 0, 25}, {NAN, 0, 25}, {-3, 9, 25}};
    for (const auto& c : cases) {
        owner.rate = c.movie;
        EXPECT_EQ(track->actualFrameRate(c.choice), c.rate) << c.movie << ", " << c.choice;
    }
}

TEST_F(Track, a_new_frame_rate_moves_the_cues_of_loaded_frame_based_tracks_only) {
    settings.defaults().setInteger(3, kQVSubtitlesDefaultFPS);
    const auto track = open(write(QStringLiteral("film.sub"), "{100}{200}A\n{250}{2147483647}B\n"));
    track->setFrameRate(1);
    EXPECT_EQ(track->frameRateChoice(), 3) << "nothing is loaded";
    track->preload();
    EXPECT_EQ(shown(*track, 6000), "B"); // from where A's new end must be found
    track->setFrameRate(1);
    EXPECT_EQ(cuesOf(*track), (std::vector<ExpectedCue>{{2502, 5005, "A"}, {6256, 2147483647, "B"}}));
    EXPECT_EQ(track->frameRateChoice(), 1);
    EXPECT_EQ(shown(*track, 5005), "A");
    EXPECT_EQ(shown(*track, 6255), "");

    const auto timed = load(QStringLiteral("film.srt"), three);
    timed->setFrameRate(1);
    EXPECT_EQ(timed->frameRateChoice(), 3);
}

TEST_F(Track, a_new_encoding_reads_the_file_again) {
    const QString path =
        write(QStringLiteral("film.srt"), "0:0:1,0 --> 0:0:2,0\ncaf\xE9\n\n0:0:2,0 --> 0:0:3,0\nd\xE9 vu\n");
    chooseEncoding(12);
    const auto track = open(path);
    track->setEncoding(15);
    EXPECT_EQ(track->encoding(), QVSubtitles::noEncoding) << "nothing is loaded";
    track->preload();
    const struct {
        std::uint32_t chosen, inForce;
        const char *first, *second;
    } steps[] = {{15, 15, "caf\xC3\xA9", "d\xC3\xA9 vu"},
                 {11, 11, "caf\xD0\xB9", "d\xD0\xB9 vu"},
                 {4, 4, "", ""}, // nothing of it is valid
                 {1, 1, "", ""},
                 {11, 11, "caf\xD0\xB9", "d\xD0\xB9 vu"},
                 {0, 12, "caf\xC3\xA9", "d\xC3\xA9 vu"}};
    for (const auto& step : steps) {
        track->setEncoding(step.chosen);
        EXPECT_EQ(shown(*track, 1300), step.second) << step.chosen;
        EXPECT_EQ(shown(*track, 700), step.first) << step.chosen;
        EXPECT_EQ(track->encoding(), step.inForce);
    }
    ASSERT_TRUE(QFile::remove(path));
    const CapturedLog log;
    track->setEncoding(11);
    EXPECT_EQ(shown(*track, 700), "caf\xC3\xA9") << "the texts of a file that is gone were dropped";
    EXPECT_EQ(track->encoding(), 12U);
}

TEST_F(Track, a_file_that_vanishes_before_it_is_loaded_leaves_the_track_empty) {
    const QString path = write(QStringLiteral("film.srt"), three);
    const auto track = open(path);
    ASSERT_TRUE(QFile::remove(path));
    CapturedLog log;
    track->preload();
    EXPECT_TRUE(log.contains("ERROR: QVSubRipSubtitles: Unable to open subtitles file \"film.srt\" for reading."));
    EXPECT_EQ(shown(*track, 700), "");
}
