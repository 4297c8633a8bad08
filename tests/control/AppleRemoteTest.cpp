// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/AppleRemote.h"
#include "control/ComputerSleep.h"
#include "control/RemoteButtons.h"
#include "control/RemoteControl.h"
#include "settings/Tracing.h"
#include "tests/control/MovieControllerRig.h"
#include "tests/support/CapturedLog.h"

#include <climits>

using platform::RemoteResult;

namespace {

/// The controller with the remote that it listens to, as the application joins them.
class Remote : public MovieControllerRig {
protected:
    Remote() {
        addMovies(1);
        playlist.play(0);
    }
    ~Remote() override { gTracingEnabled = false; }

    /// The burst of a button's elements, as its cookie string has them.
    void burst(const QString& cookies, bool pressed) {
        std::vector<platform::RemoteEvent> events;
        for (const QString& cookie : cookies.split(u'_', Qt::SkipEmptyParts))
            events.push_back({cookie.toInt(), 0});
        if (pressed && !events.empty())
            events.back().value = 1;
        ASSERT_TRUE(desktop.receivers.listener);
        desktop.receivers.listener->remoteBurst(RemoteResult::success, events);
    }
    /// What the controller has confirmed since it was asked last.
    std::string confirmed() { return std::exchange(confirmations.last, {}).toStdString(); }

    CapturedLog log;
    AppleRemote remote{desktop.receivers};
    std::unique_ptr<RemoteControl> joined = std::make_unique<RemoteControl>(settings.environment, remote, controller);
    ComputerSleep computerSleep{settings.environment, {desktop.computer, view, controller, confirmations}};
};

} // namespace

TEST_F(Remote, each_row_of_the_table_acts_once_or_repeats_until_the_release) {
    settings.runLoop.advance(AfterFirstPicture::latest + 0.1);
    gTracingEnabled = true;
    const std::string up = text("Volume: %@", {text("%d%%", {"110"}).c_str()}),
                      upTwice = text("Volume: %@", {text("%d%%", {"120"}).c_str()});
    const std::string down = text("Volume: %@", {text("%d%%", {"90"}).c_str()}),
                      downTwice = text("Volume: %@", {text("%d%%", {"80"}).c_str()});
    const struct {
        const char *cookies, *name;
        bool plays;
        std::string confirms;
        double interval; // 0: it doesn't repeat
        std::string repeated;
    } cases[] = {
        {"14_12_11_6_5_", "Volume Up", true, up, 0.2, upTwice},
        {"14_13_11_6_5_", "Volume Down", false, down, 0.2, downTwice},
        {"14_7_6_5_14_7_6_5_", "Menu", true, "Subtitles: these", 0, ""},
        {"14_8_6_5_14_8_6_5_", "Play/Pause", true, text("Movie: Pause"), 0, ""},
        {"14_8_6_5_14_8_6_5_", "Play/Pause", false, text("Movie: Play"), 0, ""},
        {"14_9_6_5_14_9_6_5_", "Right", true, text("Jump Forward %d s", {"10"}), 0, ""},
        {"14_10_6_5_14_10_6_5_", "Left", true, text("Jump Backward %d s", {"10"}), 0, ""},
        {"14_6_5_4_2_", "Right holding", true, text("Fast Forward x%d", {"2"}), 0.99, text("Fast Forward x%d", {"4"})},
        {"14_6_5_3_2_", "Left holding", true, text("Fast Rewind x%d", {"2"}), 0.99, text("Fast Rewind x%d", {"4"})},
        {"14_6_5_4_2_", "Right holding", false, text("Step Forward"), 0.2, text("Step Forward")},
        {"14_6_5_3_2_", "Left holding", false, text("Step Backward"), 0.2, text("Step Backward")},
        {"14_6_5_14_6_5_", "Menu holding", true, text("Quit"), 0, ""},
        {"18_14_6_5_18_14_6_5_", "Play (sleep mode)", true, text("Sleep"), 0, ""},
    };
    for (const auto& c : cases) {
        view.setRate(c.plays ? 1.0F : 0.0F);
        view.setTime(12000);
        view.setVolume(1);
        log.clear();
        confirmed();
        burst(c.cookies, true);
        EXPECT_EQ(confirmed(), c.confirms) << c.name;
        EXPECT_TRUE(log.contains(QString("QVMovieController: Apple Remote Button: %1 (down)").arg(c.name)))
            << log.lines().join('\n').toStdString();
        if (c.interval > 0) {
            settings.runLoop.advance(c.interval - 0.01);
            EXPECT_EQ(confirmed(), "") << c.name;
            settings.runLoop.advance(0.02);
            EXPECT_EQ(confirmed(), c.repeated) << c.name;
        }
        const bool isFast = view.rate() != 0 && view.rate() != 1;
        const float rate = view.rate();
        burst(c.cookies, false);
        EXPECT_TRUE(log.contains(QString("QVMovieController: Apple Remote Button: %1 (up)").arg(c.name)));
        confirmed();
        settings.runLoop.advance(c.interval > 0 ? 3 * c.interval : 0);
        EXPECT_EQ(confirmed(), "") << c.name << " ends with the release";
        EXPECT_TRUE(!isFast || view.rate() == rate) << "the speed stays until Play/Pause";
    }
    settings.runLoop.advance(confirmations.readingTime());
    EXPECT_EQ(desktop.terminations, 1);
    EXPECT_EQ(desktop.computer.commands, std::vector{platform::PowerCommand::sleep});
}

