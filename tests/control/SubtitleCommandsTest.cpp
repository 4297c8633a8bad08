// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/QVMovieController.h"
#include "settings/QVOverlayStyleDefaults.h"
#include "tests/control/MovieControllerRig.h"

namespace {

class SubtitleCommands : public MovieControllerRig {
protected:
    /// What stands below the tracks.
    static std::string below() {
        QStringList titles;
        for (const char* title : {"Second Subtitles", "Add Subtitles...", "-", "Show Earlier", "Show Later",
                                  "As in the File", "First Line Is Spoken Now", "Last Line Is Spoken Now", "-",
                                  "Larger Text", "Smaller Text", "Higher", "Lower", "-", "Repair"})
            titles << platform::localizedString(title);
        return titles.join(u'|').toStdString();
    }
};

/// Lines at 10, 100 and 190 seconds, for two seconds each.
class ThreeLines final : private FakeTrackParts, public QVSubtitles {
public:
    ThreeLines()
        : QVSubtitles(FakeTrackParts::settings, {}, FakeTrackParts::owner, typeNone, 1.0F, Loading::atOnce) {}
    void setEncoding(std::uint32_t) override {}
    bool isTextBased() const override { return true; }
    bool isImageBased() const override { return false; }
    std::string at(double seconds) {
        const auto cue = subtitleForTime(static_cast<std::int32_t>(seconds * 600));
        return cue ? cue->text().toStdString() : "";
    }

protected:
    void _preload() override {
        for (const auto& [second, text] : {std::pair(10, "<i>One</i>"), {100, "Two"}, {190, "Three"}})
            appendSubtitle(std::make_shared<QVSubtitle>(QString(text), second * 600, (second + 2) * 600));
        finishLoading();
    }
    const char* className() const override { return "ThreeLines"; }
};

} // namespace

TEST_F(SubtitleCommands, The_subtitles_menu_lists_the_tracks_below_its_fixed_items) {
    subtitlesMenu.addItem("fixed", "changeSubtitles", -1);
    subtitlesMenu.addSeparator();
    const auto none = open("file:///movies/a.mp4");
    const auto two = open("file:///movies/a.mp4");
    two->addSubtitleFile("German English");
    for (const auto& movie : {two, two, none, two}) {
        post(QVPlaylistMovieChangedNotification{movie});
        EXPECT_EQ(titles(subtitlesMenu),
                  (movie == two ? text("Off") + "|-|German|English" : text("None")) + "|-|" + below());
    }
    EXPECT_EQ(subtitlesMenu.itemAt(3).tag, 1);
    EXPECT_EQ(subtitlesMenu.itemAt(3).action, "changeSubtitles");
    view.setMovie(nullptr);
}

TEST_F(SubtitleCommands, Repairing_is_switched_by_key_and_menu_and_its_item_is_checked) {
    subtitlesMenu.addItem("fixed", "changeSubtitles", -1);
    const auto movie = open("file:///movies/a.mp4");
    movie->addSubtitleFile("German");
    post(QVPlaylistMovieChangedNotification{movie});
    const auto repair = [this]() -> platform::MenuItem& { return subtitlesMenu.itemAt(subtitlesMenu.count() - 1); };
    for (const bool isOn : {true, false, true}) {
        if (isOn)
            controller.performMenuItem(repair());
        else
            press(u'r');
        EXPECT_EQ(posted(), text(isOn ? "Repair: On" : "Repair: Off"));
        EXPECT_TRUE(controller.validateMenuItem(repair()));
        EXPECT_EQ(repair().state, isOn);
        EXPECT_EQ(settings.defaults().boolForKey(kQVSubtitlesRepair), isOn);
        EXPECT_EQ(titles(subtitlesMenu), text("Off") + "|-|German|-|" + below());
    }
}

