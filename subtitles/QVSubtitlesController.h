// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "context/Notifications.h"
#include "platform/base/NotificationCenter.h"
#include "settings/QVPreferencesChangedNotification.h"
#include "subtitles/QVSubtitles.h"

#include <QString>

#include <cstdint>
#include <memory>
#include <vector>

class ImageSubtitleView;
class SubtitleScene;
class SubtitleView;

/// Decides which subtitle track of the current movie is shown, and whether. It follows the playlist's movie, feeds the
/// view that suits the track with the cue of each picture, and acts at once on the settings that change. Main thread.
class QVSubtitlesController {
public:
    /// The scene outlives the controller.
    QVSubtitlesController(const Environment& environment, SubtitleScene& scene);
    QVSubtitlesController(const QVSubtitlesController&) = delete;
    QVSubtitlesController& operator=(const QVSubtitlesController&) = delete;
    virtual ~QVSubtitlesController();

    /// The track that the current movie is to begin with: the one restored, else the one of the language wanted most
    /// (that of the track that the user took last, then those of kQVPreferredLanguages), a text before images, else one
    /// of the kind chosen last, else the first; none without tracks.
    std::shared_ptr<QVSubtitles> preferredSubtitles() const;
    /// The selected track, or none. It is of the current movie.
    std::shared_ptr<QVSubtitles> current() const { return _current; }
    /// Selects a track of the current movie, or none. Whether subtitles are displayed does not change.
    void setCurrent(const std::shared_ptr<QVSubtitles>& track);
    /// A track to prefer wherever it turns up: its file and its place among the file's tracks.
    void setSavedPath(const QString& path, std::uint32_t index);
    /// Selects by position; a position outside the list turns the display off.
    virtual void setCurrenWithIndex(std::int32_t index);

    /// Kept in the settings. Without tracks nothing changes.
    void setDisplaySubtitles(bool flag);
    void toggleSubtitles() { setDisplaySubtitles(!_subtitlesOn); }
    bool isSubtitlesOn() const { return _subtitlesOn; }

    std::uint32_t count() const { return static_cast<std::uint32_t>(_subtitles.size()); }
    /// The track whose cues are shown: the selected one, or without subtitles the one that its language needs.
    std::shared_ptr<QVSubtitles> shownTrack() const { return _subtitlesOn ? _current : _forced; }
    /// The position of the current track, or all bits set for none.
    std::uint32_t index() const { return _index; }
    /// Adds the tracks of a file to the current movie, and shows the first of them; false where there is none.
    bool addFile(const QString& path);
    /// The track's cue of this moment is another one: its shift changed.
    void showCueOfNow();
    /// Goes on to the next track (1) or back (-1), with "off" after the last; nothing without tracks.
    virtual void cycleSubtitles(int direction);
    /// "Subtitles: ..." for the on-screen display.
    virtual QString currentInfoAsString() const;
    /// How much of the selected track could not be read, and what may help; empty while nothing was lost, and without a
    /// track.
    virtual QString lossesAsString() const;

private:
    static constexpr std::uint32_t none = 0xFFFFFFFF;

    void currentMovieChanged(const QVPlaylistMovieChangedNotification& notification);
    void movieInterestingTime(const QVMovieInterestingTimeNotification& notification);
    void preferencesChanged(const QVPreferencesChangedNotification& notification);
    void followReadingMode();
    void tracksChanged(const QVMovieTracksChangedNotification& notification);
    void followAudio();
    std::shared_ptr<QVSubtitles> trackOfWantedLanguage() const;
    void followPreferredLanguages();
    void loadingWentOn();
    void keepLoaded(const std::shared_ptr<QVSubtitles>& track);
    SubtitleView* viewFor(const QVSubtitles& track) const;
    void createView(const QVSubtitles& track);
    void adoptAppearance(const QVSubtitles& track);
    void _setView(SubtitleView* view);
    bool switchDisplay(bool flag);
    void give(const std::shared_ptr<QVSubtitle>& cue);
    void announce();

    Environment _environment;
    SubtitleScene& _scene;
    /// The tracks ask the movie that they belong to: it stays as long as they do.
    std::shared_ptr<SubtitleOwner> _movie;
    std::vector<std::shared_ptr<QVSubtitles>> _subtitles;
    std::shared_ptr<QVSubtitles> _current;
    /// Shown where no subtitles are: what its language leaves unsaid.
    std::shared_ptr<QVSubtitles> _forced;
    std::unique_ptr<SubtitleView> _textView;
    std::unique_ptr<ImageSubtitleView> _imageView;
    SubtitleView* _view = nullptr; // that of the selected track, once it was made
    bool _subtitlesOn;
    std::uint32_t _index = none;
    /// The one image track that is kept loaded, with the movie that it belongs to.
    std::shared_ptr<SubtitleOwner> _cachedMovie;
    std::shared_ptr<QVSubtitles> _cached;
    QString _savedPath;
    std::uint32_t _savedIndex = 0;
    /// Of the track that the user took last in this run; empty where that is not known.
    QString _chosenLanguage;
    std::int32_t _preferredType = -1;
    std::uint32_t _preferredIndex = 0;
    platform::Subscription _onMovie;
    platform::Subscription _onTime;
    platform::Subscription _onPreferences;
    platform::Subscription _onTracks;
};
