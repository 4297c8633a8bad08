// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/QVSubtitlesController.h"

#include "platform/base/Localization.h"
#include "settings/SettingsKeys.h"
#include "subtitles/QVSubtitle.h"
#include "subtitles/SubtitleRegistry.h"
#include "subtitles/SubtitleView.h"
#include "subtitles/formats/SubtitleFormats.h"
#include "tests/support/Files.h"
#include "tests/support/PlaybackRig.h"

#include <algorithm>

namespace {

constexpr std::uint32_t none = 0xFFFFFFFF;
constexpr std::int32_t second = 600; // units of the scripted movies

/// Its file's name, "type-stream title", says what it is. Its cue "A" stands from 1 to 2 s, "B" from 3 to 4 s.
class Track final : public QVSubtitles {
public:
    Track(const platform::UserDefaults& settings, const QString& path, SubtitleOwner& owner, Type type,
          std::uint32_t stream)
        : QVSubtitles(settings, path, owner, type, 1.0F, Loading::atOnce)
        , _stream(stream) {}
    bool loading = false; // its cues come later, while the movie stands
    std::function<void()> observer;

    void readCues() {
        for (const auto& [text, from] : {std::pair{u'A', 1}, {u'B', 3}})
            appendSubtitle(std::make_shared<QVSubtitle>(QString(text), from * second, (from + 1) * second));
        finishLoading();
    }
    bool isLoading() const override { return loading; }
    void setLoadingObserver(std::function<void()> told) override { observer = std::move(told); }
    void setEncoding(std::uint32_t encoding) override {
        for (const auto& cue : cues())
            cue->setText(cue->text() + QString::number(encoding));
    }
    QString title() const override { return path().section(u' ', 1); }
    bool isTextBased() const override { return type() != typeVobSub; }
    bool isImageBased() const override { return type() == typeVobSub; }
    bool isFrameBased() const override { return type() == typeMicroDVD; }
    std::uint32_t streamIndex() const override { return _stream; }

protected:
    void _preload() override {
        if (!loading)
            readCues();
    }
    const char* className() const override { return "Track"; }

private:
    std::uint32_t _stream;
};

class Registry final : public SubtitleRegistry {
public:
    explicit Registry(const Environment& environment)
        : SubtitleRegistry({})
        , _environment(environment)
        , _readers(subtitleReaders(environment, nullptr)) {}
    QStringList subtitleUnfilteredFileTypes() const override { return _readers.subtitleUnfilteredFileTypes(); }
    std::vector<std::shared_ptr<QVSubtitles>> subtitlesWithFilePath(const QString& path,
                                                                    SubtitleOwner& owner) override {
        if (path.startsWith(u'/'))
            return _readers.subtitlesWithFilePath(path, owner);
        const auto type = static_cast<QVSubtitles::Type>(path.at(0).digitValue());
        const auto stream = static_cast<std::uint32_t>(path.at(2).digitValue());
        return {std::make_shared<Track>(_environment.settings, path, owner, type, stream)};
    }

private:
    Environment _environment;
    /// Of files that there are.
    SubtitleRegistry _readers;
};

/// Writes down what it is told.
class View final : public ImageSubtitleView {
public:
    explicit View(QStringList& told)
        : _told(told) {}
    void setSubtitle(const std::shared_ptr<QVSubtitle>& subtitle) override {
        if (subtitle != _subtitle)
            _told << (subtitle ? subtitle->text() : QStringLiteral("nothing"));
        _subtitle = subtitle;
    }
    void show() override { _told << QStringLiteral("show"); }
    void hide() override { _told << QStringLiteral("hide"); }
    void orderFront() override { _told << QStringLiteral("front"); }
    void currentSubtitlesChanged(const QVSubtitlesChangedNotification&) override {}
    void setMaxAlpha(float alpha) override { _told << QStringLiteral("alpha %1").arg(alpha); }
    void setFadingInInterval(double seconds) override { _told << QStringLiteral("in %1").arg(seconds); }
    void setFadingOutInterval(double seconds) override { _told << QStringLiteral("out %1").arg(seconds); }

private:
    QStringList& _told;
    std::shared_ptr<QVSubtitle> _subtitle;
};

class Scene final : public SubtitleScene {
public:
    explicit Scene(QVMovieView& view)
        : _view(view) {}
    QStringList text, image; // what the views were told
    std::unique_ptr<SubtitleView> createTextView() override { return std::make_unique<View>(text); }
    std::unique_ptr<ImageSubtitleView> createImageView() override { return std::make_unique<View>(image); }
    std::shared_ptr<SubtitleOwner> ownerOf(const std::shared_ptr<QVMovie>& movie) override { return movie; }
    std::shared_ptr<SubtitleOwner> shownMovie() override { return _view.movie(); }

private:
    QVMovieView& _view;
};

class SubtitlesController : public testing::Test {
protected:
    std::shared_ptr<QVMovie> movie(const QStringList& tracks) {
        auto made =
            QVMovie::movieWithOpened(rig.settings.environment, {rig.toolkit, rig.desktop, registry, rig.discovery},
                                     rig.toolkit.answerOf(QUrl(QStringLiteral("file:///movies/a.mp4"))));
        for (const QString& track : tracks)
            made->addSubtitleFile(track);
        return made;
    }
    std::shared_ptr<QVMovie> play(const QStringList& tracks) {
        auto made = movie(tracks);
        post(QVPlaylistMovieChangedNotification{made});
        return made;
    }
    template <class Notification>
    void post(const Notification& notification) {
        rig.post(notification);
    }
    void change(const QString& key, int value) {
        rig.settings.defaults().setInteger(value, key);
        rig.changePreference(key);
    }
    QString info() const { return controller.currentInfoAsString().section(u' ', 1); }
    bool displayStored() { return rig.settings.defaults().boolForKey(kQVDisplaySubtitles); }
    static QStringList taken(QStringList& told) { return std::exchange(told, {}); }

