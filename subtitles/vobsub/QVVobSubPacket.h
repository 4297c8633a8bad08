// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subtitles/vobsub/ControlSequences.h"
#include "subtitles/vobsub/PackReader.h"
#include "subtitles/vobsub/VobSubImage.h"
#include "subtitles/vobsub/VobSubIndex.h"

#include <memory>
#include <optional>

/// One subpicture unit of a data file: a picture, with when it ends and where it stands. On a loading worker.
class QVVobSubPacket {
public:
    /// The unit at a position; none when it cannot be read, is not whole or contradicts itself. What could not be read,
    /// and control sequences that leave the unit, are logged.
    static std::optional<QVVobSubPacket> packetWithFile(PackReader& reader, const QVVobSubPos& pos);
    /// The same of a unit's bytes, as many as its first two say. Logs nothing.
    static std::optional<QVVobSubPacket> packetWithUnit(PackReader::Unit unit);

    /// The picture in the colours of the index, cropped to what is visible of it, which `rect` becomes. None where it
    /// has no extent. Takes the unit's bytes: call it once.
    std::shared_ptr<VobSubImage> decodeWithInfo(const VobSubIndex& info, ReadingMode mode);

    /// Of the picture in the subpicture frame.
    const SubpictureControl::Rect& rect() const { return _rect; }
    /// Milliseconds; 0 when nothing stops the picture.
    std::int32_t displayTime() const { return _displayTime; }
    bool forced() const { return _forced; }

private:
    QVVobSubPacket() = default;
    std::array<VobSubColor, 4> colors(const VobSubIndex& info) const;

    std::int32_t _datasize = 0;
    std::vector<std::uint8_t> _data;
    SubpictureControl::Rect _rect;
    SubpictureControl::Rect _crop;
    std::int32_t _displayTime = 0;
    bool _forced = false;
    std::array<std::uint16_t, 2> _offset{};
    std::array<SubpictureControl::Color, 4> _pal{};
};
