// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/vobsub/QVVobSubPacket.h"
#include "subtitles/vobsub/RunLengthDecoder.h"
#include "subtitles/vobsub/VobSubPlacement.h"
#include "tests/subtitles/VobSubFiles.h"

#include <gtest/gtest.h>

using vobsub::Bytes;
using Rect = SubpictureControl::Rect;

namespace {

std::optional<QVVobSubPacket> packetOf(Bytes unit) {
    const std::int32_t dataSize = unit[2] << 8 | unit[3];
    return QVVobSubPacket::packetWithUnit({std::move(unit), dataSize});
}

/// The unit with another area, which has a fixed place in the writer's units.
Bytes withArea(Bytes unit, const Bytes& area) {
    const auto sequence = static_cast<std::size_t>(unit[2] << 8 | unit[3]);
    const std::size_t command = sequence + 10;
    EXPECT_EQ(unit[command], 5);
    std::copy(area.begin(), area.end(), unit.begin() + static_cast<std::ptrdiff_t>(command) + 1);
    return unit;
}

/// Codes as the decoder draws them; -1 where it draws nothing.
std::vector<int> decoded(const Bytes& unit, std::array<std::uint16_t, 2> offset, int end, int width, int height,
                         ReadingMode mode = ReadingMode::strict) {
    std::vector<int> codes(static_cast<std::size_t>(width * height), -1);
    RunLengthDecoder(unit, offset, end, mode).decode(width, height, [&](int x, int y, int count, std::uint32_t code) {
        EXPECT_GE(x, 0);
        EXPECT_LE(x + count, width);
        std::fill_n(codes.begin() + y * width + x, count, static_cast<int>(code));
    });
    return codes;
}

} // namespace

TEST(VobSubPacket, malformed_control_sequences_are_refused) {
    struct Case {
        const char* name;
        Bytes sequences; // behind a header of four bytes
        std::optional<std::int32_t> displayTime;
    };
    const Case cases[] = {
        {"a start, then a stop", {0, 0, 0, 10, 1, 0xFF, 0, 90, 0, 10, 2, 0xFF}, 1024},
        {"no stop", {0, 0, 0, 4, 1, 0xFF}, 0},
        {"the latest stop", {0xFF, 0xFF, 0, 4, 2, 0xFF}, 745642},
        {"an unknown command ends a sequence", {0, 0, 0, 10, 7, 0xFF, 0, 9, 0, 10, 2, 0x80}, 102},
        {"a next before the first ends them", {0, 0, 0, 0, 1, 0xFF, 0, 90, 0, 10, 2, 0xFF}, 0},
        {"a next into the sequence ends them", {0, 0, 0, 8, 1, 1, 1, 0xFF}, 0},
        {"a next that just fits ends them", {0, 0, 0, 6, 1, 0xFF}, 0},
        {"a next beyond the unit", {0, 0, 0, 7, 1, 0xFF}, std::nullopt},
        {"no end", {0, 0, 0, 4, 1}, std::nullopt},
        {"no commands", {0, 0, 0, 4}, std::nullopt},
        {"nothing", {}, std::nullopt},
        {"arguments that reach the end", {0, 0, 0, 4, 3, 1, 2}, std::nullopt},
        {"arguments beyond the end", {0, 0, 0, 4, 5, 1, 2, 0xFF}, std::nullopt},
    };
    for (const Case& one : cases) {
        Bytes unit{0, 0, 0, 4};
        unit.insert(unit.end(), one.sequences.begin(), one.sequences.end());
        const auto control = ControlSequences::parse(unit, 4);
        EXPECT_EQ(control ? std::optional(control->displayTime) : std::nullopt, one.displayTime) << one.name;
        for (const std::int32_t dataSize : {1, 1000, 65535, -1})
            (void)ControlSequences::parse(unit, dataSize);
    }
    const auto silent = ControlSequences::parse(Bytes{0, 0, 0, 4, 0, 0, 0, 4, 1, 0xFF}, 4);
    ASSERT_TRUE(silent);
    for (const auto& color : silent->pal)
        EXPECT_EQ(color.pal + color.tr, 0) << "not visible without a command that says so";
}

