// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/HardwareDecoding.h"

#include <gtest/gtest.h>

using namespace platform;

TEST(HardwareDecoding, is_asked_for_with_software_behind_it_and_only_where_there_is_a_device) {
    const auto asked = [](GraphicsDevice device) {
        std::string text;
        for (const CoreOption& option : decodingOptions(device))
            text += std::string(option.name) + '=' + option.value + ' ';
        return text;
    };
    EXPECT_EQ(asked(GraphicsDevice::some), "hwdec=auto-safe gpu-hwdec-interop=auto ");
    EXPECT_EQ(asked(GraphicsDevice::none), "hwdec=no gpu-hwdec-interop=no ");
    EXPECT_TRUE(isMissingDriver("Cannot load libcuda.so.1\n"));
    EXPECT_FALSE(isMissingDriver("Error while decoding frame (hardware decoding)!\n"));
}

TEST(HardwareDecoding, that_fails_is_told_once_where_software_goes_on) {
    DecoderInUse decoder;
    EXPECT_EQ(decoder.changed("no"), "") << "nothing was lost";
    EXPECT_EQ(decoder.changed("vaapi"), "MpvPlayer: The picture is decoded by hardware: vaapi");
    EXPECT_TRUE(decoder.isHardware());
    EXPECT_EQ(decoder.changed("no"), "MpvPlayer: The picture is decoded by software");
    EXPECT_FALSE(decoder.isHardware());
    EXPECT_EQ(decoder.changed("no"), "");
}
