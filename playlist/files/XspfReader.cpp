// SPDX-License-Identifier: GPL-3.0-or-later
#include "playlist/files/XspfReader.h"

#include <QXmlStreamReader>

#include <algorithm>
#include <limits>
#include <utility>

namespace listFile {

namespace {

/// Nothing in a list is nested as deep; what is takes memory without end.
constexpr std::size_t maximumDepth = 32;
/// What entities may grow to. Characters.
constexpr int maximumEntity = 1024;
constexpr qsizetype maximumText = 64 * 1024;

class Reader {
public:
    Reader(const QByteArray& bytes, const QUrl& list)
        : _xml(bytes)
        , _bases{list} {
        _xml.setEntityExpansionLimit(maximumEntity);
    }

    Contents read() {
        while (!_xml.atEnd() && !_contents.isCut && _bases.size() <= maximumDepth)
            take(_xml.readNext());
        // What was read before the file is damaged counts.
        if (!_isPlaylist || (_xml.hasError() && _contents.entries.empty()))
            return {};
        _contents.kind = Kind::list;
        return std::move(_contents);
    }

private:
    void take(QXmlStreamReader::TokenType token) {
        switch (token) {
        case QXmlStreamReader::StartElement:
            begin();
            break;
        case QXmlStreamReader::EndElement:
            end();
            _bases.pop_back();
            break;
        case QXmlStreamReader::Characters:
            if (_text.size() < maximumText)
                _text += _xml.text();
            break;
        default:
            break;
        }
    }

    void begin() {
        const bool isRoot = _bases.size() == 1;
        if (isRoot)
            _isPlaylist = _xml.name() == QLatin1String("playlist");
        const QString base = _xml.attributes().value(QLatin1String("xml:base")).toString();
        const QUrl& outer = _bases.back();
        _bases.push_back(base.isEmpty() ? outer : outer.resolved(QUrl(base)));
        _text.clear();
        if (_xml.name() == QLatin1String("track")) {
            _entry = {};
            _trackDepth = _bases.size();
        }
    }

    void end() {
        const QString text = std::exchange(_text, {}).trimmed();
        const auto name = _xml.name();
        if (_trackDepth == 0)
            return;
        if (_bases.size() == _trackDepth) {
            _trackDepth = 0;
            if (_entry.address.isEmpty())
                return;
            _contents.isCut = _contents.entries.size() == maximumEntries;
            if (!_contents.isCut)
                _contents.entries.push_back(std::move(_entry));
        } else if (_bases.size() == _trackDepth + 1) {
            // Others are the same movie elsewhere.
            if (name == QLatin1String("location") && _entry.address.isEmpty())
                setAddress(text);
            else if (name == QLatin1String("title"))
                _entry.title = text.simplified().left(500);
            else if (name == QLatin1String("duration"))
                setDuration(text.toLongLong());
        }
    }

    void setAddress(const QString& text) {
        if (text.isEmpty())
            return;
        const bool isDrive = text.size() > 2 && text[1] == u':';
        const QUrl location(text, QUrl::TolerantMode);
        _entry.text =
            isDrive || !location.isValid() ? text : _bases.back().resolved(location).toString(QUrl::FullyEncoded);
        _entry.address = _entry.text.toUtf8();
    }

    void setDuration(qlonglong milliseconds) {
        constexpr qlonglong largest = std::numeric_limits<std::int32_t>::max();
        if (milliseconds > 0)
            _entry.seconds = static_cast<std::int32_t>(std::min(milliseconds / 1000, largest));
    }

    QXmlStreamReader _xml;
    std::vector<QUrl> _bases; // of the elements that are open, the list's own first
    std::size_t _trackDepth = 0;
    bool _isPlaylist = false;
    QString _text;
    Entry _entry;
    Contents _contents;
};

} // namespace

Contents readXspf(const QByteArray& bytes, const QUrl& list) {
    return Reader(bytes, list).read();
}

} // namespace listFile
