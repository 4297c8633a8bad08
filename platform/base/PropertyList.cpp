// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/PropertyList.h"

#include "platform/base/NumberText.h"
#include "platform/base/RegularFile.h"

#include <QDateTime>
#include <QXmlStreamReader>

#include <cmath>

namespace platform::propertyList {

namespace {

constexpr qsizetype maximumBytes = 16 * 1024 * 1024;
constexpr int maximumDepth = 64;
constexpr int maximumValues = 1'000'000;

// XML has no place for control characters, but names of files do, and they are written as they are. While such a text
// is read, these 32 code points, which are no characters and are kept free for such uses, stand in for them.
constexpr char16_t standIns = 0xFDD0;

bool isControl(QChar character) {
    return character < u' ' && character != u'\t' && character != u'\n' && character != u'\r';
}

QString readable(const QByteArray& bytes) {
    QString text = QString::fromUtf8(bytes);
    for (QChar& character : text) {
        if (isControl(character))
            character = QChar(static_cast<char16_t>(standIns + character.unicode()));
        else if (character >= QChar(0xFFFE))
            character = QChar::ReplacementCharacter;
    }
    return text;
}

QString withControls(QString text) {
    for (QChar& character : text) {
        if (character >= QChar(standIns) && character < QChar(standIns + 0x20))
            character = QChar(static_cast<char16_t>(character.unicode() - standIns));
    }
    return text;
}

/// Reads the XML form. What is no property list, or too large a one, ends the reading with an error.
class XmlReader {
public:
    explicit XmlReader(const QByteArray& bytes)
        : _xml(readable(bytes)) {}

    std::optional<QVariant> document() {
        if (!next() || _xml.name() != u"plist" || !next())
            return std::nullopt;
        QVariant root = value(0);
        if (next())
            refuse(); // a second root
        while (!_xml.atEnd() && !_xml.hasError())
            refuseDeclarations(_xml.readNext());
        return _xml.hasError() || !root.isValid() ? std::nullopt : std::optional(std::move(root));
    }

private:
    void refuse() {
        if (!_xml.hasError())
            _xml.raiseError();
    }

    /// Entities could make a short document a long one.
    void refuseDeclarations(QXmlStreamReader::TokenType token) {
        if (token == QXmlStreamReader::DTD && !_xml.entityDeclarations().isEmpty())
            refuse();
    }

    /// Goes to the next element of the one that is open; false at its end, or at an error.
    bool next() {
        for (;;) {
            const QXmlStreamReader::TokenType token = _xml.readNext();
            refuseDeclarations(token);
            if (_xml.hasError() || token == QXmlStreamReader::EndElement || token == QXmlStreamReader::EndDocument)
                return false;
            if (token == QXmlStreamReader::StartElement)
                return true;
            if (token == QXmlStreamReader::Characters && !_xml.isWhitespace())
                refuse(); // a text outside a value
        }
    }

    /// Never null: an empty text is a value too.
    QString text() {
        const QString text = _xml.readElementText();
        return text.isEmpty() ? QLatin1String("") : withControls(text);
    }

    /// The value whose element begins here; an invalid one at an error, and for a date that is none.
    QVariant value(int depth) {
        if (depth > maximumDepth || ++_values > maximumValues) {
            refuse();
            return {};
        }
        const QStringView kind = _xml.name();
        if (kind == u"dict")
            return dictionary(depth);
        if (kind == u"array")
            return array(depth);
        if (kind == u"string")
            return text();
        if (kind == u"true" || kind == u"false") {
            const bool flag = kind == u"true";
            text();
            return flag;
        }
        if (kind == u"integer")
            return integer(text().trimmed());
        if (kind == u"real")
            return real(text().toUtf8());
        if (kind == u"date") {
            const QDateTime date = QDateTime::fromString(text().trimmed(), Qt::ISODate);
            return date.isValid() ? QVariant(date.toUTC()) : QVariant();
        }
        if (kind == u"data")
            return data(text().toLatin1());
        refuse();
        return {};
    }

    QVariant dictionary(int depth) {
        QVariantMap dictionary;
        while (next()) {
            if (_xml.name() != u"key") {
                refuse();
                break;
            }
            const QString key = text();
            if (!next()) {
                refuse(); // a key without a value
                break;
            }
            const QVariant element = value(depth + 1);
            if (element.isValid())
                dictionary.insert(key, element);
        }
        return dictionary;
    }

