// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/packets/TimedText.h"

#include <QHash>
#include <QXmlStreamReader>

#include <algorithm>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype maximumStyles = 10'000;
/// Characters of a cue.
constexpr qsizetype maximumText = 1024 * 1024;

/// What letters look like, and where they stand; what is not said is of what is around them.
struct Look {
    std::optional<bool> italic, bold, underlined;
    QString color;
    std::optional<int> place;

    /// What is said by `inner` counts before what is here.
    void take(const Look& inner) {
        for (const auto member : {&Look::italic, &Look::bold, &Look::underlined})
            if (inner.*member)
                this->*member = inner.*member;
        if (!inner.color.isEmpty())
            color = inner.color;
        if (inner.place)
            place = inner.place;
    }
};

/// How times are counted, as the root says.
struct Clock {
    double frameRate = 30;
    double tickRate = 1;

    /// Seconds; none for what is no time.
    std::optional<double> seconds(QStringView text) const {
        text = text.trimmed();
        if (text.contains(u':')) {
            const auto parts = text.split(u':');
            if (parts.size() < 3 || parts.size() > 4)
                return std::nullopt;
            double result = 0;
            for (qsizetype at = 0; at < parts.size(); ++at) {
                bool isNumber = false;
                const double value = parts[at].toDouble(&isNumber);
                if (!isNumber || value < 0 || value > 1e7)
                    return std::nullopt;
                constexpr double units[] = {3600, 60, 1};
                result += at < 3 ? value * units[at] : value / frameRate;
            }
            return result;
        }
        const std::pair<QLatin1StringView, double> metrics[] = {
            {"ms"_L1, 0.001}, {"h"_L1, 3600},          {"m"_L1, 60},
            {"s"_L1, 1},      {"f"_L1, 1 / frameRate}, {"t"_L1, 1 / tickRate}};
        for (const auto& [metric, unit] : metrics) {
            if (!text.endsWith(metric))
                continue;
            bool isNumber = false;
            const double value = text.chopped(metric.size()).toDouble(&isNumber);
            return isNumber && value >= 0 && value * unit < 1e7 ? std::optional(value * unit) : std::nullopt;
        }
        return std::nullopt;
    }
};

QString escaped(QStringView text) {
    QString result = text.toString();
    return result.replace(u'&', "&amp;"_L1)
        .replace(u'<', "&lt;"_L1)
        .replace(u'{', "&#123;"_L1)
        .replace(u'\\', "&#92;"_L1);
}

/// A colour of a page as a tag takes it: without the digits that say how clear it is.
QString webColor(QStringView text) {
    const auto isSafe = [](QChar c) { return c.isLetterOrNumber() || c == u'#'; };
    if (!std::ranges::all_of(text, isSafe))
        return {};
    return text.startsWith(u'#') && text.size() == 9 ? text.first(7).toString() : text.toString();
}

class Page {
public:
    Page(const QByteArray& utf8, std::size_t maximumCues, const std::atomic<bool>& cancelled)
        // Decoded beforehand: what the page says of its encoding does not count.
        : _xml(QString::fromUtf8(utf8))
        , _maximumCues(maximumCues)
        , _cancelled(cancelled) {}

    std::optional<std::vector<TimedCue>> read() {
        bool isTimedText = false;
        while (!_xml.atEnd() && !_cancelled && _cues.size() < _maximumCues) {
            switch (_xml.readNext()) {
            case QXmlStreamReader::StartElement:
                if (_open.empty() && _xml.name() != "tt"_L1)
                    return std::nullopt;
                if (_open.size() >= static_cast<std::size_t>(TimedText::maximumDepth)) {
                    _xml.skipCurrentElement();
                    break;
                }
                isTimedText = true;
                begin();
                break;
            case QXmlStreamReader::EndElement:
                end();
                break;
            case QXmlStreamReader::Characters:
                put(_xml.text());
                break;
            default:
                break;
            }
        }
        if (!isTimedText)
            return std::nullopt;
        return std::move(_cues);
    }

private:
    struct Element {
        QString name;
        double begin = 0;
        double end = -1;
        bool keepsSpace = false;
        Look look;
        QString closing; // tags
    };

    QStringView attribute(QLatin1StringView name) const {
        for (const QXmlStreamAttribute& each : _attributes)
            if (each.name() == name)
                return each.value();
        return {};
    }

    /// With what the styles say that are named.
    Look look() const {
        Look result;
        for (const QStringView name : attribute("style"_L1).split(u' ', Qt::SkipEmptyParts))
            result.take(_styles.value(name.toString()));
        if (const QStringView region = attribute("region"_L1); !region.isEmpty())
            result.take(_regions.value(region.toString()));
        Look own;
        if (const QStringView style = attribute("fontStyle"_L1); !style.isEmpty())
            own.italic = style == "italic"_L1 || style == "oblique"_L1;
        if (const QStringView weight = attribute("fontWeight"_L1); !weight.isEmpty())
            own.bold = weight == "bold"_L1;
        if (const QStringView lines = attribute("textDecoration"_L1); !lines.isEmpty())
            own.underlined = lines == "underline"_L1;
        own.color = webColor(attribute("color"_L1));
        if (const QStringView align = attribute("displayAlign"_L1); !align.isEmpty())
            own.place = align == "before"_L1 ? 8 : align == "center"_L1 ? 5 : 0;
        result.take(own);
        return result;
    }

