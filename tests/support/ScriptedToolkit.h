// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/MoviePlayer.h"
#include "platform/movie/MovieToolkit.h"

#include <QHash>
#include <QSet>
#include <QUrl>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

/// A player without pictures: the test moves the time of the movie loaded in it.
class ScriptedPlayer final : public platform::MoviePlayer {
public:
    /// Lets `seconds` pass: a running movie moves on picture by picture (without video: every 0.05 s of the movie),
    /// reports each, and at its end stops and reports that.
    void advance(double seconds);
    /// Puts the time at the movie's end as playing would.
    void reachEnd(bool isWhole = true);
    std::int32_t loadedAt = -1; // the last movie

    /// Reports a new frame, to be shown now or whenever the view is drawn next.
    void showFrame(bool isDue) { isDue ? _observer->playerFrameDue() : _observer->playerFrameChanged(); }

    /// Says what playing waits for, or that the movie cannot be played after all.
    void wait(const Wait& wait) { _observer->playerWaitChanged(wait); }
    void fail() { _observer->playerFailed(); }

    std::vector<int> steps;
    /// Those that were asked for while the movie was loaded.
    std::vector<platform::TrackSelection> selections;
    int loads = 0;

    void setObserver(Observer* observer) override { _observer = observer; }
    void load(platform::Movie* movie) override;
    platform::Movie* loaded() const override { return _movie; }
    void play() override;
    void pause() override { setRate(0); }
    bool isPlaying() const override { return _rate != 0.0F; }
    float rate() const override { return _rate; }
    void setRate(float rate) override;
    double speed() const override { return _speed; }
    void setSpeed(double speed) override { _speed = speed; }
    std::int32_t time() const override { return _time; }
    void seek(std::int32_t time, JumpReport report) override;
    void step(int direction) override;
    std::optional<Section> repeated() const override { return _repeated; }
    void repeat(const std::optional<Section>& section) override { _repeated = section; }
    std::optional<double> behind; // none while the movie is not live
    int livePlaces = 0;
    std::int32_t arrived = 0;
    std::optional<double> behindLive() const override { return behind; }
    void goLive() override { ++livePlaces; }
    std::int32_t arrivedUntil() const override { return arrived; }
    void shapeChanged() override { ++shapeChanges; }
    int shapeChanges = 0;
    platform::PictureAdjustment adjustment() const override { return _adjustment; }
    void setAdjustment(const platform::PictureAdjustment& adjustment) override { _adjustment = adjustment; }
    platform::Deinterlacing deinterlacing() const override { return _deinterlacing; }
    void setDeinterlacing(platform::Deinterlacing when) override { _deinterlacing = when; }
    QImage stillPicture;
    void still(std::function<void(QImage)> completion) override { completion(stillPicture); }
    platform::PlaybackFacts playbackFacts;
    void facts(std::function<void(const platform::PlaybackFacts&)> completion) override { completion(playbackFacts); }
    float volume() const override { return _volume; }
    void setVolume(float volume) override;
    bool isMuted() const override { return _muted; }
    void setMuted(bool muted) override;
    void select(const platform::TrackSelection& selection) override { selections.push_back(selection); }
    platform::VideoLayer* videoLayer() override { return nullptr; }

private:
    void stateChanged() {
        if (_observer)
            _observer->playerStateChanged();
    }

    Observer* _observer = nullptr;
    platform::Movie* _movie = nullptr;
    std::int32_t _time = 0;
    double _left = 0; // units passed at rate 1 that made no whole picture yet
    float _rate = 0;
    double _speed = 1;
    platform::PictureAdjustment _adjustment;
    platform::Deinterlacing _deinterlacing = platform::Deinterlacing::automatic;
    std::optional<Section> _repeated;
    float _volume = 1;
    bool _muted = false;
};

/// A toolkit whose errors the test scripts; every URL opens as plainMovie().
class ScriptedToolkit final : public platform::MovieToolkit {
public:
    /// One minute at 25 pictures a second, 640 by 480, 600 units a second.
    static platform::MovieInfo plainMovie(const QUrl& url);

    /// Of the movies that are opened from here on.
    std::int32_t duration = 60 * 600;
    platform::MovieTracks tracks;
    /// URLs that leave an error behind when they are opened, and whether they open nevertheless.
    struct Script {
        std::int16_t error;
        bool opens = false;
    };
    QHash<QUrl, Script> scripts;
    /// Told of each URL that is opened.
    std::function<void(const QUrl&)> whileOpening;
    /// These are not answered before answer() is called.
    QSet<QUrl> hanging;
    void answer(const QUrl& url);
    /// How many openings wait for that.
    int waiting() const;
    /// What opening a URL gives.
    platform::OpenedMovie answerOf(const QUrl& url) const;
    int entered = 0;
    int exited = 0;
    ScriptedPlayer scriptedPlayer;

    void enter() override { ++entered; }
    void exit() override { ++exited; }
    std::unique_ptr<platform::MovieOpening> openAsync(const QUrl& url,
                                                      std::function<void(platform::OpenedMovie)> completion) override;
    /// What coverAsync answers from the run loop, and for which addresses it was asked.
    QImage cover;
    QList<QUrl> coversAsked;
    std::unique_ptr<platform::MovieOpening> coverAsync(const QUrl& url,
                                                       std::function<void(QImage)> completion) override;
    /// What blackBarsAsync answers at once.
    platform::PictureShape::Crop bars;
    std::unique_ptr<platform::MovieOpening>
    blackBarsAsync(const QUrl&, double, std::function<void(platform::PictureShape::Crop)> completion) override {
        completion(bars);
        return nullptr;
    }
    /// Those that were asked for and are wanted still: the test answers them.
    struct AskedKeyframe {
        double seconds;
        QSize bounds;
        std::weak_ptr<std::function<void(QImage)>> completion;
    };
    std::vector<AskedKeyframe> keyframes;
    std::unique_ptr<platform::MovieOpening> keyframeAsync(const QUrl& url, double seconds, const QSize& bounds,
                                                          std::function<void(QImage)> completion) override;
    /// What subtitleEndsAsync answers when `endsAsked` is called.
    std::function<void(std::optional<platform::SubtitleEnds>)> endsAsked;
    std::unique_ptr<platform::MovieOpening>
    subtitleEndsAsync(const QUrl&, int,
                      std::function<void(std::optional<platform::SubtitleEnds>)> completion) override {
        endsAsked = std::move(completion);
        return nullptr;
    }
    /// What fetching an address gives; others are not found. Read by other threads.
    QHash<QUrl, platform::FetchedFile> fetched;
    platform::FetchFile fileFetcher() const override {
        return [fetched = fetched](const QUrl& url, qsizetype limit, const std::atomic<bool>&) {
            platform::FetchedFile file = fetched.value(url, {{}, url, platform::movieError::serverHasNoSuchFile});
            file.bytes.truncate(limit);
            return file;
        };
    }
    platform::ReadSubtitlePackets subtitlePacketReader() const override { return nullptr; }
    platform::MoviePlayer& player() override { return scriptedPlayer; }

private:
    using Completion = std::function<void(platform::OpenedMovie)>;
    static void post(const std::weak_ptr<Completion>& completion, const platform::OpenedMovie& opened);
    std::vector<std::pair<QUrl, std::weak_ptr<Completion>>> _held;
};
