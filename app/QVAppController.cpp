// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/QVAppController.h"

#include "app/Activation.h"
#include "app/AddedSubtitles.h"
#include "app/FileIntake.h"
#include "app/LaunchSteps.h"
#include "app/MainMenu.h"
#include "app/OpenPanels.h"
#include "app/PlaylistSaving.h"
#include "app/PointerAutohide.h"
#include "app/QVFullScreenWindow.h"
#include "app/RecentMovies.h"
#include "app/RememberedMovies.h"
#include "app/SavedState.h"
#include "app/StorageTroubles.h"
#include "app/SystemVersion.h"
#include "context/CommandTarget.h"
#include "control/CurrentCommands.h"
#include "control/KeyText.h"
#include "overlays/OnScreenDisplay.h"
#include "platform/base/Bundle.h"
#include "platform/base/Localization.h"
#include "platform/base/PropertyList.h"
#include "platform/base/UserDefaults.h"
#include "platform/desktop/Desktop.h"
#include "platform/movie/MovieToolkit.h"
#include "playback/BackdropView.h"
#include "playback/QVMovieView.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"

#include <optional>
#include <vector>

namespace {

constexpr const char* className = "QVAppController";

/// The screen that holds the middle of the window, else the main one; none without screens.
std::optional<platform::Screen> screenOf(const platform::Window& window, const platform::Desktop& desktop) {
    const std::vector<platform::Screen> screens = desktop.screens();
    for (const platform::Screen& screen : screens) {
        if (screen.frame.contains(window.frame().center()))
            return screen;
    }
    return screens.empty() ? std::nullopt : std::optional(screens.front());
}

/// How to open a movie, by the keys of the commands; by the menu where they have none.
BackdropView::Hint openingHint(const CurrentCommands& commands) {
    const auto hint = [&commands](std::string_view command, const char* withKey, const char* withoutKey) {
        const Command* row = commands.withName(command);
        const QString key = row && row->keys.front().character ? readableKeyText(row->keys.front().chord()) : QString();
        return key.isEmpty() ? platform::localizedString(QString::fromUtf8(withoutKey))
                             : platform::localizedFormat(QString::fromUtf8(withKey), {key});
    };
    return {hint("open", "Press %@ to open a movie", "Open a movie from the menu"),
            hint("help", "or drop files here. %@ shows all keys.", "or drop files here.")};
}

} // namespace

QVAppController* gAppController = nullptr;

QVAppController::QVAppController(const Environment& environment, const Collaborators& collaborators)
    : _environment(environment)
    , _with(collaborators)
    , _brightness(environment, collaborators.desktop, [this] { return screenOf(_with.window, _with.desktop); }) {
    gTracingEnabled = environment.settings.boolForKey(kQVEnableTrace);
    if (gTracingEnabled) {
        trace("Lumaro %@(v%@)", infoText("CFBundleShortVersionString"), infoText("CFBundleVersion"));
        trace("System Version: %X", QString::number(QVSystemVersion(), 16).toUpper());
        trace("%@: User Defaults:\n%@", className,
              QString::fromUtf8(platform::propertyList::toXml(environment.settings.persistentDomain())));
    }
    _preferencesChanged = environment.notifications.observe<QVPreferencesChangedNotification>(
        [this](const QVPreferencesChangedNotification& notification) { preferencesChanged(notification); });
}

QVAppController::~QVAppController() {
    const TraceScope scope("-[QVAppController dealloc]");
}

QString QVAppController::infoText(const char* key) const {
    return _with.bundle.objectForInfoDictionaryKey(QString::fromLatin1(key)).toString();
}

platform::Menu& QVAppController::playlistMenu() const {
    return _with.menu.playlistMenu();
}

platform::Menu& QVAppController::subtitlesMenu() const {
    return _with.menu.subtitlesMenu();
}

// Launch

void QVAppController::applicationWillFinishLaunching() {
    const TraceScope scope("-[QVAppController applicationWillFinishLaunching:]");
    _with.toolkit.enter();
    scheduleCursorHide();
    _with.window.makeKeyAndOrderFront();
    if (_with.window.firstResponder() != &_with.view)
        _with.window.makeFirstResponder(&_with.view);
    // The movie menu's check mark follows the view's size code, which is read from QVDefaultMovieSize.
    if (_environment.settings.boolForKey(kQVVolumeSave))
        _with.view.setVolume(_environment.settings.floatForKey(kQVVolumeSavedLevel));
    _brightness.begin();
    _with.window.show();
}

