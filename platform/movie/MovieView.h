// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/ControllerBar.h"
#include "platform/movie/MoviePlayer.h"
#include "platform/window/View.h"

#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace platform {

class Movie;

/// The view that shows the player's movie, with an optional controller bar below the picture. The playing
/// commands act on the player; without a movie they do nothing. Main thread.
class MovieView : public View, private MoviePlayer::Observer {
public:
    explicit MovieView(MoviePlayer& player);
    ~MovieView() override;

    const std::shared_ptr<Movie>& movieObject() const { return _movie; }
    /// Loads the movie into the player, paused; none unloads.
    void setMovieObject(std::shared_ptr<Movie> movie);

    virtual void start();
    virtual void stop();
    bool isPlaying() const;
    float rate() const;
    void setRate(float rate);
    /// Of rate 1 (MoviePlayer::speed).
    double speed() const { return _player.speed(); }
    void setSpeed(double speed) { _player.setSpeed(speed); }
    std::optional<MoviePlayer::Section> repeated() const { return _player.repeated(); }
    void repeat(const std::optional<MoviePlayer::Section>& section) { _player.repeat(section); }
    PictureAdjustment adjustment() const { return _player.adjustment(); }
    void setAdjustment(const PictureAdjustment& adjustment) { _player.setAdjustment(adjustment); }
    Deinterlacing deinterlacing() const { return _player.deinterlacing(); }
    void setDeinterlacing(Deinterlacing when) { _player.setDeinterlacing(when); }
    /// MoviePlayer::still().
    void wholePicture(std::function<void(QImage)> completion) { _player.still(std::move(completion)); }
    /// MoviePlayer::facts().
    void facts(std::function<void(const PlaybackFacts&)> completion) const { _player.facts(std::move(completion)); }
    /// MoviePlayer::behindLive() and goLive().
    std::optional<double> behindLive() const;
    void goLive() { _player.goLive(); }
    float volume() const;
    virtual void setVolume(float volume);
    bool isMuted() const;
    void setMuted(bool muted);
    /// These move the time and are reported as time jumps.
    void gotoBeginning();
    void gotoEnd();
    void stepForward();
    void stepBack();

    bool isControllerVisible() const { return _controllerVisible; }
    /// With adjustingSize the view's height grows or shrinks by the bar's, the picture keeping its size.
    void showController(bool visible, bool adjustingSize);

    /// What a controller bar shows of the player, wherever it stands.
    ControllerBar::State controllerState() const;
    /// Where the chapters begin, in shares of the duration.
    std::vector<double> chapterMarks() const;
    /// Does what a bar was pressed for.
    void performController(const ControllerBar::Command& command);
    /// The pointer moved over the window, or left it: what of the bar would be pressed shows it. Content coordinates.
    void pointerMoved(const std::optional<QPointF>& point);
    /// A place on the time slider of the view's own bar.
    struct BarPlace {
        /// Of the duration, 0 to 1.
        double share = 0;
        /// The bar's, content coordinates.
        Rect bar;
    };
    /// That under a point of the window; none outside, without a bar, and where the duration is not known.
    std::optional<BarPlace> barPlaceAt(QPointF point) const;

    /// Space plays or pauses, the arrows step one picture. True when the key was one of these and there is a movie.
    bool handleMovieKey(const KeyEvent& event);

    void draw(QPainter& painter, const Rect& dirty) override;
    Rect drawnRect() const override;
    VideoLayer* videoLayer() override;
    Rect pictureRect() const override;
    bool mouseDown(const MouseEvent& event) override;
    bool mouseDragged(const MouseEvent& event) override;
    bool mouseUp(const MouseEvent& event) override;

protected:
    MoviePlayer& player() const { return _player; }
    /// True while a press in the controller bar is being followed.
    bool isTrackingController() const { return _tracking; }
    /// Seconds as the bar shows them; empty, as by default, for a bar without texts.
    virtual QString clockText(double) const { return {}; }
    /// By how many seconds a live movie is behind, as the bar shows it in place of a duration.
    virtual QString liveText(double) const { return {}; }
    /// A button was pressed that is no matter of the player.
    virtual void barButtonPressed(ControllerBar::Control) {}
    /// What controllerState() answers may be another.
    virtual void controllerStateChanged() {}
    /// The movie began to play, or stopped, for whatever reason. Does nothing by default.
    virtual void playingChanged(bool playing);
    /// As the player's observer is told. These do nothing by default.
    virtual void waitChanged(const MoviePlayer::Wait&) {}
    virtual void movieFailed() {}

private:
    void playerFrameChanged() override;
    void playerFrameDue() override;
    void playerStateChanged() override;
    void playerWaitChanged(const MoviePlayer::Wait& wait) override { waitChanged(wait); }
    void playerFailed() override { movieFailed(); }
    /// What the time slider reaches over, in units: a live movie's reaches to what is live. 0 where that is not known.
    double sliderLength() const;
    Rect controllerRect() const;
    double controllerHeight() const;
    /// The bar's own size, and a point of the view in its coordinates.
    QSizeF barSize() const;
    QPointF inBar(QPointF point) const;
    ControllerBar::Layout barLayout() const;
    ControllerBar::State shownController() const;
    /// Marks the bar for drawing where it looks otherwise than it did.
    void showBarAnew();

    MoviePlayer& _player;
    std::shared_ptr<Movie> _movie;
    ControllerBar _bar;
    /// As the bar was drawn or marked for drawing last.
    ControllerBar::State _shownState;
    ControllerBar::Control _pointed = ControllerBar::Control::none;
    bool _controllerVisible = true;
    bool _tracking = false;
    bool _wasPlaying = false;
};

} // namespace platform
