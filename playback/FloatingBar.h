// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "overlays/QVChildOverlay.h"
#include "platform/movie/ControllerBar.h"
#include "platform/movie/MovieView.h"
#include "platform/window/View.h"

#include <optional>

/// The controller bar over the picture, on a panel of the default style at the window's lower edge. It is drawn by a
/// window of its own; presses reach it through a view that lies in the parent's content where the panel stands, above
/// the movie's. Main thread.
class FloatingBar final : public QVChildOverlay {
public:
    /// Both outlive the bar.
    FloatingBar(const Environment& environment, platform::Window& parent, platform::MovieView& movie);

    void show() override;
    void hide() override;
    /// What is shown may be another.
    void stateChanged();
    /// As MovieView's.
    void pointerMoved(const std::optional<QPointF>& point);
    std::optional<platform::MovieView::BarPlace> barPlaceAt(QPointF point) const;
    /// Whether a point of the parent's content lies on the panel.
    bool holds(QPointF point) const;
    /// From the parent's lower edge to the panel's upper one.
    double coveredHeight() const { return scaledPadding() + frame().height(); }
    /// Whether a press is being followed.
    bool isPressed() const { return _press.isFollowed; }

    QSizeF contentSize() const override;
    void contentSizeChanged() override;

protected:
    const char* logName() const override { return "FloatingBar"; }
    void adoptNewOverlayFrame(const platform::Rect& frame) override;

private:
    class Controls final : public platform::View {
    public:
        explicit Controls(FloatingBar& bar)
            : _bar(bar) {}
        void draw(QPainter& painter, const platform::Rect& dirty) override;

    private:
        FloatingBar& _bar;
    };
    class Press final : public platform::View {
    public:
        explicit Press(FloatingBar& bar)
            : _bar(bar) {}
        platform::Rect drawnRect() const override { return platform::Rect(); }
        bool mouseDown(const platform::MouseEvent& event) override;
        bool mouseDragged(const platform::MouseEvent& event) override;
        bool mouseUp(const platform::MouseEvent& event) override;
        bool isFollowed = false;

    private:
        FloatingBar& _bar;
    };

    /// Points of the screen for a point of the bar.
    double barScale() const;
    QSizeF barSize() const;
    /// Of the bar, in the parent's content; a point of that in the bar's coordinates.
    platform::Rect barRect() const;
    QPointF inBar(QPointF point) const;
    platform::ControllerBar::State shownState() const;
    void placePress();

    platform::MovieView& _movie;
    platform::ControllerBar _bar;
    platform::ControllerBar::State _shown;
    platform::ControllerBar::Control _pointed = platform::ControllerBar::Control::none;
    Controls _controls{*this};
    Press _press{*this};
};
