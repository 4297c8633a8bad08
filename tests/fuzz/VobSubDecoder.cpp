// SPDX-License-Identifier: GPL-3.0-or-later
// The bytes of a subpicture unit: its control sequences and its pixels.
#include "subtitles/vobsub/QVVobSubPacket.h"
#include "subtitles/vobsub/RunLengthDecoder.h"

#include <QImage>

#include <cstdlib>

namespace {

void check(bool condition) {
    if (!condition)
        std::abort();
}

/// Runs lie within the picture and never go back.
void checkRuns(const PackReader::Unit& unit, const SubpictureControl& control, ReadingMode mode) {
    const std::int32_t width = control.rect.width();
    const std::int32_t height = control.rect.height();
    std::int32_t lastY = 0;
    std::int32_t endX = 0;
    RunLengthDecoder decoder(unit.bytes, control.offset, unit.dataSize, mode);
    decoder.decode(width, height, [&](std::int32_t x, std::int32_t y, std::int32_t count, std::uint32_t code) {
        check(count > 0 && x + count <= width && y < height && code < 4);
        check(y == lastY ? x == endX : x == 0 && y == lastY + 1);
        lastY = y;
        endX = x + count;
    });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 4 || size > 65535)
        return 0;
    PackReader::Unit unit{{data, data + size}, data[2] << 8 | data[3]};
    const auto control = ControlSequences::parse(unit.bytes, unit.dataSize);
    if (control && control->rect.width() > 0 && control->rect.height() > 0)
        for (const ReadingMode each : {ReadingMode::strict, ReadingMode::repairing})
            checkRuns(unit, *control, each);
    auto packet = QVVobSubPacket::packetWithUnit(std::move(unit));
    check(packet.has_value() == control.has_value());
    if (!packet)
        return 0;
    VobSubIndex index;
    index._hasCustomPalette = data[0] % 2 == 1;
    index._customPalette = {VobSubColor{1, 2, 3, 0}, {255, 0, 9, 255}, {4, 5, 6, 255}, {7, 8, 9, 0}};
    const auto image = packet->decodeWithInfo(index, data[1] % 2 ? ReadingMode::repairing : ReadingMode::strict);
    const SubpictureControl::Rect& rect = packet->rect();
    check((image != nullptr) == (rect.width() > 0 && rect.height() > 0));
    if (!image)
        return 0;
    check(rect.left >= control->rect.left && rect.right <= control->rect.right && rect.top >= control->rect.top &&
          rect.bottom <= control->rect.bottom);
    // Large ones cost time and show nothing more.
    constexpr std::int64_t largest = 256 * 256;
    if (std::int64_t{rect.width()} * rect.height() <= largest)
        check(image->expanded().size() == QSize(rect.width(), rect.height()));
    return 0;
}
