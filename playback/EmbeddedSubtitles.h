// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/Movie.h"
#include "platform/movie/MovieToolkit.h"
#include "subtitles/QVSubtitles.h"

/// A subtitle track inside a movie, which the player reads as it plays. It has no cues of its own: it gives the text
/// that the player says is due; bitmaps, and texts with places and fonts of their own, the player draws into the
/// picture. Main thread.
class EmbeddedSubtitles final : public QVSubtitles {
public:
    /// The toolkit, and the movie in both its roles, outlive the track.
    EmbeddedSubtitles(const platform::UserDefaults& settings, platform::MovieToolkit& toolkit, platform::Movie& movie,
                      SubtitleOwner& owner, const platform::MovieTrack& track);

    /// By the movie: another text is due, or none; of the second track.
    void textChanged();
    void secondTextChanged();

    std::shared_ptr<QVSubtitle> subtitleForTime(std::int32_t time) override;
    void setShown(bool isShown) override;
    /// The player moves the texts and pictures, and stretches their times.
    void setShift(const CueShift& shift) override;
    void setSecond(bool isSecond, std::function<void()> changed) override;
    /// As long as the player says so, which moves it as the subtitles below.
    std::shared_ptr<QVSubtitle> secondCueForTime(std::int32_t time) override;
    /// They are looked for in the file, on a thread.
    void findEnds(EndsFound found) override;
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
    platform::MovieToolkit& _toolkit;
    platform::Movie& _movie;
    platform::MovieTrack _track;
    std::function<void()> _observer;
    std::function<void()> _secondChanged; // while it is the second one
    bool _isShown = false;
    platform::SubtitleText _text;
    std::shared_ptr<QVSubtitle> _cue; // of that text
    std::optional<platform::SubtitleEnds> _ends;
    std::unique_ptr<platform::MovieOpening> _search;
};
