// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/QVAppController.h"

#include "app/LaunchSteps.h"
#include "app/OpeningFiles.h"
#include "app/QVFullScreenWindow.h"
#include "app/ScreenBrightness.h"
#include "app/SystemVersion.h"
#include "control/ModifierFlags.h"
#include "control/QVMovieController.h"
#include "overlays/QVFeedbackOverlay.h"
#include "overlays/QVOSDOverlay.h"
#include "platform/base/Bundle.h"
#include "platform/base/PropertyList.h"
#include "platform/desktop/Desktop.h"
#include "platform/movie/MovieToolkit.h"
#include "platform/window/WindowHost.h"
#include "playlist/QVPlaylistController.h"
#include "settings/QVUserDefaults.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"
#include "subtitles/QVSubtitlesController.h"

#include <QDir>

#include <algorithm>
#include <optional>
#include <utility>

namespace {

constexpr const char* className = "QVAppController";

// Above this many seconds the pointer is never hidden.
constexpr std::int32_t longestCursorDelay = 10;

namespace launchAction {
constexpr std::int32_t restoreState = 1;
constexpr std::int32_t openPanel = 2;
} // namespace launchAction

platform::UserDefaults& defaults() {
    return QVUserDefaults::standardUserDefaults();
}

QString infoText(const char* key) {
    return platform::Bundle::main().objectForInfoDictionaryKey(QString::fromLatin1(key)).toString();
}

/// The screen that holds the middle of the window, else the main one; none without screens.
std::optional<platform::Screen> screenOf(const platform::Window& window) {
    const std::vector<platform::Screen> screens = platform::Desktop::shared().screens();
    for (const platform::Screen& screen : screens) {
        if (screen.frame.contains(window.frame().center()))
            return screen;
    }
    return screens.empty() ? std::nullopt : std::optional(screens.front());
}

Adding addingFor(std::uint32_t modifiers) {
    return modifiers & platform::modifier::option ? Adding::append : Adding::replace;
}

} // namespace

QVAppController::QVAppController(QVFullScreenWindow& window, QVMovieView& view, MainMenu& menu, LaunchSteps& steps)
    : _window(window)
    , _view(view)
    , _menu(menu)
    , _steps(steps)
    , _subtitleScene(window, view) {
    gTracingEnabled = defaults().boolForKey(kQVEnableTrace);
    if (gTracingEnabled) {
        trace("Lumaro %@(v%@)", infoText("CFBundleShortVersionString"), infoText("CFBundleVersion"));
        trace("System Version: %X", QString::number(QVSystemVersion(), 16).toUpper());
        trace("%@: User Defaults:\n%@", className,
              QString::fromUtf8(platform::propertyList::toXml(defaults().persistentDomain())));
    }
    _preferencesChanged = platform::NotificationCenter::defaultCenter().observe<QVPreferencesChangedNotification>(
        [this](const QVPreferencesChangedNotification& notification) { preferencesChanged(notification); });
    _view.setDropTarget(this);
    QVOSDOverlay::setTexts(&_texts);
    gAppController = this;
}

QVAppController::~QVAppController() {
    const TraceScope scope("-[QVAppController dealloc]");
    _preferencesChanged.reset();
    _view.setDropTarget(nullptr);
    cleanup();
    gAppController = nullptr;
}

// The main objects

platform::Window* QVAppController::window() {
    return &_window;
}

MainWindow* QVAppController::mainWindow() {
    return &_window;
}

QVPlaylistController* QVAppController::playlist() {
    if (!_playlist && !_cleanedUp)
        _playlist = std::make_unique<QVPlaylistController>();
    return _playlist.get();
}

QVSubtitlesController* QVAppController::subtitles() {
    if (!_subtitles && !_cleanedUp)
        _subtitles = std::make_unique<QVSubtitlesController>(&_subtitleScene);
    return _subtitles.get();
}

