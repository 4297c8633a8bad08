// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/QVParentOverlay.h"
#include "tests/overlays/OverlayRig.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using State = QVStyledOverlay::FadingState;

class Overlay : public QVParentOverlay {
public:
    explicit Overlay(const Environment& environment)
        : QVParentOverlay(environment, platform::Rect(0, 0, 100, 50), kQVDefaultOverlayStyle) {
        orderFront();
    }
};

class Fading : public testing::Test {
protected:
    Fading() { advance(60); } // the settings are written
    void advance(double seconds) { rig.settings.runLoop.advance(seconds); }
    std::size_t timers() { return rig.settings.runLoop.pendingCount(); }

    OverlayRig rig;
    Overlay overlay{rig.settings.environment};
};

} // namespace

TEST_F(Fading, showing_rises_evenly_and_ends_at_the_largest_opacity) {
    overlay.setMinAlpha(0.2F);
    overlay.setMaxAlpha(0.8F);
    overlay.hide();
    advance(1);
    ASSERT_EQ(overlay.alphaValue(), 0.2F);
    overlay.show();
    EXPECT_EQ(overlay.fadingState(), State::fadingIn);
    EXPECT_TRUE(overlay.isVisible());
    advance(0.3);
    EXPECT_NEAR(overlay.alphaValue(), 0.5, 1e-3);
    overlay.show();
    advance(0.25);
    EXPECT_EQ(overlay.fadingState(), State::fadingIn);
    advance(0.1);
    EXPECT_EQ(overlay.fadingState(), State::idle);
    EXPECT_EQ(overlay.alphaValue(), 0.8F);
    EXPECT_EQ(timers(), 0U);
}

TEST_F(Fading, a_fade_is_taken_back_from_where_it_stands) {
    overlay.show();
    advance(1.1);
    overlay.hide();
    EXPECT_EQ(overlay.fadingState(), State::fadingOut);
    EXPECT_FALSE(overlay.isVisible()) << "although it can still be seen";
    advance(0.25);
    EXPECT_NEAR(overlay.alphaValue(), 0.5, 1e-3);
    overlay.hide();
    EXPECT_EQ(timers(), 1U);
    overlay.show();
    EXPECT_EQ(timers(), 1U) << "the fade-out was stopped";
    EXPECT_NEAR(overlay.alphaValue(), 0.5, 1e-3);
    advance(0.25);
    EXPECT_NEAR(overlay.alphaValue(), 0.75, 1e-3);
    overlay.hide();
    advance(0.45);
    EXPECT_EQ(overlay.fadingState(), State::idle);
    EXPECT_EQ(overlay.alphaValue(), 0);
    EXPECT_EQ(timers(), 0U);
}

TEST_F(Fading, intervals_too_short_for_a_step_or_absurd_fade_at_once) {
    for (const double interval : {0.04, -3.0, std::numeric_limits<double>::quiet_NaN()}) {
        overlay.setFadingInInterval(interval);
        overlay.setFadingOutInterval(interval);
        overlay.show();
        EXPECT_EQ(overlay.alphaValue(), 1) << interval;
        overlay.hide();
        EXPECT_EQ(overlay.alphaValue(), 0) << interval;
        EXPECT_EQ(timers(), 0U) << interval;
    }
}

TEST_F(Fading, a_style_changes_intervals_that_are_not_too_long_to_wait_for) {
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    for (const auto& [interval, taken] : {std::pair(0.25, 0.25), {60, 60}, {61, 0}, {notANumber, 0}}) {
        for (const QString& key : {kFadingInInterval, kFadingOutInterval, kFadingDelayInterval})
            rig.change(key, interval);
        for (const double own :
             {overlay.fadingInInterval(), overlay.fadingOutInterval(), overlay.fadingDelayInterval()})
            EXPECT_EQ(own, taken) << interval;
    }
}

TEST_F(Fading, popping_up_shows_holds_and_hides) {
    overlay.autopop();
    EXPECT_EQ(overlay.fadingState(), State::fadingIn);
    advance(0.5);
    overlay.autopop();
    EXPECT_NEAR(overlay.alphaValue(), 0.5, 1e-3) << "the fade goes on";
    advance(0.6);
    EXPECT_EQ(overlay.fadingState(), State::delaying);
    EXPECT_EQ(timers(), 1U);
    advance(1.5);
    overlay.autopop();
    advance(1.9);
    EXPECT_EQ(overlay.fadingState(), State::delaying) << "the hold began again";
    EXPECT_EQ(overlay.alphaValue(), 1);
    advance(0.2);
    EXPECT_EQ(overlay.fadingState(), State::fadingOut);
    overlay.autopop();
    EXPECT_EQ(overlay.fadingState(), State::fadingIn);
    advance(4);
    EXPECT_EQ(overlay.fadingState(), State::idle);
    overlay.show();
    advance(10);
    EXPECT_EQ(overlay.alphaValue(), 1) << "what is shown stays, though it popped up before";
}

