// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/FileIntake.h"

#include "platform/base/Background.h"
#include "settings/SettingsKeys.h"
#include "tests/app/AppRig.h"

namespace {

/// Nothing is done at launch but what the test asks for.
const QVariantMap quiet{{kQVOnLaunchDefaultAction, 0}};

} // namespace

TEST(FileIntake, folders_are_walked_beside_the_player_and_escape_ends_that) {
    AppRig rig(quiet);
    rig.launch();
    const auto escape = [&rig] {
        platform::KeyEvent event;
        event.charactersIgnoringModifiers = QChar(platform::functionKey::escape);
        rig.window.dispatchKey(event);
        rig.fade();
        return rig.desktop.terminations;
    };
    rig.file("films/b.mp4");
    rig.file("films/a.mp4");
    rig.settings.runLoop.holdPosted();
    rig.app.openFile(rig.folder.filePath("films"));
    rig.settings.runLoop.runPending();
    EXPECT_EQ(rig.listed(), "") << "not by the main thread";
    rig.waitForSearches();
    EXPECT_EQ(rig.listed().toStdString(), "a.mp4 b.mp4");

    // Escape while it is walked: what was found is taken, and the player goes on.
    rig.settings.runLoop.holdPosted();
    rig.app.openFile(rig.folder.filePath("films"));
    rig.settings.runLoop.runPending();
    ASSERT_TRUE(platform::background::waitUntilIdle(30));
    EXPECT_EQ(escape(), 0);
    EXPECT_EQ(rig.listed().toStdString(), "a.mp4 b.mp4") << "what was found by then is taken";
    EXPECT_EQ(rig.desktop.alerts.size(), 0U);
    rig.settings.runLoop.advance(5);
    escape();
    rig.settings.runLoop.advance(5);
    EXPECT_EQ(rig.desktop.terminations, 1);
}

TEST(FileIntake, what_holds_no_movie_is_said) {
    AppRig rig(quiet);
    rig.launch();
    QDir(rig.folder.path()).mkdir("empty");
    const QString notes = rig.file("notes.txt");
    rig.desktop.alertAnswers = {0, 1, 0, 1};
    const auto handOver = [&rig](const QStringList& paths) {
        rig.desktop.alerts.clear();
        platform::DraggingInfo info;
        info.offersFileNames = true;
        info.fileNames = paths;
        info.sourceOperationMask = platform::dragOperation::generic;
        static_cast<platform::View&>(rig.view).performDragOperation(info);
        if (QFileInfo(paths.front()).isDir()) {
            EXPECT_TRUE(rig.settings.runLoop.runPosted());
        }
        rig.settings.runLoop.advance(0.02);
        QStringList said;
        for (const auto& alert : rig.desktop.alerts)
            said << alert.title + u'|' + alert.message;
        return said.join(u'\n');
    };
    EXPECT_TRUE(handOver({rig.folder.filePath("empty")}).contains(rig.folder.filePath("empty")));
    EXPECT_EQ(rig.desktop.alerts.size(), 1U) << "the panel for an empty list says it all";
    EXPECT_TRUE(handOver({notes}).contains("notes.txt"));
    EXPECT_EQ(rig.desktop.alerts.size(), 2U);
    EXPECT_EQ(handOver({notes, rig.file("a.mp4")}), "") << "beside a movie it is no fault";
    EXPECT_TRUE(handOver({rig.folder.filePath("empty")}).contains("empty"));
    EXPECT_EQ(rig.listed(), "a.mp4");
}
