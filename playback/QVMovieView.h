// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "context/Notifications.h"
#include "context/PictureSource.h"
#include "overlays/PictureGeometry.h"
#include "platform/base/NotificationCenter.h"
#include "platform/base/RunLoop.h"
#include "platform/movie/MovieView.h"
#include "playback/MovieSizing.h"
#include "playback/StandingMessage.h"
#include "settings/QVPreferencesChangedNotification.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <utility>

namespace platform {
class Desktop;
} // namespace platform

class CommandTarget;
class DropTarget;
class FeedbackDisplay;
class QVMovie;

/// The view that shows the current movie: size codes, magnification, jumps, panning, volume. Frame and sizes are
/// points. Main thread.
class QVMovieView final : public platform::MovieView, public PictureGeometry, public PictureSource {
public:
    /// All outlive the view.
    struct Collaborators {
        platform::MoviePlayer& player;
        platform::Desktop& desktop;
        CommandTarget& commands;
        FeedbackDisplay& feedback;
        DropTarget& drops;
    };
    QVMovieView(const Environment& environment, const Collaborators& collaborators);
    ~QVMovieView() override;

    /// The movie shown, or none.
    std::shared_ptr<QVMovie> movie() const;
    void setMovie(const std::shared_ptr<QVMovie>& movie);

    /// Of the movie shown, which keeps it; its size, and what stands on the picture, follow.
    platform::PictureShape shape() const;
    void setShape(const platform::PictureShape& shape);

    std::int32_t movieSize() const { return _size; }
    enum class Recalculation { ifChanged, forced };
    /// Takes a size code (namespace movieSize; unknown ones count as fitScreen), lays the view out centred in the
    /// window and keeps the code in the settings.
    void setMovieSize(std::int32_t code, Recalculation recalculation);
    /// The frame's width by the natural width; 0 without a movie.
    float magnification() const;
    float aspectRatio() const override;
    QSizeF sizeForFitScreen(std::int32_t mode) const override;
    QSizeF sizeForMagnification(float m) const;

    /// In the movie's time units; 0 without a movie.
    std::int32_t time() const;
    void setTime(std::int32_t time);
    /// Moves by direction times seconds, stopping at the ends.
    void jump(std::int32_t direction, double seconds);
    void start() override;
    void stop() override;
    /// Around losing key status: keeps whether and how fast the movie plays, and puts it back.
    void saveMovieState();
    void restoreMovieState();

    platform::Rect pictureFrame() const override { return frame(); }
    bool isControllerBarVisible() const override { return isControllerVisible(); }
    unsigned getControllerHeight() const override;
    double coveredHeight() const override { return _coveredHeight; }
    /// Tells whoever stands on the picture.
    void setCoveredHeight(double points);
    QImage still(const QSize& bounds) override;
    void toggleController();
    /// Called when what the controller bar shows may have changed; null for nobody.
    void setControllerObserver(std::function<void()> observer) { _controllerObserver = std::move(observer); }
    void setVolume(float volume) override;
    QString volumeInfoAsString() const;
    QString mutedInfoAsString() const;

    /// Pans by pointer deltas (dy grows downwards) as far as no gap opens at the window's edges; whether anything
    /// moved.
    bool scroll(float dx, float dy);
    void startAutoscroll(int direction);
    void stopAutoscroll(int direction);

    bool keyDown(const platform::KeyEvent& event) override;
    bool keyUp(const platform::KeyEvent& event) override;
    bool mouseDragged(const platform::MouseEvent& event) override;
    std::uint32_t draggingEntered(const platform::DraggingInfo& info) override;
    std::uint32_t draggingUpdated(const platform::DraggingInfo& info) override;
    void draggingExited() override;
    bool performDragOperation(const platform::DraggingInfo& info) override;

protected:
    QString clockText(double seconds) const override;
    QString liveText(double seconds) const override;
    void barButtonPressed(platform::ControllerBar::Control button) override;
    void controllerStateChanged() override;
    void playingChanged(bool playing) override;
    void waitChanged(const platform::MoviePlayer::Wait& wait) override;
    void movieFailed() override;

private:
    MovieSizing::Geometry geometry() const;
    void showControllerBySetting();
    void autoscroll();
    void currentMovieChanged(const QVPlaylistMovieChangedNotification& notification);
    void preferencesChanged(const QVPreferencesChangedNotification& notification);
    void confirm(const char* key);

    Environment _environment;
    platform::Desktop& _desktop;
    CommandTarget& _commands;
    FeedbackDisplay& _feedback;
    DropTarget& _drops;
    struct {
        bool isPlaying = false;
        float rate = 1.0F;
    } _state;
    std::function<void()> _controllerObserver;
    double _coveredHeight = 0;
    StandingMessage _waitMessage;
    std::unique_ptr<platform::Timer> _stallTimer;
    std::int32_t _size;
    std::unique_ptr<platform::Timer> _scrollTimer;
    int _direction = 0;
    platform::Subscription _movieChanged;
    platform::Subscription _preferencesChanged;
};