    PlaybackRig rig;
    Registry registry{rig.settings.environment};
    Scene scene{rig.view};
    QVSubtitlesController controller{rig.settings.environment, scene};
    const QStringList three{QStringLiteral("0-0 one"), QStringLiteral("1-0 two"), QStringLiteral("3-0 three")};
};

} // namespace

TEST_F(SubtitlesController, each_picture_gives_the_view_its_cue) {
    auto shown = movie({QStringLiteral("0-0 one")});
    post(QVPlaylistMovieChangedNotification{shown});
    EXPECT_TRUE(taken(scene.text).isEmpty()) << "a view was made before there was a cue for it";
    const struct {
        double time;
        const char* told;
    } pictures[] = {{0.5, ""},        {1, "front A"}, {1.5, ""},  {2, ""},
                    {2.5, "nothing"}, {3.5, "B"},     {1.2, "A"}, {0, "nothing"}};
    for (const auto& [time, told] : pictures) {
        shown->setTime(static_cast<std::int32_t>(time * second));
        EXPECT_EQ(taken(scene.text).join(u' ').toStdString(), told) << time;
    }
    controller.setDisplaySubtitles(false);
    shown->setTime(second);
    EXPECT_EQ(taken(scene.text), QStringList{QStringLiteral("hide")});
    controller.setDisplaySubtitles(true);
    EXPECT_EQ(taken(scene.text), (QStringList{QStringLiteral("A"), QStringLiteral("show")}))
        << "a resting picture is not told again";
    movie(three)->setTime(3 * second);
    EXPECT_TRUE(taken(scene.text).isEmpty()) << "another movie's time counts";
}

TEST_F(SubtitlesController, cycling_runs_through_the_tracks_and_off_both_ways) {
    play(three);
    controller.setDisplaySubtitles(false);
    const std::pair<int, const char*> steps[] = {
        {1, "one (1/3)"}, {1, "two (2/3)"},    {1, "three (3/3)"}, {1, "Off"},        {1, "one (1/3)"},
        {-1, "Off"},      {-1, "three (3/3)"}, {-1, "two (2/3)"},  {-1, "one (1/3)"}, {-1, "Off"}};
    for (const auto& [direction, shown] : steps) {
        controller.cycleSubtitles(direction);
        EXPECT_EQ(info().toStdString(), shown);
        EXPECT_EQ(displayStored(), info() != QStringLiteral("Off"));
    }
    EXPECT_EQ(controller.index(), none);
    controller.toggleSubtitles();
    EXPECT_EQ(info(), QStringLiteral("one (1/3)")) << "what was switched off comes back";
    controller.toggleSubtitles();
    EXPECT_EQ(info(), QStringLiteral("Off"));
}

