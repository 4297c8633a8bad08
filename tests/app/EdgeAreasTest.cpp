// SPDX-License-Identifier: GPL-3.0-or-later

#include "settings/SettingsKeys.h"
#include "tests/app/AppRig.h"

#include <gtest/gtest.h>

namespace {

/// A window with a picture larger than it, whose pointer is moved.
struct PanningRig : AppRig {
    PanningRig()
        : AppRig({{kQVOnLaunchDefaultAction, 0}}) {
        app.openFile(file("a.mp4"));
        launch();
        view.setFrame(platform::Rect(-720, -450, 2880, 1800));
    }
    /// Where the picture went during the next steps of panning: signs of x and y.
    std::pair<int, int> panned() {
        const QPointF before = view.frame().origin();
        settings.runLoop.advance(0.2);
        const QPointF moved = view.frame().origin() - before;
        return {(moved.x() > 0) - (moved.x() < 0), (moved.y() > 0) - (moved.y() < 0)};
    }
    void moveTo(double x, double y) {
        platform::MouseEvent event;
        event.locationInWindow = QPointF(x, y);
        window.dispatchMouseMoved(event);
    }
};

using Moved = std::pair<int, int>;

} // namespace

TEST(EdgeAreas, the_pointer_in_them_pans_the_picture) {
    PanningRig rig;
    rig.moveTo(720, 450);
    EXPECT_EQ(rig.panned(), Moved(0, 0));
    rig.moveTo(50, 850);
    EXPECT_EQ(rig.panned(), Moved(1, -1)) << "what lies left and above comes into view";
    rig.moveTo(300, 850);
    EXPECT_EQ(rig.panned(), Moved(0, -1)) << "on from the corner to the top";
    rig.moveTo(50, 850);
    EXPECT_EQ(rig.panned(), Moved(1, -1)) << "and back";
    rig.moveTo(1400, 450);
    EXPECT_EQ(rig.panned(), Moved(-1, 0));
    rig.moveTo(1400, 20);
    EXPECT_EQ(rig.panned(), Moved(-1, 1));
    rig.window.dispatchMouseLeft();
    EXPECT_EQ(rig.panned(), Moved(0, 0));
}
