// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/context/Notifications.h"
#include "tests/control/ControllerFixture.h"
#include "tests/support/FakeSubtitles.h"

namespace {

class MovieControllerMenus : public ControllerFixture {
protected:
    struct Validated {
        bool enabled;
        bool state;
        std::string title;
    };
    Validated validate(const char* action, int tag) {
        platform::MenuItem item;
        item.action = QString::fromUtf8(action);
        item.tag = tag;
        item.title = QStringLiteral("unchanged");
        item.state = true;
        const bool enabled = controller->validateMenuItem(item);
        return {enabled, item.state, item.title.toStdString()};
    }
    void perform(const char* action, int tag) {
        platform::MenuItem item;
        item.action = QString::fromUtf8(action);
        item.tag = tag;
        controller->performMenuItem(item);
    }
    static QStringList titles(const platform::Menu& menu) {
        QStringList list;
        for (int index = 0; index < menu.count(); ++index)
            list << (menu.itemAt(index).separator ? QStringLiteral("-") : menu.itemAt(index).title);
        return list;
    }
};

} // namespace

TEST_F(MovieControllerMenus, Exactly_the_item_of_the_present_size_looping_and_movie_is_checked) {
    addMovies(3);
    playlist.setIndex(1);
    playlist.setLooping(looping::one);
    view.setMovieSize(movieSize::fitWidth, QVMovieView::Recalculation::ifChanged);
    const struct {
        const char* action;
        int checked;
    } cases[] = {{"changeSize", movieSize::fitWidth}, {"changeLooping", looping::one}, {"changeMovie", 1}};
    for (const auto& c : cases) {
        for (int tag = -3; tag <= 6; ++tag) {
            const Validated item = validate(c.action, tag);
            EXPECT_TRUE(item.enabled);
            EXPECT_EQ(item.state, tag == c.checked) << c.action << tag;
        }
    }
    EXPECT_TRUE(validate("playPrevNext", -1).enabled && validate("playPrevNext", 1).enabled);
    playlist.setIndex(2);
    EXPECT_FALSE(validate("playPrevNext", 1).enabled) << "nothing follows the last movie";
    EXPECT_FALSE(validate("changeSubtitles", -1).enabled || validate("changeSubtitles", 0).enabled) << "no tracks";
    EXPECT_TRUE(validate("somebodyElses", 0).enabled);
    EXPECT_FALSE(controller->handlesMenuAction(QStringLiteral("somebodyElses")));
}

TEST_F(MovieControllerMenus, Play_and_motion_items_are_named_after_what_they_would_do) {
    addMovies(1);
    const struct {
        float rate;
        const char *play, *forward, *backward;
    } cases[] = {{0, "Play", "Step Forward", "Step Backward"},
                 {1, "Pause", "Fast Forward", "Rewind"},
                 {2, "Play", "Fast Forward", "Rewind"},
                 {-2, "Play", "Fast Forward", "Rewind"}};
    for (const auto& c : cases) {
        view.setRate(c.rate);
        EXPECT_EQ(validate("startStop", 0).title, text(c.play)) << c.rate;
        EXPECT_EQ(validate("fastForwardRewind", 1).title, text(c.forward)) << c.rate;
        EXPECT_EQ(validate("fastForwardRewind", -1).title, text(c.backward)) << c.rate;
        EXPECT_EQ(validate("fastForwardRewind", 0).title, "unchanged");
    }
}

TEST_F(MovieControllerMenus, Motion_items_step_a_stopped_movie_and_speed_a_playing_one) {
    addMovies(1);
    perform("fastForwardRewind", -1);
    perform("fastForwardRewind", 1);
    EXPECT_EQ(player().steps, (std::vector{-1, 1}));
    perform("startStop", 0);
    perform("fastForwardRewind", 1);
    perform("fastForwardRewind", 2);
    EXPECT_EQ(view.rate(), 2.0F);
    perform("fastForwardRewind", -1);
    EXPECT_EQ(view.rate(), -2.0F);
}

