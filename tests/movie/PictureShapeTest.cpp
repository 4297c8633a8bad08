// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/BlackBars.h"
#include "platform/movie/mpv/VideoFilters.h"

#include <QPainter>

#include <gtest/gtest.h>

using platform::PictureShape;
using platform::VideoFilters;

TEST(PictureShape, its_size_follows_aspect_crop_and_turn) {
    const QSizeF natural(720, 400);
    const struct {
        PictureShape shape;
        QSizeF wanted, ofFile;
    } cases[] = {
        {{}, {720, 400}, {720, 400}},
        {{.aspect = 2, .crop = {}}, {800, 400}, {720, 400}},
        {{.crop = {0, 0.125, 0, 0.125}}, {720, 300}, {720, 300}},
        {{.crop = {}, .quarterTurns = 1}, {400, 720}, {400, 720}},
        {{.crop = {}, .quarterTurns = 2, .mirrored = true}, {720, 400}, {720, 400}},
        {{.aspect = 2, .crop = {0.25, 0, 0.25, 0}, .quarterTurns = 3}, {400, 400}, {400, 360}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(c.shape.applied(natural), c.wanted);
        EXPECT_EQ(c.shape.applied(natural, PictureShape::By::file), c.ofFile);
    }
}

TEST(PictureShape, filters_make_it_of_the_stored_picture_in_order) {
    using Fields = VideoFilters::Fields;
    const struct {
        VideoFilters wanted;
        const char* option;
    } cases[] = {
        {{}, ""},
        {{.shape = {.aspect = 2, .crop = {}}}, ""}, // the view stretches it
        {{.fields = Fields::marked}, "lavfi=[bwdif=mode=send_field:deint=interlaced]"},
        {{.fileTurns = 1,
          .shape = {.crop = {0, 0.125, 0, 0.25}, .quarterTurns = 3, .mirrored = true},
          .fields = Fields::all},
         "lavfi=[bwdif=mode=send_field:deint=all,transpose=clock,"
         "crop=w=iw*1.000000:h=ih*0.625000:x=iw*0.000000:y=ih*0.125000,transpose=cclock,hflip]"},
        {{.adjustment = {.contrast = 50, .brightness = -10, .gamma = 100, .saturation = -100}},
         "lavfi=[eq=contrast=1.500000:brightness=-0.100000:saturation=0.000000:gamma=8.000000]"},
        {{.adjustment = {.hue = -50}}, "lavfi=[hue=h=-90.000000]"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(platform::filterOption(c.wanted).toStdString(), c.option);
}

TEST(BlackBars, are_what_all_pictures_leave_black) {
    const auto picture = [](const QRect& seen, int level = 200) {
        QImage image(400, 200, QImage::Format_RGB32);
        image.fill(qRgb(4, 4, 4));
        QPainter(&image).fillRect(seen, qRgb(level, level, level));
        return image;
    };
    const QImage wide = picture({0, 20, 400, 150});
    QImage specked = wide;
    specked.setPixel(100, 5, qRgb(255, 255, 255));
    QImage lettered = wide; // a letter's edge, two pixels wide
    lettered.setPixel(100, 5, qRgb(255, 255, 255));
    lettered.setPixel(101, 5, qRgb(255, 255, 255));
    const struct {
        const char* what;
        std::vector<QImage> pictures;
        PictureShape::Crop crop;
    } cases[] = {
        {"bars", {wide}, {0, 0.1, 0, 0.15}},
        {"a speck", {specked}, {0, 0.1, 0, 0.15}},
        {"no speck any more", {lettered}, {0, 0.025, 0, 0.15}},
        {"a night scene says less than it seems", {picture({100, 60, 100, 50}), wide}, {0, 0.1, 0, 0.15}},
        {"black all over", {picture({0, 0, 0, 0}), wide, QImage()}, {0, 0.1, 0, 0.15}},
        {"at the sides", {picture({50, 0, 300, 200})}, {0.125, 0, 0.125, 0}},
        {"the whole picture", {picture({0, 0, 400, 200}), wide}, {}},
        {"a line of a bad copy", {picture({0, 1, 400, 199})}, {}},
        {"a title", {picture({180, 90, 40, 20})}, {}},
        {"nothing", {}, {}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(platform::blackBars(c.pictures), c.crop) << c.what;
}