void QVAppController::applicationDidFinishLaunching() {
    _launchTimer = _environment.loop.schedule(_with.window.fadingInInterval(), false, [this] { finishLaunching(); });
}

void QVAppController::finishLaunching() {
    const TraceScope scope("-[QVAppController finishLaunching]");
    using Step = void (QVAppController::*)();
    for (const Step step :
         {&QVAppController::sayStorageTroubles, &QVAppController::runFirstTimeConfig, &QVAppController::askDonation,
          &QVAppController::checkVersionAtLaunch, &QVAppController::offerHint, &QVAppController::runLaunchAction,
          &QVAppController::openFilesOfLaunch, &QVAppController::restoreDisplay}) {
        // The step before may have waited in a panel while the program was told to end.
        if (_is_terminating)
            return;
        (this->*step)();
    }
}

/// Before the questions, which come again where the settings say no more that they were answered.
void QVAppController::sayStorageTroubles() {
    const bool restores = _environment.settings.integerForKey(kQVOnLaunchDefaultAction) == launchAction::restoreState;
    _with.storageTroubles.sayAtLaunch(restores || !_with.files.isEmpty() ? StorageTroubles::Launch::withMovies
                                                                         : StorageTroubles::Launch::empty);
}

void QVAppController::runFirstTimeConfig() {
    _with.steps.runFirstTimeConfig();
}

void QVAppController::askDonation() {
    _with.steps.askDonation();
}

void QVAppController::checkVersionAtLaunch() {
    if (_with.steps.shouldCheckLatestVersion())
        _with.steps.checkLatestVersion();
}

/// Not behind the questions: whoever named a movie need not be told how to open one.
void QVAppController::offerHint() {
    _with.backdrop.offerHint(openingHint(_with.commands));
}

void QVAppController::runLaunchAction() {
    if (_with.files.isEmpty()) {
        trace("%@: No movie files to open ...", className);
        switch (_environment.settings.integerForKey(kQVOnLaunchDefaultAction)) {
        case launchAction::restoreState:
            restoreState();
            break;
        case launchAction::openPanel:
            doOpen();
            break;
        default:
            break;
        }
    }
}

void QVAppController::openFilesOfLaunch() {
    _with.files.finishLaunching();
}

void QVAppController::restoreDisplay() {
    // A display that shows nothing is not made: its fonts would hold up the first picture.
    if (const std::int32_t type = _environment.settings.integerForKey(kQVOSDStateSavedType);
        _environment.settings.boolForKey(kQVOSDStateSave) && type != 0)
        _with.display.setDisplayType(type);
    _is_display_restored = true;
}

void QVAppController::applicationDidChangeScreenParameters() {
    if (const auto screen = screenOf(_with.window, _with.desktop))
        _with.window.setFrame(screen->frame);
}

// What others do

bool QVAppController::openFile(const QString& pathOrUrl) {
    _with.files.openFile(pathOrUrl);
    return true;
}

void QVAppController::startAddingFiles() {
    _with.files.startAddingFiles();
}

void QVAppController::finishAddingFiles() {
    _with.files.finishAddingFiles();
}

bool QVAppController::isLaunching() const {
    return _with.files.isLaunching();
}

void QVAppController::saveState() {
    _with.state.saveState();
}

void QVAppController::restoreState() {
    _with.state.restoreState(nullptr);
}

void QVAppController::doOpen() {
    _with.panels.doOpen();
}

void QVAppController::doOpenFolder() {
    _with.panels.doOpenFolder();
}

void QVAppController::addSubtitles() {
    _with.addedSubtitles.ask();
}

void QVAppController::doOpenURL(std::int32_t type) {
    _with.panels.doOpenURL(type);
}

void QVAppController::openRecent(std::int32_t position) {
    _with.recent.open(position);
}

void QVAppController::clearRecent() {
    _with.recent.clear();
}

bool QVAppController::hasRecent() const {
    return !_with.recent.isEmpty();
}

void QVAppController::savePlaylist() {
    _with.saving.savePlaylist();
}