    void setClock() {
        bool isNumber = false;
        if (const double rate = attribute("frameRate"_L1).toDouble(&isNumber); isNumber && rate >= 1 && rate <= 1000)
            _clock.frameRate = rate;
        const bool saysRate = isNumber;
        const auto parts = attribute("frameRateMultiplier"_L1).split(u' ', Qt::SkipEmptyParts);
        if (parts.size() == 2 && parts[0].toInt() > 0 && parts[1].toInt() > 0)
            _clock.frameRate *= double{parts[0].toDouble()} / parts[1].toDouble();
        const double ticks = attribute("tickRate"_L1).toDouble(&isNumber);
        _clock.tickRate = isNumber && ticks >= 1 ? ticks : saysRate ? _clock.frameRate : 1;
    }

    void begin() {
        _attributes = _xml.attributes();
        Element element;
        element.name = _xml.name().toString();
        if (_open.empty())
            setClock();
        const Element* const parent = _open.empty() ? nullptr : &_open.back();
        const double base = parent ? parent->begin : 0;
        element.begin = base + _clock.seconds(attribute("begin"_L1)).value_or(0);
        const auto end = _clock.seconds(attribute("end"_L1)), duration = _clock.seconds(attribute("dur"_L1));
        element.end = end ? base + *end : duration ? element.begin + *duration : parent ? parent->end : -1;
        if (parent && parent->end >= 0)
            element.end = element.end < 0 ? parent->end : std::min(element.end, parent->end);
        const QStringView space = attribute("space"_L1);
        element.keepsSpace = space.isEmpty() ? parent && parent->keepsSpace : space == "preserve"_L1;

        const Look own = look();
        const QString id = attribute("id"_L1).toString();
        if (element.name == "style"_L1 && !id.isEmpty() && _styles.size() < maximumStyles)
            _styles[id].take(own);
        else if (element.name == "style"_L1 && parent && parent->name == "region"_L1)
            _regions[_region].take(own);
        else if (element.name == "region"_L1 && _regions.size() < maximumStyles)
            _regions[_region = id].take(own);
        // What letters look like is that of a paragraph; within it tags say what is another.
        if (parent && !_isInText)
            element.look = parent->look;
        element.look.take(own);
        if (element.name == "p"_L1 && !_isInText) {
            _isInText = true;
            _text.clear();
            _spaceIsDue = false;
            _lineBegins = true;
            openTags(element);
        } else if (_isInText && element.name == "br"_L1) {
            _spaceIsDue = false;
            _lineBegins = true;
            _text += u'\n';
        } else if (_isInText && element.name == "span"_L1) {
            openTags(element);
        }
        _open.push_back(std::move(element));
    }

    void openTags(Element& element) {
        const auto open = [&](const QString& tag, const QString& closing) {
            putDueSpace();
            _text += tag;
            element.closing.prepend(closing);
        };
        if (element.look.italic == true)
            open(QStringLiteral("<i>"), QStringLiteral("</i>"));
        if (element.look.bold == true)
            open(QStringLiteral("<b>"), QStringLiteral("</b>"));
        if (element.look.underlined == true)
            open(QStringLiteral("<u>"), QStringLiteral("</u>"));
        if (!element.look.color.isEmpty())
            open(QStringLiteral("<font color=\"%1\">").arg(element.look.color), QStringLiteral("</font>"));
    }

    void putDueSpace() {
        if (std::exchange(_spaceIsDue, false) && !_lineBegins)
            _text += u' ';
    }

    void put(QStringView letters) {
        if (!_isInText || _text.size() > maximumText || _open.back().name == "metadata"_L1)
            return;
        if (_open.back().keepsSpace) {
            putDueSpace();
            _lineBegins = false;
            _text += escaped(letters);
            return;
        }
        for (const QChar letter : letters) {
            if (letter.isSpace() && letter != u'\u00A0') {
                _spaceIsDue = true;
                continue;
            }
            putDueSpace();
            _lineBegins = false;
            if (letter == u'<' || letter == u'&' || letter == u'{' || letter == u'\\')
                _text += escaped(QStringView(&letter, 1));
            else
                _text += letter;
        }
    }

    void end() {
        if (_open.empty())
            return;
        Element element = std::move(_open.back());
        _open.pop_back();
        if (!_isInText)
            return;
        _text += element.closing;
        if (element.name != "p"_L1)
            return;
        _isInText = false;
        const auto milliseconds = [](double seconds) { return static_cast<std::int64_t>(seconds * 1000 + 0.5); };
        TimedCue cue{milliseconds(element.begin), 0, _text.trimmed(), element.look.place.value_or(0)};
        cue.end = element.end < element.begin ? cue.start - 1 : milliseconds(element.end);
        if (!cue.text.isEmpty())
            _cues.push_back(std::move(cue));
    }

    QXmlStreamReader _xml;
    std::size_t _maximumCues;
    const std::atomic<bool>& _cancelled;
    QXmlStreamAttributes _attributes;
    Clock _clock;
    QHash<QString, Look> _styles, _regions;
    QString _region;
    std::vector<Element> _open;
    bool _isInText = false;
    QString _text;
    bool _spaceIsDue = false;
    bool _lineBegins = true;
    std::vector<TimedCue> _cues;
};

} // namespace

namespace TimedText {

std::optional<std::vector<TimedCue>> read(const QByteArray& utf8, std::size_t maximumCues,
                                          const std::atomic<bool>& cancelled) {
    return Page(utf8, maximumCues, cancelled).read();
}

} // namespace TimedText
