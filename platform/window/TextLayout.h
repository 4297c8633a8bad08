// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/window/StyledText.h"

#include <QFont>
#include <QSizeF>
#include <QString>
#include <QTextLayout>

#include <memory>
#include <vector>

class QPainter;

namespace platform {

/// More characters than a screen shows.
inline constexpr qsizetype maximumDisplayedCharacters = 4096;

/// A text as it can be laid out: line ends of every kind become '\n', other control characters and what follows the
/// first so many characters are left out, and half a character becomes the sign for an unknown one. Such a text stays
/// as it is.
QString displayableText(const QString& text, qsizetype maximumCharacters = maximumDisplayedCharacters);

/// What becomes of a line that is longer than its container is wide: it breaks between words where it can, and anywhere
/// else where it must, or loses its middle to an ellipsis.
enum class LongLines { wrapped, shortened };

/// Where the lines of a text stand beside each other.
enum class LineSide { middle, left, right };

/// A text in a font, laid out in lines; each paragraph runs in its own direction. Main thread.
class TextLayout {
public:
    /// Lines that end below the container's height are left out, but for the first. A shortened line loses its runs.
    TextLayout(const StyledText& text, const QFont& font, const QSizeF& container,
               LongLines longLines = LongLines::wrapped, LineSide lineSide = LineSide::middle);

    /// What the lines cover, points: at least one line's height.
    QSizeF size() const { return _size; }
    /// Draws the lines in the middle of a rectangle `width` wide that begins at the origin: with the painter's pen,
    /// but for runs of another colour.
    void draw(QPainter& painter, double width) const;

private:
    void addParagraph(const QString& text, const QFont& font, const QList<QTextLayout::FormatRange>& formats);

    QSizeF _container;
    LongLines _longLines;
    LineSide _lineSide;
    QSizeF _size;
    struct Paragraph {
        std::unique_ptr<QTextLayout> layout;
        int lines = 0; // those that fit
    };
    std::vector<Paragraph> _paragraphs;
    bool _full = false;
};

} // namespace platform