TEST_F(Remote, any_press_and_any_release_ends_a_repetition) {
    settings.runLoop.advance(AfterFirstPicture::latest + 0.1);
    for (const char* other : {"14_7_6_5_14_7_6_5_", "19_"}) {
        for (const bool pressed : {true, false}) {
            burst("14_12_11_6_5_", true);
            burst(other, pressed);
            confirmed();
            settings.runLoop.advance(1);
            EXPECT_EQ(confirmed(), "") << other << pressed;
        }
    }
}

TEST_F(Remote, bursts_that_no_button_makes_are_logged_and_the_identity_is_kept) {
    settings.runLoop.advance(AfterFirstPicture::latest + 0.1);
    gTracingEnabled = true;
    const auto saidOf = [this](RemoteResult result, const std::vector<platform::RemoteEvent>& events) {
        log.clear();
        desktop.receivers.listener->remoteBurst(result, events);
        return log.lines().join(" / ").toStdString();
    };
    EXPECT_EQ(saidOf(RemoteResult::success, {{14, 1}, {12, 0}}), "Unknown button for cookiestring 14_12_");
    EXPECT_EQ(saidOf(RemoteResult::failure, {{14, 1}}), "Unknown button for cookiestring ");
    EXPECT_EQ(
        saidOf(RemoteResult::success, {{14, 1}, {8, 0}, {6, 0}, {5, 0}, {14, 0}, {19, 42}, {8, 0}, {6, 0}, {5, -1}}),
        "QVMovieController: Unmapped event for Apple Remote button 10 / "
        "QVMovieController: Apple Remote Button: Unknown (up) / "
        "QVMovieController: Apple Remote Button: Play/Pause (up)")
        << "the identity is no part of the string nor of the sum";
    EXPECT_EQ(remote.remoteId(), 42);
    log.clear();
    for (const std::int32_t code : {-1, 11, INT_MAX})
        controller.appleRemoteButton(code, true);
    EXPECT_EQ(log.count("Unmapped event for Apple Remote button"), 3);
    EXPECT_EQ(log.count("Apple Remote Button: Unknown (down)"), 3);
    EXPECT_EQ(confirmed(), "");
}

TEST_F(Remote, is_listened_to_exclusively_once_a_picture_stands_and_while_the_setting_is_on) {
    EXPECT_EQ(desktop.receivers.starts, 0) << "the first picture does not wait for it";
    post(QVMovieInterestingTimeNotification{});
    EXPECT_EQ(desktop.receivers.starts, 0);
    settings.runLoop.runPending();
    EXPECT_EQ(desktop.receivers.access, platform::RemoteAccess::exclusive);
    EXPECT_TRUE(remote.isListeningToRemote() && remote.isOpenInExclusiveMode());
    EXPECT_EQ(remote.delegate(), &controller);
    settings.runLoop.advance(10);
    EXPECT_EQ(desktop.receivers.starts, 1);

    settings.defaults().setBool(false, kQVUseRemote);
    changePreference(kQVUseRemote);
    EXPECT_FALSE(remote.isListeningToRemote() || desktop.receivers.listener);
    EXPECT_FALSE(remote.isOpenInExclusiveMode());
    EXPECT_EQ(remote.delegate(), nullptr);
    settings.defaults().setBool(true, kQVUseRemote);
    changePreference(kQVUseRemote);
    EXPECT_TRUE(desktop.receivers.listener);
    joined.reset();
    EXPECT_FALSE(desktop.receivers.listener || remote.delegate());
}

