// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/MainObjects.h"

#include "app/OpeningFiles.h"
#include "overlays/QVFeedbackOverlay.h"
#include "overlays/QVOSDOverlay.h"
#include "platform/base/Bundle.h"
#include "platform/desktop/Desktop.h"
#include "platform/movie/MovieToolkit.h"
#include "platform/window/WindowHost.h"
#include "subtitles/formats/SubtitleFormats.h"

namespace {

/// The overlay is made for the first text.
class SharedFeedback final : public FeedbackDisplay {
    void postFeedback(const QString& message) override {
        QVFeedbackOverlay::sharedFeedbackOverlay().postFeedback(message);
    }
    double readingTime() const override { return QVFeedbackOverlay::sharedFeedbackOverlay().readingTime(); }
};

} // namespace

MainObjects::MainObjects(const Environment& environment, const Platform& platform, LaunchSteps& steps)
    : _pointer(environment,
               [this](bool hidden) {
                   if (_window.host())
                       _window.host()->setPointerHidden(hidden);
               })
    , _files(environment, platform.desktop, supportedFileTypes(platform.bundle),
             [this](const QList<QUrl>& urls, Adding adding) { _playlist.addURLs(urls, adding, Starting::yes); })
    , _window(environment,
              {platform.desktop, _commands, _pointer, [this](int direction) { _view.startAutoscroll(direction); },
               [this](int direction) { _view.stopAutoscroll(direction); }})
    , _feedback(std::make_unique<SharedFeedback>())
    , _subtitleReaders(subtitleReaders(environment))
    , _subtitleDiscovery(environment.loop)
    , _view(environment, {platform.toolkit.player(), platform.desktop, _commands, *_feedback, _files})
    , _playlist(environment, {{platform.toolkit, platform.desktop, _subtitleReaders, _subtitleDiscovery},
                              _view,
                              platform.desktop,
                              _commands,
                              _files})
    , _subtitleScene(environment, _window, _view)
    , _subtitles(environment, _subtitleScene)
    , _texts(_view, _playlist, _subtitles)
    , _activation(environment, _window, _view, _pointer)
    , _application(environment, {platform.desktop, platform.toolkit, platform.bundle, steps, _window, _view, _playlist,
                                 _subtitles, _controller, _menu, _pointer, _files, _activation})
    , _controller(environment, {_window, _window, _view, _playlist, _subtitles, *_feedback, _pointer, platform.desktop,
                                _application, _menu.playlistMenu(), _menu.subtitlesMenu()}) {
    QVOSDOverlay::setTexts(&_texts);
    _window.contentView().addSubview(_view);
    _window.setDelegate(&_controller);
    _commands.setTarget(&_controller);
}

MainObjects::~MainObjects() {
    _commands.setTarget(nullptr);
    _window.setDelegate(nullptr);
    QVFeedbackOverlay::destroyShared();
    QVOSDOverlay::destroyShared();
    QVOSDOverlay::setTexts(nullptr);
}