TEST_F(SubtitlesController, whatever_changes_is_announced_once_with_the_track_selected) {
    const Posts<QVSubtitlesChangedNotification> posts(rig.settings.notifications);
    const auto shown = play(three);
    EXPECT_EQ(posts.count, 1);
    controller.setCurrenWithIndex(2);
    EXPECT_EQ(posts.count, 2);
    EXPECT_EQ(posts.last->current, shown->subtitles()[2]);
    controller.setCurrenWithIndex(2);
    EXPECT_EQ(posts.count, 2) << "announced without a change";
    controller.setCurrenWithIndex(3);
    EXPECT_EQ(posts.count, 3);
    play({});
    EXPECT_EQ(posts.last->current, nullptr);
}

TEST_F(SubtitlesController, the_next_movie_keeps_to_the_kind_of_track_chosen_last) {
    const struct {
        const char* name;
        int choice;
        QStringList next;
        const char* selected;
    } cases[] = {
        {"of the same kind", 1, {"0-0 x", "1-0 y"}, "y (2/2)"},
        {"of the same kind and stream", 3, {"2-0 x", "2-1 y"}, "y (2/2)"},
        {"of no such kind", 1, {"0-0 x", "3-0 y"}, "x (1/2)"},
        {"without tracks", 1, {}, "None"},
    };
    for (const auto& c : cases) {
        play({QStringLiteral("0-0 a"), QStringLiteral("1-0 b"), QStringLiteral("2-0 c"), QStringLiteral("2-1 d")});
        controller.setCurrenWithIndex(c.choice);
        play(c.next);
        EXPECT_EQ(info().toStdString(), c.selected) << c.name;
    }
    controller.setSavedPath(QStringLiteral("3-1 saved"), 1);
    play({QStringLiteral("1-0 x"), QStringLiteral("3-0 saved"), QStringLiteral("3-1 saved")});
    EXPECT_EQ(info(), QStringLiteral("saved (3/3)"));
    play({QStringLiteral("0-0 x"), QStringLiteral("3-1 other")});
    EXPECT_EQ(info(), QStringLiteral("other (2/2)")) << "the restored choice goes on as the kind chosen last";
}

TEST_F(SubtitlesController, a_movie_begins_with_the_first_track_of_the_first_wanted_language) {
    const struct {
        const char* name;
        QStringList wanted, tracks;
        const char* selected;
    } cases[] = {
        {"the user's language", {}, {"0-0 x.fr.srt", "0-0 x.en.srt"}, "x.en.srt (2/2)"},
        {"the order of the languages", {"fr", "de"}, {"0-0 x.de.srt", "0-0 x.fr.srt"}, "x.fr.srt (2/2)"},
        {"the next one", {"fr", "de"}, {"0-0 x.en.srt", "0-0 x.de.srt"}, "x.de.srt (2/2)"},
        {"none of them", {"fr"}, {"0-0 x.en.srt", "0-0 x.de.srt"}, "x.en.srt (1/2)"},
        {"the first of several", {"de"}, {"0-0 x.srt", "0-0 x.ger.srt", "0-0 x.de.srt"}, "x.ger.srt (2/3)"},
        {"a text before images", {"de"}, {"2-0 x.de.idx", "1-0 x.Deutsch.sub"}, "x.Deutsch.sub (2/2)"},
        {"all that is said", {"de"}, {"0-0 x.de.forced.srt", "0-0 x.de.srt"}, "x.de.srt (2/2)"},
        {"the country", {"pt-BR"}, {"0-0 x.pt-PT.srt", "0-0 x.pt.srt", "0-0 x.pt_br.srt"}, "x.pt_br.srt (3/3)"},
        {"no country before another", {"pt-BR"}, {"0-0 x.pt-PT.srt", "0-0 x.pt.srt"}, "x.pt.srt (2/2)"},
        {"for the hard of hearing", {"en", "hi"}, {"0-0 x.hi.srt", "0-0 x.en.hi.srt"}, "x.en.hi.srt (2/2)"},
        {"a title's word is no language", {"no"}, {"0-0 x.srt", "0-0 Dr.No.1962.srt"}, "x.srt (1/2)"},
    };
    platform::setLocalizationLanguages({QStringLiteral("en-US"), QStringLiteral("en")});
    for (const auto& c : cases) {
        rig.settings.defaults().setObject(c.wanted, kQVPreferredLanguages);
        play(c.tracks);
        EXPECT_EQ(info().toStdString(), c.selected) << c.name;
    }
    platform::setLocalizationLanguages({});
}

