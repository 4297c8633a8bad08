// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/e2e/PlayerFixture.h"
#include "tests/support/FakeServices.h"
#include "tests/support/RecordedEvents.h"

#include <sys/stat.h>

using namespace harness;

namespace {

/// The program with a recorded remote, on a message bus of the test's own.
class Remote : public PlayerFixture {
protected:
    Remote() {
        std::filesystem::create_directories(user.folder() / "input");
        EXPECT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
        _pipe = ::open(pipe.c_str(), O_RDWR | O_CLOEXEC); // with a reader of its own it never ends by itself
    }
    ~Remote() override { unplug(); }

    void startRemote(const std::vector<std::string>& arguments) {
        startRecorded(LUMARO_RECORDED_PROGRAM,
                      {{"LUMARO_RECORDED_INPUT", pipe.parent_path().string()},
                       {"DBUS_SESSION_BUS_ADDRESS", qgetenv("DBUS_SESSION_BUS_ADDRESS").toStdString()},
                       {"DBUS_SYSTEM_BUS_ADDRESS", qgetenv("DBUS_SYSTEM_BUS_ADDRESS").toStdString()}},
                      arguments);
    }
    void send(std::uint16_t code, std::int32_t value, std::uint32_t scanCode = 0) {
        for (const input_event& event : recorded::key(code, value, scanCode))
            EXPECT_EQ(::write(_pipe, &event, sizeof event), static_cast<ssize_t>(sizeof event));
    }
    void unplug() {
        if (_pipe >= 0)
            ::close(std::exchange(_pipe, -1));
    }
    /// Waits for what the log says of the button from where the last one was found.
    testing::AssertionResult says(const std::string& text) {
        const auto found = player->waitForErrorLine(text, _from);
        if (!found)
            return logs(text, _from);
        _from = *found;
        return testing::AssertionSuccess();
    }
    testing::AssertionResult saysButton(const std::string& name) {
        return says("QVMovieController: Apple Remote Button: " + name);
    }
    void tap(std::uint16_t code) {
        send(code, 1);
        send(code, 0);
    }

    /// Plays the services of the session and of the system.
    void offer(const QStringList& names) {
        ASSERT_TRUE(connection.registerVirtualObject("/", &services, QDBusConnection::SubPath));
        for (const QString& name : names)
            ASSERT_TRUE(connection.registerService(name));
    }
    bool served(const std::function<bool()>& done) {
        return waitUntil([&] {
            QCoreApplication::processEvents();
            return done();
        });
    }

    const std::filesystem::path pipe = user.folder() / "input/remote";
    PrivateBus bus;
    FakeServices services;
    QDBusConnection connection = PrivateBus::connection();

private:
    int _pipe = -1;
    std::size_t _from = 0;
};

} // namespace

