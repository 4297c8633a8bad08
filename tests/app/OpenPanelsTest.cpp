// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/OpenPanels.h"

#include "platform/base/Localization.h"
#include "platform/window/Events.h"
#include "settings/SettingsKeys.h"
#include "tests/app/AppRig.h"
#include "tests/support/CapturedLog.h"

#include <QStandardPaths>

namespace {

const QVariantMap quiet{{kQVOnLaunchDefaultAction, 0}};

/// The player with a movie in its list, and what the alerts said since.
class OpenPanelsRig : public testing::Test {
protected:
    OpenPanelsRig() {
        platform::setLocalizationLanguages({"en"});
        rig.launch();
        rig.app.openFile(rig.file("first.mp4"));
        EXPECT_EQ(rig.listed(), "first.mp4");
    }
    ~OpenPanelsRig() override { platform::setLocalizationLanguages({}); }
    std::string listedAfter(const QStringList& chosen) {
        rig.desktop.openPanelAnswers = {chosen};
        rig.app.doOpen();
        return rig.listed().toStdString();
    }
    AppRig rig{quiet};
};

} // namespace

TEST_F(OpenPanelsRig, the_open_panel_asks_for_files_or_folders_where_the_user_chose_last) {
    rig.file("films/a.mp4");
    rig.desktop.openPanelAnswers = {{}, {rig.folder.filePath("films/a.mp4")}, {rig.folder.filePath("films")}, {}};
    rig.settings.defaults().removeObjectForKey(kNSNavLastRootDirectory);
    rig.app.doOpen();
    rig.app.doOpen();
    rig.app.doOpenFolder();
    rig.waitForSearches();
    EXPECT_EQ(rig.listed(), "a.mp4") << "a folder is walked";
    rig.app.doOpenFolder();
    EXPECT_EQ(rig.desktop.openPanelFolders,
              (QStringList{QStandardPaths::writableLocation(QStandardPaths::MoviesLocation),
                           QStandardPaths::writableLocation(QStandardPaths::MoviesLocation),
                           rig.folder.filePath("films"), rig.folder.path()}));
    const platform::FileQuestion files = rig.desktop.openPanels.front();
    EXPECT_EQ(files.kind, platform::FileQuestion::Kind::files);
    EXPECT_TRUE(files.extensions.contains("mkv")) << "the types of the information dictionary";
    EXPECT_EQ(
        (QStringList{files.title, files.accept, files.cancel, files.nameOfTypes, files.nameOfAllFiles, files.option}),
        (QStringList{"Open Movies", "Open", "Cancel", "Movies and Sound", "All Files", "Add to Playlist"}));
    EXPECT_EQ(rig.desktop.openPanels.back().kind, platform::FileQuestion::Kind::folders);
    EXPECT_EQ(rig.desktop.openPanels.back().title, "Open Folder");
}

TEST_F(OpenPanelsRig, the_check_box_or_alt_adds) {
    const QString b = rig.file("b.mp4");
    EXPECT_EQ(listedAfter({}), "first.mp4");
    rig.desktop.isOpenPanelOptionOn = true;
    EXPECT_EQ(listedAfter({b}), "first.mp4 b.mp4");
    rig.desktop.isOpenPanelOptionOn = false;
    rig.desktop.whileOpenPanelIsUp = [this] { rig.desktop.heldModifiers = platform::modifier::option; };
    EXPECT_EQ(listedAfter({b}), "first.mp4 b.mp4 b.mp4") << "held at the answer";
    rig.desktop.whileOpenPanelIsUp = [this] { rig.desktop.heldModifiers = 0; };
    EXPECT_EQ(listedAfter({b}), "b.mp4");
}

TEST_F(OpenPanelsRig, who_asks_for_all_files_and_chooses_an_unknown_one_has_it_tried) {
    const QString odd = rig.file("film #1.xyz");
    EXPECT_EQ(listedAfter({odd}), "film #1.xyz");
    EXPECT_EQ(listedAfter({odd, rig.file("b.mp4")}), "b.mp4") << "beside a movie it is what lies beside it";
    EXPECT_EQ(listedAfter({"sftp://a.example/c.mp4"}), "c.mp4");
}

TEST_F(OpenPanelsRig, entered_addresses_and_paths_are_opened_and_what_is_neither_is_said) {
    const CapturedLog log;
    rig.settings.defaults().setBool(true, kQVEnableTrace);
    const auto open = [this](std::int32_t code, const QStringList& strings, bool adds) {
        rig.steps.openURLAnswer = {code, strings, adds};
        rig.desktop.alerts.clear();
        rig.app.doOpenURL(1);
        rig.settings.runLoop.advance(0.02);
        return rig.listed().toStdString();
    };
    EXPECT_EQ(open(0, {"http://a.example/b.mp4"}, true), "first.mp4") << "cancelled";
    EXPECT_EQ(open(1, {"http://a.example/b c.mp4", "", rig.file("odd.xyz")}, true), "first.mp4 b c.mp4 odd.xyz");
    EXPECT_EQ(rig.events.filter("open URL"), (QStringList{"open URL 1", "open URL 1"}));
    rig.file("films/a.mp4");
    rig.steps.openURLAnswer = {1, {rig.folder.filePath("films"), "no address"}, false};
    rig.app.doOpenURL(0);
    rig.waitForSearches();
    EXPECT_EQ(rig.listed(), "a.mp4");
    EXPECT_TRUE(rig.desktop.alerts.empty()) << "beside an address it is dropped";

    EXPECT_EQ(open(1, {"no address"}, false), "a.mp4");
    ASSERT_EQ(rig.desktop.alerts.size(), 1U);
    EXPECT_EQ((rig.desktop.alerts[0].title + u'|' + rig.desktop.alerts[0].message).toStdString(),
              "“no address” can’t be opened.|It is neither an address nor the path of a file.\n\nno address");
}
