// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/PropertyList.h"

#include "platform/base/NumberText.h"
#include "platform/base/PropertyListLimits.h"

#include <QDateTime>
#include <QFile>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <locale.h>
#include <memory>
#include <plist/plist.h>

namespace platform::propertyList {

namespace {

// Dates of property lists count from the first moment of 2001.
constexpr qint64 kReferenceDate = 978'307'200;

struct FreeNode {
    void operator()(void* node) const { plist_free(node); }
};
struct FreeMemory {
    void operator()(void* memory) const { std::free(memory); }
};
using Node = std::unique_ptr<void, FreeNode>;

/// While it lives, this thread reads numbers with a point. The library's reader follows the locale.
class PlainNumbers {
public:
    PlainNumbers()
        : _locale(::newlocale(LC_NUMERIC_MASK, "C", nullptr))
        , _before(_locale ? ::uselocale(_locale) : nullptr) {}
    PlainNumbers(const PlainNumbers&) = delete;
    PlainNumbers& operator=(const PlainNumbers&) = delete;
    ~PlainNumbers() {
        if (!_locale)
            return;
        ::uselocale(_before);
        ::freelocale(_locale);
    }

private:
    locale_t _locale;
    locale_t _before;
};

QVariant valueOf(plist_t node);

QVariantMap dictionaryOf(plist_t node) {
    QVariantMap dictionary;
    plist_dict_iter iteratorMemory = nullptr;
    plist_dict_new_iter(node, &iteratorMemory);
    const std::unique_ptr<void, FreeMemory> iterator(iteratorMemory);
    for (;;) {
        char* keyMemory = nullptr;
        plist_t child = nullptr;
        plist_dict_next_item(node, iteratorMemory, &keyMemory, &child);
        const std::unique_ptr<char, FreeMemory> key(keyMemory);
        if (!child)
            return dictionary;
        const QVariant value = valueOf(child);
        if (key && value.isValid())
            dictionary.insert(QString::fromUtf8(key.get()), value);
    }
}

QVariantList arrayOf(plist_t node) {
    QVariantList array;
    const std::uint32_t count = plist_array_get_size(node);
    array.reserve(static_cast<qsizetype>(count));
    plist_array_iter iteratorMemory = nullptr;
    plist_array_new_iter(node, &iteratorMemory);
    const std::unique_ptr<void, FreeMemory> iterator(iteratorMemory);
    for (std::uint32_t index = 0; index < count; ++index) {
        plist_t child = nullptr;
        plist_array_next_item(node, iteratorMemory, &child);
        const QVariant value = child ? valueOf(child) : QVariant();
        if (value.isValid())
            array.append(value);
    }
    return array;
}

QVariant dateOf(plist_t node) {
    std::int32_t seconds = 0;
    std::int32_t microseconds = 0;
    plist_get_date_val(node, &seconds, &microseconds);
    // What the library answers for a moment outside its range.
    if (seconds == std::numeric_limits<std::int32_t>::min())
        return {};
    return QDateTime::fromSecsSinceEpoch(kReferenceDate + seconds).toUTC();
}

/// An invalid value for what has no place among the values: no node, a kind of archive reference.
QVariant valueOf(plist_t node) {
    switch (plist_get_node_type(node)) {
    case PLIST_DICT:
        return dictionaryOf(node);
    case PLIST_ARRAY:
        return arrayOf(node);
    case PLIST_DATE:
        return dateOf(node);
    case PLIST_BOOLEAN: {
        std::uint8_t flag = 0;
        plist_get_bool_val(node, &flag);
        return flag != 0;
    }
    case PLIST_UINT: {
        std::uint64_t number = 0;
        plist_get_uint_val(node, &number);
        return static_cast<qlonglong>(number);
    }
    case PLIST_REAL: {
        double number = 0;
        plist_get_real_val(node, &number);
        return number;
    }
    case PLIST_STRING: {
        std::uint64_t length = 0;
        const char* text = plist_get_string_ptr(node, &length);
        return text ? QString::fromUtf8(text, static_cast<qsizetype>(length)) : QStringLiteral("");
    }
    case PLIST_DATA: {
        std::uint64_t length = 0;
        const char* data = plist_get_data_ptr(node, &length);
        return data ? QByteArray(data, static_cast<qsizetype>(length)) : QByteArray("");
    }
    default:
        return {};
    }
}

/// Writes the XML form. The library's own writer rounds numbers.
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
        // It would end the text for its readers.
        bytes.replace('\0', QByteArray());
        bytes.replace('&', "&amp;").replace('<', "&lt;").replace('>', "&gt;");
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
    if (bytes.isEmpty() || !isPropertyListWithinLimits(bytes))
        return std::nullopt;
    const PlainNumbers plainNumbers;
    plist_t root = nullptr;
    // Each form by its own reader: plist_from_memory has other arguments in each release, and reads further forms, which
    // nobody has looked through for their limits.
    const auto read = isBinaryPropertyList(bytes) ? &plist_from_bin : &plist_from_xml;
    read(bytes.constData(), static_cast<std::uint32_t>(bytes.size()), &root);
    const Node node(root);
    if (!node)
        return std::nullopt;
    const QVariant value = valueOf(node.get());
    return value.isValid() ? std::optional(value) : std::nullopt;
}

std::optional<QVariantMap> readDictionary(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const auto root = parse(file.readAll());
    return root && root->typeId() == QMetaType::QVariantMap ? std::optional(root->toMap()) : std::nullopt;
}

QByteArray toXml(const QVariantMap& dictionary) {
    return XmlWriter().document(dictionary);
}

} // namespace platform::propertyList