TEST_F(SubtitlesController, a_language_taken_by_hand_holds_until_others_are_wanted) {
    const QStringList german{QStringLiteral("0-0 x.en.srt"), QStringLiteral("0-0 x.de.srt")};
    const auto want = [&](const QStringList& languages) {
        rig.settings.defaults().setObject(languages, kQVPreferredLanguages);
        rig.changePreference(kQVPreferredLanguages);
    };
    want({QStringLiteral("en")});
    play(german);
    controller.cycleSubtitles(1);
    play({QStringLiteral("0-0 y.fr.srt"), QStringLiteral("0-0 y.en.srt"), QStringLiteral("0-0 y.de.srt")});
    EXPECT_EQ(info(), QStringLiteral("y.de.srt (3/3)"));
    want({QStringLiteral("fr"), QStringLiteral("en")});
    EXPECT_EQ(info(), QStringLiteral("y.fr.srt (1/3)")) << "at once";
    want({QStringLiteral("ja")});
    EXPECT_EQ(info(), QStringLiteral("y.fr.srt (1/3)")) << "there is none";
    controller.toggleSubtitles();
    want({QStringLiteral("en")});
    EXPECT_EQ(info(), QStringLiteral("Off"));
    controller.toggleSubtitles();
    EXPECT_EQ(info(), QStringLiteral("y.en.srt (2/3)"));
    controller.setSavedPath(QStringLiteral("0-0 x.de.srt"), 0);
    play(german);
    EXPECT_EQ(info(), QStringLiteral("x.de.srt (2/2)")) << "what is restored comes first";
}

TEST_F(SubtitlesController, a_movie_that_comes_while_display_is_off_is_shown_with_its_own_tracks) {
    std::weak_ptr<QVMovie> gone = play(three);
    controller.setCurrenWithIndex(1);
    controller.setDisplaySubtitles(false);
    play({QStringLiteral("0-0 x"), QStringLiteral("1-0 y")});
    EXPECT_EQ(controller.current(), nullptr);
    EXPECT_EQ(controller.index(), none);
    EXPECT_TRUE(gone.expired());
    EXPECT_EQ(info(), QStringLiteral("Off"));
    controller.toggleSubtitles();
    EXPECT_EQ(info(), QStringLiteral("y (2/2)"));
    controller.setDisplaySubtitles(false);
    play({QStringLiteral("0-0 x"), QStringLiteral("1-0 y")});
    controller.setCurrenWithIndex(1);
    ASSERT_TRUE(controller.current());
    EXPECT_GT(controller.current()->count(), 0U);
}

TEST_F(SubtitlesController, without_tracks_nothing_can_be_switched) {
    for (const bool withMovie : {false, true}) {
        post(QVPlaylistMovieChangedNotification{withMovie ? movie({}) : nullptr});
        controller.cycleSubtitles(1);
        controller.toggleSubtitles();
        controller.setCurrenWithIndex(0);
        EXPECT_TRUE(controller.isSubtitlesOn());
        EXPECT_TRUE(displayStored());
        EXPECT_EQ(info(), QStringLiteral("None"));
        EXPECT_EQ(controller.index(), none);
    }
    EXPECT_TRUE(scene.text.isEmpty());
}

TEST_F(SubtitlesController, a_setting_changed_without_tracks_holds_for_the_next_movie) {
    for (const bool withMovie : {false, true}) {
        post(QVPlaylistMovieChangedNotification{withMovie ? movie({}) : nullptr});
        change(kQVDisplaySubtitles, 0);
        play(three);
        EXPECT_EQ(info(), QStringLiteral("Off")) << withMovie;
        EXPECT_FALSE(displayStored());
        post(QVPlaylistMovieChangedNotification{withMovie ? movie({}) : nullptr});
        change(kQVDisplaySubtitles, 1);
        play(three);
        EXPECT_EQ(info(), QStringLiteral("one (1/3)")) << withMovie;
    }
}

TEST_F(SubtitlesController, changed_settings_act_on_the_cue_that_is_shown) {
    auto shown = movie(three);
    post(QVPlaylistMovieChangedNotification{shown});
    rig.view.setMovie(shown);
    shown->setTime(second);
    taken(scene.text);
    change(kQVSubtitlesDefaultEncoding, 12);
    EXPECT_EQ(taken(scene.text), (QStringList{QStringLiteral("nothing"), QStringLiteral("A12")}));
    change(kQVSubtitlesDefaultFPS, 3);
    EXPECT_TRUE(taken(scene.text).isEmpty()) << "a track that is not timed in frames was timed anew";
    controller.setCurrenWithIndex(1);
    taken(scene.text);
    change(kQVSubtitlesDefaultFPS, 1); // the cue stands a little later now, that of 1 s from 1.04 to 2.08 s
    EXPECT_EQ(taken(scene.text), QStringList{QStringLiteral("nothing")});
    change(kQVDisplaySubtitles, 0);
    EXPECT_EQ(taken(scene.text), QStringList{QStringLiteral("hide")});
    change(kQVSubtitlesDefaultEncoding, 4);
    EXPECT_TRUE(taken(scene.text).isEmpty()) << "shown while display is off";
    shown->setTime(2 * second);
    change(kQVSubtitlesDefaultFPS, 3);
    change(kQVDisplaySubtitles, 1);
    EXPECT_EQ(taken(scene.text), QStringList{QStringLiteral("show")});
    shown->setTime(second);
    EXPECT_EQ(taken(scene.text), QStringList{QStringLiteral("A4")});
}

