// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/vobsub/PackReader.h"

#include <algorithm>
#include <cstdlib>

namespace {

using Bytes = std::span<const std::uint8_t>;
using ProgramStream::Element;

constexpr std::uint8_t packCode = 0xBA;
constexpr std::uint8_t privateStream1Code = 0xBD;
constexpr std::int64_t packSize = 2048;
constexpr std::int64_t packHeaderLength = 14;
constexpr std::uint8_t firstSubpicture = 0x20;
constexpr std::uint8_t streamMask = 0x1F;
/// How far from its pack a recorded position may be.
constexpr std::int64_t farthestShift = 16;

/// Where the sub-stream's number is in a pack of the fixed layout.
std::optional<std::size_t> subStreamInPack(Bytes pack) {
    constexpr std::size_t headerLengthAt = 22;
    if (pack.size() <= headerLengthAt)
        return std::nullopt;
    const std::size_t at = headerLengthAt + 1 + pack[headerLengthAt];
    return at < pack.size() ? std::optional(at) : std::nullopt;
}

/// Whether the first pack is one of subpictures. One that begins as it should is taken as it is.
bool belongs(Bytes pack, std::uint8_t subStream, std::uint8_t ownSubStream) {
    if (ProgramStream::isStartCode(pack, packCode) || ProgramStream::isStartCode(pack, privateStream1Code) ||
        (pack[21] & 0x80) != 0 || (pack[23] & 0xF0) == firstSubpicture)
        return true;
    return (subStream & ~streamMask) == firstSubpicture || (subStream & streamMask) == (ownSubStream & streamMask);
}

/// Whether a pack has the header of the fixed layout, and a packet of private stream 1 right after it.
bool keepsLayout(Bytes pack) {
    constexpr std::uint8_t stuffingMask = 0x07;
    return ProgramStream::isStartCode(pack, packCode) && (pack[packHeaderLength - 1] & stuffingMask) == 0 &&
           ProgramStream::isStartCode(pack.subspan(packHeaderLength), privateStream1Code);
}

/// Whether the packet of such a pack says that it ends before the pack does.
bool endsEarly(Bytes pack) {
    constexpr std::int64_t lengthAt = packHeaderLength + 4;
    const std::int64_t length = pack[lengthAt] << 8 | pack[lengthAt + 1];
    return length != 0 && lengthAt + 2 + length < packSize;
}

} // namespace

// Where the lengths in the packs are right, all give the same, unless the packs are of an unusual size.
const std::array<PackReader::Way, 3> PackReader::ways{&PackReader::readFixedLayout, &PackReader::readByLengths,
                                                      &PackReader::readAsFixedLayout};

/// A unit that is being put together.
class PackReader::Assembly {
public:
    /// Takes what is missing of these bytes.
    void take(Bytes bytes) {
        if (_missing == 0 || _isRefused)
            return;
        if (!_unit.dataSize)
            bytes = takeSizes(bytes);
        bytes = bytes.first(std::min(bytes.size(), missing()));
        _unit.bytes.insert(_unit.bytes.end(), bytes.begin(), bytes.end());
        _missing -= bytes.size();
    }
    /// At least 1 while the unit is neither complete nor refused.
    std::size_t missing() const { return _isRefused ? 0 : _missing; }
    std::optional<Unit> finished() {
        return missing() == 0 && !_isRefused ? std::optional(std::move(_unit)) : std::nullopt;
    }

private:
    /// The first four bytes say how large the unit is; they are part of it.
    Bytes takeSizes(Bytes bytes) {
        const std::size_t count = std::min(bytes.size(), sizesLength - _unit.bytes.size());
        _unit.bytes.insert(_unit.bytes.end(), bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(count));
        if (_unit.bytes.size() < sizesLength)
            return {};
        const std::vector<std::uint8_t>& sizes = _unit.bytes;
        const auto size = static_cast<std::size_t>(sizes[0] << 8 | sizes[1]);
        _unit.dataSize = sizes[2] << 8 | sizes[3];
        _isRefused = size == 0 || _unit.dataSize == 0;
        if (size > sizesLength)
            _unit.bytes.reserve(size);
        else
            _unit.bytes.resize(size);
        _missing = size - _unit.bytes.size();
        return bytes.subspan(count);
    }

