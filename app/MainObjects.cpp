// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/MainObjects.h"

#include "app/OpeningFiles.h"
#include "overlays/QVFeedbackOverlay.h"
#include "overlays/QVOSDOverlay.h"
#include "platform/base/Bundle.h"
#include "platform/base/UserDefaults.h"
#include "platform/desktop/Desktop.h"
#include "platform/desktop/RecentlyUsed.h"
#include "platform/movie/MovieToolkit.h"
#include "platform/window/WindowHost.h"
#include "subtitles/formats/SubtitleFormats.h"

#include <QStandardPaths>

MainObjects::Publication::Publication(QVAppController& application, FeedbackOnDemand& feedback, OSDOnDemand& display,
                                      AppleRemote& remote) {
    gAppController = &application;
    QVFeedbackOverlay::setShared([&feedback]() -> QVFeedbackOverlay& { return feedback.overlay(); });
    QVOSDOverlay::setShared([&display]() -> QVOSDOverlay& { return display.overlay(); });
    AppleRemote::setShared(&remote);
}

MainObjects::Publication::~Publication() {
    AppleRemote::setShared(nullptr);
    QVOSDOverlay::setShared(nullptr);
    QVFeedbackOverlay::setShared(nullptr);
    gAppController = nullptr;
}

MainObjects::MainObjects(const Environment& environment, const Platform& platform, LaunchSteps& steps)
    : _currentCommands(environment)
    , _pointer(environment,
               [this](bool hidden) {
                   if (_window.host())
                       _window.host()->setPointerHidden(hidden);
               })
    , _files(environment, platform.desktop, _feedback,
             {supportedFileTypes(platform.bundle), platform.toolkit.fileFetcher()},
             [this](Adding adding) { return _playlist.addInParts(adding, Starting::yes); })
    , _openPanels(environment, {platform.desktop, _files, steps}, supportedFileTypes(platform.bundle))
    , _window(environment,
              {platform.desktop, _commands, _pointer, [this](int direction) { _view.startAutoscroll(direction); },
               [this](int direction) { _view.stopAutoscroll(direction); },
               [this](const std::optional<QPointF>& point) { _bars.moved(point); },
               [this] { return _files.endSearches(); }})
    , _feedback(environment, _window)
    , _subtitleReaders(subtitleReaders(environment, platform.toolkit.subtitlePacketReader()))
    , _subtitleDiscovery(environment.loop)
    , _drops(environment, {_files, _feedback})
    , _backdrop(environment, {platform.toolkit, _drops})
    , _view(environment, {platform.toolkit.player(), platform.desktop, _commands, _feedback, _drops})
    , _bars(environment, _window, _view, platform.toolkit)
    , _memory(environment, {platform.movies, platform.recentlyUsed, _view, _feedback, _currentCommands,
                            [this] { return _subtitles.current(); },
                            [this](const QString& path, std::uint32_t index) { _heldSubtitles.hold(path, index); }})
    , _storageTroubles(environment, platform.desktop, _feedback, platform.movies)
    , _recent(_memory, [this](const QString& address) { _application.openFile(address); })
    , _playlist(environment, {{platform.toolkit, platform.desktop, _subtitleReaders, _subtitleDiscovery},
                              _view,
                              platform.desktop,
                              _commands,
                              _openPanels,
                              _feedback,
                              _memory})
    , _saving(environment, platform.desktop, _playlist)
    , _subtitleScene(environment, _window, _view)
    , _subtitles(environment, _subtitleScene)
    , _secondSubtitles(environment, _subtitleScene, _subtitles)
    , _addedSubtitles(environment, {platform.desktop, _view, _subtitles, _feedback},
                      supportedFileTypes(platform.bundle), _subtitleReaders.subtitleUnfilteredFileTypes())
    , _heldSubtitles(environment, _subtitles)
    , _state(environment, {_playlist, _view, _subtitles, _heldSubtitles})
    , _stylePreview(environment, _window, _view)
    , _stills(environment, _view, _feedback,
              [] { return QStandardPaths::writableLocation(QStandardPaths::PicturesLocation); })
    , _texts(_view, _playlist, _subtitles)
    , _display(environment, _window, _texts)
    , _information(_view, _subtitles)
    , _menu(environment, _currentCommands)
    , _activation(environment, _window, _view, _pointer)
    , _application(environment, {platform.desktop, platform.toolkit,
                                 platform.bundle,  steps,
                                 _window,          _view,
                                 _backdrop,        _playlist,
                                 _subtitles,       _commands,
                                 _display,         _menu,
                                 _pointer,         _files,
                                 _openPanels,      _saving,
                                 _activation,      _state,
                                 _memory,          _storageTroubles,
                                 _recent,          _currentCommands,
                                 _addedSubtitles})
    , _controller(environment, {_window, _window, _view, _playlist, _subtitles, _feedback, _pointer, platform.desktop,
                                _application, _menu.playlistMenu(), _menu.subtitlesMenu(), _currentCommands, _stills,
                                platform.toolkit, _secondSubtitles})
    , _remote(platform.desktop.remotes())
    , _remoteControl(environment, _remote, _controller)
    , _computerSleep(environment, {platform.desktop.power(), _view, _controller, _feedback}) {
    _menu.recentMenu().setFiller([this](platform::Menu& menu) { _recent.fill(menu); });
    _menu.submenu("speed").setFiller([this](platform::Menu& menu) { _controller.fillSpeedMenu(menu); });
    _menu.submenu("chapters").setFiller([this](platform::Menu& menu) { _controller.fillChaptersMenu(menu); });
    _menu.submenu("aspect").setFiller([this](platform::Menu& menu) { _controller.fillAspectMenu(menu); });
    _menu.submenu("deinterlacing").setFiller([this](platform::Menu& menu) { _controller.fillDeinterlacingMenu(menu); });
    _menu.submenu("colors").setFiller([this](platform::Menu& menu) { _controller.fillColorsMenu(menu); });
    _menu.submenu("audio-tracks").setFiller([this](platform::Menu& menu) { _controller.fillAudioMenu(menu); });
    _menu.submenu("quality").setFiller([this](platform::Menu& menu) { _controller.fillQualityMenu(menu); });
    _menu.submenu("second-subtitles").setFiller([this](platform::Menu& menu) { _controller.fillSecondMenu(menu); });
    _window.contentView().addSubview(_backdrop);
    _window.contentView().addSubview(_view);
    _window.setDelegate(&_controller);
    _commands.setTarget(&_controller);
    _files.setSubtitleTaker(&_addedSubtitles);
}

MainObjects::~MainObjects() {
    _files.setSubtitleTaker(nullptr);
    _commands.setTarget(nullptr);
    _window.setDelegate(nullptr);
}
