// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "platform/movie/Movie.h"
#include "playback/MovieServices.h"
#include "subtitles/QVSubtitles.h"

#include <QStringList>
#include <QUrl>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class EmbeddedSubtitles;

namespace platform {
class MovieOpening;
struct OpenedMovie;
} // namespace platform

/// One open movie as the player sees it: times, frame count and rate, ordering, and the subtitle tracks found beside
/// it. Times are counts of units of the movie's time scale. Main thread.
class QVMovie final : public platform::Movie, public SubtitleOwner, public std::enable_shared_from_this<QVMovie> {
public:
    /// Takes the movie that was opened, none when it cannot be, and its error (namespace platform::movieError), which
    /// one that can be opened may have, too.
    using Opened = std::function<void(std::shared_ptr<QVMovie> movie, std::int16_t error)>;
    /// Opens a movie through the toolkit without waiting: `completion` is called once, from the run loop, unless the
    /// answer was destroyed before. Finds subtitle files when QVAutoloadSubtitles is on.
    [[nodiscard]] static std::unique_ptr<platform::MovieOpening>
    movieWithURL(const Environment& environment, const MovieServices& services, const QUrl& url, Opened completion);
    /// The movie that the toolkit opened; none when it could not.
    static std::shared_ptr<QVMovie> movieWithOpened(const Environment& environment, const MovieServices& services,
                                                    platform::OpenedMovie opened);
    /// One that is opened only when it is needed: it has its address alone, and no facts. Lists are long.
    static std::shared_ptr<QVMovie> unopened(const Environment& environment, const MovieServices& services,
                                             const QUrl& url);
    /// From what the toolkit found; neither logs nor looks for subtitles.
    QVMovie(const Environment& environment, const MovieServices& services, platform::MovieInfo info);
    ~QVMovie() override;

    bool isOpened() const { return _isOpened; }
    /// Opens one that is not yet, as movieWithURL() does; isOpened() answers whether it could be. The movie may go
    /// meanwhile.
    [[nodiscard]] std::unique_ptr<platform::MovieOpening> open(std::function<void(std::int16_t error)> completion);

    /// What whoever named it calls it, and how long they said that it lasts (-1: not at all).
    void setSaid(const QString& title, std::int32_t seconds);
    const QString& saidTitle() const { return _saidTitle; }
    std::int32_t saidSeconds() const { return _saidSeconds; }
    /// What lists and texts call it: that title, else the name of its file.
    QString displayName() const;
    /// How long it lasts, in seconds, as far as that is known by now; -1 where it is not.
    std::int32_t knownSeconds() const;

    std::int32_t time() const override { return platform::Movie::time(); }
    std::int32_t timeScale() const override { return platform::Movie::timeScale(); }
    /// Whole seconds, truncated.
    std::int32_t timeInSeconds() const;
    std::int32_t durationInSeconds() const;
    /// The time of the next picture, or -1.
    std::int32_t nextFrameTime() const;
    /// Pictures in the video track; 0 without one.
    std::uint32_t frameCount();
    /// Pictures a second: the count by the whole seconds; infinite or not a number for a movie of less than a second.
    float frameRate() override;
    platform::Rect naturalBounds() const;
    /// The natural bounds within a window as high as this, points, origin bottom left.
    platform::Rect naturalFrame(double windowHeight) const;
    const std::vector<std::shared_ptr<QVSubtitles>>& subtitles() const override { return _subtitles; }
    QString description() const { return url().toString(); }
    /// The absolute URL as it is saved: with everything encoded that a URL cannot hold.
    const QString& address() const { return _address; }
    /// Of a local file as pathOfBytes() writes it, so that it is what the files beside it begin with.
    QString fileName() const override;

    /// By so many milliseconds sound comes later than the file says, below 0 earlier; kept within ten minutes.
    void setAudioDelay(std::int32_t milliseconds);
    /// The number of the track of sound that plays; 0 without any.
    int audioTrack() const { return selection().audio.value_or(0); }
    /// Plays it, because the user wants to: the movie keeps it, and is remembered with it.
    void setAudioTrack(int id);
    /// Those of sound that can be chosen: of a stream in several qualities, those of the one that plays.
    platform::MovieTracks audioTracks() const;
    /// What the user wants, of the tracks that there are.
    std::optional<int> chosenAudio() const;
    /// The qualities that a stream can be played in, the best one first; none where there is no choice.
    platform::MovieTracks qualities() const;
    /// The number of the one that plays; 0 where there is no choice.
    int quality() const { return selection().video.value_or(0); }
    /// Plays one of them, with the sound of the same kind. What it needs is remembered for other streams.
    void setQuality(int id);
    /// Plays what was chosen, else the best quality that is wanted, and the sound of the preferred languages. To be
    /// called before it is shown.
    void selectTracks();
    QString audioLanguage() const override;

    /// Moves the time, draws the new picture and posts QVMovieInterestingTimeNotification.
    void setTime(std::int32_t time);

    /// Orders movies for the playlist as the settings say, by their paths or file names: -1, 0 or 1.
    int compare(const QVMovie& other) const;

    void fetchSubtitleFiles();
    void followReadingMode() override;
    void drawFile(const QString& path, const CueShift& shift) override;
    void endDrawing(const QString& path) override;
    void setSecondTrack(const QString& name) override { _secondTrack = name; }
    QString secondTrack() const override { return _secondTrack; }
    void addSubtitleFile(const QString& path);
    std::shared_ptr<QVSubtitles> addSubtitles(const QString& path) override;
    /// The files that were added by it, in their order.
    const QStringList& addedSubtitles() const { return _addedSubtitles; }

    /// Arms the three callbacks anew; ends them.
    void resetCallbacks();
    /// Lets the end be told of that the movie reaches next: it is told once, and again after a start or a time jump.
    void armEnd();
    void cancelCallbacks();

protected:
    void tracksChanged() override;
    void subtitleTextChanged() override;
    void secondSubtitleTextChanged() override;

private:
    void listEmbedded();
    void takeOpened(std::optional<platform::MovieInfo> found, std::int16_t error);
    QStringList filesBeside() const;
    void _scheduleStopCallback();
    void _scheduleInterestingTimeCallback();
    void _scheduleTimeJumpCallback();
    void movieComplete();
    void interestingTime();
    void timeJump();
    template <class Notification>
    void post();

    Environment _environment;
    MovieServices _services;
    QString _address;
    /// Those of files first, then those inside the movie.
    std::vector<std::shared_ptr<QVSubtitles>> _subtitles;
    QStringList _addedSubtitles;
    QString _secondTrack;
    std::vector<std::shared_ptr<EmbeddedSubtitles>> _embedded;
    std::optional<int> _chosenAudio;
    std::optional<int> _chosenQuality;
    /// That in which the files were looked for; none where they were not.
    std::optional<ReadingMode> _fetchedIn;
    bool _isOpened = true;
    QString _saidTitle;
    std::int32_t _saidSeconds = -1;
    std::uint32_t _frameCount = 0;
    float _frameRate = 0;
};
