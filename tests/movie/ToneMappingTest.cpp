// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/ToneMapping.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

using platform::DynamicRange;
using platform::ToneMapping;

namespace {

struct Colour {
    int red, green, blue;
};

Colour mapped(const ToneMapping& mapping, double red, double green, double blue) {
    const auto code = [](double share) { return static_cast<std::uint16_t>(share * 65535); };
    const std::array<std::uint16_t, 4> from{code(red), code(green), code(blue), 65535};
    std::array<std::uint8_t, 4> to{};
    mapping.map({1, 1}, reinterpret_cast<const std::uint8_t*>(from.data()), sizeof(from), to.data(), sizeof(to));
    return {to[2], to[1], to[0]};
}

} // namespace

TEST(ToneMapping, shows_what_a_renderer_with_a_graphics_card_shows) {
    // Measured with mpv's own one, for a movie that gets 1000 candelas bright; red, green and blue shares of the code.
    const ToneMapping mapping({DynamicRange::Transfer::pq, 1000});
    struct Case {
        double red, green, blue;
        Colour shown;
    };
    const Case cases[] = {
        {0, 0, 0, {0, 0, 0}},
        {0.25, 0.25, 0.25, {48, 48, 48}},
        {0.4, 0.4, 0.4, {111, 111, 111}},
        {0.5, 0.5, 0.5, {178, 178, 178}},
        {0.6, 0.6, 0.6, {236, 236, 236}},
        {1, 1, 1, {255, 255, 255}},
        {0.5, 0, 0, {194, 0, 54}},
        {0, 0.6, 0, {0, 227, 128}},
        {0, 0, 0.6, {0, 47, 178}},
        {0.5, 0.5, 0, {183, 178, 0}},
        {0.48, 0.42, 0.39, {184, 116, 102}},
    };
    for (const Case& wanted : cases) {
        const Colour shown = mapped(mapping, wanted.red, wanted.green, wanted.blue);
        EXPECT_NEAR(shown.red, wanted.shown.red, 2) << wanted.red << ' ' << wanted.green << ' ' << wanted.blue;
        EXPECT_NEAR(shown.green, wanted.shown.green, 2) << wanted.red << ' ' << wanted.green << ' ' << wanted.blue;
        EXPECT_NEAR(shown.blue, wanted.shown.blue, 2) << wanted.red << ' ' << wanted.green << ' ' << wanted.blue;
    }
}

TEST(ToneMapping, gets_brighter_with_the_code_and_leaves_more_of_a_darker_movie_as_it_is) {
    const ToneMapping bright({DynamicRange::Transfer::pq, 4000});
    const ToneMapping usual({DynamicRange::Transfer::pq, 0});
    const ToneMapping plain({DynamicRange::Transfer::pq, 100});
    const ToneMapping camera({DynamicRange::Transfer::hlg, 0});
    for (const ToneMapping* mapping : {&bright, &usual, &plain, &camera}) {
        int before = 0;
        for (int i = 0; i <= 100; ++i) {
            const int shown = mapped(*mapping, i / 100.0, i / 100.0, i / 100.0).green;
            EXPECT_GE(shown, before) << i;
            before = shown;
        }
        EXPECT_EQ(before, 255);
    }
    const auto grey = [](const ToneMapping& mapping) { return mapped(mapping, 0.57, 0.57, 0.57).green; };
    EXPECT_LT(grey(bright), grey(usual));
    EXPECT_LT(grey(usual), grey(plain));
    EXPECT_NEAR(grey(plain), 240, 2); // 177 of 203 candelas
    // BT.2408: white paper has the code 0.75 of HLG, 203 candelas, which the curve has begun to roll off.
    EXPECT_NEAR(mapped(camera, 0.75, 0.75, 0.75).green, 227, 6);
}

TEST(ToneMapping, keeps_to_the_lines_of_a_picture_whatever_it_is_divided_into) {
    // Enough for several threads; one bright line, and bytes behind each line that belong to nobody.
    constexpr int width = 800, height = 1001;
    constexpr std::size_t fromStride = width * 8 + 16, toStride = width * 4 + 12;
    std::vector<std::uint8_t> from(fromStride * height, 0);
    std::vector<std::uint8_t> to(toStride * height, 7);
    std::fill_n(from.begin() + 500 * fromStride, fromStride, std::uint8_t{0xFF});
    ToneMapping({DynamicRange::Transfer::pq, 1000}).map({width, height}, from.data(), fromStride, to.data(), toStride);
    for (int y = 0; y < height; ++y) {
        const std::uint8_t* line = &to[static_cast<std::size_t>(y) * toStride];
        for (const int x : {0, width / 2, width - 1})
            ASSERT_EQ(line[x * 4 + 1], y == 500 ? 255 : 0) << x << ' ' << y;
        ASSERT_EQ(line[width * 4], 7) << y;
    }
}

TEST(ToneMapping, is_calculated_once_for_all_who_show_a_movie) {
    const auto first = ToneMapping::of({DynamicRange::Transfer::pq, 1000});
    EXPECT_EQ(ToneMapping::of({DynamicRange::Transfer::pq, 1000}), first);
    const auto other = ToneMapping::of({DynamicRange::Transfer::pq, 400});
    EXPECT_NE(other, first);
    EXPECT_EQ(other->range().peak, 400);
    EXPECT_EQ(ToneMapping::of({}), nullptr);
}
