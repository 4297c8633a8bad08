// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/MediaSession.h"

#include "playback/QVMovie.h"
#include "settings/SettingsKeys.h"
#include "tests/app/AppRig.h"

#include <gtest/gtest.h>

#include <QFileInfo>

using platform::MediaState;

namespace {

class FakeMediaControls final : public platform::MediaControls {
public:
    int starts = 0;
    QStringList told;
    void start(platform::MediaControlled&) override { ++starts; }
    void stateChanged() override { told << "state"; }
    void tracksChanged() override { told << "tracks"; }
    void positionJumped() override { told << "jump"; }
};

/// A player of three movies of a minute each, the first one at rest, whose controls stand.
struct MediaRig : AppRig {
    MediaRig()
        : AppRig({{kQVOnLaunchDefaultAction, 0}, {kQVPlaylistAutoPlay, false}}) {
        launch();
        for (const char* name : {"1.mp4", "2.mp4", "3.mp4"})
            app.openFile(file(name));
        settings.runLoop.advance(0.2);
        EXPECT_EQ(listed(), "1.mp4 2.mp4 3.mp4");
    }
    void stand() {
        session.mediaControlsStand();
        pass();
    }
    /// Lets what changed be told, and answers what was.
    QStringList pass(double seconds = 0.1) {
        settings.runLoop.advance(seconds);
        return std::exchange(controls.told, {});
    }
    /// Lets the movie play.
    void play(double seconds) {
        for (double passed = 0; passed < seconds; passed += 0.1) {
            toolkit.scriptedPlayer.advance(0.1);
            settings.runLoop.advance(0.1);
        }
    }
    QString title() { return session.state().track.title; }
    std::uint64_t numberAt(std::size_t index) { return session.tracks().at(index); }

    FakeMediaControls controls;
    QStringList opened;
    int raised = 0;
    MediaSession session{settings.environment,
                         {controls, view, objects->playlist(), objects->controller(), desktop, toolkit,
                          [this](const QString& address) { opened << address; }, [this] { ++raised; }}};
};

} // namespace

TEST(MediaSessionTest, the_player_is_offered_after_the_first_picture_and_followed_only_where_controls_stand) {
    MediaRig rig;
    rig.settings.runLoop.advance(AfterFirstPicture::latest + 0.1);
    EXPECT_EQ(rig.controls.starts, 1);
    rig.session.play();
    rig.play(3);
    EXPECT_EQ(rig.pass(3), QStringList());
    EXPECT_TRUE(rig.toolkit.coversAsked.isEmpty()) << "nobody would see the picture";
}

TEST(MediaSessionTest, playing_is_told_as_it_is_and_reckoned_places_are_not_told) {
    MediaRig rig;
    rig.stand();
    EXPECT_EQ(rig.session.state().playback, MediaState::Playback::stopped);
    rig.session.play();
    EXPECT_EQ(rig.pass(), QStringList{"state"});
    EXPECT_EQ(rig.session.state().playback, MediaState::Playback::playing);
    rig.play(5);
    rig.pass();
    rig.play(5);
    EXPECT_EQ(rig.pass(), QStringList()) << "who knows the rate knows the place";
    rig.session.setPosition(40'000'000);
    EXPECT_EQ(rig.session.position(), 40'000'000);
    rig.play(0.5);
    EXPECT_EQ(rig.pass(), QStringList{"jump"});
    rig.session.pause();
    rig.view.setSpeed(2);
    EXPECT_EQ(rig.pass(), QStringList{"state"}) << "together";
    EXPECT_EQ(rig.session.state().playback, MediaState::Playback::paused);
    EXPECT_EQ(rig.session.state().rate, 2);
    rig.session.setPosition(41'000'000);
    EXPECT_EQ(rig.pass(), QStringList{"jump"});
    rig.session.stop();
    EXPECT_EQ(rig.session.position(), 0);
    EXPECT_EQ(rig.session.state().playback, MediaState::Playback::stopped);
    EXPECT_EQ(rig.pass(), (QStringList{"state", "jump"}));
    // Fast motion is paused, too.
    rig.session.play();
    rig.view.setRate(8);
    rig.session.pause();
    EXPECT_FALSE(rig.view.isPlaying());
}

TEST(MediaSessionTest, what_can_be_set_is_set_and_told) {
    MediaRig rig;
    rig.stand();
    rig.session.setVolume(0.25);
    EXPECT_EQ(rig.pass(), QStringList{"state"});
    EXPECT_EQ(rig.session.state().volume, 0.25);
    rig.view.setMuted(true);
    EXPECT_EQ(rig.session.state().volume, 0);
    rig.session.setVolume(0.5);
    EXPECT_FALSE(rig.view.isMuted());
    rig.session.setRate(9);
    EXPECT_EQ(rig.session.state().rate, 4);
    rig.session.setLooping(MediaState::Looping::all);
    EXPECT_EQ(rig.session.state().looping, MediaState::Looping::all);
    EXPECT_TRUE(rig.session.state().canGoPrevious) << "around";
    const std::int32_t arrangement = rig.settings.defaults().integerForKey(kQVPlaylistDefaultArrangement);
    rig.pass();
    rig.session.setShuffled(true);
    EXPECT_TRUE(rig.session.state().isShuffled);
    EXPECT_EQ(rig.pass(), (QStringList{"tracks", "state"}));
    rig.session.setShuffled(true);
    rig.session.setShuffled(false);
    EXPECT_EQ(rig.settings.defaults().integerForKey(kQVPlaylistDefaultArrangement), arrangement) << "as it was before";
    rig.session.raise();
    rig.session.open("https://host/film");
    EXPECT_EQ(rig.raised, 1);
    EXPECT_EQ(rig.opened, QStringList{"https://host/film"});
}

