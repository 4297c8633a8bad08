// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/CommandTarget.h"
#include "platform/base/NotificationCenter.h"
#include "platform/base/RunLoop.h"
#include "platform/window/Menu.h"
#include "platform/window/Window.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QVMovieView;
struct KeyCommand;
struct QVPlaylistChangedNotification;
struct QVPlaylistMovieChangedNotification;

/// The one place where commands become effects: action codes, keys, menu items. It is the main window's delegate. Main
/// thread.
class QVMovieController final : public CommandTarget, public platform::MenuTarget, public platform::WindowDelegate {
public:
    QVMovieController();
    QVMovieController(const QVMovieController&) = delete;
    QVMovieController& operator=(const QVMovieController&) = delete;
    ~QVMovieController() override;

    void performAction(std::int32_t action, Feedback feedback) override;
    bool processKeyboardEvent(const platform::KeyEvent& event) override;
    bool forceMuted() const override { return _forceMuted; }
    void setForceMuted(bool muted) override;

    /// Performs the action at once and then every `interval` seconds, in place of what was repeated before.
    void startRepeatingAction(std::int32_t action, double interval, Feedback feedback);
    void stopRepeatingAction();

    /// Whether a menu item's action is one of the movie controller's: changeSize, changeVolume, changeLooping,
    /// playPrevNext, jump, beginningEnd, fastForwardRewind, startStop, changeMovie, changeSubtitles.
    bool handlesMenuAction(const QString& action) const;
    bool validateMenuItem(platform::MenuItem& item) override;
    void performMenuItem(const platform::MenuItem& item) override;

    void windowDidBecomeKey(platform::Window& window) override;
    void windowDidResignKey(platform::Window& window) override;
    void windowDidResize(platform::Window& window) override;
    bool windowShouldClose(platform::Window& window) override;

private:
    // Commands. Directions are +1 and -1; others do nothing.
    void _startStop(Feedback feedback);
    void _fastForward(Feedback feedback);
    void _fastRewind(Feedback feedback);
    void muteForFastMotion();
    void _setVolumeCtrl(std::int32_t control, Feedback feedback);
    void _jump(std::int32_t direction, Feedback feedback);
    void _cycleSubtitles(std::int32_t direction, Feedback feedback);
    void _switchScreen(std::int32_t direction, Feedback feedback);
    void _quit(Feedback feedback);
    void _sleep(Feedback feedback);
    // These always confirm.
    void _step(std::int32_t direction);
    void _beginEnd(std::int32_t direction);
    void _prevNext(std::int32_t direction);

    bool carryOut(const KeyCommand& command);
    void toggleController();
    void cycleDisplays(std::int32_t direction);
    void toggleLooping(std::int32_t direction);
    void restorePlayback();

    void changeSize(std::int32_t tag);
    void changeLooping(std::int32_t tag);
    void fastForwardRewind(std::int32_t tag);
    void changeMovie(std::int32_t tag);
    void changeSubtitles(std::int32_t tag);

    void repeatingActionTimer();
    void currentMovieChanged(const QVPlaylistMovieChangedNotification& notification);
    void playlistChanged(const QVPlaylistChangedNotification& notification);

    bool isMoviePlaying() const;
    /// Calls `work` later, unless the controller is gone by then.
    void performLater(double delay, std::function<void()> work);

    QVMovieView* _movieView;
    bool _forceMuted = false;
    std::unique_ptr<platform::Timer> _repeatingActionTimer;
    std::int32_t _repeatingAction = -1;
    Feedback _repeatingActionFeedback = Feedback::no;
    /// When the arrow keys last doubled the speed, monotonic seconds.
    std::optional<double> _lastRewind;
    std::optional<double> _lastForward;
    std::vector<std::unique_ptr<platform::Timer>> _delayedWork;
    platform::Subscription _movieChanged;
    platform::Subscription _playlistChanged;
};
