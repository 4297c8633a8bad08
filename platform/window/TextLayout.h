// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QSizeF>
#include <QString>
#include <QTextLayout>

#include <memory>
#include <vector>

class QPainter;

namespace platform {

/// A text as it can be laid out: line ends of every kind become '\n', other control characters and what follows the
/// first few thousand characters are left out, and half a character becomes the sign for an unknown one.
QString displayableText(const QString& text);

/// What becomes of a line that is longer than its container is wide: it breaks between words where it can, and anywhere
/// else where it must, or loses its middle to an ellipsis.
enum class LongLines { wrapped, shortened };

/// A text in a font, laid out in centred lines; each paragraph runs in its own direction. Main thread.
class TextLayout {
public:
    /// Lines that end below the container's height are left out, but for the first.
    TextLayout(const QString& text, const QFont& font, const QSizeF& container,
               LongLines longLines = LongLines::wrapped);

    /// What the lines cover, points: at least one line's height.
    QSizeF size() const { return _size; }
    /// Draws the lines with the painter's pen around the middle of a rectangle `width` wide that begins at the origin.
    void draw(QPainter& painter, double width) const;

private:
    void addParagraph(const QString& text, const QFont& font);

    QSizeF _container;
    LongLines _longLines;
    QSizeF _size;
    struct Paragraph {
        std::unique_ptr<QTextLayout> layout;
        int lines = 0; // those that fit
    };
    std::vector<Paragraph> _paragraphs;
    bool _full = false;
};

} // namespace platform
