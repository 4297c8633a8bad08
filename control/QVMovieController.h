// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/context/CommandTarget.h"
#include "platform/base/NotificationCenter.h"
#include "platform/base/RunLoop.h"
#include "platform/window/Menu.h"
#include "platform/window/Window.h"

#include <cstdint>
#include <memory>
#include <optional>

class QVMovieView;
struct QVPlaylistChangedNotification;
struct QVPlaylistMovieChangedNotification;

/// The one place where commands become effects: action codes, keys, menu items. It is the main window's delegate. Main thread.
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

    /// The menu actions of the movie controller: changeSize, changeVolume, changeLooping, playPrevNext, jump, beginningEnd, fastForwardRewind,
    /// startStop, changeMovie, changeSubtitles.
    bool handlesMenuAction(const QString& action) const;
    bool validateMenuItem(platform::MenuItem& item) override;
    void performMenuItem(const platform::MenuItem& item) override;

    void windowDidBecomeKey(platform::Window& window) override;
    void windowDidResignKey(platform::Window& window) override;
    void windowDidResize(platform::Window& window) override;
    bool windowShouldClose(platform::Window& window) override;

private:
    // See the .cpp for one private operation a command (_startStop, _fastForward, ...); the helper completes this list.
};
