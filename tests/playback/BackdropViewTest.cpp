// SPDX-License-Identifier: GPL-3.0-or-later
#include "playback/BackdropView.h"

#include "platform/window/ScreenScale.h"
#include "playback/BackdropLayout.h"
#include "tests/support/PlaybackRig.h"

#include <gtest/gtest.h>

using platform::Rect;

namespace {

/// Takes everything that is dragged in.
class AllDrops final : public DropTarget {
public:
    int performed = 0;
    int exited = 0;
    std::uint32_t draggingEntered(const platform::DraggingInfo&) override { return platform::dragOperation::copy; }
    std::uint32_t draggingUpdated(const platform::DraggingInfo&) override { return platform::dragOperation::copy; }
    void draggingExited() override { ++exited; }
    bool performDragOperation(const platform::DraggingInfo&) override { return ++performed > 0; }
};

class Backdrop : public testing::Test {
protected:
    Backdrop() {
        rig.window.contentView().addSubview(backdrop);
        rig.toolkit.cover = QImage(300, 200, QImage::Format_RGB32);
        rig.toolkit.cover.fill(Qt::red);
    }
    /// Makes a movie of sound alone the current one.
    void hear(const QString& title, const QString& artist, bool hasCover) {
        platform::MovieInfo info = ScriptedToolkit::plainMovie(QUrl("file:///music/a%20song.mp3"));
        info.hasVideo = false;
        info.naturalSize = QSizeF();
        info.title = title;
        info.artist = artist;
        info.hasCover = hasCover;
        rig.post(
            QVPlaylistMovieChangedNotification{std::make_shared<QVMovie>(rig.settings.environment, rig.movies, info)});
    }
    void see() { rig.post(QVPlaylistMovieChangedNotification{rig.open("file:///a.mp4")}); }
    void empty() { rig.post(QVPlaylistMovieChangedNotification{}); }
    void advance(double seconds) { rig.settings.runLoop.advance(seconds); }
    QString said() const { return backdrop.title() + '|' + backdrop.detail(); }

    PlaybackRig rig;
    AllDrops drops;
    BackdropView backdrop{rig.settings.environment, {rig.toolkit, drops}};
};

} // namespace

TEST_F(Backdrop, says_what_is_heard_and_nothing_over_a_picture) {
    hear("Sea Song", "The Keepers", false);
    EXPECT_EQ(said(), "Sea Song|The Keepers");
    hear("", "The Keepers", false);
    EXPECT_EQ(said(), "a song.mp3|The Keepers");
    hear("", "", false);
    EXPECT_EQ(said(), "a song.mp3|");
    EXPECT_TRUE(rig.toolkit.coversAsked.isEmpty());
    see();
    EXPECT_EQ(said(), "|");
    empty();
    EXPECT_EQ(said(), "|") << "no hint was offered";
}

TEST_F(Backdrop, shows_the_cover_of_the_current_movie_alone) {
    hear("Sea Song", "", true);
    EXPECT_TRUE(backdrop.cover().isNull()) << "it is not waited for";
    advance(0.1);
    EXPECT_EQ(backdrop.cover().size(), QSize(300, 200));
    hear("Another", "", false);
    EXPECT_TRUE(backdrop.cover().isNull());
    hear("Sea Song", "", true);
    see();
    advance(0.1);
    EXPECT_TRUE(backdrop.cover().isNull()) << "it came too late";
    EXPECT_EQ(rig.toolkit.coversAsked.size(), 2);
}

TEST_F(Backdrop, an_empty_player_says_how_to_open_a_movie_soon_after_the_launch) {
    backdrop.offerHint({"press", "drop"});
    advance(0.4);
    EXPECT_EQ(said(), "|") << "a movie may be on its way";
    advance(0.2);
    EXPECT_EQ(said(), "press|drop");
    see();
    EXPECT_EQ(said(), "|");
    empty();
    EXPECT_EQ(said(), "press|drop");
    hear("Sea Song", "", false);
    EXPECT_EQ(said(), "Sea Song|");
    // A movie that comes in time is not preceded by it.
    BackdropView other(rig.settings.environment, {rig.toolkit, drops});
    rig.window.contentView().addSubview(other);
    other.offerHint({"press", "drop"});
    see();
    advance(1);
    EXPECT_TRUE(other.title().isEmpty());
}

TEST_F(Backdrop, a_long_title_keeps_off_the_edges_of_a_window_of_any_size) {
    hear(QString(900, 'i'), "The Keepers", false);
    for (const QSizeF& size : {QSizeF(1440, 900), QSizeF(3840, 2160)}) {
        rig.window.setFrame(Rect(QPointF(0, 0), size));
        double left = size.width();
        double right = 0;
        for (const platform::View* line : backdrop.subviews()) {
            left = std::min(left, line->frame().width() > 0 ? line->frame().minX() : left);
            right = std::max(right, line->frame().maxX());
        }
        const double edge = 24 * platform::screenScale(size.height());
        EXPECT_NEAR(left, edge, edge / 3);
        EXPECT_NEAR(size.width() - right, edge, edge / 3);
    }
}

TEST_F(Backdrop, takes_what_is_dropped_wherever_there_is_no_picture) {
    backdrop.offerHint({"press", "drop"});
    rig.window.setFrame(Rect(0, 0, 1920, 1080));
    platform::View* target = rig.window.contentView().hitTest(QPointF(1900, 1000));
    ASSERT_EQ(target, &backdrop);
    const platform::DraggingInfo info;
    EXPECT_EQ(target->draggingEntered(info), platform::dragOperation::copy);
    EXPECT_EQ(target->draggingUpdated(info), platform::dragOperation::copy);
    target->draggingExited();
    EXPECT_EQ(drops.exited, 1);
    EXPECT_TRUE(target->performDragOperation(info));
    EXPECT_EQ(drops.performed, 1);
}

TEST(BackdropLayout, image_and_lines_stand_below_each_other_in_the_middle) {
    using namespace BackdropLayout;
    const QSizeF title(400, 50), detail(300, 30), screen(1920, 1080);
    const Places all = places({screen, QSizeF(1000, 1000), title, detail, 1});
    EXPECT_EQ(all.image.size(), QSizeF(540, 540)) << "half of the height";
    EXPECT_EQ(all.image.x(), 690);
    EXPECT_EQ(all.title, Rect(760, all.image.y() - 28 - 50, 400, 50));
    EXPECT_EQ(all.detail, Rect(810, all.title.y() - 6 - 30, 300, 30));
    EXPECT_NEAR(1080 - all.image.maxY(), all.detail.y(), 1) << "as much above as below";
    const Places large = places({screen * 2, QSizeF(1000, 1000), title * 2, detail * 2, 2});
    EXPECT_EQ(large.image.size(), all.image.size() * 2);
    EXPECT_EQ(large.title.size(), all.title.size() * 2);
    EXPECT_NEAR(large.title.y(), 2 * all.title.y(), 1);
    EXPECT_EQ(places({screen, QSizeF(100, 50), title, detail, 1}).image.size(), QSizeF(200, 100)) << "doubled at most";
    EXPECT_EQ(places({screen, QSizeF(3000, 100), title, detail, 1}).image.width(), 1536);
    EXPECT_EQ(places({screen, QSizeF(), title, QSizeF(0, 0), 1}).title, Rect(760, 515, 400, 50));
}
