// SPDX-License-Identifier: GPL-3.0-or-later
// The first launch and the version check of the real program, before a mirror on loopback.
#include "tests/e2e/PlayerFixture.h"
#include "tests/support/network/MirrorServer.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <string>
#include <vector>

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
    const WindowId question = nextPanel();
    ASSERT_TRUE(question);
    probe.tap(XK_Return);
    EXPECT_TRUE(stores("<key>QVNewVersionShouldCheck</key><true/>"));
    const WindowId help = nextPanel(question);
    ASSERT_TRUE(help);
    EXPECT_FALSE(isStored("QVLastVersionSeen"));
    EXPECT_EQ(mirror.asked().size(), 0);
    probe.tap(XK_Escape);
    EXPECT_TRUE(stores("<key>QVLastVersionSeen</key><integer>40</integer>"));
    ASSERT_TRUE(logs("Local version is outdated."));
    EXPECT_EQ(mirror.asked().size(), 1);
    ASSERT_TRUE(nextPanel(help));
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 2; }, "playing behind the alert"));
    probe.tap(XK_s, {XK_Alt_L});
    EXPECT_TRUE(logs("Skipping version upon request."));
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

TEST_F(FirstLaunch, told_to_end_the_player_answers_nothing_of_what_is_asked) {
    mirror.answer("/root/versions.plist", {.body = newerVersion()});
    const std::string answered = "<key>QVLastVersionSeen</key><integer>1000000</integer>";
    const std::string donation = "<key>QVDonationPageURL</key><string>https://lumaro.example/</string>";
    const std::string movie = numbered("red.mp4", red, 900);
    const struct {
        const char* name;
        std::string configured;
        std::string movie;
        std::vector<KeySym> keys; // one for each panel before the one that stands at the end
        const char* log;
        std::vector<const char*> stored, absent;
        int asked;
    } cases[] = {
        {"the question", donation, movie, {}, "", {}, {"ShouldCheck", "LastVersionSeen", "AskDonation"}, 0},
        {"the help", donation, movie, {XK_Return}, "", {"ShouldCheck", "LastVersionSeen"}, {"AskDonation"}, 0},
        {"the donation", donation + answered, movie, {}, "Asking for donation", {}, {"AskDonation", "ShouldCheck"}, 0},
        {"the newer version",
         answered + "<key>QVNewVersionShouldCheck</key><true/>",
         movie,
         {},
         "Local version is outdated.",
         {},
         {"SkipTo", "LastTimeChecked", "VersionStatus"},
         1},
        {"two that come together",
         answered + "<key>QVNewVersionShouldCheck</key><true/>",
         "/nowhere/movie.mp4",
         {},
         "Local version is outdated.",
         {},
         {"SkipTo", "LastTimeChecked", "VersionStatus"},
         2},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        std::filesystem::remove(user.settingsFile());
        configure(c.configured);
        launch(c.movie);
        WindowId panel = nextPanel();
        for (const KeySym key : c.keys) {
            probe.tap(key);
            panel = nextPanel(panel);
        }
        ASSERT_TRUE(panel);
        ASSERT_TRUE(logs(c.log));
        EXPECT_LT(secondsToEnd(), 5);
        for (const char* key : c.stored)
            EXPECT_TRUE(isStored(key)) << key;
        for (const char* key : c.absent)
            EXPECT_FALSE(isStored(key)) << key;
        EXPECT_EQ(mirror.asked().size(), c.asked);
    }
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