    static constexpr std::size_t sizesLength = 4;
    Unit _unit;
    std::size_t _missing = sizesLength; // of the sizes, then of the unit
    bool _isRefused = false;
};

PackReader::PackReader(DataFile& file, std::int32_t stream, const std::atomic<bool>& abort)
    : _file(file)
    , _subStream(static_cast<std::uint8_t>(firstSubpicture | (stream & streamMask)))
    , _abort(abort)
    // The streams of a file pass over one another, each about once.
    , _skippableInAll(maximumSkipped + 4 * std::min<std::int64_t>(file.size(), std::int64_t{1} << 60)) {}

bool PackReader::isOwn(const Element& element) const {
    return element.kind == Element::privateStream1 && element.subStream == _subStream;
}

/// Whether to go on after passing over so many bytes of others.
bool PackReader::skip(std::int64_t count) {
    _skippable -= count;
    _skippableInAll -= count;
    return _skippable >= 0 && _skippableInAll >= 0 && !_abort;
}

/// Whether a packet may end here: at the end of the file, or before a start code with nothing but fill between.
bool PackReader::leadsOn(std::int64_t position) {
    const Bytes bytes = _file.at(position, static_cast<std::size_t>(packSize + packHeaderLength));
    if (bytes.empty())
        return position == _file.size();
    const auto fill = ProgramStream::fillLength(bytes);
    return fill && (*fill < bytes.size() || position + static_cast<std::int64_t>(*fill) >= _file.size());
}

/// Where the lengths lead nowhere: goes on with the pack that follows in packs of the usual size. Packs whose header is
/// right and whose packets are not are met in the wild.
bool PackReader::recover(Walk& walk) {
    const std::int64_t following = walk.packStart + packSize;
    if (!walk.isRecovering || walk.packStart < 0 || following < walk.takenTo ||
        !ProgramStream::isStartCode(_file.at(following, 4), packCode))
        return false;
    // A pack of the unit itself whose packet is damaged is not passed over: the next unit would be taken for its end.
    const Bytes pack = _file.at(walk.packStart, static_cast<std::size_t>(packSize));
    if (const auto at = subStreamInPack(pack); walk.takenTo <= walk.packStart && at && pack[*at] == _subStream)
        return false;
    walk.position = following;
    walk.packStart = -1;
    return skip(packSize);
}

/// Goes to the next packet and gives it.
std::optional<Element> PackReader::nextPacket(Walk& walk) {
    for (;;) {
        const Bytes bytes = _file.at(walk.position, ProgramStream::headerSpace);
        const auto element = ProgramStream::elementAt(bytes);
        if (element && (element->kind == Element::packet || element->kind == Element::privateStream1))
            return element;
        std::int64_t passed = 0;
        if (element) {
            if (element->kind == Element::pack)
                walk.packStart = walk.position;
            passed = static_cast<std::int64_t>(element->length);
        } else if (const auto fill = ProgramStream::fillLength(bytes); fill && *fill > 0) {
            // The last three may be the beginning of a start code.
            const std::size_t sure = *fill < bytes.size() || bytes.size() <= 3 ? *fill : *fill - 3;
            passed = static_cast<std::int64_t>(sure);
        } else if (!bytes.empty() && recover(walk)) {
            continue;
        } else {
            return std::nullopt;
        }
        walk.position += passed;
        if (!skip(passed))
            return std::nullopt;
    }
}

/// The first own packet of the pack at which the walk stands.
std::optional<Element> PackReader::firstPacketOfPack(Walk& walk) {
    const std::int64_t pack = walk.position;
    walk.isRecovering = false;
    auto packet = nextPacket(walk);
    while (packet && walk.packStart == pack && !isOwn(*packet)) {
        walk.position += static_cast<std::int64_t>(packet->length);
        packet = skip(static_cast<std::int64_t>(packet->length)) ? nextPacket(walk) : std::nullopt;
    }
    walk.isRecovering = true;
    return walk.packStart == pack ? packet : std::nullopt;
}

