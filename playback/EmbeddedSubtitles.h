// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/Movie.h"
#include "subtitles/QVSubtitles.h"

/// A subtitle track inside a movie, which the player reads as it plays. It has no cues of its own: it gives the text
/// that the player says is due; bitmaps, and texts with places and fonts of their own, the player draws into the
/// picture. Main thread.
class EmbeddedSubtitles final : public QVSubtitles {
public:
    /// The movie, in both its roles, outlives the track.
    EmbeddedSubtitles(const platform::UserDefaults& settings, platform::Movie& movie, SubtitleOwner& owner,
                      const platform::MovieTrack& track);

    /// By the movie: another text is due, or none.
    void textChanged();

    std::shared_ptr<QVSubtitle> subtitleForTime(std::int32_t time) override;
    void setShown(bool isShown) override;
    /// The player moves the texts and pictures by the delay; it reads no faster or slower.
    void setShift(const CueShift& shift) override;
    void setLoadingObserver(std::function<void()> observer) override { _observer = std::move(observer); }
    /// The file says it.
    void setEncoding(std::uint32_t) override {}

    QString title() const override;
    QString language() const override;
    bool isForced() const override { return _track.isForced; }
    bool isTextBased() const override { return _track.content != platform::MovieTrack::Content::bitmaps; }
    /// Never: there are no images to be shown by a view.
    bool isImageBased() const override { return false; }
    std::uint32_t streamIndex() const override { return static_cast<std::uint32_t>(_track.id) - 1; }

protected:
    void _preload() override { finishLoading(); }
    const char* className() const override { return "EmbeddedSubtitles"; }

private:
    platform::Movie& _movie;
    platform::MovieTrack _track;
    std::function<void()> _observer;
    bool _isShown = false;
    platform::SubtitleText _text;
    std::shared_ptr<QVSubtitle> _cue; // of that text
};
