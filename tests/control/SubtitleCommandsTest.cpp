// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/QVMovieController.h"
#include "tests/control/MovieControllerRig.h"

namespace {

class SubtitleCommands : public MovieControllerRig {};

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
                  (movie == two ? text("Off") + "|-|German|English" : text("None")) + "|-|" + text("Repair"));
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
        EXPECT_EQ(titles(subtitlesMenu), text("Off") + "|-|German|-|" + text("Repair"));
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
