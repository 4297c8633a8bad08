// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "subtitles/SubtitleView.h"

class QVMovieView;

namespace platform {
class Window;
} // namespace platform

/// Where subtitles are shown: above the main window, on the movie in its view. Both outlive it. Main thread.
class SubtitlesOverMovie final : public SubtitleScene {
public:
    SubtitlesOverMovie(const Environment& environment, platform::Window& window, QVMovieView& view)
        : _environment(environment)
        , _window(window)
        , _view(view) {}

    std::unique_ptr<SubtitleView> createTextView() override;
    std::unique_ptr<ImageSubtitleView> createImageView() override;
    std::unique_ptr<SubtitleView> createSecondTextView() override;
    std::shared_ptr<SubtitleOwner> ownerOf(const std::shared_ptr<QVMovie>& movie) override;
    std::shared_ptr<SubtitleOwner> shownMovie() override;

private:
    Environment _environment;
    platform::Window& _window;
    QVMovieView& _view;
};
