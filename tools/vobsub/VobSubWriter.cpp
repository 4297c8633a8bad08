// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/vobsub/VobSubWriter.h"

#include <algorithm>
#include <cstdio>
#include <fstream>

namespace vobsub {

namespace {

constexpr std::size_t maximumUnitSize = 65535;

std::uint8_t low(std::size_t value) {
    return static_cast<std::uint8_t>(value & 0xFF);
}
void appendTwoBytes(Bytes& bytes, std::size_t value) {
    bytes.push_back(low(value >> 8));
    bytes.push_back(low(value));
}
/// Two numbers of 12 bits.
void appendExtent(Bytes& bytes, int first, int last) {
    const auto both = static_cast<std::size_t>((first & 0xFFF) << 12 | (last & 0xFFF));
    bytes.push_back(low(both >> 16));
    appendTwoBytes(bytes, both);
}

/// Four values, the lowest nibble for code 0.
std::size_t fourNibbles(const std::array<std::uint8_t, 4>& values) {
    std::size_t all = 0;
    for (std::size_t code = 0; code < values.size(); ++code)
        all |= static_cast<std::size_t>(values[code] & 0xF) << (4 * code);
    return all;
}

class NibbleWriter {
public:
    explicit NibbleWriter(Bytes& bytes)
        : _bytes(bytes) {}
    /// A run; length 0 is the rest of the line.
    void appendRun(unsigned length, unsigned code) {
        const unsigned value = length << 2 | code;
        const int nibbles = length == 0 || value >= 0x100 ? 4 : value >= 0x40 ? 3 : value >= 0x10 ? 2 : 1;
        for (int i = nibbles - 1; i >= 0; --i)
            appendNibble(value >> (4 * i) & 0xF);
    }
    void endLine() { _half = false; }

private:
    void appendNibble(unsigned nibble) {
        if (_half)
            _bytes.back() = static_cast<std::uint8_t>(_bytes.back() | nibble);
        else
            _bytes.push_back(static_cast<std::uint8_t>(nibble << 4));
        _half = !_half;
    }
    Bytes& _bytes;
    bool _half = false;
};

} // namespace

void Bitmap::fill(int x, int y, int w, int h, std::uint8_t code) {
    for (int row = y; row < y + h; ++row)
        for (int column = x; column < x + w; ++column)
            at(column, row) = code;
}

Bytes runLengths(const Bitmap& bitmap, int first) {
    constexpr int maximumRun = 255;
    Bytes bytes;
    NibbleWriter writer(bytes);
    for (int y = first; y < bitmap.height; y += 2) {
        for (int x = 0; x < bitmap.width;) {
            const std::uint8_t code = bitmap.at(x, y);
            int end = x;
            while (end < bitmap.width && bitmap.at(end, y) == code)
                ++end;
            const int length = std::min(end - x, maximumRun);
            const bool isRest = end == bitmap.width && end - x > maximumRun;
            writer.appendRun(isRest ? 0 : static_cast<unsigned>(length), code);
            x = isRest ? end : x + length;
        }
        writer.endLine();
    }
    return bytes;
}

Bytes unit(const Subpicture& subpicture) {
    constexpr std::size_t topStart = 4;
    const Bitmap& bitmap = subpicture.bitmap;
    const Bytes top = runLengths(bitmap, 0);
    const Bytes bottom = runLengths(bitmap, 1);
    const std::size_t bottomStart = topStart + top.size();
    const std::size_t dataSize = bottomStart + bottom.size();
    if (dataSize >= maximumUnitSize - 64)
        return {};

    Bytes bytes(topStart);
    bytes.insert(bytes.end(), top.begin(), top.end());
    bytes.insert(bytes.end(), bottom.begin(), bottom.end());
    constexpr std::size_t startSequenceLength = 24;
    appendTwoBytes(bytes, 0);
    appendTwoBytes(bytes, subpicture.stop ? dataSize + startSequenceLength : dataSize);
    bytes.push_back(0x03);
    appendTwoBytes(bytes, fourNibbles(subpicture.colors));
    bytes.push_back(0x04);
    appendTwoBytes(bytes, fourNibbles(subpicture.contrasts));
    bytes.push_back(0x05);
    appendExtent(bytes, subpicture.x, subpicture.x + bitmap.width - 1);
    appendExtent(bytes, subpicture.y, subpicture.y + bitmap.height - 1);
    bytes.push_back(0x06);
    appendTwoBytes(bytes, topStart);
    appendTwoBytes(bytes, bottomStart);
    bytes.push_back(subpicture.forced ? 0x00 : 0x01);
    bytes.push_back(0xFF);
    if (subpicture.stop) {
        const std::size_t here = bytes.size();
        appendTwoBytes(bytes, *subpicture.stop);
        appendTwoBytes(bytes, here);
        bytes.push_back(0x02);
        bytes.push_back(0xFF);
    }
    // A unit has an even number of bytes.
    if (bytes.size() % 2)
        bytes.push_back(0xFF);
    bytes[0] = low(bytes.size() >> 8);
    bytes[1] = low(bytes.size());
    bytes[2] = low(dataSize >> 8);
    bytes[3] = low(dataSize);
    return bytes;
}

void DataWriter::append(std::initializer_list<unsigned> bytes) {
    for (const unsigned byte : bytes)
        _bytes.push_back(static_cast<std::uint8_t>(byte));
}

void DataWriter::appendPackHeader(const Layout& layout) {
    // A clock reference of 0 and a rate of 10,080,000 bits a second.
    append({0, 0, 1, 0xBA, 0x44, 0, 4, 0, 4, 1, 0x01, 0x89, 0xC3, 0xF8u | static_cast<unsigned>(layout.stuffing)});
    for (int i = 0; i < layout.stuffing; ++i)
        append({0xFF});
    if (layout.systemHeader)
        append({0, 0, 1, 0xBB, 0, 9, 0x80, 0xC4, 0xE1, 0x00, 0xE1, 0x7F, 0xBD, 0xE0, 0x3A});
}

void DataWriter::appendForeignPack(std::uint8_t firstByte) {
    appendPackHeader({});
    append({0, 0, 1, 0xE0, 0x07, 0xEC, 0x81, 0, 0, firstByte});
    for (unsigned i = 0; i < 2048 - 24; ++i)
        append({i * 7 & 0xFF});
}

std::int64_t DataWriter::append(const Bytes& unit, int stream, std::uint64_t ticks, const Layout& layout) {
    const auto begin = static_cast<std::int64_t>(_bytes.size());
    const auto packSize = static_cast<std::size_t>(layout.packSize);
    for (std::size_t done = 0; done < unit.size();) {
        if (done > 0) {
            for (int i = 0; i < layout.foreignPacks; ++i)
                appendForeignPack();
            _bytes.insert(_bytes.end(), static_cast<std::size_t>(layout.fillBetween), 0xFF);
        }
        const std::size_t packStart = _bytes.size();
        const std::size_t headerLength = done == 0 ? 5 : 0; // a time stamp in the first packet
        appendPackHeader(layout);
        const std::size_t left = packStart + packSize - _bytes.size() - 10 - headerLength;
        const std::size_t count = std::min(left, unit.size() - done);
        std::size_t rest = left - count;
        // What is too small for a padding packet goes into the header.
        const std::size_t inHeader = layout.paddingStream && !layout.shortLastPack && rest < 6 ? rest : 0;
        rest -= inHeader;
        const std::size_t length = layout.packetLengthsOfZero ? 0 : 4 + headerLength + inHeader + count;
        append({0, 0, 1, 0xBD});
        appendTwoBytes(_bytes, length);
        append({0x81, done == 0 ? 0x80u : 0u, static_cast<unsigned>(headerLength + inHeader)});
        if (done == 0) {
            const auto bits = [&](unsigned from) { return static_cast<unsigned>(ticks >> from); };
            append({0x21 | (bits(30) & 7) << 1, bits(22) & 0xFF, (bits(15) & 0x7F) << 1 | 1, bits(7) & 0xFF,
                    (bits(0) & 0x7F) << 1 | 1});
        }
        _bytes.insert(_bytes.end(), inHeader, 0xFF);
        append({0x20u | static_cast<unsigned>(stream)});
        const auto from = unit.begin() + static_cast<std::ptrdiff_t>(done);
        _bytes.insert(_bytes.end(), from, from + static_cast<std::ptrdiff_t>(count));
        done += count;
        if (layout.shortLastPack)
            continue;
        if (layout.paddingStream && rest >= 6) {
            append({0, 0, 1, 0xBE});
            appendTwoBytes(_bytes, rest - 6);
            rest -= 6;
        }
        _bytes.insert(_bytes.end(), rest, 0xFF);
    }
    return begin;
}

int PairWriter::addStream(const std::string& language, const std::string& name) {
    _streams.push_back({language, name, {}});
    return static_cast<int>(_streams.size()) - 1;
}

void PairWriter::add(int stream, std::int64_t milliseconds, const Subpicture& subpicture, const Layout& layout) {
    const auto ticks = static_cast<std::uint64_t>(milliseconds) * 90;
    const std::int64_t position = _data.append(unit(subpicture), stream, ticks, layout);
    _streams[static_cast<std::size_t>(stream)].entries.push_back({milliseconds, position});
}

void PairWriter::addShifted(int stream, std::int64_t milliseconds, const Subpicture& subpicture, int shift) {
    add(stream, milliseconds, subpicture);
    _streams[static_cast<std::size_t>(stream)].entries.back().position += shift;
}

std::string PairWriter::index() const {
    char line[128];
    const auto formatted = [&](const char* format, auto... values) {
        std::snprintf(line, sizeof line, format, values...);
        return std::string(line);
    };
    std::string text = "# VobSub index file, v7 (do not modify this line!)\n";
    text += formatted("size: %dx%d\n", width, height);
    text += "org: 0, 0\nscale: 100%, 100%\nalpha: 100%\nsmooth: OFF\nfadein/out: 50, 50\nalign: OFF at LEFT TOP\n"
            "time offset: 0\nforced subs: OFF\npalette: ";
    for (std::size_t i = 0; i < palette.size(); ++i)
        text += formatted(i ? ", %06x" : "%06x", palette[i]);
    text += "\ncustom colors: OFF, tridx: 0000, colors: 000000, 000000, 000000, 000000\n" + moreKeys + "langidx: 0\n";
    for (std::size_t number = 0; number < _streams.size(); ++number) {
        const Stream& stream = _streams[number];
        text += "\nid: " + stream.language + ", index: " + std::to_string(number) + "\n";
        if (!stream.name.empty())
            text += "alt: " + stream.name + "\n";
        for (const Entry& entry : stream.entries) {
            const auto at = [&](int unit, int count) { return static_cast<int>(entry.milliseconds / unit % count); };
            text +=
                formatted("timestamp: %02d:%02d:%02d:%03d, filepos: %09llx\n", at(3'600'000, 1'000'000), at(60'000, 60),
                          at(1000, 60), at(1, 1000), static_cast<unsigned long long>(entry.position));
        }
    }
    return text;
}

bool PairWriter::write(const std::string& base) const {
    std::ofstream index(base + ".idx", std::ios::binary);
    index << this->index();
    std::ofstream data(base + ".sub", std::ios::binary);
    data.write(reinterpret_cast<const char*>(_data.bytes().data()), static_cast<std::streamsize>(_data.bytes().size()));
    index.close();
    data.close();
    return index.good() && data.good();
}

} // namespace vobsub
