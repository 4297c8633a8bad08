// SPDX-License-Identifier: GPL-3.0-or-later
#include "playback/StandingMessage.h"

#include "context/FeedbackDisplay.h"
#include "tests/support/TestEnvironment.h"

#include <gtest/gtest.h>

namespace {

class RecordedFeedback final : public FeedbackDisplay {
public:
    QStringList posted;
    void postFeedback(const QString& message) override { posted << message; }
    void withdrawFeedback(const QString& message) override { posted << "no " + message; }
    double readingTime() const override { return 1.5; }
};

} // namespace

TEST(StandingMessage, what_the_user_is_about_is_said_at_once_and_taken_away_at_once) {
    TestEnvironment settings;
    RecordedFeedback display;
    StandingMessage message(settings.environment, display);
    message.withdraw();
    message.showAtOnce("Replace");
    message.showAtOnce("Replace");
    EXPECT_EQ(display.posted, QStringList("Replace"));
    message.showAtOnce("Add");
    message.withdraw();
    message.withdraw();
    settings.runLoop.advance(5);
    EXPECT_EQ(display.posted, (QStringList{"Replace", "Add", "no Add"}));
}

TEST(StandingMessage, a_wait_is_said_when_it_lasts_and_again_before_the_message_fades) {
    TestEnvironment settings;
    RecordedFeedback display;
    StandingMessage message(settings.environment, display);
    for (int wait = 0; wait < 2; ++wait) {
        display.posted.clear();
        message.show("Loading");
        settings.runLoop.advance(0.4);
        message.show("Buffering");
        EXPECT_TRUE(display.posted.isEmpty()) << "a short wait is not worth a word";
        settings.runLoop.advance(0.2);
        EXPECT_EQ(display.posted, QStringList{"Buffering"});
        message.show("Buffering");
        message.show("Stalled");
        EXPECT_EQ(display.posted, (QStringList{"Buffering", "Stalled"}));
        settings.runLoop.advance(1);
        EXPECT_EQ(display.posted.last(), "Stalled");
        EXPECT_GT(display.posted.size(), 2) << "it stands as long as the wait";
        message.end();
        const qsizetype said = display.posted.size();
        settings.runLoop.advance(5);
        EXPECT_EQ(display.posted.size(), said);
    }
}