TEST(VobSubPacket, a_picture_is_cropped_to_what_is_visible) {
    struct Case {
        const char* name;
        Rect drawn; // of the area
        Rect rect;
    };
    const Case cases[] = {
        {"a part", {10, 5, 290, 55}, {110, 405, 390, 455}},
        {"everything", {0, 0, 300, 60}, {100, 400, 400, 460}},
        {"nothing", {0, 0, 0, 0}, {100, 400, 400, 460}},
        {"one line", {10, 7, 290, 8}, {100, 400, 400, 460}},
        {"one column", {10, 5, 11, 50}, {100, 400, 400, 460}},
        {"the last two pixels of the last two lines", {298, 58, 300, 60}, {398, 458, 400, 460}},
    };
    VobSubIndex custom = plainIndex();
    custom._hasCustomPalette = true;
    custom._customPalette = {VobSubColor{1, 2, 3, 0}, {40, 50, 60, 255}, {}, {}};
    for (const VobSubIndex& index : {plainIndex(), custom}) {
        for (const Case& one : cases) {
            vobsub::Subpicture subpicture{.bitmap = {300, 60}};
            subpicture.x = 100;
            subpicture.y = 400;
            subpicture.bitmap.fill(one.drawn.left, one.drawn.top, one.drawn.width(), one.drawn.height(), 1);
            auto packet = packetOf(vobsub::unit(subpicture));
            ASSERT_TRUE(packet) << one.name;
            const QImage image = packet->decodeWithInfo(index, ReadingMode::strict)->expanded();
            EXPECT_EQ(packet->rect(), one.rect) << one.name;
            EXPECT_EQ(image.size(), QSize(one.rect.width(), one.rect.height())) << one.name;
            if (one.drawn.width() > 0) {
                const QPoint corner(std::max(0, 100 + one.drawn.left - one.rect.left),
                                    std::max(0, 400 + one.drawn.top - one.rect.top));
                EXPECT_EQ(image.pixel(corner), index._hasCustomPalette ? qRgb(40, 50, 60) : qRgb(255, 255, 255))
                    << one.name;
            }
        }
    }
}

TEST(VobSubPacket, a_picture_is_the_part_that_it_is_said_to_be_wherever_that_cuts_its_runs) {
    const vobsub::Subpicture subpicture = uncropped(randomBitmap(40, 20, 9, 1));
    const Bytes unit = vobsub::unit(subpicture);
    const QImage whole = expectedImage(subpicture, plainIndex());
    const auto control = ControlSequences::parse(unit, unit[2] << 8 | unit[3]);
    ASSERT_TRUE(control);
    std::array<VobSubColor, 4> colors;
    for (std::size_t code = 0; code < 4; ++code) {
        colors[code] = plainIndex()._originalPalette[subpicture.colors[code]];
        colors[code].alpha = static_cast<std::uint8_t>(subpicture.contrasts[code] * 17);
    }
    for (const Rect& crop : {Rect{0, 0, 40, 20}, {3, 4, 31, 15}, {0, 19, 40, 20}, {39, 0, 40, 20}, {7, 8, 9, 9}}) {
        const VobSubImage part({unit, control->offset, unit[2] << 8 | unit[3], 40, 20, crop, colors});
        EXPECT_EQ(part.expanded(), whole.copy(crop.left, crop.top, crop.width(), crop.height())) << crop.left;
    }
}