TEST_F(Remote, each_button_acts_on_the_running_program) {
    startRemote({"--set", "QVPlaylistAutoPlay=0", "--set", "QVJumpInterval=3", numbered("red.mp4", red, 300)});
    ASSERT_TRUE(frameBecomes(0));
    // Volume Up and Down, held: at once, then again until the release.
    send(KEY_VOLUMEUP, 1, 0x87EE2A0B);
    ASSERT_TRUE(says("Unmapped event for Apple Remote button 10")) << "its identity comes first";
    ASSERT_TRUE(saysButton("Volume Up (down)"));
    send(KEY_VOLUMEUP, 0);
    ASSERT_TRUE(saysButton("Volume Up (up)"));
    tap(KEY_DOWN);
    ASSERT_TRUE(saysButton("Volume Down (down)"));
    ASSERT_TRUE(saysButton("Volume Down (up)"));
    tap(KEY_MENU);
    ASSERT_TRUE(saysButton("Menu (down)"));
    // Right and Left jump, held they step while the movie rests.
    tap(KEY_RIGHT);
    ASSERT_TRUE(saysButton("Right (down)"));
    ASSERT_TRUE(frameBecomes(90));
    tap(KEY_LEFT);
    ASSERT_TRUE(saysButton("Left (down)"));
    ASSERT_TRUE(frameBecomes(0));
    send(KEY_RIGHT, 1);
    ASSERT_TRUE(frameBecomes([](int seen) { return seen >= 3; }, "stepped to while Right is held"));
    send(KEY_RIGHT, 0);
    ASSERT_TRUE(saysButton("Right holding (up)"));
    const auto stepped = settledFrame();
    ASSERT_TRUE(stepped);
    send(KEY_LEFT, 1);
    ASSERT_TRUE(frameBecomes([&](int seen) { return seen < *stepped; }, "stepped back to"));
    send(KEY_LEFT, 0);
    ASSERT_TRUE(saysButton("Left holding (up)"));
    // Play, and while it plays the same holding is fast motion.
    tap(KEY_PLAYPAUSE);
    ASSERT_TRUE(saysButton("Play/Pause (down)"));
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 10; }, "playing"));
    send(KEY_RIGHT, 1);
    ASSERT_TRUE(says("QVMovieController: Fast Forward with rate: x2"));
    send(KEY_RIGHT, 0);
    send(KEY_LEFT, 1);
    ASSERT_TRUE(says("QVMovieController: Fast Rewind with rate: x2"));
    send(KEY_LEFT, 0);
    tap(KEY_OK);
    ASSERT_TRUE(says("Restoring normal playback."));
    tap(KEY_OK);
    ASSERT_TRUE(settledFrame());
    tap(KEY_STOP);
    ASSERT_TRUE(frameBecomes(0)) << "keys beside the table act, too";
    // Menu, held, quits.
    send(KEY_MENU, 1);
    ASSERT_TRUE(saysButton("Menu holding (down)"));
    EXPECT_EQ(player->waitForExit(), 0);
}

