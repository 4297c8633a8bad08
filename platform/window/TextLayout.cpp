// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/window/TextLayout.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QPainter>
#include <QTextOption>

#include <algorithm>
#include <cmath>

namespace platform {

namespace {

// What no screen shows.
constexpr qsizetype maximumCharacters = 4096;
constexpr double maximumSide = 8192;

/// Pixels from which on glyphs are filled as outlines, not copied from a cache.
constexpr double sizeOfOutlines = 64;

/// The time to fill an outline grows with the square of the edges beside each other: a line at once takes several times
/// as long as its glyphs.
void drawGlyphByGlyph(QPainter& painter, const QTextLine& line, const QPointF& origin) {
    const QList<QGlyphRun> runs = line.glyphRuns();
    for (const QGlyphRun& run : runs) {
        const QList<quint32> glyphs = run.glyphIndexes();
        const QList<QPointF> positions = run.positions();
        QGlyphRun single = run;
        for (qsizetype i = 0; i < glyphs.size(); ++i) {
            single.setRawData(&glyphs[i], &positions[i], 1);
            painter.drawGlyphRun(origin, single);
        }
    }
}

double side(double points) {
    return std::isfinite(points) ? std::clamp(points, 1.0, maximumSide) : maximumSide;
}

} // namespace

QString displayableText(const QString& text) {
    QString result;
    result.reserve(std::min(text.size(), maximumCharacters));
    for (qsizetype at = 0; at < text.size() && result.size() < maximumCharacters; ++at) {
        const QChar character = text[at];
        const QChar next = at + 1 < text.size() ? text[at + 1] : QChar();
        if (character == u'\r') {
            if (next != u'\n')
                result += u'\n';
        } else if (character == u'\n' || character == u'\v' || character == u'\f' || character == u'\x85' ||
                   character == QChar::LineSeparator || character == QChar::ParagraphSeparator) {
            result += u'\n';
        } else if (character == u'\t') {
            result += u' ';
        } else if (character.isHighSurrogate() && next.isLowSurrogate()) {
            result += character;
            result += next;
            ++at;
        } else if (character.isSurrogate() || character == QChar::ObjectReplacementCharacter) {
            result += QChar(QChar::ReplacementCharacter);
        } else if (character.category() != QChar::Other_Control) {
            result += character;
        }
    }
    return result;
}

TextLayout::TextLayout(const QString& text, const QFont& font, const QSizeF& container, LongLines longLines)
    : _container(side(container.width()), side(container.height()))
    , _longLines(longLines)
    , _size(0, 0) {
    const QString displayed = displayableText(text);
    qsizetype start = 0;
    while (!_full && start <= displayed.size()) {
        const qsizetype found = displayed.indexOf(u'\n', start);
        const qsizetype end = found < 0 ? displayed.size() : found;
        addParagraph(displayed.mid(start, end - start), font);
        start = end + 1;
    }
    _size = QSizeF(std::min(std::ceil(_size.width()), _container.width()),
                   std::min(std::ceil(_size.height()), _container.height()));
}

void TextLayout::addParagraph(const QString& text, const QFont& font) {
    const bool shortens = _longLines == LongLines::shortened;
    const QString shown = shortens ? QFontMetricsF(font).elidedText(text, Qt::ElideMiddle, _container.width()) : text;
    Paragraph paragraph{std::make_unique<QTextLayout>(shown, font)};
    QTextLayout& layout = *paragraph.layout;
    QTextOption option(Qt::AlignHCenter);
    option.setWrapMode(shortens ? QTextOption::NoWrap : QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setUseDesignMetrics(true);
    layout.setTextOption(option);
    layout.setCacheEnabled(true);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(_container.width());
        const double bottom = _size.height() + line.height();
        _full = bottom > _container.height() && _size.height() > 0;
        if (_full)
            break;
        line.setPosition(QPointF(0, _size.height()));
        _size = QSizeF(std::max(_size.width(), line.naturalTextWidth()), bottom);
        ++paragraph.lines;
    }
    layout.endLayout();
    _paragraphs.push_back(std::move(paragraph));
}

void TextLayout::draw(QPainter& painter, double width) const {
    const QPointF origin((width - _container.width()) / 2, 0);
    const double scale = painter.deviceTransform().m11();
    for (const Paragraph& paragraph : _paragraphs) {
        const bool largeGlyphs = paragraph.layout->font().pixelSize() * scale >= sizeOfOutlines;
        for (int index = 0; index < paragraph.lines; ++index) {
            const QTextLine line = paragraph.layout->lineAt(index);
            if (largeGlyphs)
                drawGlyphByGlyph(painter, line, origin);
            else
                line.draw(&painter, origin);
        }
    }
}

} // namespace platform