TEST_F(Remote, a_start_that_fails_says_which_step_and_leaves_it_idle) {
    using platform::RemoteStart;
    const std::pair<RemoteStart, const char*> cases[] = {
        {RemoteStart::noClassName, "Error: Failed to get class name."},
        {RemoteStart::noDeviceInterface, "Error: Couldn't create HID class device interface"},
        {RemoteStart::noQueue, "Error when opening device"},
        {RemoteStart::noEventSource, "Error when creating async event source"},
        {RemoteStart::noEventCallout, "Error when setting event callout"},
        {RemoteStart::unavailable, ""},
    };
    for (const auto& [result, line] : cases) {
        log.clear();
        desktop.receivers.result = result;
        remote.setListeningToRemote(true);
        EXPECT_EQ(log.lines().join('\n').toStdString(), line);
        EXPECT_FALSE(remote.isListeningToRemote());
    }
    desktop.receivers.result = RemoteStart::listening;
    desktop.receivers.available = false;
    desktop.receivers.starts = 0;
    remote.setListeningToRemote(true);
    EXPECT_EQ(desktop.receivers.starts, 0) << "without a receiver there is nothing to try";
    desktop.receivers.available = true;
    remote.setOpenInExclusiveMode(false);
    remote.startListening();
    remote.startListening();
    EXPECT_EQ(desktop.receivers.starts, 1);
    EXPECT_EQ(desktop.receivers.access, platform::RemoteAccess::withOthers);
}

TEST_F(Remote, keys_beside_the_table_are_commands) {
    using platform::RemoteKey;
    settings.runLoop.advance(AfterFirstPicture::latest + 0.1);
    view.setRate(1);
    const std::pair<RemoteKey, std::string> cases[] = {
        {RemoteKey::number0, text("Size: Half")},
        {RemoteKey::number5, text("Size: Fit Height")},
        {RemoteKey::number6, ""},
        {RemoteKey::number9, ""},
        {RemoteKey::stop, text("Movie: Stop")},
        {RemoteKey::play, text("Movie: Play")},
        {RemoteKey::fastForward, text("Fast Forward x%d", {"2"})},
        {RemoteKey::select, text("Movie: Play")},
        {RemoteKey::pause, text("Movie: Pause")},
        {RemoteKey::rewind, text("Step Backward")},
        {RemoteKey::subtitle, "Subtitles: these"},
        {RemoteKey::red, text("Controller: On")},
        {RemoteKey::yellow, text("Repair: On")},
        {RemoteKey::mute, view.mutedInfoAsString().toStdString()},
    };
    for (const auto& [key, confirms] : cases) {
        confirmed();
        desktop.receivers.listener->remoteKeyPressed(key);
        const std::string said = confirmed();
        EXPECT_TRUE(said == confirms || key == RemoteKey::mute) << static_cast<int>(key) << said;
    }
    EXPECT_TRUE(view.isMuted());
    services.calls.clear();
    desktop.receivers.listener->remoteKeyPressed(RemoteKey::info);
    EXPECT_EQ(services.calls, QStringList{"display 1"});
    // Every key names a command that there is; the digits above 5 are free.
    for (int key = 0; key <= static_cast<int>(RemoteKey::mute); ++key) {
        const bool isFree = key > static_cast<int>(RemoteKey::number5) && key <= static_cast<int>(RemoteKey::number9);
        EXPECT_EQ(commandOfRemoteKey(static_cast<RemoteKey>(key)) == nullptr, isFree) << key;
    }
}

TEST_F(Remote, the_movie_rests_before_the_computer_sleeps_and_after_it) {
    EXPECT_FALSE(desktop.computer.listener) << "not before the first picture";
    settings.runLoop.advance(AfterFirstPicture::latest + 0.1);
    platform::PowerListener* listener = desktop.computer.listener;
    ASSERT_TRUE(listener);
    view.setRate(1);
    burst("14_6_5_4_2_", true);
    listener->computerWillSleep();
    EXPECT_EQ(view.rate(), 0);
    confirmed();
    settings.runLoop.advance(3);
    EXPECT_EQ(view.rate(), 0) << "the held button does nothing any more";
    listener->computerDidWake();
    EXPECT_EQ(view.rate(), 0);
    EXPECT_EQ(confirmed(), text("Movie: Pause"));
    // One that rests anyway says nothing.
    listener->computerWillSleep();
    listener->computerDidWake();
    EXPECT_EQ(confirmed(), "");

    listener->powerCommandFailed(platform::PowerCommand::sleep, "No swap.");
    EXPECT_EQ(confirmed(), text("Sleep failed: %@", {"No swap."}));
}
