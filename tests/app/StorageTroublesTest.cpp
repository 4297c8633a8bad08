// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/Localization.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"
#include "tests/app/AppRig.h"
#include "tests/support/CapturedLog.h"

#include <gtest/gtest.h>

TEST(StorageTroubles, files_that_could_not_be_read_are_told_of_once_and_never_in_the_way_of_a_movie) {
    using Kind = platform::StorageTrouble::Kind;
    const platform::StorageTrouble damaged{Kind::damaged, "/s.plist", "/s.plist.damaged-1"};
    const QVariantMap saved{{"QVSavedPlaylist", QVariantList{"file:///movies/a.avi"}}};
    for (const int launchAction : {0, 1, 2}) {
        for (const bool isFileNamed : {false, true}) {
            AppRig rig({{kQVOnLaunchDefaultAction, launchAction}, {kQVSavedState, saved}});
            rig.settings.disk->trouble = damaged;
            rig.moviesDisk->trouble = platform::StorageTrouble{Kind::later, "/movies.plist", {}};
            if (isFileNamed)
                rig.app.openFile(rig.file("b.avi"));
            rig.desktop.openPanelAnswers.push_back({rig.file("c.avi")});
            CapturedLog log;
            gTracingEnabled = true;
            rig.launch();
            const bool isEmpty = launchAction != 1 && !isFileNamed;
            ASSERT_EQ(rig.desktop.alerts.size(), isEmpty ? 1U : 0U) << launchAction << isFileNamed;
            if (isEmpty) {
                EXPECT_TRUE(rig.desktop.alerts[0].message.contains(damaged.aside));
            }
            rig.settings.runLoop.advance(5);
            gTracingEnabled = false;
            const bool hasMovie = launchAction != 0 || isFileNamed;
            const QString places = platform::localizedString("PlacesOfLaterVersionMessage");
            const QString settings = platform::localizedString("SettingsDamagedMessage");
            EXPECT_EQ(log.count("Set Text: " + (isEmpty ? places : settings + '\n' + places)), hasMovie ? 1 : 0)
                << launchAction << isFileNamed;
            EXPECT_EQ(rig.desktop.alerts.size(), isEmpty ? 1U : 0U);
        }
    }
}