    QVariant array(int depth) {
        QVariantList array;
        while (next()) {
            const QVariant element = value(depth + 1);
            if (element.isValid())
                array.append(element);
        }
        return array;
    }

    /// What is written by hand may be no number: that is 0.
    static qlonglong integer(const QString& text) {
        bool isSigned = false;
        const int base = text.startsWith(QLatin1String("0x"), Qt::CaseInsensitive) ? 16 : 10;
        const qlonglong number = text.toLongLong(&isSigned, base);
        return isSigned ? number : static_cast<qlonglong>(text.toULongLong(nullptr, base));
    }

    static QByteArray data(const QByteArray& text) {
        const QByteArray bytes = QByteArray::fromBase64(text);
        return bytes.isNull() ? QByteArray("") : bytes;
    }

    static double real(const QByteArray& text) {
        QByteArrayView rest(text);
        return takeNumber(rest).value_or(0);
    }

    QXmlStreamReader _xml;
    int _values = 0;
};

/// Writes the form that Apple's tools write.
class XmlWriter {
public:
    QByteArray document(const QVariantMap& dictionary) {
        _xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
               "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
               "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
               "<plist version=\"1.0\">\n";
        write(dictionary, 0);
        _xml += "</plist>\n";
        return _xml;
    }

private:
    void element(const char* name, const QByteArray& content, int level) {
        _xml += QByteArray(level, '\t') + '<' + name + '>' + content + "</" + name + ">\n";
    }

    static QByteArray escaped(const QString& text) {
        QByteArray bytes = text.toUtf8();
        // It would end the text for other readers.
        bytes.replace('\0', QByteArray());
        // Readers of XML take a carriage return for a part of the end of a line.
        bytes.replace('&', "&amp;").replace('<', "&lt;").replace('>', "&gt;").replace('\r', "&#13;");
        return bytes;
    }

    void real(const QByteArray& text, bool isFinite, int level) { element("real", isFinite ? text : "0", level); }

    void write(const QVariant& value, int level) {
        switch (value.typeId()) {
        case QMetaType::QVariantMap:
            writeDictionary(value.toMap(), level);
            return;
        case QMetaType::QVariantList:
        case QMetaType::QStringList:
            writeArray(value.toList(), level);
            return;
        case QMetaType::Bool:
            _xml += QByteArray(level, '\t') + (value.toBool() ? "<true/>\n" : "<false/>\n");
            return;
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::LongLong:
        case QMetaType::ULongLong:
            element("integer", QByteArray::number(value.toLongLong()), level);
            return;
        case QMetaType::Float:
            real(shortestText(value.toFloat()), std::isfinite(value.toFloat()), level);
            return;
        case QMetaType::Double:
            real(shortestText(value.toDouble()), std::isfinite(value.toDouble()), level);
            return;
        case QMetaType::QDateTime:
            element("date", value.toDateTime().toUTC().toString(Qt::ISODate).toLatin1(), level);
            return;
        case QMetaType::QByteArray:
            element("data", value.toByteArray().toBase64(), level);
            return;
        default:
            element("string", escaped(value.toString()), level);
            return;
        }
    }

    void writeDictionary(const QVariantMap& dictionary, int level) {
        _xml += QByteArray(level, '\t') + "<dict>\n";
        for (auto entry = dictionary.constBegin(); entry != dictionary.constEnd(); ++entry) {
            if (!entry->isValid())
                continue;
            element("key", escaped(entry.key()), level + 1);
            write(*entry, level + 1);
        }
        _xml += QByteArray(level, '\t') + "</dict>\n";
    }

    void writeArray(const QVariantList& array, int level) {
        _xml += QByteArray(level, '\t') + "<array>\n";
        for (const QVariant& element : array) {
            if (element.isValid())
                write(element, level + 1);
        }
        _xml += QByteArray(level, '\t') + "</array>\n";
    }

    QByteArray _xml;
};

} // namespace

std::optional<QVariant> parse(const QByteArray& bytes) {
    return bytes.size() > maximumBytes ? std::nullopt : XmlReader(bytes).document();
}

std::optional<QVariantMap> readDictionary(const QString& path) {
    const auto bytes = readRegularFile(path, maximumBytes + 1);
    const auto root = bytes ? parse(*bytes) : std::nullopt;
    return root && root->typeId() == QMetaType::QVariantMap ? std::optional(root->toMap()) : std::nullopt;
}

QByteArray toXml(const QVariantMap& dictionary) {
    return XmlWriter().document(dictionary);
}

} // namespace platform::propertyList