TEST_F(MovieControllerMenus, Items_carry_their_tag_to_what_they_act_on) {
    addMovies(3);
    perform("changeMovie", 2);
    EXPECT_EQ(playlist.index(), 2U);
    perform("changeMovie", -1);
    EXPECT_EQ(playlist.index(), 2U);
    perform("playPrevNext", -1);
    EXPECT_EQ(playlist.index(), 1U);
    perform("changeLooping", looping::all);
    EXPECT_EQ(playlist.looping(), looping::all);
    perform("changeSize", movieSize::half);
    EXPECT_EQ(view.movieSize(), movieSize::half);
    perform("jump", 1);
    EXPECT_EQ(view.time(), 10 * 600);
    perform("beginningEnd", 1);
    EXPECT_EQ(view.time(), view.movie()->duration());
    EXPECT_EQ(posted(), text("Movie: End"));
    perform("beginningEnd", -1);
    EXPECT_EQ(view.time(), 0);
    perform("changeSubtitles", -1);
    EXPECT_EQ(subtitles.positions, (std::vector<std::int32_t>{-1}));
}

TEST_F(MovieControllerMenus, The_playlist_menu_lists_the_file_names) {
    playlistMenu.addItem(QStringLiteral("old"), QString(), 0);
    playlist.addURLs({QUrl::fromLocalFile(QStringLiteral("/a/50% & #1 \u00e4.mp4")),
                      QUrl(QStringLiteral("http://host/dir/b%20c.mkv?x=/y")),
                      QUrl(QStringLiteral("http://host/live/"))},
                     Adding::replace, Starting::no);
    EXPECT_EQ(titles(playlistMenu),
              (QStringList{QStringLiteral("50% & #1 \u00e4.mp4"), QStringLiteral("b c.mkv"), QStringLiteral("live")}));
    for (int index = 0; index < playlistMenu.count(); ++index) {
        EXPECT_EQ(playlistMenu.itemAt(index).tag, index);
        EXPECT_EQ(playlistMenu.itemAt(index).action, QStringLiteral("changeMovie"));
    }
    platform::NotificationCenter::defaultCenter().post(QVPlaylistChangedNotification{});
    EXPECT_EQ(playlistMenu.count(), 0);
}

TEST_F(MovieControllerMenus, The_subtitles_menu_lists_the_tracks_below_its_fixed_items) {
    const FakeRegistry registry;
    subtitlesMenu.addItem(QStringLiteral("fixed"), QStringLiteral("changeSubtitles"), -1);
    subtitlesMenu.addSeparator();
    const auto none = std::make_shared<QVMovie>(ScriptedToolkit::plainMovie(QUrl()), player());
    const auto two = std::make_shared<QVMovie>(ScriptedToolkit::plainMovie(QUrl()), player());
    two->addSubtitleFile(QStringLiteral("German English"));
    const QStringList withoutTracks{QString::fromStdString(text("None"))};
    const QStringList withTracks{QString::fromStdString(text("Off")), QStringLiteral("-"), QStringLiteral("German"),
                                 QStringLiteral("English")};
    const struct {
        std::shared_ptr<QVMovie> movie;
        const QStringList& expected;
    } cases[] = {
        {two, withTracks}, {two, withTracks}, {none, withoutTracks}, {nullptr, withoutTracks}, {two, withTracks}};
    for (const auto& c : cases) {
        platform::NotificationCenter::defaultCenter().post(QVPlaylistMovieChangedNotification{c.movie});
        EXPECT_EQ(titles(subtitlesMenu), c.expected);
    }
    EXPECT_EQ(subtitlesMenu.itemAt(3).tag, 1);
    EXPECT_EQ(subtitlesMenu.itemAt(3).action, QStringLiteral("changeSubtitles"));
    view.setMovie(nullptr);
}
