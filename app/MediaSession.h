// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/MediaArtwork.h"
#include "app/ToldPosition.h"
#include "context/Environment.h"
#include "control/AfterFirstPicture.h"
#include "platform/base/NotificationCenter.h"
#include "platform/base/RunLoop.h"
#include "platform/desktop/MediaControls.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace platform {
class Desktop;
class MovieToolkit;
} // namespace platform

class CommandTarget;
class QVMovie;
class QVMovieView;
class QVPlaylistController;

/// The player as media keys, lock screens and phones see and drive it, through the desktop's MediaControls. These are
/// offered when the first picture stands; until they do stand nothing here follows the player. Main thread.
class MediaSession final : public platform::MediaControlled {
public:
    /// All outlive it.
    struct Collaborators {
        platform::MediaControls& controls;
        QVMovieView& view;
        QVPlaylistController& playlist;
        CommandTarget& commands;
        platform::Desktop& desktop;
        platform::MovieToolkit& toolkit;
        /// Opens an address as one that is handed over.
        std::function<void(const QString& address)> open;
        /// Brings the window to the front.
        std::function<void()> raise;
    };
    MediaSession(const Environment& environment, Collaborators collaborators);
    MediaSession(const MediaSession&) = delete;
    MediaSession& operator=(const MediaSession&) = delete;
    ~MediaSession() override;

    void mediaControlsStand() override;
    platform::MediaState state() const override;
    std::vector<std::uint64_t> tracks() const override;
    platform::MediaTrack track(std::uint64_t number) const override;
    std::int64_t position() const override;

    void raise() override;
    void quit() override;
    void play() override;
    void pause() override;
    void stop() override;
    void next() override;
    void previous() override;
    void setPosition(std::int64_t position) override;
    void setRate(double rate) override;
    void setVolume(double volume) override;
    void setLooping(platform::MediaState::Looping looping) override;
    void setShuffled(bool shuffled) override;
    void open(const QString& address) override;
    void addTrack(const QString& address, std::uint64_t after, bool makesCurrent) override;
    void removeTrack(std::uint64_t number) override;
    void goTo(std::uint64_t number) override;

private:
    std::uint64_t numberOf(const std::shared_ptr<QVMovie>& movie) const;
    std::uint32_t indexOf(std::uint64_t number) const;
    platform::MediaTrack trackOf(const std::shared_ptr<QVMovie>& movie) const;
    /// Plays the movie at the position, or shows it where what is shown rests.
    void change(std::uint32_t index);
    void follow();
    void changed();
    void tell();
    void tellList();
    void takePlace(const std::vector<std::uint64_t>& before, std::uint64_t after, bool makesCurrent);

    Environment _environment;
    Collaborators _with;
    /// Numbers of the list's movies; one stays a movie's for as long as that is there.
    mutable std::map<std::weak_ptr<QVMovie>, std::uint64_t, std::owner_less<std::weak_ptr<QVMovie>>> _numbers;
    mutable std::uint64_t _lastNumber = 0;
    MediaArtwork _artwork;
    platform::MediaState _told;
    ToldPosition _toldPosition;
    /// What was before shuffling.
    std::int32_t _arrangement;
    std::unique_ptr<platform::Timer> _telling;
    std::unique_ptr<platform::Timer> _quitting;
    std::vector<platform::Subscription> _subscriptions;
    std::shared_ptr<bool> _alive = std::make_shared<bool>(true);
    AfterFirstPicture _beginning;
};
