// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/MpvDialect.h"

#include <gtest/gtest.h>

using platform::MpvDialect;

TEST(MpvDialect, changed_with_versions_of_the_interface) {
    const struct {
        unsigned long major, minor;
        const char* background;
        MpvDialect::LoadArguments loadArguments;
        MpvDialect::NewDecoder newDecoder;
        const char* subtitleText;
    } cases[] = {
        {2, 0, "background", MpvDialect::LoadArguments::flags, MpvDialect::NewDecoder::seeksAtOnce,
         "sub-text-ass"}, // mpv 0.35
        {2, 2, "background", MpvDialect::LoadArguments::flags, MpvDialect::NewDecoder::seeksAtOnce, "sub-text-ass"},
        {2, 3, "background-color", MpvDialect::LoadArguments::flagsAndIndex, MpvDialect::NewDecoder::decodesFirst,
         "sub-text-ass"},
        {2, 5, "background-color", MpvDialect::LoadArguments::flagsAndIndex, MpvDialect::NewDecoder::decodesFirst,
         "sub-text/ass"}, // mpv 0.40
    };
    for (const auto& c : cases) {
        const MpvDialect dialect = platform::mpvDialect(c.major << 16 | c.minor);
        EXPECT_STREQ(dialect.backgroundOption, c.background) << c.minor;
        EXPECT_EQ(dialect.loadArguments, c.loadArguments) << c.minor;
        EXPECT_EQ(dialect.newDecoder, c.newDecoder) << c.minor;
        EXPECT_STREQ(dialect.subtitleText, c.subtitleText) << c.minor;
    }
}
