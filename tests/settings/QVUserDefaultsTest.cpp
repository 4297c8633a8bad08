// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/QVUserDefaults.h"
#include "platform/base/Bundle.h"
#include "settings/QVOverlayStyleDefaults.h"
#include "settings/SettingsKeys.h"
#include "tests/support/CapturedLog.h"
#include "tests/support/Files.h"
#include "tests/support/TestSettings.h"

#include <gtest/gtest.h>

using Styles = QVOverlayStyleDefaults;

TEST(QVUserDefaults, each_migration_step_runs_for_the_builds_before_it) {
    const QVariantMap legacy = {{kQVRunFirstTimeConfig, true},   {kQVOpenSavedPlaylist, false},
                                {kQVSortPlaylist, false},        {kQVPlaylistDefaultArrangement, 2},
                                {kQVOnLaunchDefaultAction, 1},   {kQVSubtitlesColor, "1 0 0"},
                                {kQVSubtitlesFontName, "Serif"}, {kQVSubtitlesSizeMin, 17},
                                {kQVSubtitlesSizeMax, 41.7},     {kLegacyVersionMirrorsKey, QVariantList{"x"}}};
    const struct {
        QVariant current;
        int last;
        bool first, second, third, fourth;
    } cases[] = {{"40", 15, true, true, true, true},     {"40", 16, false, true, true, true},
                 {"40", 22, false, true, true, true},    {"40", 23, false, false, true, true},
                 {"40", 24, false, false, true, true},   {"40", 25, false, false, false, true},
                 {"40", 37, false, false, false, true},  {"40", 38, false, false, false, false},
                 {"10", 10, false, false, false, false}, {11, 10, true, true, true, true}};
    auto& bundle = platform::Bundle::main();
    for (const auto& [current, last, first, second, third, fourth] : cases) {
        SCOPED_TRACE(testing::Message() << "from " << last << " to " << current.toString().toStdString());
        bundle.setInfoDictionary({{"CFBundleVersion", current}});
        QVariantMap stored = legacy;
        stored[kQVLastVersionSeen] = last;
        TestSettings settings(stored);
        const auto& defaults = settings.defaults();

        EXPECT_NE(defaults.hasStoredValue(kQVRunFirstTimeConfig), first);
        EXPECT_NE(defaults.hasStoredValue(kQVOpenSavedPlaylist), second);
        EXPECT_EQ(defaults.integerForKey(kQVOnLaunchDefaultAction), second ? 2 : 1);
        EXPECT_NE(defaults.hasStoredValue(kQVSortPlaylist), second);
        EXPECT_EQ(defaults.integerForKey(kQVPlaylistDefaultArrangement), second ? 0 : 2);
        for (const QString& key : {kQVSubtitlesColor, kQVSubtitlesFontName, kQVSubtitlesSizeMin, kQVSubtitlesSizeMax})
            EXPECT_NE(defaults.hasStoredValue(key), third) << key.toStdString();
        const auto style = Styles::overlayStyleDefaultsWithKey(settings.defaults(), kQVSubtitlesOverlayStyle);
        ASSERT_TRUE(style);
        const OverlayStyle values = style->values();
        EXPECT_EQ(values.textColor == QColor(255, 0, 0), third);
        EXPECT_EQ(values.textFontName == "Serif", third);
        EXPECT_EQ(values.textFontSize == 41, third);
        EXPECT_EQ(defaults.integerForKey(kQVOverlayTextFontSizeMin) == 17, third);
        EXPECT_NE(defaults.hasStoredValue(kLegacyVersionMirrorsKey), fourth);
        EXPECT_EQ(defaults.integerForKey(kQVLastVersionSeen), last);
    }
    bundle.setResourcePath(bundle.resourcePath());

    TestSettings odd({{kQVOpenSavedPlaylist, true}, {kQVOnLaunchDefaultAction, 1}, {kQVSubtitlesColor, 5}});
    EXPECT_EQ(odd.defaults().integerForKey(kQVOnLaunchDefaultAction), 1) << "a switch that was on";
    EXPECT_EQ(odd.defaults().integerForKey(kQVSubtitlesColor), 5) << "of another type";
}

TEST(QVUserDefaults, the_shipped_values_keep_to_their_ranges_and_every_style_is_complete) {
    const CapturedLog log;
    TestSettings settings;
    auto& defaults = settings.defaults();
    for (const QString& selector : {kQVDefaultOverlayStyle, kQVFeedbackOverlayStyle, kQVOSDOverlayStyle,
                                    kQVSubtitlesOverlayStyle, kQVVobSubOverlayStyle, kQVFullscreenOverlayStyle}) {
        const auto style = Styles::overlayStyleDefaultsWithKey(defaults, selector);
        ASSERT_TRUE(style) << selector.toStdString();
        for (const auto& [key, field] : OverlayStyle::entries())
            EXPECT_TRUE(style->objectForKey(key).isValid()) << selector.toStdString() << " " << key.toStdString();
        const OverlayStyle values = style->values();
        EXPECT_TRUE(values.textColor && values.shadowColor && values.backgroundColor);
        EXPECT_GT(values.maxAlpha, values.minAlpha);
    }
    EXPECT_TRUE(log.lines().isEmpty());
}

TEST(QVUserDefaults, a_distribution_lays_values_over_the_shipped_ones_and_the_administrator_over_those) {
    QTemporaryDir folder;
    auto& bundle = platform::Bundle::main();
    const QString resources = bundle.resourcePath();
    const auto write = [&](const QString& name, const char* entries) {
        writeFile(folder.filePath(name), QByteArray("<plist><dict>") + entries + "</dict></plist>");
    };
    write("share/UserDefaults.plist", "<key>a</key><integer>1</integer><key>b</key><integer>1</integer>"
                                      "<key>c</key><integer>1</integer><key>d</key><integer>1</integer>");
    write("share/UserDefaults.d/20-later.plist", "<key>b</key><integer>3</integer>");
    write("share/UserDefaults.d/10-first.plist", "<key>b</key><integer>2</integer><key>c</key><integer>2</integer>");
    write("share/UserDefaults.d/read.me", "<key>a</key><integer>9</integer>");
    write("share/UserDefaults.d/30-bad.plist", "<key>");
    write("far/lumaro/UserDefaults.plist", "<key>c</key><integer>4</integer><key>d</key><integer>4</integer>");
    write("near/lumaro/UserDefaults.plist", "<key>d</key><integer>5</integer>");
    const QByteArray before = qgetenv("XDG_CONFIG_DIRS");
    qputenv("XDG_CONFIG_DIRS", (folder.filePath("near") + "::relative:" + folder.filePath("far")).toUtf8());
    bundle.setResourcePath(folder.filePath("share"));
    {
        const CapturedLog log;
        TestSettings settings;
        for (const auto& [key, value] : {std::pair{"a", 1}, std::pair{"b", 3}, std::pair{"c", 4}, std::pair{"d", 5}})
            EXPECT_EQ(settings.defaults().integerForKey(key), value) << key;
        EXPECT_EQ(log.lines().size(), 1) << log.lines().join('\n').toStdString();
        EXPECT_TRUE(log.contains("30-bad.plist can't be read."));
        settings.defaults().setInteger(7, "d");
        EXPECT_EQ(settings.defaults().integerForKey("d"), 7) << "the user's own value";
    }
    bundle.setResourcePath(resources);
    before.isEmpty() ? qunsetenv("XDG_CONFIG_DIRS") : qputenv("XDG_CONFIG_DIRS", before);
}
