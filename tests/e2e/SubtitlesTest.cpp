// SPDX-License-Identifier: GPL-3.0-or-later
// The subtitles that lie beside a movie, on the screen: which, when, and after which keys.
#include "tests/e2e/SubtitledMovie.h"

#include <algorithm>
#include <string>

using namespace harness;

namespace {

// "First words" from 1 to 3 s, two lines from 5 to 7 s, in each format; TMPlayer has no ends, and fills the gap.
const char* const subRip = "1\n00:00:01,000 --> 00:00:03,000\nFirst words\n\n"
                           "2\n00:00:05,000 --> 00:00:07,000\nA second cue\nof two lines\n\n";
const char* const microDVD = "{30}{90}First words\n{150}{210}A second cue|of two lines\n";
const char* const webVTT = "WEBVTT\n\n00:01.000 --> 00:03.000\nFirst words\n\n"
                           "00:05.000 --> 00:07.000\nA second cue\nof two lines\n";
const char* const subStation =
    "[Script Info]\nScriptType: v4.00+\n\n[V4+ Styles]\nFormat: Name, Fontname, Alignment\nStyle: Default,Arial,2\n\n"
    "[Events]\nFormat: Layer, Start, End, Style, Name, MarginL, MarginR, MarginV, Effect, Text\n"
    "Dialogue: 0,0:00:01.00,0:00:03.00,Default,,0,0,0,,First words\n"
    "Dialogue: 0,0:00:05.00,0:00:07.00,Default,,0,0,0,,A second cue\\Nof two lines\n";
const char* const tmPlayer = "00:00:01:First words\n00:00:05:A second cue|of two lines\n";

class Subtitles : public SubtitledMovie {
protected:
    // The white of letters in the lower quarter of the screen, as a mask; empty without any.
    std::vector<bool> letters() { return letters({0, screenHeight * 3 / 4, screenWidth, screenHeight / 4}); }
    std::vector<bool> letters(const Region& part) {
        const Picture picture = probe.picture(part);
        std::vector<bool> mask;
        mask.reserve(picture.pixels.size());
        for (const std::uint32_t pixel : picture.pixels)
            mask.push_back((pixel & 0xFF) > 200 && (pixel >> 8 & 0xFF) > 200);
        if (std::ranges::count(mask, true) < 100)
            mask.clear();
        return mask;
    }
    bool noCue() {
        return waitUntil([&] { return letters().empty(); }) &&
               staysTrue([&] { return letters().empty(); }, Seconds(0.15));
    }
    // The letters once they stand.
    std::vector<bool> cue() {
        std::vector<bool> seen;
        waitUntil([&] {
            seen = letters();
            return !seen.empty() && staysTrue([&] { return letters() == seen; }, Seconds(0.15));
        });
        return seen;
    }
    bool cueBecomes(const std::vector<bool>& wanted) {
        return waitUntil([&] { return letters() == wanted; });
    }
};

} // namespace

TEST_F(Subtitles, each_format_shows_its_cues_at_their_times_and_none_between) {
    std::vector<bool> first, second;
    const struct {
        const char* extension;
        const char* content;
        bool gaps;
    } formats[] = {{"srt", subRip, true},
                   {"sub", microDVD, true},
                   {"txt", tmPlayer, false},
                   {"vtt", webVTT, true},
                   {"ass", subStation, true}};
    for (const auto& format : formats) {
        SCOPED_TRACE(format.extension);
        startStanding(movie({{format.extension, format.content}}));
        EXPECT_TRUE(noCue());
        jump(1, 2);
        const std::vector<bool> one = cue();
        EXPECT_TRUE(logs("QVTextSubView: Set Text: First words"));
        jump(1, 4);
        EXPECT_TRUE(format.gaps ? noCue() : cueBecomes(one));
        jump(1, 6);
        EXPECT_TRUE(logs("QVTextSubView: Set Text: A second cue"));
        EXPECT_TRUE(waitUntil([&] { return !letters().empty() && letters() != one; }));
        const std::vector<bool> two = cue();
        jump(-1, 4);
        EXPECT_TRUE(format.gaps ? noCue() : cueBecomes(one));
        jump(-1, 2);
        EXPECT_TRUE(cueBecomes(one)) << "the first cue looks different the second time";
        jump(-1, 0);
        EXPECT_TRUE(noCue());
        ASSERT_TRUE(quitsCleanly());
        if (first.empty())
            first = one, second = two;
        EXPECT_TRUE(one == first && two == second) << "the same texts look different";
    }
    EXPECT_NE(first, second);
}

