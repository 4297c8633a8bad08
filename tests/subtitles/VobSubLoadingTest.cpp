// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/vobsub/QVVobSubSubtitles.h"
#include "tests/subtitles/SubtitleFiles.h"
#include "tests/subtitles/VobSubFiles.h"
#include "tests/support/CapturedLog.h"

namespace {

/// Tracks of pairs that the generator wrote, loaded by their real worker.
class VobSubLoading : public SubtitleFiles {
protected:
    static vobsub::Subpicture picture(std::optional<std::uint16_t> stop, bool forced = false) {
        vobsub::Subpicture subpicture = uncropped(randomBitmap(120, 30, 9, 1));
        subpicture.x = 300;
        subpicture.y = 400;
        subpicture.stop = stop;
        subpicture.forced = forced;
        return subpicture;
    }
    /// The tracks of a pair.
    std::vector<std::shared_ptr<QVSubtitles>> tracks(const vobsub::PairWriter& pair) {
        EXPECT_TRUE(pair.write(folder.filePath(QStringLiteral("film")).toStdString()));
        return QVVobSubSubtitles::subtitlesWithFilePath(settings.environment,
                                                        folder.filePath(QStringLiteral("film.idx")), owner);
    }
    static void load(QVSubtitles& track) {
        track.preload();
        track.waitForLoading();
    }
};

} // namespace

