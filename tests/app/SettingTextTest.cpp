// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SettingText.h"

#include "settings/SettingsKeys.h"
#include "tests/support/TestEnvironment.h"

#include <gtest/gtest.h>

#include <QDateTime>
#include <QTimeZone>

TEST(SettingText, is_read_as_the_kind_that_the_setting_has) {
    const TestEnvironment settings;
    const QDateTime evening(QDate(2026, 1, 31), QTime(20, 15), QTimeZone::utc());
    struct Case {
        QString key;
        const char* text;
        QVariant value; // invalid for wrong usage
    };
    const Case cases[] = {
        {kQVEnableTrace, "yes", true},
        {kQVEnableTrace, "TRUE", true},
        {kQVEnableTrace, "0", false},
        {kQVEnableTrace, "No", false},
        {kQVEnableTrace, "2", {}},
        {kQVEnableTrace, "", {}},
        {kQVJumpInterval, "-7", qlonglong(-7)},
        {kQVJumpInterval, "010", qlonglong(10)},
        {kQVSubtitlesDefaultEncoding, "0x80000632", qlonglong(0x80000632)},
        {kQVJumpInterval, "7.5", {}},
        {kQVJumpInterval, "ten", {}},
        {kQVJumpInterval, "", {}},
        {kQVVolumeSavedLevel, "0.25", 0.25},
        {kQVVolumeSavedLevel, "1", 1.0},
        {kQVVolumeSavedLevel, "0,25", {}},
        {kQVVolumeSavedLevel, "inf", {}},
        {kQVOSDOverlayStyle, "7", "7"},
        {kQVOSDOverlayStyle, "", ""},
        {kNSNavLastRootDirectory, "~/movies", "~/movies"},
        {kQVAskDonationAfter, "2026-01-31T20:15:00Z", evening},
        {kQVNewVersionLastTimeChecked, "2026-01-31T21:15:00+01:00", evening},
        {kQVNewVersionLastTimeChecked, "2026-01-31", QDateTime(QDate(2026, 1, 31), QTime(0, 0))},
        {kQVNewVersionLastTimeChecked, "31.1.2026", {}},
        {kQVNewVersionLastTimeChecked, "1770000000", {}},
        {kQVSubtitlesEncodingsList, "[4, 10]", QVariantList{qlonglong(4), qlonglong(10)}},
        {kQVSubtitlesEncodingsList, "4", {}},
        {kQVOverlayStyles, R"({"OSD": {"TextFontSize": 60}})",
         QVariantMap{{"OSD", QVariantMap{{"TextFontSize", qlonglong(60)}}}}},
        {kQVOverlayStyles, "OSD", {}},
        {"QVNoSuchSetting", "1", {}},
    };
    for (const Case& c : cases) {
        const SettingText read = SettingText::parse(c.key, c.text, settings.environment.settings);
        const std::string named = c.key.toStdString() + '=' + c.text;
        EXPECT_EQ(read.value.isValid(), c.value.isValid()) << named;
        EXPECT_EQ(read.value, c.value) << named;
        EXPECT_EQ(read.error.contains(c.key), !c.value.isValid()) << named;
    }
}