TEST_F(Remote, that_is_unplugged_while_it_is_held_stops) {
    startRemote({"--set", "QVPlaylistAutoPlay=0", numbered("red.mp4", red, 300)});
    ASSERT_TRUE(frameBecomes(0));
    send(KEY_RIGHT, 1);
    ASSERT_TRUE(frameBecomes([](int seen) { return seen >= 2; }, "stepped to"));
    unplug();
    ASSERT_TRUE(saysButton("Right holding (up)"));
    ASSERT_TRUE(settledFrame());
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Remote, is_left_to_others_until_the_user_wants_it) {
    const auto isOpened = [this] {
        for (const auto& entry :
             std::filesystem::directory_iterator("/proc/" + std::to_string(player->pid()) + "/fd")) {
            std::error_code gone;
            if (std::filesystem::read_symlink(entry, gone) == pipe)
                return true;
        }
        return false;
    };
    std::filesystem::create_directories(user.settingsFile().parent_path());
    std::ofstream(user.settingsFile()) << "<plist version=\"1.0\"><dict><key>QVUseRemote</key><false/></dict></plist>";
    startRemote({"--set", "QVPlaylistAutoPlay=0", numbered("red.mp4", red, 300)});
    ASSERT_TRUE(frameBecomes(0));
    tap(KEY_PLAYPAUSE);
    EXPECT_TRUE(staysTrue([&] { return !isOpened() && frame() == 0; }, Seconds(1)));
    // By its check box in the preferences.
    const WindowId movie = probe.windowAt(screenWidth / 2, screenHeight / 2);
    probe.tap(XK_comma, {XK_Control_L});
    ASSERT_TRUE(waitUntil([&] { return probe.windowAt(screenWidth / 2, screenHeight / 2) != movie; }));
    std::this_thread::sleep_for(Seconds(0.5)); // it gets the keyboard a moment later
    probe.tap(XK_a, {XK_Alt_L});
    probe.tap(XK_f, {XK_Alt_L});
    ASSERT_TRUE(waitUntil(isOpened));
    tap(KEY_RIGHT);
    ASSERT_TRUE(saysButton("Right (down)"));
    probe.tap(XK_f, {XK_Alt_L});
    ASSERT_TRUE(waitUntil([&] { return !isOpened(); })) << "and again to others";
    probe.tap(XK_Escape);
    ASSERT_TRUE(waitUntil([&] { return probe.windowAt(screenWidth / 2, screenHeight / 2) == movie; }));
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Remote, play_held_puts_the_computer_to_sleep_and_the_movie_rests_meanwhile) {
    offer({"org.freedesktop.login1"});
    startRemote({numbered("red.mp4", red, 900)});
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 5; }, "playing"));
    ASSERT_TRUE(served([&] { return services.calls.filter("Inhibit(sleep|").size() == 1; }));
    ASSERT_TRUE(served([&] { return services.isDelayed(); }));
    services.refusals["Suspend"] = QDBusError::NotSupported;
    send(KEY_PLAYPAUSE, 1);
    ASSERT_TRUE(saysButton("Play (sleep mode) (down)"));
    send(KEY_PLAYPAUSE, 0);
    ASSERT_TRUE(served([&] { return services.calls.filter("Manager.Suspend(true)").size() == 1; }));
    ASSERT_TRUE(says("ERROR: SystemPower: Can't sleep: not now"));
    ASSERT_TRUE(says("QVFeedbackOverlay: Set Text: Sleep failed: not now"));
    // Somebody else sends it to sleep.
    QDBusMessage signal =
        QDBusMessage::createSignal("/org/freedesktop/login1", "org.freedesktop.login1.Manager", "PrepareForSleep");
    signal << true;
    connection.send(signal);
    ASSERT_TRUE(served([&] { return !services.isDelayed(); })) << "sleep is let go on";
    const auto stood = settledFrame();
    ASSERT_TRUE(stood);
    signal.setArguments({false});
    connection.send(signal);
    ASSERT_TRUE(served([&] { return services.calls.filter("Inhibit(sleep|").size() == 2; }));
    EXPECT_TRUE(staysTrue([&] { return frame() == stood; }, Seconds(0.5))) << "it plays on when the user wants";
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Remote, the_computer_is_restarted_and_shut_down_and_the_user_logged_out_by_keys_that_were_chosen) {
    offer({"org.freedesktop.login1", "org.gnome.SessionManager"});
    std::filesystem::create_directories(user.settingsFile().parent_path());
    std::ofstream(user.settingsFile()) << "<plist version=\"1.0\"><dict><key>QVCommandKeys</key><dict>"
                                          "<key>restart</key><array><string>F5</string></array>"
                                          "<key>shut-down</key><array><string>F6</string></array>"
                                          "<key>log-out</key><array><string>F7</string></array>"
                                          "</dict></dict></plist>";
    startRemote({"--set", "QVPlaylistAutoPlay=0", numbered("red.mp4", red, 300)});
    ASSERT_TRUE(frameBecomes(0));
    const struct {
        KeySym key;
        const char* call;
        const char* said;
        const char* failed;
    } commands[] = {{XK_F5, "login1.Manager.Reboot(true)", "Restart the Computer", "Restart failed: not now"},
                    {XK_F6, "login1.Manager.PowerOff(true)", "Shut Down the Computer", "Shutting down failed: not now"},
                    {XK_F7, "SessionManager.Logout(1)", "Log Out", "Logging out failed: not now"}};
    for (const bool isRefused : {false, true}) {
        if (isRefused)
            services.refusals = {{"Reboot", QDBusError::AccessDenied},
                                 {"PowerOff", QDBusError::AccessDenied},
                                 {"Logout", QDBusError::AccessDenied}};
        for (const auto& command : commands) {
            SCOPED_TRACE(command.call);
            services.calls.clear();
            probe.tap(command.key);
            ASSERT_TRUE(says(std::string("QVFeedbackOverlay: Set Text: ") + command.said));
            ASSERT_TRUE(served([&] { return services.calls.filter(command.call).size() == 1; }))
                << services.calls.join('\n').toStdString();
            if (isRefused) {
                ASSERT_TRUE(says(std::string("QVFeedbackOverlay: Set Text: ") + command.failed));
            }
        }
    }
    ASSERT_TRUE(quitsCleanly());
}
