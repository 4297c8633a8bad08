// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "context/Notifications.h"
#include "platform/base/NotificationCenter.h"
#include "platform/base/RunLoop.h"
#include "platform/movie/MovieView.h"
#include "playback/PlacePictures.h"
#include "settings/QVPreferencesChangedNotification.h"

#include <QPointF>

#include <memory>
#include <optional>

class FloatingBar;
class PlacePreview;
class QVMovieView;

namespace platform {
class MovieToolkit;
class Window;
} // namespace platform

/// What QVControllerOverPicture says of the bar over the picture. It never stands beside the one below the picture.
enum class ControllerOverPicture { off, always, whenPointerMoves };

/// Follows the pointer over the main window for the controller bars: what lies at the place under it is shown above the
/// bar, and the bar over the picture comes and goes as the settings say. The overlays are made when they are first
/// needed. Main thread.
class BarPointer {
public:
    /// All outlive this object.
    BarPointer(const Environment& environment, platform::Window& window, QVMovieView& view,
               platform::MovieToolkit& toolkit);
    BarPointer(const BarPointer&) = delete;
    BarPointer& operator=(const BarPointer&) = delete;
    ~BarPointer();

    /// It moved to a point of the window's content, or left the window.
    void moved(const std::optional<QPointF>& point);

    /// Null while none was needed yet.
    PlacePreview* preview() const { return _preview.get(); }
    FloatingBar* floatingBar() const { return _floating.get(); }

private:
    ControllerOverPicture floating() const;
    /// Has the bar over the picture stand, or not, as the settings and the movie say now.
    void follow();
    void pointerRests();
    void showPlace();
    void showPicture();
    void endPlace();

    Environment _environment;
    platform::Window& _window;
    QVMovieView& _view;
    std::unique_ptr<PlacePreview> _preview;
    std::unique_ptr<FloatingBar> _floating;
    std::optional<QPointF> _point;
    bool _pointerMoves = false;
    PlacePictures _pictures;
    std::unique_ptr<platform::Timer> _restTimer;
    platform::Subscription _preferencesChanged;
    platform::Subscription _movieChanged;
    platform::Subscription _sizeChanged;
};