void QVAppController::applicationWillBecomeActive() {
    _with.activation.applicationWillBecomeActive();
}

void QVAppController::applicationDidBecomeActive() {
    _with.activation.applicationDidBecomeActive();
}

void QVAppController::applicationWillResignActive() {
    _with.activation.applicationWillResignActive();
}

void QVAppController::windowDidBecomeKey(platform::Window& window) {
    _with.activation.windowDidBecomeKey(window);
}

void QVAppController::windowDidResignKey(platform::Window& window) {
    _with.activation.windowDidResignKey(window);
}

void QVAppController::hideCursor() {
    _with.pointer.hideCursor();
}

void QVAppController::showCursor() {
    _with.pointer.showCursor();
}

void QVAppController::scheduleCursorHide() {
    _with.pointer.scheduleCursorHide();
}

void QVAppController::showHelp() {
    trace("%@: Launching Help panel ...", className);
    _with.steps.runHelpPanel();
}

void QVAppController::showPlaylist() {
    _with.steps.runPlaylistPanel();
}

std::optional<double> QVAppController::askForTime(double now, double duration) {
    return _with.steps.runGoToTimePanel(now, duration);
}

void QVAppController::showInformation() {
    _with.steps.showInformation();
}

void QVAppController::showPreferences() {
    trace("%@: Launching Preferences panel ...", className);
    _with.steps.showPreferences();
}

void QVAppController::donate() {
    _with.steps.donate();
}

bool QVAppController::canDonate() const {
    return _with.steps.canDonate();
}

void QVAppController::cycleDisplays(std::int32_t direction) {
    _with.display.cycleDisplays(direction);
}

void QVAppController::preferencesChanged(const QVPreferencesChangedNotification& notification) {
    if (notification.key == kQVEnableTrace)
        gTracingEnabled = _environment.settings.boolForKey(kQVEnableTrace);
    else if (notification.key == kQVCommandKeys && _is_display_restored)
        _with.backdrop.offerHint(openingHint(_with.commands));
}

// Termination

platform::ApplicationDelegate::TerminateReply QVAppController::applicationShouldTerminate() {
    const TraceScope scope("-[QVAppController applicationShouldTerminate:]");
    endIntake();
    keepForNextLaunch();
    _with.steps.closePanels();
    if (_with.view.isPlaying())
        _with.view.stop();
    _with.window.setTerminating(true);
    _with.window.hide();
    _brightness.end();
    return TerminateReply::later;
}

void QVAppController::endIntake() {
    _is_terminating = true;
    _with.files.end();
    if (_environment.settings.boolForKey(kQVVolumeSave) && _with.controller.forceMuted())
        _with.controller.setForceMuted(false);
}

/// What this run leaves to the next one, in the settings.
void QVAppController::keepForNextLaunch() {
    _with.memory.keep();
    if (_environment.settings.boolForKey(kQVVolumeSave))
        _environment.settings.setFloat(_with.view.volume(), kQVVolumeSavedLevel);
    // What the launch has not put back yet is kept as it is.
    if (_environment.settings.integerForKey(kQVOnLaunchDefaultAction) == launchAction::restoreState)
        saveState();
    if (_is_display_restored && _environment.settings.boolForKey(kQVOSDStateSave))
        _environment.settings.setInteger(_with.display.displayType(), kQVOSDStateSavedType);
}

void QVAppController::applicationLostDisplay() {
    const TraceScope scope("-[QVAppController applicationLostDisplay:]");
    // Whoever was told to end before has kept it already.
    if (!_is_terminating) {
        endIntake();
        keepForNextLaunch();
    }
    _environment.settings.synchronize();
}

void QVAppController::applicationSavesSession() {
    const TraceScope scope("-[QVAppController applicationSavesSession:]");
    if (!_is_terminating)
        keepForNextLaunch();
    _environment.settings.synchronize();
}

void QVAppController::applicationWillTerminate() {
    const TraceScope scope("-[QVAppController applicationWillTerminate:]");
    _environment.settings.synchronize();
    _with.pointer.cancel();
    showCursor();
    cleanup();
    _with.toolkit.exit();
}

/// What is left goes with the composition.
void QVAppController::cleanup() {
    _launchTimer.reset();
    _with.view.setMovie(nullptr);
}