TEST_F(Subtitles, markup_acts_and_is_not_shown_as_letters) {
    const auto cueOfAll = [](const std::string& text) { return "1\n00:00:00,000 --> 00:00:09,000\n" + text + "\n\n"; };
    startStanding(movie({{"a.srt", cueOfAll("Words &amp; more")},
                         {"b.srt", cueOfAll("<i>Words &amp; more</i>")},
                         {"c.srt", cueOfAll("{\\an8}<b>Words</b> &amp; more")}}));
    EXPECT_TRUE(logs("QVTextSubView: Set Text: Words & more"));
    const std::vector<bool> upright = cue();
    ASSERT_FALSE(upright.empty());
    probe.tap(XK_s);
    EXPECT_TRUE(waitUntil([&] { return !letters().empty() && letters() != upright; }))
        << "the italic ones are the same";
    const auto count = [](const std::vector<bool>& mask) {
        return static_cast<double>(std::ranges::count(mask, true));
    };
    EXPECT_NEAR(count(cue()), count(upright), count(upright) / 4) << "more is shown than the words";
    probe.tap(XK_s);
    EXPECT_TRUE(noCue()) << "stands below";
    EXPECT_FALSE(letters({screenWidth / 4, 0, screenWidth / 2, screenHeight / 4}).empty()) << "does not stand above";
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Subtitles, keys_bring_the_lines_of_files_and_those_inside_in_step) {
    const std::string beside = movie({{"srt", subRip}});
    const std::string folder = std::filesystem::path(beside).parent_path();
    const std::string inside = media()
                                   .make("instep.mkv", {"-i", numbered("subtitled.mp4", red, 300), "-i",
                                                        folder + "/film.srt", "-c", "copy", "-c:s", "srt"})
                                   .string();
    for (const std::string& file : {beside, inside}) {
        SCOPED_TRACE(file);
        startStanding(file);
        jump(1, 2);
        const std::vector<bool> first = cue();
        ASSERT_FALSE(first.empty());
        jump(1, 4);
        EXPECT_TRUE(noCue());
        probe.tap(XK_z, {XK_Alt_L}); // the first line is spoken now
        EXPECT_TRUE(cueBecomes(first));
        probe.tap(XK_x);
        EXPECT_TRUE(noCue()) << "it is not later by a step";
        probe.tap(XK_z);
        EXPECT_TRUE(cueBecomes(first));
        probe.tap(XK_x, {XK_Shift_L});
        EXPECT_TRUE(noCue()) << "the file's own times are not back";
        ASSERT_TRUE(quitsCleanly());
    }
}