TEST_F(SubtitlesController, one_image_track_is_kept_loaded_and_texts_and_images_have_their_own_views) {
    const auto shown = play({QStringLiteral("2-0 a"), QStringLiteral("2-1 b"), QStringLiteral("0-0 c")});
    const auto loaded = [&] {
        QString all;
        for (const auto& track : shown->subtitles())
            all += track->count() > 0 ? u'+' : u'-';
        return all;
    };
    shown->setTime(second);
    EXPECT_EQ(loaded(), QStringLiteral("+--"));
    EXPECT_EQ(taken(scene.image), (QStringList{QStringLiteral("front"), QStringLiteral("A")}));
    controller.setCurrenWithIndex(2);
    EXPECT_EQ(loaded(), QStringLiteral("+-+"));
    EXPECT_EQ(taken(scene.image), (QStringList{QStringLiteral("nothing"), QStringLiteral("hide")}));
    controller.setCurrenWithIndex(1);
    EXPECT_EQ(loaded(), QStringLiteral("-++"));
    std::weak_ptr<QVMovie> held = play({QStringLiteral("0-0 x")});
    EXPECT_EQ(loaded(), QStringLiteral("-++")) << "unloaded though no other image track was selected";
}

TEST_F(SubtitlesController, repairing_acts_at_once_on_the_files_beside_the_movie) {
    const QTemporaryDir folder;
    const QString movieName = folder.filePath(QStringLiteral("film.mp4"));
    // Only repairing is the first one a file of subtitles.
    writeFile(folder.filePath(QStringLiteral("film.a.srt")), "1\n00:00:01.000 --> 00:00:02.000\nA\n");
    writeFile(folder.filePath(QStringLiteral("film.b.srt")),
              "1\n00:00:01,000 --> 00:00:02,000\nB\n\nC\n\n2\n00:00:03.000 --> 00:00:04.000\nD\n");
    const auto opened = [&] {
        return QVMovie::movieWithOpened(rig.settings.environment, {rig.toolkit, rig.desktop, registry, rig.discovery},
                                        rig.toolkit.answerOf(QUrl::fromLocalFile(movieName)));
    };
    const auto shown = opened();
    const auto other = opened();
    rig.view.setMovie(shown);
    post(QVPlaylistMovieChangedNotification{shown});
    shown->setTime(second);
    EXPECT_EQ(info(), QStringLiteral("film.b.srt (1/1)"));
    EXPECT_EQ(taken(scene.text), (QStringList{QStringLiteral("front"), QStringLiteral("B")}));
    EXPECT_EQ(controller.lossesAsString(),
              platform::localizedFormat(QStringLiteral("SubtitleLinesLost"), {QStringLiteral("3")}, 3) + u' ' +
                  platform::localizedString(QStringLiteral("SubtitleRepairMayHelp")));
    const auto before = controller.current();
    change(kQVSubtitlesRepair, 1);
    EXPECT_EQ(info(), QStringLiteral("film.b.srt (2/2)"));
    EXPECT_EQ(controller.current(), before) << "a track that stays was found anew";
    EXPECT_EQ(taken(scene.text), QStringList{QStringLiteral("B\n\nC")});
    EXPECT_TRUE(controller.lossesAsString().isEmpty());
    controller.setCurrenWithIndex(0);
    EXPECT_EQ(taken(scene.text), QStringList{QStringLiteral("A")});
    change(kQVSubtitlesRepair, 0);
    EXPECT_EQ(info(), QStringLiteral("film.b.srt (1/1)")) << "what is no file of subtitles any more stays selected";

    controller.setCurrenWithIndex(-1);
    change(kQVSubtitlesRepair, 1);
    EXPECT_EQ(controller.index(), none) << "repairing switched the display on";
    EXPECT_EQ(info(), QStringLiteral("Off"));
    controller.toggleSubtitles();
    EXPECT_EQ(info(), QStringLiteral("film.b.srt (2/2)"));
    taken(scene.text);
    // A movie that was opened before follows when its turn comes.
    rig.view.setMovie(other);
    post(QVPlaylistMovieChangedNotification{other});
    EXPECT_EQ(info(), QStringLiteral("film.a.srt (1/2)"));
}