TEST(VobSubPacket, run_lengths_stay_within_line_and_unit) {
    struct Case {
        const char* name;
        Bytes top;
        Bytes bottom;
        int width;
        std::vector<int> codes;
    };
    const Case cases[] = {
        {"a run past the line is cut", {0x3D, 0x5D}, {0x00, 0x02}, 4, {1, 1, 1, 1, 2, 2, 2, 2, 1, 1, 1, 1}},
        {"a long code of a small number fills the line",
         {0x00, 0x13},
         {0xC6},
         4,
         {3, 3, 3, 3, 0, 0, 0, 2, -1, -1, -1, -1}},
        {"a field that ends within a line", {0x55}, {0x61}, 3, {1, 1, -1, -1, -1, -1}},
        {"a run that goes on behind its field", {0x51}, {0x61}, 3, {1, 2, 2, 2, 0, 0, -1, -1, -1}},
        {"no bottom field", {0xD0, 0xE0}, {}, 3, {1, 1, 1, -1, -1, -1, -1, -1, -1}},
    };
    for (const Case& one : cases) {
        Bytes unit = one.top;
        unit.insert(unit.end(), one.bottom.begin(), one.bottom.end());
        const auto codes = decoded(unit, {0, static_cast<std::uint16_t>(one.top.size())}, static_cast<int>(unit.size()),
                                   one.width, static_cast<int>(one.codes.size()) / one.width);
        EXPECT_EQ(codes, one.codes) << one.name;
    }
    // Fields that lie outside the unit, in the wrong order, or nowhere.
    const Bytes unit(40, 0x5A);
    for (const std::array<std::uint16_t, 2> fields :
         {std::array<std::uint16_t, 2>{0, 39}, {39, 0}, {40, 41}, {0, 65535}, {65535, 65535}, {65535, 0}})
        for (const int end : {0, 1, 39, 40, 65535, 1 << 20})
            (void)decoded(unit, fields, end, 7, 9);
}

TEST(VobSubPacket, areas_that_make_no_sense_give_no_picture_or_a_bounded_one) {
    struct Case {
        const char* name;
        Bytes area;
        QSize size; // empty for no picture
    };
    const Case cases[] = {
        {"reversed columns", {0x01, 0x00, 0x0A, 0x00, 0x00, 0x0F}, {}},
        {"reversed lines", {0x00, 0x00, 0x0A, 0x01, 0x00, 0x0A}, {}},
        {"no columns", {0x00, 0xA0, 0x09, 0x00, 0x00, 0x0F}, {}},
        {"the largest", {0x00, 0x0F, 0xFF, 0x00, 0x0F, 0xFF}, {4096, 4096}},
    };
    vobsub::Subpicture transparent{.bitmap = {20, 4}};
    transparent.contrasts = {0, 0, 0, 0};
    for (const Case& one : cases) {
        auto packet = packetOf(withArea(vobsub::unit(transparent), one.area));
        ASSERT_TRUE(packet) << one.name;
        const auto image = packet->decodeWithInfo(plainIndex(), ReadingMode::strict);
        EXPECT_EQ(image != nullptr, one.size.isValid()) << one.name;
        if (image) {
            EXPECT_LT(image->memory(), 1000U) << one.name;
            EXPECT_EQ(image->expanded().size(), one.size) << one.name;
        }
    }
}

TEST(VobSubPacket, a_picture_is_placed_as_the_index_says) {
    struct Case {
        const char* name;
        VobSubIndex index;
        platform::Rect rect;
    };
    VobSubIndex plain = plainIndex();
    VobSubIndex scaled = plain;
    scaled._scaleX = 0.5F;
    scaled._scaleY = 2;
    scaled._origin = {10, -20};
    VobSubIndex centred = scaled;
    centred._align = true;
    centred._alignH = 1;
    centred._alignV = 2;
    VobSubIndex cornered = plain;
    cornered._align = true;
    VobSubIndex reversed = cornered;
    reversed._alignH = 2;
    reversed._alignV = 1;
    const Case cases[] = {
        {"from the bottom", plain, {110, 25, 280, 50}},
        {"scaled and moved", scaled, {65, 480 - (810 - 20) - 100, 140, 100}},
        {"to the centre and the bottom", centred, {-60, 480 + 120 - 100, 140, 100}},
        {"to the left and the top", cornered, {0, 430, 280, 50}},
        {"to the right and the centre", reversed, {-280, 480 + 25 - 50, 280, 50}},
    };
    for (const Case& one : cases)
        EXPECT_EQ(VobSubPlacement::place({110, 405, 390, 455}, one.index), one.rect) << one.name;
}