TEST(MediaSessionTest, another_movie_is_shown_at_rest_or_playing_as_the_one_before) {
    MediaRig rig;
    rig.stand();
    EXPECT_FALSE(rig.session.state().canGoPrevious);
    rig.session.previous();
    EXPECT_EQ(rig.title(), "1.mp4");
    rig.session.next();
    EXPECT_EQ(rig.title(), "2.mp4");
    EXPECT_FALSE(rig.view.isPlaying());
    EXPECT_EQ(rig.pass(), (QStringList{"tracks", "state"}));
    rig.session.play();
    rig.session.next();
    EXPECT_TRUE(rig.view.isPlaying());
    EXPECT_EQ(rig.title(), "3.mp4");
    rig.session.next();
    EXPECT_EQ(rig.title(), "3.mp4") << "none follows";
    rig.session.goTo(rig.numberAt(0));
    EXPECT_EQ(rig.title(), "1.mp4");
    EXPECT_TRUE(rig.view.isPlaying());
    EXPECT_EQ(rig.session.state().track.length, 60'000'000);
    EXPECT_TRUE(rig.session.state().track.url.endsWith("/1.mp4"));
}

TEST(MediaSessionTest, the_list_is_changed_by_numbers_that_stay) {
    MediaRig rig;
    rig.stand();
    const std::vector<std::uint64_t> before = rig.session.tracks();
    const auto add = [&rig](const QString& name, std::uint64_t after, bool current) {
        rig.session.addTrack(QUrl::fromLocalFile(rig.file(name)).toString(), after, current);
        rig.settings.runLoop.advance(0.5);
        return rig.listed();
    };
    EXPECT_EQ(add("4.mp4", before[0], false), "1.mp4 4.mp4 2.mp4 3.mp4");
    EXPECT_EQ(add("5.mp4", 0, true), "5.mp4 1.mp4 4.mp4 2.mp4 3.mp4");
    EXPECT_EQ(rig.title(), "5.mp4");
    EXPECT_EQ(add("6.mp4", 12345, false), "5.mp4 1.mp4 4.mp4 2.mp4 3.mp4 6.mp4");
    EXPECT_EQ(rig.numberAt(1), before[0]);
    EXPECT_EQ(rig.session.track(before[2]).title, "3.mp4");
    rig.session.removeTrack(before[1]);
    EXPECT_EQ(rig.listed(), "5.mp4 1.mp4 4.mp4 3.mp4 6.mp4");
    EXPECT_EQ(rig.session.track(before[1]).number, 0U);
    rig.session.removeTrack(rig.numberAt(0));
    EXPECT_EQ(rig.listed(), "1.mp4 4.mp4 3.mp4 6.mp4") << "the current one gives way";
    EXPECT_EQ(rig.title(), "1.mp4");
    rig.session.removeTrack(999);
    EXPECT_EQ(rig.session.tracks().size(), 4U);
    EXPECT_TRUE(rig.pass().contains("tracks"));
}

TEST(MediaSessionTest, a_cover_or_else_a_still_is_written_for_others_and_goes_with_the_movie) {
    MediaRig rig;
    QImage still(640, 480, QImage::Format_RGB32);
    still.fill(Qt::red);
    const auto art = [&rig] { return QFileInfo(rig.session.state().track.art.toLocalFile()); };
    const auto writes = [&rig] {
        rig.settings.runLoop.advance(MediaArtwork::delay + 0.1);
        rig.settings.runLoop.advance(0.1);
        for (const auto& asked : std::exchange(rig.toolkit.keyframes, {})) {
            if (const auto completion = asked.completion.lock()) {
                QImage keyframe(320, 200, QImage::Format_RGB32);
                keyframe.fill(Qt::green);
                (*completion)(keyframe);
            }
        }
        EXPECT_TRUE(platform::background::waitUntilIdle(30));
        rig.settings.runLoop.advance(0.1);
    };
    rig.stand();
    EXPECT_TRUE(rig.session.state().track.art.isEmpty());
    writes();
    ASSERT_TRUE(art().exists());
    const QString first = art().filePath();
    EXPECT_EQ(QImage(first).pixelColor(0, 0), QColor(Qt::green)) << "a still";
    EXPECT_TRUE(rig.pass().contains("state"));

    rig.toolkit.cover = still;
    rig.session.next();
    EXPECT_TRUE(rig.session.state().track.art.isEmpty());
    writes();
    ASSERT_TRUE(art().exists());
    EXPECT_EQ(QImage(art().filePath()).size(), QSize(512, 384)) << "a cover, made small";
    EXPECT_FALSE(QFileInfo::exists(first));
}