TEST_F(SubtitlesController, an_index_says_how_its_images_come_and_go) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.idx"));
    writeFile(folder.filePath(QStringLiteral("a.sub")));
    writeFile(path, "# VobSub index file, v7 (do not modify this line!)\n"
                    "alpha: 75%\nfadein/out: 100, 250\nid: en, index: 0\n");
    rig.settings.defaults().setObject(QStringList{QStringLiteral("fr")}, kQVPreferredLanguages);
    // The view is made for a cue of the first track, and takes on the look of the second.
    const auto shown = play({QStringLiteral("2-0 first"), path});
    rig.view.setMovie(shown);
    shown->setTime(second);
    post(QVMovieInterestingTimeNotification{shown});
    taken(scene.image);
    controller.setCurrenWithIndex(1);
    EXPECT_EQ(taken(scene.image), (QStringList{QStringLiteral("alpha 0.75"), QStringLiteral("in 0.1"),
                                               QStringLiteral("out 0.25"), QStringLiteral("nothing")}));
}

TEST_F(SubtitlesController, a_standing_movie_shows_the_cue_that_a_worker_reads_at_last) {
    const auto shown = movie({QStringLiteral("2-0 a")});
    const auto track = std::static_pointer_cast<Track>(shown->subtitles().front());
    track->loading = true;
    rig.view.setMovie(shown);
    post(QVPlaylistMovieChangedNotification{shown});
    shown->setTime(second);
    EXPECT_EQ(taken(scene.image), QStringList());
    track->readCues();
    track->observer();
    EXPECT_EQ(taken(scene.image), (QStringList{QStringLiteral("front"), QStringLiteral("A")}));
    post(QVPlaylistMovieChangedNotification{movie({})});
    EXPECT_FALSE(track->observer) << "a track that is not shown any more is still followed";
}

// Tracks inside the movie

TEST_F(SubtitlesController, What_is_inside_a_movie_is_selected_with_the_player_and_shown_as_it_says) {
    using platform::MovieTrack;
    rig.toolkit.tracks = {{.kind = MovieTrack::Kind::audio, .id = 1, .language = QStringLiteral("ger")},
                          {.kind = MovieTrack::Kind::subtitles,
                           .id = 1,
                           .language = QStringLiteral("eng"),
                           .content = MovieTrack::Content::text},
                          {.kind = MovieTrack::Kind::subtitles,
                           .id = 2,
                           .language = QStringLiteral("ger"),
                           .isForced = true,
                           .content = MovieTrack::Content::text}};
    const auto made = movie({"0-0 Beside"});
    rig.view.setMovie(made);
    post(QVPlaylistMovieChangedNotification{made});
    ASSERT_EQ(controller.count(), 3U);
    const auto selected = [&] { return made->selection().subtitles; };
    controller.setCurrenWithIndex(1);
    EXPECT_EQ(selected(), 1);
    made->playerReadSubtitle({QStringLiteral("Inside"), 0, 2});
    made->setTime(second);
    EXPECT_EQ(scene.text.last(), "Inside");
    made->playerReadSubtitle({});
    EXPECT_EQ(scene.text.last(), "nothing") << "while it rests, too";
    controller.setCurrenWithIndex(0);
    EXPECT_EQ(selected(), 0);
    controller.setCurrenWithIndex(1);

    // Without subtitles, those of the language that is spoken say what it leaves unsaid.
    controller.setDisplaySubtitles(false);
    EXPECT_EQ(selected(), 2);
    made->playerReadSubtitle({QStringLiteral("Sign"), 0, 2});
    EXPECT_EQ(scene.text.last(), "Sign");
    EXPECT_EQ(info(), "Off");
    controller.setDisplaySubtitles(true);
    EXPECT_EQ(selected(), 1);
    controller.setDisplaySubtitles(false);
    platform::MovieTracks dubbed = made->tracks();
    dubbed[0].language = QStringLiteral("eng");
    made->playerFoundTracks(dubbed);
    EXPECT_EQ(selected(), 0);
    rig.view.setMovie(nullptr);
}
