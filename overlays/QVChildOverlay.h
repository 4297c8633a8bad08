// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "overlays/QVOverlayContentView.h"
#include "overlays/QVStyledOverlay.h"
#include "settings/SettingsKeys.h"

/// A styled overlay above a parent: it follows the parent's size, stands inside its frame where the style's alignment
/// code puts it, and draws a panel behind its content. Lengths that are set are points of the style, as large on a high
/// screen as on a usual one; frames are points of the screen. Main thread.
class QVChildOverlay : public QVStyledOverlay {
public:
    /// Attached to the parent and ordered in, hidden. An overlay whose parent is gone keeps its place.
    QVChildOverlay(const Environment& environment, platform::Window& parent,
                   const QString& style = kQVDefaultOverlayStyle);

    // The panel. What changes its margin lays the overlay out again.
    bool backgroundOn() const { return _content.backgroundOn(); }
    void setBackgroundOn(bool flag);
    void setBackgroundColor(const QColor& color) override;
    bool backgroundRounded() const { return _content.backgroundRounded(); }
    void setBackgroundRounded(bool flag);
    /// Points.
    float radius() const { return _content.radius(); }
    void setRadius(float radius);
    bool frameOn() const { return _content.frameOn(); }
    void setFrameOn(bool flag);
    QColor frameColor() const { return _content.frameColor(); }
    void setFrameColor(const QColor& color) { _content.setFrameColor(color); }
    /// Points.
    float frameWidth() const { return _content.frameWidth(); }
    void setFrameWidth(float width);

    std::uint32_t alignemntStyle() const { return _alignStyle; }
    void setAlignmentStyle(std::uint32_t code);
    /// Points between the overlay and the parent's edges.
    float padding() const { return _padding; }
    void setPadding(float padding);

    /// The size of what is to be shown, without the panel's margin. Each kind of overlay answers for itself.
    virtual QSizeF contentSize() const;
    /// The rectangle with the panel's margin around it.
    platform::Rect adjustForBackgroundStyle(const platform::Rect& rect) const;
    /// Computes and applies the frame.
    virtual void contentSizeChanged();
    virtual void parentSizeChanged();

    void setFrame(const platform::Rect& frame) override;

    bool preferencesChanged(const QVPreferencesChangedNotification& notification) override;

protected:
    const char* logName() const override { return "QVChildOverlay"; }
    bool takeStyle(const QString& key, const OverlayStyle& style) override;

    /// Told the new frame before it is applied: the place to lay the content out in it.
    virtual void adoptNewOverlayFrame(const platform::Rect& frame);
    /// Applies a frame that was computed: adoptNewOverlayFrame(), the frame itself, redisplay. `message` is the line
    /// for the log, filled with the class and the whole points of the frame.
    void applyNewOverlayFrame(const platform::Rect& frame, const char* message);

    /// Points of the screen for a point of the style.
    double scale() const { return _content.scale(); }
    double scaledPadding() const { return scale() * static_cast<double>(_padding); }
    /// How much of the parent the panel leaves for the content changed. Lays out the content as it is.
    virtual void marginsChanged() { contentSizeChanged(); }

    /// The panel, above which subclasses put their views.
    QVOverlayContentView& overlayContentView() { return _content; }
    const QVOverlayContentView& overlayContentView() const { return _content; }

private:
    std::uint32_t _alignStyle = 0;
    float _padding = 0;
    QVOverlayContentView _content;
    platform::Subscription _onParentResize;
};