TEST_F(VobSubLoading, cues_have_times_places_and_pictures) {
    vobsub::PairWriter pair;
    pair.addStream("en");
    pair.addStream("de", "Deutsch");
    pair.add(0, 1000, picture(90));                             // 1024 ms
    pair.add(1, 1500, picture(90));                             // of the other stream
    pair.add(0, 5000, picture(std::nullopt));                   // until the next one
    pair.add(0, 62'500, picture(900, true), {.packSize = 600}); // 10.24 s, longer than the next one lets it
    pair.add(0, 70'000, picture(std::nullopt));                 // ends as it starts: nothing says when
    const auto both = tracks(pair);
    ASSERT_EQ(both.size(), 2U);
    load(*both[0]);
    load(*both[1]);
    EXPECT_EQ(both[1]->count(), 1U);
    EXPECT_TRUE(both[0]->isImageBased() && !both[0]->isTextBased());

    struct Expected {
        std::int32_t start, end;
        bool forced;
    };
    // 600 units a second.
    const Expected expected[] = {{600, 1214, false}, {3000, 37500, false}, {37500, 42000, true}, {42000, 42000, false}};
    const auto cues = both[0]->cues();
    ASSERT_EQ(cues.size(), std::size(expected));
    for (std::size_t i = 0; i < cues.size(); ++i) {
        EXPECT_EQ(cues[i]->start(), expected[i].start) << i;
        EXPECT_EQ(cues[i]->end(), expected[i].end) << i;
        EXPECT_EQ(cues[i]->forced(), expected[i].forced) << i;
        EXPECT_EQ(cues[i]->rect(), platform::Rect(300, 50, 120, 30)) << i;
        EXPECT_EQ(cues[i]->image()->size, QSizeF(120, 30)) << i;
        EXPECT_EQ(cues[i]->image()->expanded(), expectedImage(picture(90), plainIndex())) << i;
    }
    // The search knows of the end that the next cue changed.
    EXPECT_EQ(both[0]->subtitleForTime(37499), cues[1]);
    EXPECT_EQ(both[0]->subtitleForTime(41999), cues[2]);
    EXPECT_EQ(both[0]->subtitleForTime(1300), nullptr);
}

TEST_F(VobSubLoading, only_forced_cues_are_shown_when_the_index_wants_that) {
    vobsub::PairWriter pair;
    pair.moreKeys = "forced subs: ON\n";
    pair.addStream("en");
    pair.add(0, 1000, picture(90));
    pair.add(0, 5000, picture(90, true));
    const auto track = tracks(pair).front();
    load(*track);
    EXPECT_EQ(track->count(), 2U);
    EXPECT_EQ(track->subtitleForTime(700), nullptr);
    EXPECT_EQ(track->subtitleForTime(3100), track->cues()[1]);
}

TEST_F(VobSubLoading, a_subpicture_that_cannot_be_read_ends_the_track_or_is_skipped_where_it_is_repaired) {
    vobsub::PairWriter pair;
    pair.addStream("en");
    pair.add(0, 1000, picture(90));
    pair.addShifted(0, 2000, picture(std::nullopt), 9);
    pair.addShifted(0, 3000, picture(90), 400);
    pair.add(0, 4000, picture(90));
    pair.add(0, 9000, picture(std::nullopt));
    const auto track = tracks(pair).front();
    const struct {
        bool isRepairing;
        std::size_t losses;
        std::vector<ExpectedCue> cues;
    } modes[] = {{false, 3, {{600, 1200, ""}, {1200, 1200, ""}}},
                 // What was skipped ends what it would have ended; the last one stands for five seconds.
                 {true, 1, {{600, 1200, ""}, {1200, 1800, ""}, {2400, 3014, ""}, {5400, 8400, ""}}}};
    for (const auto& mode : modes) {
        settings.defaults().setBool(mode.isRepairing, kQVSubtitlesRepair);
        load(*track);
        EXPECT_EQ(cuesOf(*track), mode.cues) << mode.isRepairing;
        EXPECT_EQ(track->losses(), mode.losses) << mode.isRepairing;
    }
}

TEST_F(VobSubLoading, a_data_file_that_has_vanished_is_told_of) {
    vobsub::PairWriter pair;
    pair.addStream("en");
    pair.add(0, 1000, picture(90));
    const auto track = tracks(pair).front();
    ASSERT_TRUE(QFile::remove(folder.filePath(QStringLiteral("film.sub"))));
    const CapturedLog log;
    track->preload();
    track->unload();
    EXPECT_EQ(log.lines().first(),
              QStringLiteral("ERROR: QVVobSubSubtitles: Unable to open subtitles file \"film.sub\" for reading."));
    EXPECT_EQ(track->subtitleForTime(700), nullptr);
}

TEST_F(VobSubLoading, cues_are_looked_up_and_dropped_while_the_worker_loads) {
    constexpr int count = 3000;
    vobsub::PairWriter pair;
    pair.addStream("en");
    for (int i = 0; i < count; ++i)
        pair.add(0, 1000 * i, picture(i % 3 ? std::optional<std::uint16_t>(150) : std::nullopt));
    const auto track = tracks(pair).front();
    std::size_t before = 0;
    for (int round = 0; round < 5; ++round) {
        track->preload();
        while (track->count() < static_cast<std::size_t>(count) / 6 * static_cast<std::size_t>(round + 1)) {
            before = track->count();
            const auto time = static_cast<std::int32_t>(before) * 600 - 300;
            const auto cue = track->subtitleForTime(time);
            EXPECT_TRUE(!cue || cue->start() <= time);
            EXPECT_TRUE(before < 2 || track->subtitleForTime(300)) << "what is there already is not shown";
        }
        track->unload();
        EXPECT_EQ(track->count(), 0U);
        EXPECT_EQ(track->subtitleForTime(300), nullptr);
    }
    load(*track);
    EXPECT_EQ(track->count(), static_cast<std::size_t>(count));
    track->unload();
    // Gone while its worker runs.
    for (int i = 0; i < 5; ++i) {
        const auto other = tracks(pair).front();
        other->preload();
        for (int lookups = 0; lookups < 200 * i; ++lookups)
            (void)other->subtitleForTime(lookups);
    }
}

TEST_F(VobSubLoading, the_main_thread_is_told_of_the_cues_once_it_gets_to_it) {
    vobsub::PairWriter pair;
    pair.addStream("en");
    for (int i = 0; i < 50; ++i)
        pair.add(0, 1000 * i, picture(90));
    auto track = tracks(pair).front();
    int told = 0;
    track->setLoadingObserver([&] {
        ++told;
        EXPECT_FALSE(track->isLoading());
        EXPECT_EQ(track->count(), 50U);
    });
    load(*track);
    EXPECT_EQ(told, 0) << "told on the worker's thread";
    settings.runLoop.runPending();
    EXPECT_EQ(told, 1) << "not once for all that was read meanwhile";
    track->unload();
    load(*track);
    settings.runLoop.runPending();
    EXPECT_EQ(told, 2);
    track->unload();
    load(*track);
    track.reset();
    settings.runLoop.runPending();
    EXPECT_EQ(told, 2) << "of a track that is gone";
}
