// SPDX-License-Identifier: GPL-3.0-or-later
// The first launch and the version check of the real program, before a mirror on loopback.
#include "tests/e2e/PlayerFixture.h"
#include "tests/support/network/MirrorServer.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <string>

using namespace harness;

namespace {

using Manner = MirrorServer::Manner;

class FirstLaunch : public PlayerFixture {
protected:
    static QByteArray newerVersion() {
        return "<plist version=\"1.0\"><dict><key>org.lumaro.Lumaro</key><dict><key>Release</key><dict>"
               "<key>Version</key><string>9.9</string><key>Build</key><string>1000</string>"
               "<key>Page</key><string>get.html</string></dict></dict></dict></plist>";
    }
    // A system with the mirror, whose questions nobody has answered.
    void configure(const std::string& more = {}) {
        user.configureSystem("<key>org.lumaro.VersionMirrors</key><array><string>" +
                             mirror.url("/root/").toString().toStdString() + "</string></array>" + more);
    }
    void launch(const std::string& movie) {
        player = startAnother({"--set", "QVEnableTrace=1", "--set", "QVOnLaunchDefaultAction=0", movie});
    }
    // Whether the settings file gets the entry, or loses it.
    testing::AssertionResult stores(const std::string& entry) {
        const bool isStored =
            waitUntil([&] { return withoutSpaces(user.settingsText()).find(entry) != std::string::npos; });
        return isStored ? testing::AssertionSuccess()
                        : testing::AssertionFailure() << "not stored: " << entry << "\n"
                                                      << user.settingsText();
    }
    bool isStored(const std::string& key) const { return user.settingsText().find(key) != std::string::npos; }
    double secondsToEnd() {
        const auto start = std::chrono::steady_clock::now();
        player->signal(SIGTERM);
        EXPECT_EQ(player->waitForExit(), 0);
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }

    MirrorServer mirror;

private:
    static std::string withoutSpaces(std::string text) {
        std::erase_if(text, [](char letter) { return letter == ' ' || letter == '\t' || letter == '\n'; });
        return text;
    }
};

} // namespace

TEST_F(FirstLaunch, asks_checks_and_skips_and_the_next_launch_is_quiet) {
    mirror.answer("/root/versions.plist", {.body = newerVersion()});
    configure("<key>QVNewVersionCheckingPeriod</key><integer>0</integer>");
    const std::string movie = numbered("red.mp4", red, 900);
    launch(movie);
    EXPECT_TRUE(tapUntil(XK_Return, [&] { return isLogged("Launching Help panel"); })) << "answered with OK";
    EXPECT_TRUE(stores("<key>QVNewVersionShouldCheck</key><true/>"));
    EXPECT_FALSE(isStored("QVLastVersionSeen"));
    EXPECT_EQ(mirror.asked().size(), 0);
    const auto isChecked = [&] { return !mirror.asked().isEmpty(); };
    EXPECT_TRUE(tapUntil(XK_Escape, isChecked)) << "the help is closed";
    EXPECT_TRUE(stores("<key>QVLastVersionSeen</key><integer>40</integer>"));
    ASSERT_TRUE(logs("Local version is outdated."));
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 2; }, "playing behind the alert"));
    EXPECT_TRUE(waitUntil([&] {
        probe.tap(XK_s, {XK_Alt_L});
        return waitUntil([&] { return isLogged("Skipping version upon request."); }, Seconds(0.25));
    }));
    EXPECT_TRUE(stores("<key>QVNewVersionSkipTo</key><integer>1000</integer>"));
    EXPECT_TRUE(stores("<key>QVNewVersionStatus</key><string>NewerReleaseversion9.9available</string>"));
    EXPECT_TRUE(stores("<key>QVNewVersionLastTimeChecked</key><date>"));
    secondsToEnd();

    launch(movie);
    EXPECT_TRUE(logs("Skipping version upon request."));
    EXPECT_TRUE(logs("} END: -[QVAppController checkLatestVersion:]"));
    EXPECT_TRUE(frameBecomes([](int seen) { return seen > 2; }, "playing"));
    EXPECT_EQ(mirror.asked().size(), 2);
    EXPECT_TRUE(quitsCleanly());
}

TEST_F(FirstLaunch, told_to_end_the_player_leaves_the_question_for_the_next_launch) {
    configure();
    launch(numbered("red.mp4", red, 900));
    EXPECT_TRUE(logs("BEGIN: -[QVAppController finishLaunching]"));
    secondsToEnd();
    EXPECT_FALSE(isStored("QVNewVersionShouldCheck"));
    EXPECT_FALSE(isStored("QVLastVersionSeen"));
    EXPECT_EQ(mirror.asked().size(), 0);
}

TEST_F(FirstLaunch, a_download_that_hangs_holds_up_neither_the_movie_nor_the_end) {
    mirror.answer("/root/versions.plist", {.body = {}, .manner = Manner::silent});
    const std::string answered = "<key>QVLastVersionSeen</key><integer>1000000</integer>";
    const std::string movie = numbered("red.mp4", red, 900);
    double usual = 0;
    for (const bool checks : {false, true}) {
        configure(answered + "<key>QVNewVersionShouldCheck</key>" + (checks ? "<true/>" : "<false/>"));
        launch(movie);
        ASSERT_TRUE(frameBecomes([](int seen) { return seen > 2; }, "playing"));
        if (checks) {
            ASSERT_TRUE(waitUntil([&] { return !mirror.asked().isEmpty(); }));
            EXPECT_LT(secondsToEnd(), usual + 0.5);
        } else {
            usual = secondsToEnd();
            EXPECT_EQ(mirror.asked().size(), 0) << "nothing is fetched when checks are off";
        }
    }
    EXPECT_FALSE(isStored("QVNewVersionLastTimeChecked"));
}
