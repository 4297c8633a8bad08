// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/SettingsReset.h"

#include "settings/SettingsKeys.h"
#include "tests/support/TestSettings.h"

#include <gtest/gtest.h>

namespace {

const QVariantMap blueText{{"TextColor", "0 0 1 1"}};

struct Resetting : testing::Test {
    QVariant read(const QString& key) { return settings.defaults().objectForKey(key); }
    QVariantMap styles() { return settings.defaults().dictionaryForKey(kQVOverlayStyles); }

    TestSettings settings{{{kQVJumpInterval, 25},
                           {kQVVolumeSave, true}, // as registered
                           {kQVEnableTrace, true},
                           {kQVOverlayStyles, QVariantMap{{"OSD", blueText}, {"Feedback", blueText}}}}};
    QStringList announced;
    SettingsReset reset{settings.defaults(),
                        {{kQVJumpInterval}, {kQVVolumeSave}, {kQVControllerVisible}, {kQVOverlayStyles, "OSD"}},
                        [this](const SettingsReset::Setting& setting) {
                            EXPECT_EQ(styles().contains("OSD"), read(kQVJumpInterval) == 25) << "all are stored before";
                            announced << setting.key + setting.member;
                        }};
};

} // namespace

TEST_F(Resetting, shows_the_registered_values_again_and_brings_the_users_back) {
    settings.defaults().setOverride(kQVControllerVisible, true);
    const QStringList changed{kQVJumpInterval, kQVControllerVisible, kQVOverlayStyles + "OSD"};
    for (int time = 0; time < 2; ++time) {
        EXPECT_TRUE(reset.isNeeded());
        EXPECT_FALSE(reset.canUndo());
        reset.reset();
        EXPECT_EQ(read(kQVJumpInterval), 10);
        EXPECT_EQ(read(kQVControllerVisible), false);
        EXPECT_EQ(styles(), (QVariantMap{{"Feedback", blueText}})) << "another member stays";
        EXPECT_EQ(read(kQVEnableTrace), true) << "what does not belong to it stays";
        EXPECT_EQ(announced, changed);
        EXPECT_FALSE(reset.isNeeded());
        EXPECT_TRUE(reset.canUndo());
        reset.reset(); // once more, without need
        EXPECT_TRUE(reset.canUndo());
        announced.clear();

        reset.undo();
        EXPECT_EQ(read(kQVJumpInterval), 25);
        EXPECT_EQ(read(kQVControllerVisible), true);
        EXPECT_FALSE(settings.defaults().persistentDomain().contains(kQVControllerVisible)) << "this run's own again";
        EXPECT_EQ(styles().size(), 2);
        EXPECT_EQ(announced, changed);
        announced.clear();
    }
}

TEST_F(Resetting, leaves_what_was_chosen_since_as_it_was_chosen) {
    reset.reset();
    settings.defaults().setChosenObject(25, kQVJumpInterval);
    EXPECT_TRUE(reset.canUndo()) << "the style's";
    announced.clear();
    reset.undo();
    EXPECT_EQ(announced, QStringList{kQVOverlayStyles + "OSD"});
    reset.reset();
    settings.defaults().setChosenObject(7, kQVJumpInterval);
    settings.defaults().setChosenObject(QVariantMap{{"OSD", blueText}}, kQVOverlayStyles);
    EXPECT_FALSE(reset.canUndo());
}
