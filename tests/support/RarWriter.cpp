// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/RarWriter.h"

namespace {

std::uint32_t crc32(const QByteArray& bytes) {
    std::uint32_t crc = 0xFFFFFFFF;
    for (const char byte : bytes) {
        crc ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = crc >> 1U ^ (crc & 1U ? 0xEDB88320U : 0U);
    }
    return ~crc;
}

QByteArray littleEndian(std::uint64_t value, int bytes) {
    QByteArray result;
    for (int byte = 0; byte < bytes; ++byte, value >>= 8U)
        result.append(static_cast<char>(value & 0xFFU));
    return result;
}

QByteArray variable(std::uint64_t value) {
    QByteArray result;
    for (; value > 0x7F; value >>= 7U)
        result.append(static_cast<char>(0x80U | (value & 0x7FU)));
    return result + static_cast<char>(value);
}

QByteArray lengthAnd(const QByteArray& bytes) {
    return variable(static_cast<std::uint64_t>(bytes.size())) + bytes;
}

QByteArray mark4() {
    return {"Rar!\x1A\x07\x00", 7};
}

QByteArray mark5() {
    return {"Rar!\x1A\x07\x01\x00", 8};
}

QByteArray block4(char type, std::uint32_t flags, const QByteArray& body) {
    const QByteArray header =
        type + littleEndian(flags, 2) + littleEndian(static_cast<std::uint64_t>(body.size()) + 7, 2) + body;
    return littleEndian(crc32(header), 2) + header;
}

/// Whether an entry goes on from the volume before and goes on in the next one.
struct Spread {
    bool isBefore = false;
    bool isAfter = false;
    std::uint32_t flags() const { return (isBefore ? 1U : 0U) | (isAfter ? 2U : 0U); }
};

QByteArray entry4(const RarEntry& entry, const Spread& spread = {}) {
    const QByteArray data = entry.linkTarget.isEmpty() ? entry.data : entry.linkTarget;
    const auto packed = static_cast<std::uint64_t>(data.size());
    QByteArray name = entry.name;
    name.replace('/', '\\');
    constexpr std::uint64_t unixSystem = 3;
    constexpr std::uint64_t someDay = 0x5A21A000;
    constexpr std::uint64_t version = 20;
    constexpr std::uint64_t stored = 0x30;
    const QByteArray body = littleEndian(packed, 4) + littleEndian(entry.size.value_or(packed), 4) +
                            littleEndian(unixSystem, 1) + littleEndian(entry.checksum.value_or(crc32(data)), 4) +
                            littleEndian(someDay, 4) + littleEndian(version, 1) + littleEndian(stored, 1) +
                            littleEndian(static_cast<std::uint64_t>(name.size()), 2) + littleEndian(entry.mode, 4) +
                            name;
    return block4(0x74, 0x8000U | spread.flags() | (entry.isEncrypted ? 4U : 0U), body) + data;
}

QByteArray block5(std::uint64_t type, const QByteArray& body, const QByteArray& extra = {},
                  const std::optional<QByteArray>& data = {}, const Spread& spread = {}) {
    QByteArray header =
        variable(type) + variable((extra.isEmpty() ? 0U : 1U) | (data ? 2U : 0U) | spread.flags() << 3U);
    if (!extra.isEmpty())
        header += variable(static_cast<std::uint64_t>(extra.size()));
    if (data)
        header += variable(static_cast<std::uint64_t>(data->size()));
    header = lengthAnd(header + body + extra);
    return littleEndian(crc32(header), 4) + header + data.value_or(QByteArray());
}

QByteArray entry5(const RarEntry& entry, const Spread& spread = {}) {
    QByteArray extra;
    if (!entry.linkTarget.isEmpty())
        extra += lengthAnd(QByteArray("\x05\x01\x00", 3) + lengthAnd(entry.linkTarget));
    if (entry.isEncrypted)
        extra += lengthAnd(QByteArray("\x01\x00\x00\x0F", 4) + QByteArray(32, '\x01'));
    constexpr std::uint64_t hasChecksum = 4;
    const QByteArray body = variable(hasChecksum) +
                            variable(entry.size.value_or(static_cast<std::uint64_t>(entry.data.size()))) +
                            variable(entry.mode) + littleEndian(entry.checksum.value_or(crc32(entry.data)), 4) +
                            variable(0) + variable(1) + lengthAnd(entry.name);
    return block5(2, body, extra, entry.data, spread);
}

} // namespace

std::vector<QByteArray> rarVolumes(RarFormat format, RarNumbering numbering, const RarEntry& entry, int count) {
    const qsizetype share = (entry.data.size() + count - 1) / count;
    std::vector<QByteArray> volumes;
    for (int number = 0; number < count; ++number) {
        const Spread spread{number > 0, number + 1 < count};
        RarEntry part = entry;
        part.data = entry.data.mid(number * share, share);
        part.size = static_cast<std::uint64_t>(entry.data.size());
        // That of the whole entry stands in its last part.
        part.checksum = crc32(spread.isAfter ? part.data : entry.data);
        const auto next = spread.isAfter ? 1U : 0U;
        if (format == RarFormat::rar4) {
            const std::uint32_t flags =
                1U | (numbering == RarNumbering::parts ? 0x10U : 0U) | (spread.isBefore ? 0U : 0x100U);
            volumes.push_back(mark4() + block4(0x73, flags, QByteArray(6, '\0')) + entry4(part, spread) +
                              block4(0x7B, 0x4000U | next, {}));
        } else {
            const QByteArray position =
                spread.isBefore ? variable(3) + variable(static_cast<std::uint64_t>(number)) : variable(1);
            volumes.push_back(mark5() + block5(1, position) + entry5(part, spread) + block5(5, variable(next)));
        }
    }
    return volumes;
}

QByteArray rarArchive(RarFormat format, const std::vector<RarEntry>& entries) {
    const bool isOld = format == RarFormat::rar4;
    QByteArray archive = isOld ? mark4() + block4(0x73, 0, QByteArray(6, '\0')) : mark5() + block5(1, variable(0));
    for (const RarEntry& entry : entries)
        archive += isOld ? entry4(entry) : entry5(entry);
    return archive + (isOld ? block4(0x7B, 0x4000, {}) : block5(5, variable(0)));
}

QByteArray rarArchiveWithEncryptedHeaders(RarFormat format) {
    if (format == RarFormat::rar4)
        return mark4() + block4(0x73, 0x80, QByteArray(6, '\0')) + QByteArray(64, 'x');
    return mark5() + block5(4, QByteArray("\x00\x00\x0F", 3) + QByteArray(16, '\x01')) + QByteArray(64, 'x');
}
