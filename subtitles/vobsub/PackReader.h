// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subtitles/vobsub/DataFile.h"
#include "subtitles/vobsub/ProgramStream.h"

#include <array>
#include <atomic>
#include <cstdint>
#include <optional>
#include <vector>

/// Puts the subpicture units of one stream together from the packs of a data file: a unit may be spread over several,
/// with packs of others between. One thread at a time.
class PackReader {
public:
    /// So many bytes of others are passed over while one unit is put together.
    static constexpr std::int64_t maximumSkipped = 64 * 1024 * 1024;

    struct Unit {
        /// As many as the unit says of itself.
        std::vector<std::uint8_t> bytes;
        /// Where its control sequences begin, as it says; above 0.
        std::int32_t dataSize = 0;
    };

    /// `stream`: its number within the file, 0 to 31. Reading gives up soon after `abort` was set. The references
    /// outlive the reader.
    PackReader(DataFile& file, std::int32_t stream, const std::atomic<bool>& abort);

    DataFile& file() { return _file; }

    /// The unit whose first pack is at the position or up to 16 bytes off, where the packs, headers and packets have
    /// the lengths that they say. None when the unit is not there whole.
    std::optional<Unit> readByLengths(std::int64_t position);
    /// The unit whose first pack is at the position, where packs have 2048 bytes, headers 14, and a pack holds one
    /// packet. None when a pack on the way says otherwise, or the unit is not there whole. A packet's length counts
    /// only where it ends too early.
    std::optional<Unit> readFixedLayout(std::int64_t position) { return readPacks(position, true); }
    /// The same whatever the packs say, if only the first one is of subpictures.
    std::optional<Unit> readAsFixedLayout(std::int64_t position) { return readPacks(position, false); }

    /// The ways to read a unit, in the order to try them.
    using Way = std::optional<Unit> (PackReader::*)(std::int64_t position);
    static const std::array<Way, 3> ways;

private:
    class Assembly;
    /// A walk over the elements of the file.
    struct Walk {
        std::int64_t position = 0;
        /// Of the last pack that was entered; negative before the first one.
        std::int64_t packStart = -1;
        /// What lies before was taken.
        std::int64_t takenTo = 0;
        /// Where the lengths lead nowhere, the walk goes on with the next pack.
        bool isRecovering = true;
    };

    bool isOwn(const ProgramStream::Element& element) const;
    bool skip(std::int64_t count);
    bool leadsOn(std::int64_t position);
    bool recover(Walk& walk);
    std::optional<ProgramStream::Element> nextPacket(Walk& walk);
    std::optional<ProgramStream::Element> firstPacketOfPack(Walk& walk);
    std::optional<ProgramStream::Element> findStart(std::int64_t position, Walk& walk);
    std::optional<Unit> readPacks(std::int64_t position, bool keepLayout);
    void takePacket(const ProgramStream::Element& packet, Walk& walk, Assembly& assembly);

    DataFile& _file;
    std::uint8_t _subStream;
    const std::atomic<bool>& _abort;
    std::int64_t _skippable = 0;      // within the unit
    std::int64_t _skippableInAll = 0; // positions may lead over the same bytes again and again
};
