// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "context/Notifications.h"
#include "platform/base/NotificationCenter.h"
#include "platform/base/RunLoop.h"
#include "subtitles/QVSubtitles.h"

#include <QString>

#include <cstdint>
#include <memory>
#include <vector>

class QVSubtitlesController;
class SubtitleScene;
class SubtitleView;

/// Shows a second track of the current movie at the same time, at the top of the picture: for those who learn a
/// language, or watch in two. Texts only, and never the track that the subtitles controller shows. Main thread.
class SecondSubtitles {
public:
    /// The scene and the controller outlive it.
    SecondSubtitles(const Environment& environment, SubtitleScene& scene, const QVSubtitlesController& first);
    SecondSubtitles(const SecondSubtitles&) = delete;
    SecondSubtitles& operator=(const SecondSubtitles&) = delete;
    ~SecondSubtitles();

    /// Of the current movie; none while none is shown.
    const std::shared_ptr<QVSubtitles>& current() const { return _current; }
    std::vector<std::shared_ptr<QVSubtitles>> tracks() const;
    /// Whether a track can be shown: a text, and not the one that is shown below.
    bool canShow(const std::shared_ptr<QVSubtitles>& track) const;
    /// Shows the track of a position in the movie's list, none for another number, and has the movie keep it. What
    /// cannot be shown changes nothing, and answers false.
    bool select(std::int32_t position);
    /// The next track that can be shown (1), or the one before (-1), with none after the last.
    void cycle(int direction);
    /// "Second subtitles: ..."
    QString currentInfoAsString() const;

private:
    void show(const std::shared_ptr<QVSubtitles>& track);
    void movieChanged(const std::shared_ptr<QVMovie>& movie);
    void restore();
    void showCueOfNow();

    Environment _environment;
    SubtitleScene& _scene;
    const QVSubtitlesController& _first;
    /// The tracks ask the movie that they belong to: it stays as long as they do.
    std::shared_ptr<SubtitleOwner> _movie;
    std::shared_ptr<QVSubtitles> _current;
    std::unique_ptr<SubtitleView> _view; // once there is something to show
    /// While a worker reads the track: the movie may stand.
    std::unique_ptr<platform::Timer> _reading;
    platform::Subscription _onMovie;
    platform::Subscription _onTime;
    platform::Subscription _onTracks;
    platform::Subscription _onSubtitles;
};