TEST(VobSubPacket, control_sequences_say_colours_area_forced_and_stop) {
    vobsub::Subpicture subpicture = uncropped(vobsub::Bitmap{300, 60});
    subpicture.x = 100;
    subpicture.y = 400;
    subpicture.colors = {4, 5, 6, 7};
    subpicture.contrasts = {0, 1, 8, 15};
    subpicture.forced = true;
    const Bytes unit = vobsub::unit(subpicture);
    const auto control = ControlSequences::parse(unit, unit[2] << 8 | unit[3]);
    ASSERT_TRUE(control);
    EXPECT_EQ(control->rect, (Rect{100, 400, 400, 460}));
    EXPECT_EQ(control->displayTime, 1024);
    EXPECT_TRUE(control->forced);
    for (std::size_t code = 0; code < 4; ++code)
        EXPECT_EQ(control->pal[code], (SubpictureControl::Color{subpicture.colors[code], subpicture.contrasts[code]}));
    EXPECT_EQ(control->offset[0], 4);
}

TEST(VobSubPacket, pixels_are_those_of_the_codes) {
    const VobSubIndex index = plainIndex();
    unsigned seed = 0;
    for (const int width : {2, 3, 16, 63, 64, 65, 255, 256, 257, 719, 720, 1920}) {
        for (const int height : {2, 3, 50, 101}) {
            for (const int longestRun : {3, 20, 300}) {
                vobsub::Subpicture subpicture = uncropped(randomBitmap(width, height, longestRun, ++seed));
                subpicture.colors = {9, 10, 11, 13};
                subpicture.contrasts = {static_cast<std::uint8_t>(seed % 16), 15, 7,
                                        static_cast<std::uint8_t>(seed / 16 % 16)};
                const Bytes unit = vobsub::unit(subpicture);
                if (unit.empty())
                    continue; // too many short runs for one unit
                auto packet = packetOf(unit);
                ASSERT_TRUE(packet);
                const auto image = packet->decodeWithInfo(index, ReadingMode::strict);
                ASSERT_TRUE(image);
                EXPECT_EQ(image->expanded(), expectedImage(subpicture, index)) << width << "x" << height;
            }
        }
    }
}

TEST(VobSubPacket, a_run_in_more_nibbles_than_it_needs_keeps_its_length_where_it_is_repaired) {
    const struct {
        const char* what;
        Bytes line; // of each field; 8 pixels wide
        std::vector<int> strict, repaired;
    } cases[] = {
        {"2 in four nibbles, 6 in two", {0x00, 0x09, 0x1A}, {1, 1, 1, 1, 1, 1, 1, 1}, {1, 1, 2, 2, 2, 2, 2, 2}},
        {"1 in four nibbles, the rest", {0x00, 0x05, 0x00, 0x02}, {1, 1, 1, 1, 1, 1, 1, 1}, {1, 2, 2, 2, 2, 2, 2, 2}},
        {"the rest of the line", {0x00, 0x03}, {3, 3, 3, 3, 3, 3, 3, 3}, {3, 3, 3, 3, 3, 3, 3, 3}},
        {"64 in four nibbles", {0x01, 0x01}, {1, 1, 1, 1, 1, 1, 1, 1}, {1, 1, 1, 1, 1, 1, 1, 1}},
    };
    for (const auto& one : cases) {
        const auto end = static_cast<std::uint16_t>(one.line.size());
        EXPECT_EQ(decoded(one.line, {0, end}, end, 8, 1), one.strict) << one.what;
        EXPECT_EQ(decoded(one.line, {0, end}, end, 8, 1, ReadingMode::repairing), one.repaired) << one.what;
    }
}
