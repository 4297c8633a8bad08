// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/SubtitlePlacement.h"

#include <gtest/gtest.h>

using namespace SubtitlePlacement;

TEST(SubtitlePlacement, stands_by_the_picture_and_clear_of_the_bar) {
    const platform::Rect parent(100, 50, 1000, 800);
    const platform::Rect small(200, 150, 600, 500), filling(0, 0, 1000, 800), beyond(-500, -400, 2000, 1600),
        banded(0, 30, 1000, 740), none;
    const struct {
        const char* name;
        std::uint32_t alignment;
        platform::Rect picture;
        std::optional<double> bar;
        double y;
    } cases[] = {
        {"below", 0x100, small, {}, 160},
        {"below, with the bar", 0x100, small, 16, 160},
        {"below a picture that reaches down", 0x100, filling, {}, 50},
        {"below a picture that reaches down, with the bar", 0x100, filling, 16, 66},
        {"below a picture beyond the screen, with its bar there", 0x100, beyond, 16, 50},
        {"below a picture with a band that is too low", 0x100, banded, {}, 80},
        {"below such a picture, with the bar", 0x100, banded, 16, 96},
        {"on the picture", 0x110, small, {}, 200},
        {"on the picture, above the bar", 0x110, small, 16, 216},
        {"on a picture beyond the screen", 0x110, beyond, {}, 50},
        {"at the bottom", 0x120, filling, {}, 74},
        {"at the bottom, above the bar", 0x120, filling, 16, 90},
        {"at the bottom of a small picture", 0x120, small, {}, 224},
        {"at the bottom of a picture between bands", 0x120, banded, {}, 104},
        {"at the bottom of a picture between bands, above the bar", 0x120, banded, 16, 120},
        {"at the bottom of a picture beyond the screen, with its bar there", 0x120, beyond, 16, 74},
        {"at the bottom of no picture", 0x120, none, {}, 74},
        {"unknown", 0x130, small, 16, 50},
    };
    for (const auto& c : cases)
        EXPECT_EQ(placed(platform::Rect(-3, -3, 400, 40), c.alignment, {parent, 24, c.picture, c.bar}),
                  platform::Rect(400, c.y, 400, 40))
            << c.name;
    EXPECT_EQ(placed(platform::Rect(0, 0, 400, 790), 0x120, {parent, 24, small, {}}).y(), 60) << "all lines are seen";
    EXPECT_EQ(placed(platform::Rect(0, 0, 400, 900), 0x120, {parent, 24, small, {}}).y(), 50);
    EXPECT_EQ(placed(platform::Rect(0, 0, 400, 40), 0x120, {parent, 24, small, {}, 80}).y(), 304) << "raised";
    EXPECT_EQ(placed(platform::Rect(0, 0, 400, 40), 0x120, {parent, 24, small, {}, 900}).y(), 810) << "not beyond";
    EXPECT_EQ(placed(platform::Rect(0, 0, 400, 40), 0x120, {parent, 24, small, {}, 80}, Place{Place::Row::top}),
              placed(platform::Rect(0, 0, 400, 40), 0x120, {parent, 24, small, {}}, Place{Place::Row::top}))
        << "only what stands at the bottom";
    EXPECT_EQ(placed(platform::Rect(0, 0, 400, 40), 0x121, {parent, 24, small, {}}).x(), 124);
    EXPECT_EQ(placed(platform::Rect(0, 0, 400, 40), 0x122, {parent, 24, small, {}}).x(), 676);
}

TEST(SubtitlePlacement, a_place_asked_for_is_one_of_the_picture) {
    using platform::LineSide;
    using enum Place::Row;
    const platform::Rect parent(100, 50, 1000, 800);
    const platform::Rect banded(0, 100, 1000, 600), beyond(-500, -400, 2000, 1600), narrow(400, 0, 200, 800);
    const struct {
        const char* name;
        Place place;
        std::uint32_t alignment;
        platform::Rect picture;
        double x, y;
    } cases[] = {
        {"top", {top, LineSide::middle}, 0x120, banded, 400, 686},
        {"top, on the edge", {top, LineSide::middle}, 0x110, banded, 400, 710},
        {"top left", {top, LineSide::left}, 0x120, banded, 124, 686},
        {"middle right", {middle, LineSide::right}, 0x120, banded, 676, 430},
        {"bottom, above the bar", {}, 0x120, banded, 400, 190},
        {"bottom left of what stands at the right", {bottom, LineSide::left}, 0x122, banded, 124, 190},
        {"top of a picture beyond the screen", {top, LineSide::right}, 0x120, beyond, 676, 786},
        {"left of a picture that is too narrow for it", {top, LineSide::right}, 0x120, narrow, 276, 786},
        {"top of no picture", {top, LineSide::middle}, 0x120, {}, 400, 786},
    };
    for (const auto& c : cases)
        EXPECT_EQ(placed(platform::Rect(0, 0, 400, 40), c.alignment, {parent, 24, c.picture, 16}, c.place),
                  platform::Rect(c.x, c.y, 400, 40))
            << c.name;
    EXPECT_EQ(placed(platform::Rect(0, 0, 980, 900), 0x120, {parent, 24, narrow, 16}, Place{top, LineSide::left}),
              platform::Rect(120, 50, 980, 900))
        << "what is too large stays on the screen";
}

TEST(SubtitlePlacement, a_bitmap_across_the_bar_moves_onto_it) {
    const platform::Rect view(100, 130, 1000, 516);
    for (const auto& [y, moved] : {std::pair{100, 146}, {140, 146}, {146, 146}, {200, 200}, {89, 89}, {90, 90}})
        EXPECT_EQ(clearOfBar(platform::Rect(300, y, 400, 40), view, 16), platform::Rect(300, moved, 400, 40)) << y;
    EXPECT_EQ(clearOfBar(platform::Rect(0, 135, 90, 40), view, 16).y(), 135) << "beside it";
}

TEST(SubtitlePlacement, letters_shrink_with_the_picture_and_never_grow) {
    const struct {
        double picture, fit;
        float smallest, largest, size;
    } cases[] = {
        {512, 1024, 20, 36, 20}, // half of 36 is below the smallest
        {512, 1024, 12, 36, 18}, {1024, 1024, 20, 36, 36}, {2048, 1024, 20, 36, 36},
        {0, 0, 20, 36, 36},      {0, 1024, 20, 36, 20},
    };
    for (const auto& c : cases)
        EXPECT_EQ(textSize(c.picture, c.fit, c.smallest, c.largest).size, c.size) << c.picture << " of " << c.fit;
}