QVMovieController* QVAppController::movieController() {
    if (!_controller && !_cleanedUp) {
        _controller = std::make_unique<QVMovieController>();
        _window.setDelegate(_controller.get());
    }
    return _controller.get();
}

CommandTarget* QVAppController::controller() {
    return movieController();
}

// Launch

void QVAppController::applicationWillFinishLaunching() {
    const TraceScope scope("-[QVAppController applicationWillFinishLaunching:]");
    platform::MovieToolkit::shared().enter();
    scheduleCursorHide();
    _window.makeKeyAndOrderFront();
    if (_window.firstResponder() != &_view)
        _window.makeFirstResponder(&_view);
    subtitles();
    controller();
    // The movie menu's check mark follows the view's size code, which is read from QVDefaultMovieSize.
    if (defaults().boolForKey(kQVVolumeSave))
        _view.setVolume(defaults().floatForKey(kQVVolumeSavedLevel));
    if (const auto screen = screenOf(_window)) {
        _savedBrightness = brightnessOf(*screen);
        if (defaults().boolForKey(kQVForceScreenBrightness))
            setBrightnessOf(*screen, defaults().floatForKey(kQVScreenBrightness));
    }
    _window.show();
}

void QVAppController::applicationDidFinishLaunching() {
    _launchTimer = platform::RunLoop::main().schedule(_window.fadingInInterval(), false, [this] { finishLaunching(); });
}

bool QVAppController::openFile(const QString& pathOrUrl) {
    if (!_is_adding_files)
        startAddingFiles();
    _added_files.append(pathOrUrl);
    return true;
}

void QVAppController::startAddingFiles() {
    const TraceScope scope("-[QVAppController startAddingFiles]");
    _is_adding_files = true;
    _is_should_replace = addingFor(QVGetModifierFlags()) == Adding::replace;
    _added_files.reserve(25);
    // The files of one hand-over arrive one by one; the batch is closed when all have. At launch finishLaunching does
    // it.
    if (!_is_launching)
        _batchTimer = platform::RunLoop::main().schedule(0, false, [this] { finishAddingFiles(); });
}

void QVAppController::finishAddingFiles() {
    const TraceScope scope("-[QVAppController finishAddingFiles]");
    const bool collecting = std::exchange(_is_adding_files, false);
    const QStringList files = std::exchange(_added_files, {});
    if (!collecting || files.isEmpty())
        return;
    QList<QUrl> urls;
    for (const QString& file : files) {
        if (isURLString(file))
            urls += urlsWithURLStrings({file});
        else
            urls += urlsWithPathStrings({file}, supportedFileTypes());
    }
    playlist()->addURLs(urls, _is_should_replace ? Adding::replace : Adding::append, Starting::yes);
}

void QVAppController::finishLaunching() {
    const TraceScope scope("-[QVAppController finishLaunching]");
    _steps.runFirstTimeConfig();
    _steps.askDonation();
    if (_steps.shouldCheckLatestVersion()) {
        const TraceScope check("-[QVAppController checkLatestVersion:]");
        _steps.checkLatestVersion();
    }
    if (_added_files.isEmpty()) {
        trace("%@: No movie files to open ...", className);
        switch (defaults().integerForKey(kQVOnLaunchDefaultAction)) {
        case launchAction::restoreState:
            _steps.restoreState();
            break;
        case launchAction::openPanel:
            doOpen();
            break;
        default:
            break;
        }
    }
    finishAddingFiles();
    _is_launching = false;
    // Files may have arrived while those movies were opened.
    finishAddingFiles();
    // A display that shows nothing is not made: its fonts would hold up the first picture.
    if (const std::int32_t type = defaults().integerForKey(kQVOSDStateSavedType);
        defaults().boolForKey(kQVOSDStateSave) && type != 0)
        QVOSDOverlay::sharedOSDOverlay().setDisplayType(type);
}

// Activation

