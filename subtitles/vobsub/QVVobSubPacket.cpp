// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/vobsub/QVVobSubPacket.h"

#include "settings/Tracing.h"
#include "subtitles/vobsub/RunLengthDecoder.h"

#include <QString>

#include <algorithm>
#include <system_error>

namespace {

constexpr const char* className = "QVVobSubPacket";

} // namespace

std::optional<QVVobSubPacket> QVVobSubPacket::packetWithUnit(PackReader::Unit unit) {
    const auto control = ControlSequences::parse(unit.bytes, unit.dataSize);
    if (!control)
        return std::nullopt;
    QVVobSubPacket packet;
    packet._datasize = unit.dataSize;
    packet._data = std::move(unit.bytes);
    packet._rect = control->rect;
    packet._displayTime = control->displayTime;
    packet._forced = control->forced;
    packet._offset = control->offset;
    packet._pal = control->pal;
    return packet;
}

std::optional<QVVobSubPacket> QVVobSubPacket::packetWithFile(PackReader& reader, const QVVobSubPos& pos) {
    DataFile& file = reader.file();
    if (file.at(pos._pos, 1).empty()) {
        if (file.error() != 0)
            logAlways("ERROR: %@: Caught %@: %@", className, "read error",
                      std::generic_category().message(file.error()).c_str());
        else
            logAlways("ERROR: %@: Unable to read data from file %@", className, file.path());
        return std::nullopt;
    }
    bool isMalformed = false;
    for (const auto read : PackReader::ways) {
        auto unit = (reader.*read)(pos._pos);
        if (!unit)
            continue;
        if (auto packet = packetWithUnit(std::move(*unit)))
            return packet;
        isMalformed = true;
    }
    if (isMalformed)
        logAlways("WARNING: %@: Wrong subpicture parameter block ending\n", className);
    else if (file.error() != 0)
        logAlways("ERROR: %@: Caught %@: %@", className, "read error",
                  std::generic_category().message(file.error()).c_str());
    return std::nullopt;
}

std::array<VobSubColor, 4> QVVobSubPacket::colors(const VobSubIndex& info) const {
    if (info._hasCustomPalette)
        return info._customPalette;
    constexpr std::uint8_t opaqueByContrast = 17;
    std::array<VobSubColor, 4> colors;
    for (std::size_t code = 0; code < colors.size(); ++code) {
        colors[code] = info._originalPalette[_pal[code].pal];
        colors[code].alpha = static_cast<std::uint8_t>(_pal[code].tr * opaqueByContrast);
    }
    return colors;
}

std::shared_ptr<VobSubImage> QVVobSubPacket::decodeWithInfo(const VobSubIndex& info, ReadingMode mode) {
    const std::int32_t width = _rect.width();
    const std::int32_t height = _rect.height();
    if (width <= 0 || height <= 0)
        return nullptr;
    const std::array<VobSubColor, 4> colors = this->colors(info);
    std::array<bool, 4> visible{};
    std::transform(colors.begin(), colors.end(), visible.begin(),
                   [](const VobSubColor& color) { return color.alpha > 0; });
    _crop = RunLengths::visiblePart(RunLengthDecoder(_data, _offset, _datasize, mode), width, height, visible);
    _rect = {_rect.left + _crop.left, _rect.top + _crop.top, _rect.left + _crop.right, _rect.top + _crop.bottom};
    return std::make_shared<VobSubImage>(
        VobSubImage::Parts{std::move(_data), _offset, _datasize, width, height, _crop, colors, mode});
}
