// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>

namespace platform {
class Window;
} // namespace platform

/// What commands and the main window's delegate ask of the application. Main thread.
class ApplicationServices {
public:
    virtual ~ApplicationServices() = default;

    /// Shows the open panel; the files chosen go to the playlist.
    virtual void doOpen() = 0;
    /// The same for folders, and for addresses: one (type 0), or several (1).
    virtual void doOpenFolder() = 0;
    virtual void doOpenURL(std::int32_t type) = 0;
    /// Asks for files of subtitles, and adds them to the movie that is shown.
    virtual void addSubtitles() = 0;
    /// Opens the movie of a position in the menu of those seen last, which was filled before.
    virtual void openRecent(std::int32_t position) = 0;
    /// Empties that menu, and forgets what is remembered of its movies.
    virtual void clearRecent() = 0;
    virtual bool hasRecent() const = 0;
    /// Asks for a file, and writes the playlist into it.
    virtual void savePlaylist() = 0;
    /// Shows the help panel until it is closed.
    virtual void showHelp() = 0;
    /// Shows the panel of the whole playlist until it is closed.
    virtual void showPlaylist() = 0;
    /// Shows the panel that says how the movie plays, which stays open beside it; hides it where it is shown.
    virtual void showInformation() = 0;
    /// Asks for a time of a movie that stands at `now`, seconds; none when there was no answer.
    virtual std::optional<double> askForTime(double now, double duration) = 0;
    /// Shows the preferences, which stay open beside the movie.
    virtual void showPreferences() = 0;
    /// Opens the page for donations, in the browser.
    virtual void donate() = 0;
    /// Whether there is one.
    virtual bool canDonate() const = 0;
    /// Moves the on-screen display to its next (+1) or previous (-1) type, around.
    virtual void cycleDisplays(std::int32_t direction) = 0;
    /// The main window became key, or no longer is.
    virtual void windowDidBecomeKey(platform::Window& window) = 0;
    virtual void windowDidResignKey(platform::Window& window) = 0;
};