void QVAppController::applicationWillBecomeActive() {
    const TraceScope scope("-[QVAppController applicationWillBecomeActive:]");
    _window.setLevel(defaults().integerForKey(kQVMainWindowLayer));
    if (std::exchange(_window_hidden, false))
        _window.show();
}

void QVAppController::applicationDidBecomeActive() {
    const TraceScope scope("-[QVAppController applicationDidBecomeActive:]");
    scheduleCursorHide();
    _window.orderChildrens();
}

void QVAppController::applicationWillResignActive() {
    const TraceScope scope("-[QVAppController applicationWillResignActive:]");
    lowerWindow();
    _window.orderChildrens();
    if (defaults().boolForKey(kQVHideOnDeactivate)) {
        _window.hide();
        _window_hidden = true;
    }
}

void QVAppController::lowerWindow() {
    if (_window.level() > platform::windowLevel::normal)
        _window.setLevel(platform::windowLevel::normal);
}

void QVAppController::windowDidBecomeKey(platform::Window& window) {
    const TraceScope scope("-[QVAppController windowDidBecomeKey:]");
    if (&window == &_window) {
        _window.setLevel(defaults().integerForKey(kQVMainWindowLayer));
        if (std::exchange(_pause_forced, false))
            _view.restoreMovieState();
        scheduleCursorHide();
    }
    _window.orderChildrens();
}

void QVAppController::windowDidResignKey(platform::Window& window) {
    const TraceScope scope("-[QVAppController windowDidResignKey:]");
    if (&window == &_window) {
        showCursor();
        if (defaults().boolForKey(kQVPauseOnDeactivate)) {
            _view.saveMovieState();
            _view.stop();
            _pause_forced = true;
        }
        lowerWindow();
    }
    _window.orderChildrens();
}

void QVAppController::applicationDidChangeScreenParameters() {
    if (const auto screen = screenOf(_window))
        _window.setFrame(screen->frame);
}

// The pointer

void QVAppController::hideCursor() {
    if (_window.host())
        _window.host()->setPointerHidden(true);
}

void QVAppController::showCursor() {
    if (_window.host())
        _window.host()->setPointerHidden(false);
}

void QVAppController::scheduleCursorHide() {
    const std::int32_t delay = defaults().integerForKey(kQVCursorAutohideDelay);
    if (delay > longestCursorDelay)
        return;
    if (_autohide_cursor_timer) {
        _autohide_cursor_timer->rearm(delay);
        return;
    }
    _autohide_cursor_timer = platform::RunLoop::main().schedule(delay, false, [this] { autohideCursor(); });
}

void QVAppController::autohideCursor() {
    hideCursor();
    _autohide_cursor_timer.reset();
}

// Opening

void QVAppController::doOpen() {
    trace("%@: Launching File Open panel ...", className);
    QString folder = defaults().stringForKey(kNSNavLastRootDirectory);
    if (folder.startsWith(QLatin1Char('~')))
        folder.replace(0, 1, QDir::homePath());
    const QStringList chosen = platform::Desktop::shared().runOpenPanel(supportedFileTypes(), folder);
    if (chosen.isEmpty())
        return;
    const Adding adding = addingFor(QVGetModifierFlags());
    playlist()->addURLs(urlsWithPathStrings(chosen, supportedFileTypes()), adding, Starting::yes);
}

std::uint32_t QVAppController::draggingEntered(const platform::DraggingInfo& info) {
    using namespace platform;
    if (!info.offersFileNames && !info.offersURL)
        return dragOperation::none;
    if (info.sourceOperationMask & dragOperation::generic)
        return dragOperation::generic;
    return info.sourceOperationMask & dragOperation::copy ? dragOperation::copy : dragOperation::none;
}

std::uint32_t QVAppController::draggingUpdated(const platform::DraggingInfo& info) {
    return draggingEntered(info);
}

