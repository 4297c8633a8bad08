// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "context/Notifications.h"
#include "platform/base/NotificationCenter.h"
#include "platform/base/RunLoop.h"
#include "platform/window/ImageView.h"
#include "platform/window/TextView.h"

#include <memory>
#include <optional>

namespace platform {
class MovieOpening;
class MovieToolkit;
} // namespace platform

class DropTarget;

/// What lies behind the movie's picture, as large as the window: black, and where there is no picture, what there is to
/// say in place of one: the title (or the file's name), the artist and the cover of what is heard, or how to open a
/// movie. What is dropped beside a picture is taken here. Main thread.
class BackdropView final : public platform::View {
public:
    struct Collaborators {
        platform::MovieToolkit& toolkit;
        DropTarget& drops;
    };
    /// Both outlive the view. It says nothing until there is a movie, or the hint is offered.
    BackdropView(const Environment& environment, const Collaborators& collaborators);
    ~BackdropView() override;

    /// How to open a movie; shown from soon after this call on, whenever there is no movie.
    struct Hint {
        QString title;
        QString detail;
    };
    void offerHint(const Hint& hint);

    /// The texts that stand there now; empty for none.
    const QString& title() const { return _title.text(); }
    const QString& detail() const { return _detail.text(); }
    const QImage& cover() const { return _image.image(); }

    platform::Rect drawnRect() const override { return {}; }
    std::uint32_t draggingEntered(const platform::DraggingInfo& info) override;
    std::uint32_t draggingUpdated(const platform::DraggingInfo& info) override;
    void draggingExited() override;
    bool performDragOperation(const platform::DraggingInfo& info) override;

private:
    void currentMovieChanged(const std::shared_ptr<QVMovie>& movie);
    void showHint();
    /// Empty texts say nothing.
    void say(const QString& title, const QString& detail);
    void layOut();

    Environment _environment;
    Collaborators _with;
    platform::ImageView _image;
    platform::TextView _title;
    platform::TextView _detail;
    std::optional<Hint> _hint;
    bool _hasMovie = false;
    bool _hinting = false;
    std::unique_ptr<platform::MovieOpening> _cover;
    std::unique_ptr<platform::Timer> _hintTimer;
    platform::Subscription _onMovie;
    platform::Subscription _onResize;
};
