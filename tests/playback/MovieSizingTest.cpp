// SPDX-License-Identifier: GPL-3.0-or-later
#include "playback/MovieSizing.h"

#include <gtest/gtest.h>

using namespace MovieSizing;

namespace {

Geometry screen(const QSizeF& natural, bool bar = false, float customScale = 0) {
    return {natural, QSizeF(1440, 900), bar, customScale};
}

void expectNear(const QSizeF& actual, const QSizeF& expected) {
    EXPECT_NEAR(actual.width(), expected.width(), 1e-3);
    EXPECT_NEAR(actual.height(), expected.height(), 1e-3);
}

} // namespace

TEST(MovieSizing, a_code_gives_the_size) {
    const QSizeF vga(640, 480);
    const struct {
        std::int32_t code;
        Geometry geometry;
        QSizeF size;
    } cases[] = {
        {movieSize::fitScreen, screen(vga, true), {884 * 4.0 / 3, 900}},
        {movieSize::fitScreen, screen({2000, 1000}, true), {1440, 736}},
        {movieSize::custom, screen(vga, false, 1.5F), {960, 720}},
        {movieSize::custom, screen({2000, 1000}, false, 0), {1800, 900}}, // none stored: fits the height
        {-1, screen(vga), {1200, 900}},
        {movieSize::fitScreen, screen({0, 0}), {1440, 0}},     // sound without a picture
        {movieSize::normal, screen({0, 0}, true), {1440, 16}}, // its bar is that of every movie
        {movieSize::half, screen({0, 0}, true, 2), {1440, 16}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.code);
        const Plan plan = planSize(c.code, QSizeF(640, 480), c.geometry);
        expectNear(plan.size, c.size);
        EXPECT_FALSE(plan.customScale);
    }
}

TEST(MovieSizing, the_bar_takes_its_share_of_a_high_screen) {
    MovieSizing::Geometry geometry{QSizeF(3840, 2160), QSizeF(3840, 2160), true, 0};
    EXPECT_EQ(MovieSizing::controllerHeight(geometry), 32);
    EXPECT_EQ(MovieSizing::sizeForMagnification(geometry, 0.5F), QSizeF(1920, 1080 + 32));
    EXPECT_EQ(MovieSizing::sizeForFitScreen(geometry, movieSize::fitScreen).height(), 2160);
    geometry.window = QSizeF(2560, 1440);
    EXPECT_EQ(MovieSizing::controllerHeight(geometry), 21) << "whole points";
    geometry.window = QSizeF(1280, 720);
    EXPECT_EQ(MovieSizing::controllerHeight(geometry), 16);
}

TEST(MovieSizing, steps_are_a_tenth_in_single_precision_and_end_at_the_smallest) {
    const QSizeF vga(640, 480);
    const struct {
        std::int32_t code;
        float before;
        std::optional<float> after;
    } cases[] = {
        {movieSize::bigger, 1.0F, 1.1F},  {movieSize::bigger, 1.1F, 1.2F}, {movieSize::smaller, 1.0F, 0.9F},
        {movieSize::smaller, 0.2F, 0.1F}, {movieSize::smaller, 0.19F, {}}, {movieSize::smaller, 0.1F, {}},
        {movieSize::smaller, 0.0F, {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.before);
        const QSizeF current = sizeForMagnification(screen(vga), c.before);
        const Plan plan = planSize(c.code, current, screen(vga));
        EXPECT_EQ(plan.code, movieSize::custom);
        ASSERT_EQ(plan.customScale.has_value(), c.after.has_value());
        if (c.after) {
            EXPECT_FLOAT_EQ(*plan.customScale, *c.after);
        }
        expectNear(plan.size, c.after ? sizeForMagnification(screen(vga), *c.after) : current);
    }
    // Sound has no magnification that the next movie should be given.
    for (const std::int32_t code : {movieSize::smaller, movieSize::bigger})
        EXPECT_FALSE(planSize(code, QSizeF(1440, 16), screen({0, 0}, true)).customScale);
}

TEST(MovieSizing, a_jump_stops_at_the_ends_and_does_not_overflow) {
    const struct {
        std::int32_t time, direction;
        double seconds;
        std::int32_t scale, duration, target;
    } cases[] = {
        {1800, 1, 10, 600, 36000, 7800},
        {1800, -1, 10, 600, 36000, 0},
        {33000, 1, 10, 600, 36000, 36000},
        {100, 1, 0.3333, 100, 36000, 133},
        {2147000000, 1, 60, 90000, 2147483647, 2147483647},
        {6000, 1, 10, 600, 0, 12000}, // a live stream has no known end
    };
    for (const auto& c : cases)
        EXPECT_EQ(jumpTarget(c.time, c.direction, c.seconds, c.scale, c.duration), c.target) << c.time;
}

TEST(MovieSizing, the_picture_follows_the_pointer_until_an_edge_would_open_a_gap) {
    const platform::Rect tall(0, -90, 1440, 1080), wide(-100, 0, 1640, 900), small(400, 200, 640, 480);
    const struct {
        platform::Rect view;
        double dx, dy;
        std::optional<QPointF> offset;
    } cases[] = {
        {tall, 0, -30, QPointF(0, 30)},  {tall, 0, -200, QPointF(0, 90)}, {tall, 0, 200, QPointF(0, -90)},
        {wide, 150, 0, QPointF(100, 0)}, {wide, -40, 9, QPointF(-40, 0)}, {small, 10, 10, {}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(scrollOffset(c.view, platform::Rect(0, 0, 1440, 900), c.dx, c.dy), c.offset) << c.dx << ", " << c.dy;
}

TEST(MovieSizing, panning_begins_only_towards_what_is_hidden) {
    using namespace panDirection;
    const platform::Rect window(0, 0, 100, 100);
    const struct {
        platform::Rect view;
        int hidden;
    } cases[] = {{window, 0},
                 {{-1, 0, 100, 100}, left},
                 {{1, 0, 100, 100}, right},
                 {{0, -1, 100, 100}, bottom},
                 {{0, 1, 100, 100}, top}};
    for (const auto& c : cases)
        for (const int direction : {left, right, top, bottom})
            EXPECT_EQ(MovieSizing::canPan(direction, c.view, window), direction == c.hidden) << c.hidden << direction;
}
