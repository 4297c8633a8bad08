// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

class QVMovie;
class QVSubtitle;
struct QVSubtitlesChangedNotification;
class SubtitleOwner;

/// What the subtitles controller asks of a view that shows cues. Main thread.
class SubtitleView {
public:
    virtual ~SubtitleView() = default;

    /// Takes the cue to show, or none: it appears, or what stood there goes. Called with each picture, most of the time
    /// with the same cue again, which costs nothing.
    virtual void setSubtitle(const std::shared_ptr<QVSubtitle>& subtitle) = 0;
    /// Display was switched on, and off; the cue stays.
    virtual void show() = 0;
    virtual void hide() = 0;
    /// Above the other windows of its parent.
    virtual void orderFront() = 0;
    /// Another track may be the current one.
    virtual void currentSubtitlesChanged(const QVSubtitlesChangedNotification& notification) = 0;
};

/// What it asks of the view for images: a track of images says itself how they come, stand and go.
class ImageSubtitleView : public SubtitleView {
public:
    /// Opacity, 0 to 1.
    virtual void setMaxAlpha(float alpha) = 0;
    /// Seconds.
    virtual void setFadingInInterval(double seconds) = 0;
    virtual void setFadingOutInterval(double seconds) = 0;
};

/// What the subtitles controller asks of the application around it. Main thread.
class SubtitleScene {
public:
    virtual ~SubtitleScene() = default;

    /// A new view above the main window, for texts or for images; null where there is none of the kind.
    virtual std::unique_ptr<SubtitleView> createTextView() = 0;
    virtual std::unique_ptr<ImageSubtitleView> createImageView() = 0;
    /// One for texts at the top of the picture.
    virtual std::unique_ptr<SubtitleView> createSecondTextView() { return nullptr; }
    /// A movie, which the notifications name only by its address, as the tracks see it; null for none.
    virtual std::shared_ptr<SubtitleOwner> ownerOf(const std::shared_ptr<QVMovie>& movie) = 0;
    /// The movie that the movie view shows, or null.
    virtual std::shared_ptr<SubtitleOwner> shownMovie() = 0;
};
