// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/CommandTarget.h"
#include "context/Environment.h"
#include "control/AppleRemote.h"
#include "control/KeyboardMap.h"
#include "control/SubtitleSync.h"
#include "platform/base/NotificationCenter.h"
#include "platform/base/RunLoop.h"
#include "platform/window/Menu.h"
#include "platform/window/Window.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace platform {
class Desktop;
class MovieOpening;
class MovieToolkit;
} // namespace platform

class ApplicationServices;
class CurrentCommands;
class FeedbackDisplay;
class MainWindow;
class PointerHiding;
class QVMovie;
class QVMovieView;
class QVPlaylistController;
class QVSubtitles;
class QVSubtitlesController;
class SecondSubtitles;
class StillSaving;
struct QVPlaylistMovieChangedNotification;

/// The one place where commands become effects: action codes, keys, menu items. It is the main window's delegate. What
/// the commands are says their table (control/CommandTable.cpp). Main thread.
class QVMovieController final : public CommandTarget,
                                public platform::MenuTarget,
                                public platform::WindowDelegate,
                                public AppleRemoteDelegate {
public:
    /// All outlive the controller.
    struct Collaborators {
        platform::Window& window;
        /// The same window, for what only the main window does.
        MainWindow& mainWindow;
        QVMovieView& view;
        QVPlaylistController& playlist;
        QVSubtitlesController& subtitles;
        FeedbackDisplay& feedback;
        PointerHiding& pointer;
        platform::Desktop& desktop;
        ApplicationServices& application;
        /// The menus that are filled from the playlist, and from the movie's subtitle tracks.
        platform::Menu& playlistMenu;
        platform::Menu& subtitlesMenu;
        /// Made before.
        const CurrentCommands& commands;
        StillSaving& stills;
        platform::MovieToolkit& toolkit;
        SecondSubtitles& secondSubtitles;
    };
    QVMovieController(const Environment& environment, const Collaborators& collaborators);
    QVMovieController(const QVMovieController&) = delete;
    QVMovieController& operator=(const QVMovieController&) = delete;
    ~QVMovieController() override;

    void performAction(std::int32_t action, Feedback feedback) override;
    void performCommand(std::string_view name, Feedback feedback) override;
    bool processKeyboardEvent(const platform::KeyEvent& event) override;
    void processMouseGesture(MouseGesture gesture) override;
    bool forceMuted() const override { return _forceMuted; }
    void setForceMuted(bool muted) override;

    void appleRemoteButton(std::int32_t button, bool pressedDown) override;
    void remoteKeyPressed(platform::RemoteKey key) override;

    /// Performs the action at once and then every `interval` seconds, in place of what was repeated before.
    void startRepeatingAction(std::int32_t action, double interval, Feedback feedback);
    void stopRepeatingAction();

    /// The items' actions are the names of the commands' operations. Items of other actions are enabled and do nothing.
    bool validateMenuItem(platform::MenuItem& item) override;
    void performMenuItem(const platform::MenuItem& item) override;

    /// Fill the menus of speeds, of chapters and of tracks of sound.
    void fillSpeedMenu(platform::Menu& menu);
    void fillChaptersMenu(platform::Menu& menu);
    void fillAspectMenu(platform::Menu& menu);
    void fillDeinterlacingMenu(platform::Menu& menu);
    void fillColorsMenu(platform::Menu& menu);
    void fillAudioMenu(platform::Menu& menu);
    void fillQualityMenu(platform::Menu& menu);
    void fillSecondMenu(platform::Menu& menu);

    void windowDidBecomeKey(platform::Window& window) override;
    void windowDidResignKey(platform::Window& window) override;
    void windowDidResize(platform::Window& window) override;
    bool windowShouldClose(platform::Window& window) override;

private:
    friend struct CommandTable;
    friend struct SoundCommandTable;
    friend struct SubtitleCommandTable;

    // Operations, as the table of commands names them. Directions are +1 and -1; others do nothing. Some confirm
    // whatever the feedback says.
    void startStop(std::int32_t, Feedback feedback);
    void stop(std::int32_t, Feedback feedback);
    void normalSpeed(std::int32_t, Feedback feedback);
    void fastForward(std::int32_t, Feedback feedback);
    void fastRewind(std::int32_t, Feedback feedback);
    void fastForwardRewind(std::int32_t direction, Feedback feedback);
    void step(std::int32_t direction, Feedback feedback);
    void jump(std::int32_t direction, Feedback feedback);
    void beginningEnd(std::int32_t direction, Feedback feedback);
    void playPrevNext(std::int32_t direction, Feedback feedback);
    void changeLooping(std::int32_t mode, Feedback feedback);
    void toggleLooping(std::int32_t direction, Feedback feedback);
    void changeVolume(std::int32_t control, Feedback feedback);
    void shiftSound(std::int32_t milliseconds, Feedback feedback);
    bool validateShiftSound(platform::MenuItem& item) const;
    void changeSize(std::int32_t code, Feedback feedback);
    void toggleController(std::int32_t, Feedback feedback);
    void nextControllerOverPicture(std::int32_t, Feedback feedback);
    bool validateControllerOverPicture(platform::MenuItem& item) const;
    void showTracks(std::int32_t, Feedback feedback);
    void cycleDisplays(std::int32_t direction, Feedback feedback);
    void changeMovie(std::int32_t position, Feedback feedback);
    void changeSubtitles(std::int32_t position, Feedback feedback);
    void cycleSubtitles(std::int32_t direction, Feedback feedback);
    void changeSecond(std::int32_t position, Feedback feedback);
    void cycleSecond(std::int32_t direction, Feedback feedback);
    bool validateSecond(platform::MenuItem& item) const;
    void toggleRepair(std::int32_t, Feedback feedback);
    void addSubtitles(std::int32_t, Feedback feedback);
    void shiftSubtitles(std::int32_t milliseconds, Feedback feedback);
    void alignSubtitles(std::int32_t line, Feedback feedback);
    void sizeSubtitles(std::int32_t direction, Feedback feedback);
    void raiseSubtitles(std::int32_t direction, Feedback feedback);
    void switchScreen(std::int32_t direction, Feedback feedback);
    void changeSpeed(std::int32_t argument, Feedback feedback);
    bool validateSpeed(platform::MenuItem& item) const;
    void gotoChapter(std::int32_t position, Feedback feedback);
    void stepChapter(std::int32_t direction, Feedback feedback);
    bool validateChapter(platform::MenuItem& item) const;
    void repeatSection(std::int32_t, Feedback feedback);
    bool validateRepeating(platform::MenuItem& item) const;
    void goToTime(std::int32_t, Feedback feedback);
    void saveStill(std::int32_t, Feedback feedback);
    void setAspect(std::int32_t position, Feedback feedback);
    void nextAspect(std::int32_t, Feedback feedback);
    bool validateAspect(platform::MenuItem& item) const;
    void setDeinterlacing(std::int32_t when, Feedback feedback);
    void nextDeinterlacing(std::int32_t, Feedback feedback);
    bool validateDeinterlacing(platform::MenuItem& item) const;
    void cropBars(std::int32_t, Feedback feedback);
    bool validateCropping(platform::MenuItem& item) const;
    void turnPicture(std::int32_t, Feedback feedback);
    void mirrorPicture(std::int32_t, Feedback feedback);
    bool validateMirroring(platform::MenuItem& item) const;
    void adjustPicture(std::int32_t argument, Feedback feedback);
    bool validateAdjusting(platform::MenuItem& item) const;
    bool validateHasMovie(platform::MenuItem& item) const;
    void changeAudio(std::int32_t id, Feedback feedback);
    void cycleAudio(std::int32_t direction, Feedback feedback);
    bool validateAudio(platform::MenuItem& item) const;
    void changeQuality(std::int32_t id, Feedback feedback);
    void nextQuality(std::int32_t, Feedback feedback);
    bool validateQuality(platform::MenuItem& item) const;
    void goLive(std::int32_t, Feedback feedback);
    bool validateLive(platform::MenuItem& item) const;
    void doOpen(std::int32_t, Feedback feedback);
    void doOpenFolder(std::int32_t, Feedback feedback);
    void doOpenURL(std::int32_t type, Feedback feedback);
    void openRecent(std::int32_t position, Feedback feedback);
    void clearRecent(std::int32_t, Feedback feedback);
    bool validateClearRecent(platform::MenuItem& item) const;
    void savePlaylist(std::int32_t, Feedback feedback);
    bool validateSavePlaylist(platform::MenuItem& item) const;
    void showHelp(std::int32_t, Feedback feedback);
    void showPlaylist(std::int32_t, Feedback feedback);
    void showInformation(std::int32_t, Feedback feedback);
    void showPreferences(std::int32_t, Feedback feedback);
    void donate(std::int32_t, Feedback feedback);
    void quit(std::int32_t, Feedback feedback);
    void sleep(std::int32_t, Feedback feedback);
    void power(std::int32_t command, Feedback feedback);

    // What their menu items say, and whether they are enabled.
    bool validateSize(platform::MenuItem& item) const;
    bool validateLooping(platform::MenuItem& item) const;
    bool validatePrevNext(platform::MenuItem& item) const;
    bool validateMotion(platform::MenuItem& item) const;
    bool validateStartStop(platform::MenuItem& item) const;
    bool validateMovie(platform::MenuItem& item) const;
    bool validateSubtitles(platform::MenuItem& item) const;
    bool validateRepair(platform::MenuItem& item) const;
    bool validateAddSubtitles(platform::MenuItem& item) const;
    bool validateSync(platform::MenuItem& item) const;
    bool validateDonation(platform::MenuItem& item) const;

    void perform(const Command& command, std::int32_t argument, Feedback feedback);
    void restorePlayback();
    void muteForFastMotion();
    void repeatingActionTimer();
    void currentMovieChanged(const QVPlaylistMovieChangedNotification& notification);
    void subtitlesChanged();
    void listSubtitles(const std::shared_ptr<QVMovie>& movie);
    void sayLosses();
    void sayAudio();
    void fillPlaylistMenu(platform::Menu& menu);
    void fillTracksMenu(platform::Menu& menu) const;
    /// Where the movie of the menu's item stands by now; no position when it has gone.
    std::int32_t positionOfMenuMovie(std::int32_t tag) const;

    /// Shows the localized text of the key as a confirmation; the format's argument filled in.
    void post(std::string_view key);
    void post(std::string_view format, const QString& argument);
    /// Calls `work` later, unless the controller is gone by then.
    void performLater(double delay, std::function<void()> work);

    Environment _environment;
    Collaborators _with;
    bool _forceMuted = false;
    std::unique_ptr<platform::Timer> _repeatingActionTimer;
    std::int32_t _repeatingAction = noAction;
    Feedback _repeatingActionFeedback = Feedback::no;
    KeyboardMap _keyboardMap;
    PacedTimes _pacedTimes;
    std::vector<std::unique_ptr<platform::Timer>> _delayedWork;
    platform::Subscription _movieChanged;
    platform::Subscription _preferenceChanged;
    platform::Subscription _subtitlesLoaded;
    platform::Subscription _subtitlesChanged;
    SubtitleSync _sync;
    platform::Subscription _tracksChanged;
    /// The track whose losses are to be said when it has been read: the user chose it.
    std::weak_ptr<QVSubtitles> _chosenSubtitles;
    /// That whose tracks the subtitles menu lists.
    std::weak_ptr<QVMovie> _listedMovie;
    /// Where the section begins of which the end is still to be said, and its movie.
    std::optional<std::int32_t> _sectionBegin;
    std::unique_ptr<platform::MovieOpening> _barsSought;
    std::weak_ptr<QVMovie> _sectionOf;
    std::size_t _listedTracks = 0;
    /// Of sound and subtitles, opened from the controller bar.
    platform::Menu _tracksMenu;
    /// What the playlist menu showed when it opened, by the tags of its items.
    std::map<std::int32_t, std::weak_ptr<QVMovie>> _menuMovies;
};
