// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "overlays/QVChildOverlay.h"
#include "platform/window/TextView.h"

#include <QFont>

#include <optional>

/// The platform's own objects serve as they are.
using QVTextView = platform::TextView;
using QVShadow = platform::Shadow;

/// The practically unbounded extent of a text's container, points.
inline constexpr float QVLargeNumberForText = 1e7F;

/// A child overlay as large as its one text, which is centred. Lines longer than the parent leaves them wrap, or are
/// shortened in the middle. Main thread.
class QVTextOverlay : public QVChildOverlay {
public:
    using LongLines = platform::LongLines;
    QVTextOverlay(const Environment& environment, platform::Window& parent,
                  const QString& style = kQVDefaultOverlayStyle, LongLines longLines = LongLines::wrapped);

    const QString& text() const { return _view.text(); }
    /// A null text is the empty one. The text that is shown already costs nothing.
    void setText(const QString& text) { setText(platform::StyledText{text, {}}); }

    /// As the text is drawn: its size is in points of the screen.
    QFont textFont() const { return _view.font(); }
    void setTextFont(const QFont& font);
    void setTextFontName(const QString& family);
    /// Points of the style. The smallest size never lies above the size: setting one moves the other where needed.
    float textFontSize() const { return _base_font_size; }
    void setTextFontSize(float size);
    float textFontSizeMin() const { return _min_font_size; }
    void setTextFontSizeMin(float size);
    QColor textColor() const { return _view.textColor(); }
    /// Also the colour of the panel's line.
    void setTextColor(const QColor& color);

    /// Takes the shadow of the style when there is none yet.
    void setShadowOn(bool flag);
    // These change the shadow that there is, if any.
    void setShadowOffset(const QSizeF& offset);
    void setShadowBlurRadius(float radius);
    void setShadowColor(const QColor& color);
    const std::optional<QVShadow>& shadow() const { return _shadow; }

    /// Gives the text the size that it should have now.
    virtual void recalculateFontSize();
    /// Fits the view to its text and the window to the view.
    void sizeToFit();
    QSizeF contentSize() const override { return _view.bounds().size(); }
    void parentSizeChanged() override;
    void show() override;

    bool preferencesChanged(const QVPreferencesChangedNotification& notification) override;

protected:
    const char* logName() const override { return "QVTextOverlay"; }
    bool takeStyle(const QString& key, const OverlayStyle& style) override;
    void adoptNewOverlayFrame(const platform::Rect& frame) override;

    void postFadeOut() override;
    void marginsChanged() override;

    /// The same for a text with runs.
    void setText(const platform::StyledText& text);
    /// Counts from the next text on.
    void setLineSide(platform::LineSide side) { _view.setLineSide(side); }
    const QVTextView& textView() const { return _view; }

private:
    float smallestFontSize() const;
    template <class Change>
    void changeShadow(Change change);
    void applyShadow();
    /// The shadow falls beyond the panel where it is wider than its margin.
    void fitOverhang();
    QSizeF container() const;
    OverlayPlacement::Edge edge() const;
    template <class Visit>
    void visitSiblings(Visit visit) const;
    /// A sibling came, went or moved: of two in the corners of one edge, each keeps to its half.
    void siblingChanged();
    void tellSiblings();

    QVTextView _view;
    float _base_font_size = 0;
    float _min_font_size = 0;
    std::optional<QVShadow> _shadow; // as it was set
};