TEST_F(Subtitles, a_second_track_stands_at_the_top_at_the_same_time) {
    const auto cueOfAll = [](const std::string& text) { return "1\n00:00:00,000 --> 00:00:09,000\n" + text + "\n\n"; };
    const std::string film = movie({{"a.srt", cueOfAll("Below")}, {"b.srt", cueOfAll("Above")}});
    startStanding(film);
    const auto stands = [&] { return !letters({screenWidth / 4, 0, screenWidth / 2, screenHeight / 4}).empty(); };
    ASSERT_FALSE(cue().empty());
    EXPECT_FALSE(stands());
    probe.tap(XK_s, {XK_Alt_L});
    EXPECT_TRUE(logs("Set Text: Above"));
    EXPECT_TRUE(waitUntil(stands));
    EXPECT_FALSE(cue().empty()) << "the first one went";
    ASSERT_TRUE(quitsCleanly());
    // It is remembered with its movie.
    startStanding(film);
    EXPECT_TRUE(waitUntil(stands));
    probe.tap(XK_s, {XK_Alt_L});
    EXPECT_TRUE(waitUntil([&] { return !stands(); }));
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Subtitles, a_playing_movie_shows_the_cue_of_the_moment) {
    start({movie({{"srt", subRip}})});
    // A cue may come a paint after its picture. Once it stands, it stands to its end, and so does the lack of one.
    struct Stretch {
        int from, to; // frames, both exclusive
        bool cue;
        bool asWanted = false;
    } stretches[] = {{-1, 30, false}, {30, 90, true}, {90, 150, false}, {150, 210, true}};
    ASSERT_TRUE(frameBecomes(
        [&](int before) {
            const bool seen = !letters().empty();
            const std::optional<int> after = frame();
            for (Stretch& stretch : stretches) {
                if (before <= stretch.from || !after || *after >= stretch.to)
                    continue;
                EXPECT_TRUE(seen == stretch.cue || !stretch.asWanted) << before;
                stretch.asWanted = stretch.asWanted || seen == stretch.cue;
            }
            return before > 212;
        },
        "one after the second cue"));
    for (const Stretch& stretch : stretches)
        EXPECT_TRUE(stretch.asWanted) << "after " << stretch.from;
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Subtitles, keys_cycle_through_the_tracks_and_off_and_on) {
    const auto cueOfAll = [](const std::string& text) { return "1\n00:00:00,000 --> 00:00:09,000\n" + text + "\n\n"; };
    startStanding(movie({{"a.srt", cueOfAll("Apples")}, {"b.SRT", cueOfAll("Bread and butter")}, {"c.sub", microDVD}}));
    const std::vector<bool> apples = cue();
    probe.tap(XK_d, {});
    probe.tap(XK_d, {});
    probe.tap(XK_d, {});
    ASSERT_TRUE(logs("QVOSDOverlay: Set Text: Subtitles: film.a.srt (1/3)"));
    probe.tap(XK_s);
    ASSERT_TRUE(logs("QVFeedbackOverlay: Set Text: Subtitles: film.b.SRT (2/3)"));
    EXPECT_TRUE(logs("QVOSDOverlay: Set Text: Subtitles: film.b.SRT (2/3)"));
    EXPECT_TRUE(waitUntil([&] { return !letters().empty() && letters() != apples; }));
    probe.tap(XK_s);
    ASSERT_TRUE(logs("QVFeedbackOverlay: Set Text: Subtitles: film.c.sub (3/3)"));
    EXPECT_TRUE(noCue());
    probe.tap(XK_s);
    ASSERT_TRUE(logs("QVFeedbackOverlay: Set Text: Subtitles: Off"));
    EXPECT_TRUE(logs("QVOSDOverlay: Set Text: Subtitles: Off"));
    std::size_t from = player->lineCount();
    probe.tap(XK_s);
    ASSERT_TRUE(logs("QVFeedbackOverlay: Set Text: Subtitles: film.a.srt (1/3)", from));
    EXPECT_TRUE(cueBecomes(apples));
    probe.tap(XK_s, {XK_Shift_L});
    EXPECT_TRUE(noCue());
    ASSERT_TRUE(quitsCleanly());

    startStanding(movie({{"srt", cueOfAll("Apples")}}));
    EXPECT_TRUE(noCue()) << "off is not kept for the next launch";
    probe.tap(XK_s);
    EXPECT_TRUE(cueBecomes(apples));
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Subtitles, the_setting_for_the_encoding_decides_how_bytes_read) {
    const std::string times = "1\n00:00:00,000 --> 00:00:09,000\n";
    const std::string russian = times + "\xCF\xF0\xE8\xE2\xE5\xF2\n"; // in Windows 1251
    startStanding(movie({{"srt", times + "Привет\n"}}));
    const std::vector<bool> wanted = cue();
    ASSERT_FALSE(wanted.empty());
    ASSERT_TRUE(quitsCleanly());
    startStanding(movie({{"srt", russian}}), {"--set", "QVSubtitlesDefaultEncoding=11"});
    EXPECT_TRUE(cueBecomes(wanted));
    ASSERT_TRUE(quitsCleanly());
    startStanding(movie({{"srt", russian}}), {"--set", "QVSubtitlesDefaultEncoding=12"});
    EXPECT_TRUE(waitUntil([&] { return !letters().empty(); }));
    EXPECT_NE(cue(), wanted);
    ASSERT_TRUE(quitsCleanly());
}
