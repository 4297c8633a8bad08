// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/window/TextLayout.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QPainter>
#include <QRawFont>
#include <QTextOption>

#include <algorithm>
#include <cmath>

namespace platform {

namespace {

/// What no screen shows.
constexpr double maximumSide = 8192;

/// Pixels from which on glyphs are filled as outlines, not copied from a cache.
constexpr double sizeOfOutlines = 64;

/// Whether there are italics for the text. Those of some families have fewer letters than the upright face: no Arabic
/// ones, say; upright, too, they are read, as empty boxes they are not.
bool hasItalics(const QString& text, const QFont& font) {
    QFont italic(font);
    italic.setItalic(true);
    const QFontMetricsF slanted(italic);
    const QFontMetricsF upright(font);
    const QList<uint> characters = text.toUcs4();
    return std::ranges::none_of(characters, [&](uint character) {
        constexpr uint firstThatFontsLack = 0x80;
        return character >= firstThatFontsLack && !slanted.inFontUcs4(character) && upright.inFontUcs4(character);
    });
}

/// The formats of the runs that reach into a paragraph of the text.
QList<QTextLayout::FormatRange> formatsOf(const std::vector<TextRun>& runs, const QString& text, const QFont& font,
                                          qsizetype start, qsizetype length) {
    QList<QTextLayout::FormatRange> formats;
    for (const TextRun& run : runs) {
        const qsizetype from = std::max(run.start, start);
        const qsizetype end = std::min(run.start + run.length, start + length);
        if (from >= end)
            continue;
        QTextCharFormat format;
        if (run.faces.testFlag(TextFace::italic) && hasItalics(text.mid(from, end - from), font))
            format.setFontItalic(true);
        if (run.faces.testFlag(TextFace::bold))
            format.setFontWeight(QFont::Bold);
        format.setFontUnderline(run.faces.testFlag(TextFace::underlined));
        format.setFontStrikeOut(run.faces.testFlag(TextFace::struckOut));
        if (run.color.isValid())
            format.setForeground(run.color);
        formats.append({static_cast<int>(from - start), static_cast<int>(end - from), format});
    }
    return formats;
}

/// The lines under and through glyphs that stand beside each other.
void drawDecorations(QPainter& painter, const QGlyphRun& run, const QPointF& origin) {
    const QList<QPointF> positions = run.positions();
    if (positions.isEmpty() || !(run.underline() || run.strikeOut()))
        return;
    const QRawFont font = run.rawFont();
    const auto advances = font.advancesForGlyphIndexes(run.glyphIndexes(), QRawFont::UseDesignMetrics);
    double left = positions.front().x(), right = left;
    for (qsizetype i = 0; i < std::min(positions.size(), advances.size()); ++i) {
        left = std::min(left, positions[i].x());
        right = std::max(right, positions[i].x() + advances[i].x());
    }
    const double thickness = std::max(1.0, font.lineThickness());
    const auto drawAt = [&](double y) {
        painter.fillRect(QRectF(origin.x() + left, origin.y() + positions.front().y() + y, right - left, thickness),
                         painter.pen().color());
    };
    if (run.underline())
        drawAt(font.underlinePosition());
    if (run.strikeOut())
        drawAt(-font.ascent() / 3);
}

/// The time to fill an outline grows with the square of the edges beside each other: a line at once takes several times
/// as long as its glyphs.
void drawGlyphByGlyph(QPainter& painter, const QList<QGlyphRun>& runs, const QPointF& origin) {
    for (const QGlyphRun& run : runs) {
        const QList<quint32> glyphs = run.glyphIndexes();
        const QList<QPointF> positions = run.positions();
        QGlyphRun single = run;
        single.setFlags({});
        for (qsizetype i = 0; i < glyphs.size(); ++i) {
            single.setRawData(&glyphs[i], &positions[i], 1);
            painter.drawGlyphRun(origin, single);
        }
        drawDecorations(painter, run, origin);
    }
}

/// The same for a line with runs: glyphs alone have no colour.
void drawGlyphByGlyph(QPainter& painter, const QTextLine& line, const QPointF& origin,
                      const QList<QTextLayout::FormatRange>& formats) {
    const QPen pen = painter.pen();
    const int end = line.textStart() + line.textLength();
    const auto drawPart = [&](int from, int to, const QPen& with) {
        if (from >= to)
            return;
        painter.setPen(with);
        drawGlyphByGlyph(painter, line.glyphRuns(from, to - from), origin);
    };
    int at = line.textStart();
    for (const QTextLayout::FormatRange& range : formats) {
        const int from = std::clamp(range.start, at, end);
        const int to = std::clamp(range.start + range.length, from, end);
        drawPart(at, from, pen);
        const QBrush color = range.format.foreground();
        drawPart(from, to, color.style() == Qt::NoBrush ? pen : QPen(color.color()));
        at = to;
    }
    drawPart(at, end, pen);
    painter.setPen(pen);
}

/// Absolute: the side is that of the screen, whichever way the text runs.
Qt::Alignment alignmentOf(LineSide side) {
    switch (side) {
    case LineSide::left:
        return Qt::AlignLeft | Qt::AlignAbsolute;
    case LineSide::right:
        return Qt::AlignRight | Qt::AlignAbsolute;
    case LineSide::middle:
        break;
    }
    return Qt::AlignHCenter;
}

double side(double points) {
    return std::isfinite(points) ? std::clamp(points, 1.0, maximumSide) : maximumSide;
}

} // namespace

QString displayableText(const QString& text, qsizetype maximumCharacters) {
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

TextLayout::TextLayout(const StyledText& text, const QFont& font, const QSizeF& container, LongLines longLines,
                       LineSide lineSide)
    : _container(side(container.width()), side(container.height()))
    , _longLines(longLines)
    , _lineSide(lineSide)
    , _size(0, 0) {
    const QString displayed = displayableText(text.text);
    qsizetype start = 0;
    while (!_full && start <= displayed.size()) {
        const qsizetype found = displayed.indexOf(u'\n', start);
        const qsizetype end = found < 0 ? displayed.size() : found;
        addParagraph(displayed.mid(start, end - start), font,
                     formatsOf(text.runs, displayed, font, start, end - start));
        start = end + 1;
    }
    _size = QSizeF(std::min(std::ceil(_size.width()), _container.width()),
                   std::min(std::ceil(_size.height()), _container.height()));
}

void TextLayout::addParagraph(const QString& text, const QFont& font, const QList<QTextLayout::FormatRange>& formats) {
    const bool shortens = _longLines == LongLines::shortened;
    const QString shown = shortens ? QFontMetricsF(font).elidedText(text, Qt::ElideMiddle, _container.width()) : text;
    Paragraph paragraph{std::make_unique<QTextLayout>(shown, font)};
    QTextLayout& layout = *paragraph.layout;
    if (!formats.isEmpty() && shown.size() == text.size())
        layout.setFormats(formats);
    QTextOption option(alignmentOf(_lineSide));
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
    // Of the container, which holds lines that stand aside at its own side.
    const double left = (width - _container.width()) / 2;
    const double surplus = (_container.width() - _size.width()) / 2;
    const QPointF origin(_lineSide == LineSide::left    ? left + surplus
                         : _lineSide == LineSide::right ? left - surplus
                                                        : left,
                         0);
    const double scale = painter.deviceTransform().m11();
    for (const Paragraph& paragraph : _paragraphs) {
        const bool largeGlyphs = paragraph.layout->font().pixelSize() * scale >= sizeOfOutlines;
        const QList<QTextLayout::FormatRange> formats = paragraph.layout->formats();
        for (int index = 0; index < paragraph.lines; ++index) {
            const QTextLine line = paragraph.layout->lineAt(index);
            if (!largeGlyphs)
                line.draw(&painter, origin);
            else if (formats.isEmpty())
                drawGlyphByGlyph(painter, line.glyphRuns(), origin);
            else
                drawGlyphByGlyph(painter, line, origin, formats);
        }
    }
}

} // namespace platform