TEST_F(Fading, a_parent_brings_back_what_it_hid_and_what_was_asked_for_meanwhile) {
    Overlay seen(rig.settings.environment), unseen(rig.settings.environment), late(rig.settings.environment);
    for (Overlay* child : {&seen, &unseen, &late})
        overlay.addChildWindow(*child);
    seen.show();
    EXPECT_EQ(seen.fadingState(), State::idle) << "under a hidden parent nothing is shown";
    EXPECT_FALSE(seen.isVisible());
    overlay.show();
    EXPECT_EQ(seen.fadingState(), State::fadingIn) << "but with it";
    {
        Overlay gone(rig.settings.environment);
        overlay.addChildWindow(gone);
        gone.show();
        advance(2);
        overlay.hide();
        EXPECT_EQ(seen.fadingState(), State::fadingOut);
        EXPECT_EQ(unseen.fadingState(), State::idle);
        overlay.hide();
    }
    advance(1);
    unseen.show();
    unseen.hide();
    late.show();
    overlay.show();
    advance(2);
    EXPECT_TRUE(seen.isVisible());
    EXPECT_FALSE(unseen.isVisible()) << "it was hidden again by whoever asked for it";
    EXPECT_TRUE(late.isVisible());
    overlay.orderOut();
    EXPECT_FALSE(overlay.isVisible());
}

TEST_F(Fading, what_popped_up_before_or_under_a_hidden_parent_is_held_and_goes) {
    Overlay before(rig.settings.environment), under(rig.settings.environment);
    for (Overlay* child : {&before, &under})
        overlay.addChildWindow(*child);
    overlay.show();
    before.autopop();
    advance(2);
    ASSERT_EQ(before.fadingState(), State::delaying);
    overlay.hide();
    advance(1);
    under.autopop();
    overlay.show();
    advance(1.2);
    for (const Overlay* child : {&before, &under})
        EXPECT_EQ(child->fadingState(), State::delaying);
    advance(3);
    for (const Overlay* child : {&before, &under})
        EXPECT_EQ(child->alphaValue(), 0);
}

TEST_F(Fading, equal_limits_are_visible_while_shown_and_do_not_hide_what_lies_above) {
    overlay.setMinAlpha(1);
    Overlay child(rig.settings.environment);
    overlay.addChildWindow(child);
    EXPECT_FALSE(overlay.isVisible()) << "never shown";
    overlay.show();
    EXPECT_TRUE(overlay.isVisible());
    child.show();
    EXPECT_TRUE(child.isVisible());
    overlay.hide();
    EXPECT_FALSE(overlay.isVisible());
}

TEST_F(Fading, a_hold_ends_with_hide_and_goes_on_without_popping_up) {
    overlay.autopop();
    advance(1.1);
    overlay.hide();
    EXPECT_EQ(overlay.fadingState(), State::fadingOut);
    advance(0.6);
    EXPECT_EQ(timers(), 0U);
    overlay.delay();
    advance(3);
    EXPECT_EQ(overlay.fadingState(), State::delaying);
    overlay.autopop();
    advance(2.1);
    EXPECT_EQ(overlay.fadingState(), State::idle) << "hidden already: through fading out at once";
}

TEST_F(Fading, the_limits_push_each_other_and_move_a_resting_overlay) {
    overlay.setMaxAlpha(0.6F);
    EXPECT_EQ(overlay.alphaValue(), 0) << "a hidden overlay stays unseen";
    overlay.show();
    advance(1);
    EXPECT_EQ(overlay.alphaValue(), 0.6F);
    overlay.setMinAlpha(0.7F);
    EXPECT_EQ(overlay.maxAlpha(), 0.7F);
    EXPECT_EQ(overlay.alphaValue(), 0.7F);
    overlay.setMinAlpha(0.1F);
    EXPECT_EQ(overlay.alphaValue(), 0.7F);
    overlay.setMaxAlpha(0.05F);
    EXPECT_EQ(overlay.minAlpha(), 0.05F);
    EXPECT_EQ(overlay.alphaValue(), 0.05F);
    overlay.setMaxAlpha(1);
    overlay.hide();
    advance(0.1);
    const float fading = overlay.alphaValue();
    overlay.setMaxAlpha(0.9F);
    EXPECT_EQ(overlay.alphaValue(), fading) << "a fade is not disturbed";
}

TEST_F(Fading, limits_that_no_window_can_reach_still_end_a_fade) {
    for (const float largest : {5.0F, 1e9F}) {
        overlay.setMaxAlpha(largest);
        overlay.hide();
        advance(2);
        overlay.show();
        advance(2);
        EXPECT_EQ(overlay.fadingState(), State::idle) << largest;
        EXPECT_EQ(overlay.alphaValue(), 1) << largest;
    }
    overlay.setMinAlpha(-1e9F);
    overlay.setMaxAlpha(std::numeric_limits<float>::quiet_NaN());
    overlay.hide();
    overlay.show();
    advance(2);
    EXPECT_EQ(timers(), 0U);
    EXPECT_EQ(overlay.alphaValue(), 0);
}
