// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/window/Shadow.h"
#include "platform/window/TextLayout.h"
#include "platform/window/View.h"

#include <QColor>
#include <QFont>
#include <QImage>
#include <QString>

#include <memory>
#include <optional>

namespace platform {

/// A view that shows one text, centred where nothing else is said, from its top downwards. The text is laid out when
/// it, its font or its container changed, and painted with its shadow when it is drawn anew at another pixel ratio or
/// in other colours. Values are kept as they were set; what cannot be drawn is brought back to what can. Main thread.
class TextView final : public View {
public:
    const QString& text() const { return _text.text; }
    const StyledText& styledText() const { return _text; }
    void setText(const StyledText& text);
    void setText(const QString& text) { setText(StyledText{text, {}}); }
    QFont font() const { return _font; }
    void setFont(const QFont& font);
    QColor textColor() const { return _textColor; }
    void setTextColor(const QColor& color);
    const std::optional<Shadow>& shadow() const { return _shadow; }
    void setShadow(const std::optional<Shadow>& shadow);

    LongLines longLines() const { return _longLines; }
    void setLongLines(LongLines longLines);
    void setLineSide(LineSide side);
    /// Space at both sides of the lines, points.
    void setLinePadding(double points);

    /// Lines end at the width, and those below the height are left out; points.
    QSizeF containerSize() const { return _container; }
    void setContainerSize(const QSizeF& size);

    /// Makes the view as large as its text, in whole points, where it stands.
    void sizeToFit();

    void draw(QPainter& painter, const Rect& dirty) override;
    /// With the shadow, which may fall beyond the bounds.
    Rect drawnRect() const override;

private:
    const TextLayout& layout();
    void layoutChanged();
    void paintingChanged();
    int shadowPixels(double pixelRatio) const;
    QImage painted(double pixelRatio);

    StyledText _text;
    QFont _font;
    QColor _textColor;
    std::optional<Shadow> _shadow;
    double _shadowReach = 0;
    QSizeF _container{1e7, 1e7};
    LongLines _longLines = LongLines::wrapped;
    LineSide _lineSide = LineSide::middle;
    double _linePadding = 5;
    std::unique_ptr<TextLayout> _layout; // null while it has to be made
    QImage _picture;                     // of the text and its shadow; null while it has to be made
    double _pictureRatio = 0;
};

} // namespace platform