/// The first packet of the unit at the position, or near it: found by the start code of its pack, or by its own.
std::optional<Element> PackReader::findStart(std::int64_t position, Walk& walk) {
    const Bytes pack = _file.at(position, ProgramStream::headerSpace);
    if (pack.size() > packHeaderLength && ProgramStream::isStartCode(pack, packCode)) {
        const auto packet = ProgramStream::elementAt(pack.subspan(packHeaderLength));
        if (packet && packet->kind == Element::privateStream1) {
            walk = {position + packHeaderLength, position};
            return packet;
        }
    }
    const auto distance = [](std::int64_t index) { return index % 2 ? (index + 1) / 2 : -index / 2; };
    for (const std::uint8_t code : {packCode, privateStream1Code}) {
        for (std::int64_t index = 0; index <= 2 * farthestShift; ++index) {
            const std::int64_t candidate = position + distance(index);
            const Bytes bytes = _file.at(candidate, ProgramStream::headerSpace);
            if (!ProgramStream::isStartCode(bytes, code))
                continue;
            walk = {candidate};
            auto packet = code == packCode ? firstPacketOfPack(walk) : ProgramStream::elementAt(bytes);
            if (packet && isOwn(*packet))
                return packet;
        }
    }
    return std::nullopt;
}

void PackReader::takePacket(const Element& packet, Walk& walk, Assembly& assembly) {
    std::int64_t end = walk.position + static_cast<std::int64_t>(packet.length);
    // Where its length leads nowhere, the only packet of a pack goes to the end of the pack.
    const std::int64_t packEnd = walk.packStart + packSize;
    if (walk.packStart >= 0 && walk.position == walk.packStart + packHeaderLength && end != packEnd && !leadsOn(end))
        end = packEnd;
    std::int64_t from = walk.position + static_cast<std::int64_t>(packet.payload);
    while (from < end && assembly.missing() > 0) {
        const auto wanted = static_cast<std::size_t>(end - from);
        const Bytes bytes = _file.at(from, std::min(wanted, DataFile::windowSize));
        if (bytes.empty())
            break;
        assembly.take(bytes);
        from += static_cast<std::int64_t>(bytes.size());
    }
    walk.position = end;
    walk.takenTo = end;
}

std::optional<PackReader::Unit> PackReader::readByLengths(std::int64_t position) {
    _skippable = maximumSkipped;
    Walk walk;
    Assembly assembly;
    if (_file.at(position, 1).empty())
        return std::nullopt;
    auto packet = findStart(position, walk);
    if (!packet)
        return std::nullopt;
    takePacket(*packet, walk, assembly);
    while (assembly.missing() > 0) {
        packet = nextPacket(walk);
        if (!packet)
            return std::nullopt;
        const bool isTaken = isOwn(*packet);
        if (isTaken)
            takePacket(*packet, walk, assembly);
        else
            walk.position += static_cast<std::int64_t>(packet->length);
        if (!skip(static_cast<std::int64_t>(isTaken ? packet->payload : packet->length)) && assembly.missing() > 0)
            return std::nullopt;
    }
    return assembly.finished();
}

std::optional<PackReader::Unit> PackReader::readPacks(std::int64_t position, bool keepLayout) {
    _skippable = maximumSkipped;
    Assembly assembly;
    for (bool isFirst = true; assembly.missing() > 0; isFirst = false, position += packSize) {
        const Bytes pack = _file.at(position, static_cast<std::size_t>(packSize));
        const auto subStream = subStreamInPack(pack);
        const bool isOwnPack = subStream && pack[*subStream] == _subStream;
        if (keepLayout && !(isOwnPack ? keepsLayout(pack) : ProgramStream::isStartCode(pack, packCode)))
            return std::nullopt;
        const bool isTaken =
            isOwnPack || (isFirst && !keepLayout && subStream && belongs(pack, pack[*subStream], _subStream));
        if (isTaken)
            assembly.take(pack.subspan(*subStream + 1));
        else if (isFirst || pack.empty() || !skip(packSize))
            return std::nullopt;
        if (isTaken && keepLayout && assembly.missing() > 0 && endsEarly(pack))
            return std::nullopt;
    }
    return assembly.finished();
}