bool QVAppController::performDragOperation(const platform::DraggingInfo& info) {
    using namespace platform;
    // A source limits itself to copying while the Option key is held.
    const bool append =
        !(info.sourceOperationMask & dragOperation::generic) && (info.sourceOperationMask & dragOperation::copy);
    const Adding adding = append ? Adding::append : Adding::replace;
    if (info.offersFileNames) {
        if (!info.fileNames.isEmpty())
            playlist()->addURLs(urlsWithPathStrings(info.fileNames, supportedFileTypes()), adding, Starting::yes);
    } else if (info.offersURL) {
        playlist()->addURLs(urlsWithURLStrings(info.urlStrings), adding, Starting::yes);
    }
    return true;
}

// Menus

void QVAppController::showHelp() {
    trace("%@: Launching Help panel ...", className);
    _steps.runHelpPanel();
}

bool QVAppController::validateMenuItem(platform::MenuItem& item) {
    return !movieController()->handlesMenuAction(item.action) || movieController()->validateMenuItem(item);
}

void QVAppController::performMenuItem(const platform::MenuItem& item) {
    if (movieController()->handlesMenuAction(item.action))
        movieController()->performMenuItem(item);
    else if (item.action == QStringLiteral("doOpen"))
        doOpen();
    else if (item.action == QStringLiteral("quit"))
        controller()->performAction(action::quit, Feedback::yes);
    else if (item.action == QStringLiteral("showHelp"))
        showHelp();
    else if (item.action == QStringLiteral("toggleController"))
        _view.toggleController();
    else if (item.action == QStringLiteral("cycleDisplays"))
        QVOSDOverlay::sharedOSDOverlay().cycleDisplays(item.tag);
    else if (item.action == QStringLiteral("performAction"))
        controller()->performAction(item.tag, Feedback::yes);
}

void QVAppController::preferencesChanged(const QVPreferencesChangedNotification& notification) {
    if (notification.key == kQVEnableTrace)
        gTracingEnabled = defaults().boolForKey(kQVEnableTrace);
}

// Termination

platform::ApplicationDelegate::TerminateReply QVAppController::applicationShouldTerminate() {
    const TraceScope scope("-[QVAppController applicationShouldTerminate:]");
    if (defaults().boolForKey(kQVVolumeSave)) {
        if (controller()->forceMuted())
            controller()->setForceMuted(false);
        defaults().setFloat(_view.volume(), kQVVolumeSavedLevel);
    }
    if (defaults().integerForKey(kQVOnLaunchDefaultAction) == launchAction::restoreState)
        _steps.saveState();
    if (defaults().boolForKey(kQVOSDStateSave))
        defaults().setInteger(QVOSDOverlay::sharedDisplayType(), kQVOSDStateSavedType);
    if (_view.isPlaying())
        _view.stop();
    _window.setTerminating(true);
    _window.hide();
    if (const auto screen = screenOf(_window); screen && _savedBrightness != brightnessOf(*screen))
        setBrightnessOf(*screen, _savedBrightness);
    return TerminateReply::later;
}

void QVAppController::applicationWillTerminate() {
    const TraceScope scope("-[QVAppController applicationWillTerminate:]");
    defaults().synchronize();
    _autohide_cursor_timer.reset();
    showCursor();
    cleanup();
    platform::MovieToolkit::shared().exit();
}

void QVAppController::cleanup() {
    // From here on nothing is created again, though the view still asks for it.
    _cleanedUp = true;
    _autohide_cursor_timer.reset();
    _launchTimer.reset();
    _batchTimer.reset();
    _subtitles.reset();
    _added_files.clear();
    _playlist.reset();
    _window.setDelegate(nullptr);
    _controller.reset();
    _view.setMovie(nullptr);
    // They stand above the window, which goes next.
    QVFeedbackOverlay::destroyShared();
    QVOSDOverlay::destroyShared();
    QVOSDOverlay::setTexts(nullptr);
}
