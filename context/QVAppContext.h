// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/PointerHiding.h"

namespace platform {
class Menu;
class Window;
} // namespace platform

class CommandTarget;
class MainWindow;
class QVMovieView;
class QVPlaylistController;
class QVSubtitlesController;

/// The application controller as the other components see it: the road to the main objects. Every accessor may answer
/// null (at launch, at termination, in tests); an operation on a missing object is left out. Main thread.
class QVAppContext : public PointerHiding {
public:
    virtual platform::Window* window() = 0;
    /// The same window, for what only the main window does.
    virtual MainWindow* mainWindow() = 0;
    virtual QVMovieView* movieView() = 0;
    virtual QVPlaylistController* playlist() = 0;
    virtual QVSubtitlesController* subtitles() = 0;
    virtual CommandTarget* controller() = 0;
    virtual platform::Menu* playlistMenu() = 0;
    virtual platform::Menu* subtitlesMenu() = 0;

    /// Shows the open panel; the files chosen go to the playlist.
    virtual void doOpen() = 0;
    /// The main window became key, or no longer is.
    virtual void windowDidBecomeKey(platform::Window& window) = 0;
    virtual void windowDidResignKey(platform::Window& window) = 0;
};

/// The application controller, or null.
extern QVAppContext* gAppController;
