// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/StylePreview.h"

#include "overlays/QVChildOverlay.h"
#include "overlays/SampleOverlay.h"

#include <algorithm>

namespace {

/// Seconds for which nothing of the player's own has been shown when the sample returns: cues that follow each other
/// closely leave shorter gaps.
constexpr double gap = 1.0;

} // namespace

StylePreview::StylePreview(const Environment& environment, platform::Window& window, const PictureGeometry& picture)
    : _environment(environment)
    , _window(window)
    , _picture(picture)
    , _onEdited(environment.notifications.observe<QVOverlayStyleEditedNotification>(
          [this](const QVOverlayStyleEditedNotification& notification) { edited(notification); })) {}

StylePreview::~StylePreview() = default;

void StylePreview::edited(const QVOverlayStyleEditedNotification& notification) {
    // Of two pages that follow each other, the second may open before the first has closed.
    if (notification.page == QVOverlayStyleEditedNotification::Page::opened)
        open(notification.key);
    else if (notification.key == _key)
        close();
}

void StylePreview::open(const QString& key) {
    _return = nullptr;
    _fades.reset();
    if (_sample)
        _sample->hideAtOnce(); // those beside it take the space that it leaves
    _key = key;
    _sample = makeSampleOverlay(_environment, _window, _picture, key);
    if (!_sample)
        return;
    _fades.emplace(_environment, *_sample);
    _onVisibility = _environment.notifications.observe<QVOverlayVisibilityChangedNotification>(
        [this](const QVOverlayVisibilityChangedNotification& notification) {
            visibilityChanged(*notification.overlay);
        });
    if (isShownByPlayer())
        yield();
}

void StylePreview::close() {
    _key = QString();
    _return = nullptr;
    _fades.reset();
    if (_sample)
        _sample->hide();
}

void StylePreview::visibilityChanged(const QVStyledOverlay& overlay) {
    if (!_sample)
        return;
    if (&overlay == _sample.get()) {
        // What is hidden rests at its smallest opacity, and would stay to be seen.
        if (_key.isNull() && !_sample->isVisible())
            _sample->orderOut();
    } else if (!_key.isNull() && overlay.style() == _key) {
        if (isShownByPlayer())
            yield();
        else
            returnLater();
    }
}

bool StylePreview::isShownByPlayer() const {
    return std::ranges::any_of(_window.childWindows(), [this](const platform::Window* child) {
        const auto* overlay = dynamic_cast<const QVStyledOverlay*>(child);
        return overlay && overlay != _sample.get() && overlay->style() == _key && overlay->isVisible();
    });
}

void StylePreview::yield() {
    _return = nullptr;
    _fades.reset();
    _sample->hideAtOnce();
    _sample->orderOut();
}

void StylePreview::returnLater() {
    _return = _environment.loop.schedule(gap, false, [this] {
        if (isShownByPlayer())
            return;
        _fades.emplace(_environment, *_sample);
        _sample->orderFront();
        _sample->show();
    });
}
