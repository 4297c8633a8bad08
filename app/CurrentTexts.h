// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "overlays/OSDTexts.h"

class QVMovieView;
class QVPlaylistController;
class QVSubtitlesController;

/// The texts of the on-screen display, from the objects that they are about, as they stand. Main thread.
class CurrentTexts final : public OSDTexts {
public:
    /// All outlive the texts.
    CurrentTexts(const QVMovieView& view, const QVPlaylistController& playlist, const QVSubtitlesController& subtitles)
        : _view(view)
        , _playlist(playlist)
        , _subtitles(subtitles) {}

    std::int32_t timeInSeconds() const override;
    std::int32_t durationInSeconds() const override;
    QString currentMovieInfo() const override;
    QString currentSubtitlesInfo() const override;
    QString loopingInfo() const override;
    QString volumeInfo() const override;

private:
    const QVMovieView& _view;
    const QVPlaylistController& _playlist;
    const QVSubtitlesController& _subtitles;
};