TEST_F(SubtitleCommands, A_track_chosen_says_what_was_lost_of_it_once_it_has_been_read) {
    const auto movie = open("file:///movies/a.mp4");
    movie->addSubtitleFile("German");
    post(QVPlaylistMovieChangedNotification{movie});
    auto& track = static_cast<FakeTrack&>(*subtitles.current());
    const std::string losses = "Subtitles: these\n3 lost";
    press(u's');
    EXPECT_EQ(posted(), "Subtitles: these") << "nothing was lost";
    subtitles.losses = "3 lost";
    press(u's');
    EXPECT_EQ(posted(), losses);
    confirmations.last.clear();
    perform("changeSubtitles", 0);
    EXPECT_EQ(posted(), losses);

    track.loading = true;
    press(u's');
    EXPECT_EQ(posted(), "Subtitles: these") << "told before it was read";
    track.loading = false;
    for (const std::string& said : {losses, std::string()}) {
        confirmations.last.clear();
        post(QVSubtitlesLoadedNotification{subtitles.current()});
        EXPECT_EQ(posted(), said) << "once for each choice";
    }
}

TEST_F(SubtitleCommands, Subtitles_are_brought_in_step_by_steps_and_by_two_lines) {
    using namespace platform::modifier;
    platform::setLocalizationLanguages({"en"});
    press(u'z');
    EXPECT_EQ(posted(), "Subtitles: these") << "without a track";
    const auto track = std::make_shared<ThreeLines>();
    subtitles.setCurrent(track);
    toolkit.duration = 600 * 600;
    view.setMovie(open("file:///movies/a.mp4"));
    const struct {
        const char* what;
        double now;
        char16_t key;
        std::uint32_t modifiers;
        const char* said;
        double shown;
        const char* line;
    } cases[] = {
        {"earlier", 0, u'z', 0, "Subtitle delay: \u221250 ms", 9.96, "<i>One</i>"},
        {"later, from there", 0, u'x', 0, "Subtitle delay: 0 ms", 9.96, ""},
        {"as other players have it", 0, u'z', shift, "Subtitle delay: +50 ms", 12.04, "<i>One</i>"},
        {"taken back", 0, u'x', shift, "Subtitle delay: 0 ms", 12.04, ""},
        {"the first line", 10.5, u'z', option, "Subtitle delay: +500 ms\nOne", 192.4, "Three"},
        {"the last, which stretches those between", 199.5, u'x', option, "Subtitle delay: 0 ms, 105.00 %\nThree", 106,
         "Two"},
        {"the first stays", 199.5, u'z', 0, "Subtitle delay: \u221250 ms, 105.00 %", 10.46, "<i>One</i>"},
        {"the first again, at the same speed", 30.5, u'z', option, "Subtitle delay: +20.00 s, 105.00 %\nOne", 219.6,
         "Three"},
        {"nobody means that", 590, u'x', option,
         "The lines cannot be brought in step: they would be more than twice as fast or as slow", 219.6, "Three"},
    };
    for (const auto& c : cases) {
        view.setTime(static_cast<std::int32_t>(c.now * 600));
        press(c.key, c.modifiers);
        EXPECT_EQ(posted(), c.said) << c.what;
        EXPECT_EQ(track->at(c.shown), c.line) << c.what;
    }
    EXPECT_FALSE(CueShift::through(5, 1, 5, 2)) << "one line has no speed";
    EXPECT_FALSE(CueShift::from(0, 1e300));
    subtitles.setCurrent(nullptr);
    platform::setLocalizationLanguages({});
}

