// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/SubtitleMarkup.h"

#include "overlays/MarkupEntities.h"
#include "overlays/MarkupPen.h"
#include "overlays/MarkupTags.h"

#include <algorithm>

namespace {

bool mayHaveMarkup(QStringView text) {
    return text.contains(u'<') || text.contains(u'&') || text.contains(u'{') || text.contains(u'\\') ||
           text.startsWith(u'/') || text.contains(QStringView(u"\n/"));
}

/// Walks over a text once, and puts down what is to be drawn.
class Reader {
public:
    explicit Reader(QStringView text)
        : _in(text) {}

    SubtitleMarkup::Cue read() {
        while (_at < _in.size()) {
            if (!readMarkup()) {
                put(_in.sliced(_at, 1));
                ++_at;
            }
        }
        while (!_out.text.isEmpty() && _out.text.back().isSpace())
            _out.text.chop(1);
        while (!_out.runs.empty() && _out.runs.back().start >= _out.text.size())
            _out.runs.pop_back();
        if (!_out.runs.empty())
            _out.runs.back().length = std::min(_out.runs.back().length, _out.text.size() - _out.runs.back().start);
        return {std::move(_out), _pen.place()};
    }

private:
    QStringView rest() const { return _in.sliced(_at); }
    QChar following(qsizetype distance) const { return _at + distance < _in.size() ? _in[_at + distance] : QChar(); }

    bool readMarkup() {
        switch (_in[_at].unicode()) {
        case u'<':
            return readTag();
        case u'{':
            return following(1) == u'\\' ? readBraces() : _lineBegins && following(2) == u':' && readLineCode();
        case u'&':
            return readEntity();
        case u'\\':
            return readEscape();
        case u'/':
            return _lineBegins && readSlash();
        default:
            return false;
        }
    }

    /// Up to the bracket that closes the one here, or nothing: brackets are not nested.
    QStringView upTo(QChar opening, QChar closing) const {
        const QStringView inner = _in.sliced(_at + 1);
        const auto end = std::ranges::find_if(inner, [&](QChar at) { return at == opening || at == closing; });
        return end != inner.end() && *end == closing ? inner.first(end - inner.begin()) : QStringView();
    }

    bool readTag() {
        const QStringView tag = upTo(u'<', u'>');
        const MarkupTags::Outcome outcome = MarkupTags::takeTag(tag, _pen);
        if (outcome == MarkupTags::Outcome::letters)
            return false;
        _at += tag.size() + 2;
        if (outcome == MarkupTags::Outcome::lineBreak)
            put(u"\n");
        return true;
    }

    bool readBraces() {
        const QStringView codes = upTo(u'{', u'}');
        if (codes.isEmpty())
            return false;
        MarkupTags::takeCodes(codes, _pen);
        _at += codes.size() + 2;
        return true;
    }

    bool readLineCode() {
        const QStringView code = upTo(u'{', u'}');
        if (code.isEmpty() || !MarkupTags::takeLineCode(code, _pen))
            return false;
        _at += code.size() + 2;
        return true;
    }

    /// A slash in front of a line makes it italic; in front of a path it is a letter.
    bool readSlash() {
        const QStringView line = rest().first(rest().indexOf(u'\n') < 0 ? rest().size() : rest().indexOf(u'\n'));
        const QChar first = following(1);
        const bool beginsText = first.isLetter() || (first.isPunct() && first != u'/' && first != u'\\');
        if (!beginsText || line.sliced(1).contains(u'/'))
            return false;
        _pen.addToLine(platform::TextFace::italic);
        ++_at;
        return true;
    }

    bool readEntity() {
        const MarkupEntities::Entity entity = MarkupEntities::at(rest());
        if (entity.length == 0)
            return false;
        put(entity.character);
        _at += entity.length;
        return true;
    }

    bool readEscape() {
        const QChar code = following(1);
        if ((code != u'N' && code != u'n' && code != u'h') || isInPath())
            return false;
        put(code == u'h' ? QStringView(u"\u00A0") : QStringView(u"\n"));
        _at += 2;
        _word = _at;
        return true;
    }

    /// Whether the word that reaches here begins like the path of a file: "C:\new".
    bool isInPath() const {
        const QStringView word = _in.sliced(_word);
        return word.startsWith(QStringView(u"\\\\")) ||
               (word.size() > 2 && word[0].isLetter() && word[1] == u':' && word[2] == u'\\');
    }

    void put(QStringView letters) {
        const bool isLineEnd = letters == QStringView(u"\n");
        const bool isSpace = letters.front().isSpace();
        if (isLineEnd)
            _pen.endLine();
        if (isSpace)
            _word = _at + 1;
        _lineBegins = isLineEnd || (_lineBegins && isSpace);
        if (_pen.isHidden() || (isSpace && _out.text.isEmpty()))
            return;
        const MarkupPen::Letters style = _pen.letters();
        const qsizetype start = _out.text.size();
        _out.text += letters;
        if (style == MarkupPen::Letters())
            return;
        if (!_out.runs.empty()) {
            platform::TextRun& last = _out.runs.back();
            if (last.start + last.length == start && last.faces == style.faces && last.color == style.color) {
                last.length += letters.size();
                return;
            }
        }
        _out.runs.push_back({start, letters.size(), style.faces, style.color});
    }

    QStringView _in;
    qsizetype _at = 0;
    qsizetype _word = 0; // where the word that is being read begins
    bool _lineBegins = true;
    MarkupPen _pen;
    platform::StyledText _out;
};

} // namespace

namespace SubtitleMarkup {

Cue read(const QString& text) {
    if (!mayHaveMarkup(QStringView(text).left(maximumRead)))
        return {{text, {}}, {}};
    const QString displayed = platform::displayableText(text, maximumRead);
    return Reader(displayed).read();
}

} // namespace SubtitleMarkup
