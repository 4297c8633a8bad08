// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Drops.h"

#include "overlays/QVFeedbackOverlay.h"
#include "platform/base/Localization.h"
#include "platform/window/Events.h"
#include "settings/SettingsKeys.h"
#include "tests/app/AppRig.h"

using namespace platform::dragOperation;

namespace {

class DropsRig : public testing::Test {
protected:
    DropsRig() {
        platform::setLocalizationLanguages({"en"});
        rig.launch();
    }
    ~DropsRig() override { platform::setLocalizationLanguages({}); }
    /// What the screen says; empty when it says nothing.
    std::string said() {
        const QVFeedbackOverlay& overlay = QVFeedbackOverlay::sharedFeedbackOverlay();
        return overlay.isVisible() ? overlay.text().toStdString() : "";
    }
    static platform::DraggingInfo files(const QStringList& paths, std::uint32_t mask = generic | copy) {
        return {.offersFileNames = true,
                .offersURL = false,
                .fileNames = paths,
                .urlStrings = {},
                .sourceOperationMask = mask};
    }
    AppRig rig{{{kQVOnLaunchDefaultAction, 0}}};
    platform::View& view = rig.view;
};

} // namespace

TEST_F(DropsRig, the_screen_says_what_a_drop_would_do_until_it_is_done_or_leaves) {
    view.draggingEntered(files({"/a.mp4"}));
    EXPECT_EQ(said(), "Replace the Playlist");
    rig.settings.runLoop.advance(20);
    EXPECT_EQ(said(), "Replace the Playlist") << "as long as it hovers";
    view.draggingUpdated(files({"/a.mp4"}, copy));
    EXPECT_EQ(said(), "Add to the Playlist") << "with the key pressed meanwhile";
    view.draggingExited();
    EXPECT_EQ(said(), "");
    rig.settings.runLoop.advance(20);
    EXPECT_EQ(said(), "");

    view.draggingEntered(files({"/a.mp4"}));
    EXPECT_EQ(view.draggingUpdated(files({}, none)), none);
    EXPECT_EQ(said(), "") << "what cannot be dropped";
    view.draggingEntered(files({rig.file("a.mp4")}));
    view.performDragOperation(files({rig.file("a.mp4")}));
    EXPECT_EQ(said(), "");
    EXPECT_EQ(rig.listed(), "a.mp4");
}

TEST_F(DropsRig, a_folder_and_subtitles_beside_a_movie_are_dropped_with_it) {
    rig.file("films/a.mp4");
    view.performDragOperation(files({rig.folder.filePath("films"), rig.file("b.mp4"), rig.file("b.srt")}));
    rig.waitForSearches();
    EXPECT_EQ(rig.listed(), "a.mp4 b.mp4");
    EXPECT_TRUE(rig.desktop.alerts.empty());
}

TEST_F(DropsRig, subtitles_are_added_to_the_movie_that_is_shown_or_told_where_they_belong) {
    for (const char* name : {"one.srt", "two.SUB", "three.idx"}) {
        rig.desktop.alerts.clear();
        view.performDragOperation(files({rig.file(name)}));
        rig.settings.runLoop.advance(0.02);
        // The other one is that of a list without a movie, which offers to open some.
        ASSERT_EQ(rig.desktop.alerts.size(), 2U) << name;
        EXPECT_TRUE(rig.desktop.alerts[0].message.contains("It holds subtitles.")) << name;
    }
    rig.desktop.alerts.clear();
    view.performDragOperation(files({rig.file("notes.txt")}));
    rig.settings.runLoop.advance(0.02);
    ASSERT_FALSE(rig.desktop.alerts.empty());
    EXPECT_FALSE(rig.desktop.alerts[0].message.contains("subtitles"));

    rig.desktop.alerts.clear();
    view.performDragOperation(files({rig.file("a.mp4")}));
    EXPECT_EQ(rig.listed(), "a.mp4");
    const QString other = writeFile(rig.folder.filePath("other.srt"), "1\n00:00:01,000 --> 00:00:02,000\nHi\n");
    view.draggingEntered(files({other}));
    EXPECT_EQ(said(), "Add to the Movie as Subtitles");
    view.performDragOperation(files({other}));
    EXPECT_EQ(said(), "Subtitles: other.srt (1/1)");
    ASSERT_TRUE(rig.app.subtitles().current());
    EXPECT_EQ(rig.app.subtitles().current()->path(), other);
    EXPECT_EQ(rig.objects->menu().subtitlesMenu().itemAt(2).title, "other.srt");
    view.performDragOperation(files({rig.file("empty.srt")}));
    EXPECT_EQ(said(), "\u201Cempty.srt\u201D holds no subtitles that can be read");
    EXPECT_EQ(rig.listed(), "a.mp4");
    EXPECT_TRUE(rig.desktop.alerts.empty());

    // With one movie they are for that; with several each has its own beside it.
    view.performDragOperation(files({rig.file("b.mp4"), other}));
    EXPECT_EQ(rig.listed(), "b.mp4");
    ASSERT_TRUE(rig.app.subtitles().current());
    EXPECT_EQ(rig.app.subtitles().current()->path(), other);
    view.performDragOperation(files({rig.file("c.mp4"), other, rig.file("d.mp4")}));
    EXPECT_EQ(rig.listed(), "c.mp4 d.mp4");
    EXPECT_EQ(rig.app.subtitles().count(), 0U);

    rig.desktop.openPanelAnswers = {{other}};
    rig.app.addSubtitles();
    EXPECT_EQ(rig.app.subtitles().count(), 1U);
}