TEST_F(SubtitleCommands, Second_subtitles_are_another_text_at_the_same_time_and_stay_with_their_movie) {
    using namespace platform::modifier;
    platform::setLocalizationLanguages({"en"});
    toolkit.tracks = {{.kind = platform::MovieTrack::Kind::subtitles,
                       .id = 1,
                       .language = "ger",
                       .content = platform::MovieTrack::Content::text},
                      {.kind = platform::MovieTrack::Kind::subtitles,
                       .id = 2,
                       .language = "fra",
                       .content = platform::MovieTrack::Content::bitmaps}};
    const auto movie = open("file:///movies/a.mp4");
    movie->addSubtitleFile("beside");
    press(u's', option);
    EXPECT_EQ(posted(), "Second subtitles: None") << "no movie";
    view.setMovie(movie);
    post(QVPlaylistMovieChangedNotification{movie});
    subtitles.setCurrent(movie->subtitles()[0]);
    const auto isFirst = [&] { return subtitles.shownTrack() == movie->subtitles()[0]; };
    ASSERT_TRUE(isFirst());
    // What is shown already, and bitmaps, are left out of the cycle and refused by the menu.
    for (const char* said : {"Second subtitles: German", "Second subtitles: Off", "Second subtitles: German"}) {
        press(u's', option);
        EXPECT_EQ(posted(), said);
    }
    EXPECT_EQ(movie->selection().secondSubtitles, 1);
    for (const int position : {0, 2}) {
        perform("changeSecondSubtitles", position);
        EXPECT_EQ(posted(), "Only texts can be shown as second subtitles, and no track twice");
        EXPECT_EQ(secondSubtitles.current(), movie->subtitles()[1]);
    }
    movie->playerReadSecondSubtitle({QStringLiteral("Hallo"), 1, 2});
    EXPECT_EQ(movie->subtitles()[1]->secondCueForTime(900)->text(), "Hallo");
    platform::Menu menu;
    controller.fillSecondMenu(menu);
    EXPECT_EQ(titles(menu), "Off|-|beside|German|French");
    EXPECT_TRUE(controller.validateMenuItem(menu.itemAt(3)) && menu.itemAt(3).state);
    EXPECT_FALSE(controller.validateMenuItem(menu.itemAt(2)));
    // It comes back with the movie, and goes when it becomes the first.
    subtitles.setSavedPath(QStringLiteral(""), 0);
    post(QVPlaylistMovieChangedNotification{open("file:///movies/b.mp4")});
    EXPECT_FALSE(secondSubtitles.current());
    EXPECT_EQ(movie->selection().secondSubtitles, 0);
    post(QVPlaylistMovieChangedNotification{movie});
    EXPECT_EQ(secondSubtitles.current(), movie->subtitles()[1]);
    subtitles.setCurrent(movie->subtitles()[1]);
    EXPECT_FALSE(secondSubtitles.current());
    view.setMovie(nullptr);
    post(QVPlaylistMovieChangedNotification{nullptr});
    platform::setLocalizationLanguages({});
}

TEST_F(SubtitleCommands, The_text_of_subtitles_grows_and_rises_by_keys_within_limits) {
    using namespace platform::modifier;
    const auto size = [this] {
        return QVOverlayStyleDefaults::overlayStyleDefaultsWithKey(settings.defaults(), kQVSubtitlesOverlayStyle)
            ->values()
            .textFontSize;
    };
    ASSERT_EQ(size(), 44);
    press(u'+', option);
    EXPECT_EQ(size(), 48);
    press(u'-', option);
    EXPECT_EQ(size(), 43);
    for (int times = 0; times < 60; ++times)
        press(u'+', option);
    EXPECT_EQ(size(), 200);
    press(platform::functionKey::pageUp, option);
    EXPECT_EQ(posted(), text("Subtitle height: %d", {"2"}));
    press(platform::functionKey::pageDown, option);
    press(platform::functionKey::pageDown, option);
    EXPECT_EQ(settings.defaults().integerForKey(kQVSubtitlesHeight), 0);
    perform("addSubtitles", 0);
    EXPECT_EQ(services.calls, QStringList("add subtitles"));
}

TEST_F(SubtitleCommands, Sound_comes_earlier_and_later_by_keys) {
    using namespace platform::modifier;
    platform::setLocalizationLanguages({"en"});
    press(u'-', control); // nothing to be heard
    const auto movie = show();
    for (const auto& [key, said, seconds] : {std::tuple(u'+', "Sound delay: +50 ms", 0.05),
                                             {u'-', "Sound delay: 0 ms", 0.0},
                                             {u'-', "Sound delay: \u221250 ms", -0.05},
                                             {u'0', "Sound delay: 0 ms", 0.0}}) {
        press(key, control);
        EXPECT_EQ(posted(), said);
        EXPECT_EQ(movie->selection().audioDelay, seconds);
    }
    movie->setAudioDelay(2'000'000'000);
    EXPECT_EQ(movie->selection().audioDelay, 600);
    platform::setLocalizationLanguages({});
}
