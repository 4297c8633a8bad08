// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/Localization.h"
#include "settings/SettingsKeys.h"
#include "tests/app/AppRig.h"

#include <sys/stat.h>

TEST(PlaylistSaving, the_list_is_written_whole_and_read_back_or_the_alert_says_why_not) {
    platform::setLocalizationLanguages({"en"});
    AppRig rig({{kQVOnLaunchDefaultAction, 0}});
    rig.launch();
    rig.app.savePlaylist();
    EXPECT_TRUE(rig.desktop.openPanels.empty()) << "an empty list is none";
    rig.app.openFile(rig.file("a.mp4"));
    rig.app.openFile(rig.file("sub/line\nfeed #1.mp4"));
    EXPECT_EQ(rig.objects->playlist().count(), 0U);
    rig.listed();
    const auto saveAs = [&rig](const QString& name) {
        rig.desktop.alerts.clear();
        rig.desktop.openPanelAnswers = {name.isEmpty() ? QStringList() : QStringList{rig.folder.filePath(name)}};
        rig.app.savePlaylist();
        return rig.desktop.alerts.empty() ? QString() : rig.desktop.alerts[0].message.section(u'\n', 0, 0);
    };
    EXPECT_EQ(saveAs({}), "");
    EXPECT_EQ(rig.desktop.openPanels.back().kind, platform::FileQuestion::Kind::newFile);
    EXPECT_EQ(saveAs("mine"), "");
    QFile file(rig.folder.filePath("mine.m3u8"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << "with the extension of such files";
    EXPECT_TRUE(file.readAll().startsWith("#EXTM3U\n#EXTINF:60,a.mp4\na.mp4\n#EXTINF:60,line feed #1.mp4\nfile:///"));
    // What cannot be written leaves what is there.
    QDir(rig.folder.path()).mkdir("folder.m3u8");
    for (const auto& [name, says] :
         {std::pair{"folder.m3u8", "This is a folder."}, std::pair{"none/l.m3u8", "The folder doesn’t exist."}})
        EXPECT_EQ(saveAs(QString::fromUtf8(name)), QString::fromUtf8(says));
    platform::setLocalizationLanguages({});
}
