// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/PropertyListLimits.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace platform {

namespace {

constexpr qsizetype kMostBytes = 16 * 1024 * 1024;
constexpr int kMostLevels = 64;
constexpr std::uint64_t kMostValues = 1'000'000;

/// Follows the elements of the XML form. It is stricter than XML where reading it right would take a parser: no
/// quotes in tags other than those of the head, no declarations inside the document type.
class XmlWalk {
public:
    explicit XmlWalk(QByteArrayView bytes)
        : _bytes(bytes) {}

    bool isWithinLimits() {
        for (;;) {
            _at = _bytes.indexOf('<', _at);
            if (_at < 0)
                return true;
            const QByteArrayView rest = _bytes.sliced(_at);
            const bool passed = rest.startsWith("<!--")        ? skipTo("-->")
                                : rest.startsWith("<![CDATA[") ? skipTo("]]>")
                                : rest.startsWith("<?")        ? skipTo("?>")
                                                               : tag();
            if (!passed)
                return false;
        }
    }

private:
    bool skipTo(QByteArrayView end) {
        const qsizetype found = _bytes.indexOf(end, _at);
        _at = found < 0 ? _bytes.size() : found + end.size();
        return true;
    }

    bool tag() {
        const qsizetype end = _bytes.indexOf('>', _at);
        const QByteArrayView text = _bytes.sliced(_at, (end < 0 ? _bytes.size() : end) - _at);
        _at += text.size();
        if (text.startsWith("<!"))
            return _levels == 0 && !text.contains('[');
        if (text.startsWith("<plist"))
            return _levels == 0;
        if (text.contains('"') || text.contains('\''))
            return false;
        if (text.startsWith("</")) {
            if (text.startsWith("</dict") || text.startsWith("</array"))
                _levels = std::max(_levels - 1, 0);
            return true;
        }
        if ((text.startsWith("<dict") || text.startsWith("<array")) && !text.endsWith('/'))
            ++_levels;
        return _levels <= kMostLevels && ++_values <= kMostValues;
    }

    QByteArrayView _bytes;
    qsizetype _at = 0;
    int _levels = 0;
    std::uint64_t _values = 0;
};

/// Follows the objects of the binary form from its root.
class BinaryWalk {
public:
    explicit BinaryWalk(QByteArrayView bytes)
        : _bytes(bytes) {}

    bool isWithinLimits() {
        constexpr qsizetype trailer = 32;
        if (_bytes.size() < trailer + 8)
            return false;
        const qsizetype at = _bytes.size() - trailer;
        _offsetSize = number(at + 6, 1);
        _referenceSize = number(at + 7, 1);
        _objects = number(at + 8, 8);
        const std::uint64_t root = number(at + 16, 8);
        _table = number(at + 24, 8);
        const auto size = static_cast<std::uint64_t>(_bytes.size());
        if (_offsetSize < 1 || _offsetSize > 8 || _referenceSize < 1 || _referenceSize > 8 || _objects > size ||
            root >= _objects || _table > size)
            return false;
        _seen.resize(_objects);
        return weigh(root, 0);
    }

private:
    struct Weight {
        std::uint64_t values = 0;
        int levels = 0;
    };

    /// A big-endian number; 0 outside the bytes.
    std::uint64_t number(qsizetype at, std::uint64_t width) const {
        if (at < 0 || at + static_cast<qsizetype>(width) > _bytes.size())
            return 0;
        std::uint64_t value = 0;
        for (std::uint64_t byte = 0; byte < width; ++byte)
            value = value << 8U | static_cast<std::uint8_t>(_bytes[at + static_cast<qsizetype>(byte)]);
        return value;
    }

    /// Fills in the weight of an object and all in it; false when it is too heavy, or reaches outside the bytes.
    bool weigh(std::uint64_t object, int level) {
        if (level > kMostLevels || object >= _objects)
            return false;
        if (_seen[object].values > 0)
            return level + _seen[object].levels <= kMostLevels;

        Weight weight{1, 0};
        const std::uint64_t offset = number(static_cast<qsizetype>(_table + object * _offsetSize), _offsetSize);
        if (offset >= static_cast<std::uint64_t>(_bytes.size()))
            return false;
        auto at = static_cast<qsizetype>(offset);
        const std::uint64_t marker = number(at++, 1);
        const std::uint64_t kind = marker >> 4U;
        const bool isDictionary = kind == 0xD;
        const bool isArray = kind == 0xA || kind == 0xB || kind == 0xC;
        if (isDictionary || isArray) {
            std::uint64_t count = marker & 0xFU;
            if (count == 0xF) {
                const std::uint64_t width = std::uint64_t{1} << (number(at++, 1) & 0xFU);
                if (width > 8)
                    return false;
                count = number(at, width);
                at += static_cast<qsizetype>(width);
            }
            if (count > static_cast<std::uint64_t>(_bytes.size()))
                return false;
            const std::uint64_t references = isDictionary ? count * 2 : count;
            for (std::uint64_t reference = 0; reference < references; ++reference) {
                const std::uint64_t child = number(at, _referenceSize);
                at += static_cast<qsizetype>(_referenceSize);
                if (!weigh(child, level + 1))
                    return false;
                weight.values += _seen[child].values;
                weight.levels = std::max(weight.levels, _seen[child].levels + 1);
                if (weight.values > kMostValues)
                    return false;
            }
        }
        _seen[object] = weight;
        return true;
    }

    QByteArrayView _bytes;
    std::uint64_t _offsetSize = 0;
    std::uint64_t _referenceSize = 0;
    std::uint64_t _objects = 0;
    std::uint64_t _table = 0;
    std::vector<Weight> _seen;
};

} // namespace

bool isBinaryPropertyList(QByteArrayView bytes) {
    return bytes.startsWith("bplist");
}

bool isPropertyListWithinLimits(QByteArrayView bytes) {
    if (bytes.size() > kMostBytes)
        return false;
    return isBinaryPropertyList(bytes) ? BinaryWalk(bytes).isWithinLimits() : XmlWalk(bytes).isWithinLimits();
}

} // namespace platform
