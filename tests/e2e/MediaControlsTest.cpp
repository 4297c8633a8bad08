// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/e2e/PlayerFixture.h"
#include "tests/support/PrivateBus.h"

#include <QUrl>

using namespace harness;

namespace {

/// The program on a message bus of the test's own, driven by the program that desktops' keys run.
class MediaControls : public PlayerFixture {
protected:
    std::map<std::string, std::string> environment() const {
        return {{"DBUS_SESSION_BUS_ADDRESS", qgetenv("DBUS_SESSION_BUS_ADDRESS").toStdString()}};
    }
    void startOnBus(const std::vector<std::string>& arguments) {
        startRecorded(LUMARO_PROGRAM, environment(), arguments);
    }
    /// What playerctl answers, without the end of its last line.
    std::string control(const std::vector<std::string>& arguments) {
        ChildProcess::Options options;
        options.arguments = {"playerctl", "--player=lumaro"};
        options.arguments.insert(options.arguments.end(), arguments.begin(), arguments.end());
        options.environment = environment();
        ChildProcess process(options);
        process.waitForExit();
        const QByteArray text = QByteArray::fromStdString(process.output());
        return text.trimmed().toStdString();
    }
    testing::AssertionResult answers(const std::vector<std::string>& arguments, const std::string& wanted) {
        std::string last;
        if (waitUntil([&] { return (last = control(arguments)) == wanted; }))
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << "\"" << last << "\" in place of \"" << wanted << "\"";
    }

    PrivateBus bus;
};

} // namespace

TEST_F(MediaControls, playerctl_drives_the_player_and_sees_what_it_plays) {
    const std::string first = numbered("red.mp4", red, 300);
    const std::string second = numbered("green.mp4", green, 300);
    startOnBus({"--set", "QVPlaylistAutoPlay=0", first, second});
    ASSERT_TRUE(frameBecomes(0));
    ASSERT_TRUE(answers({"status"}, "Stopped"));
    EXPECT_EQ(control({"metadata", "xesam:title"}), "red.mp4");
    EXPECT_EQ(control({"metadata", "mpris:length"}), "10000000");
    EXPECT_EQ(QUrl(QString::fromStdString(control({"metadata", "xesam:url"}))).toLocalFile().toStdString(), first);
    // A still comes a moment later.
    std::string art;
    ASSERT_TRUE(waitUntil([&] { return !(art = control({"metadata", "mpris:artUrl"})).empty(); }));
    EXPECT_TRUE(std::filesystem::exists(QUrl(QString::fromStdString(art)).toLocalFile().toStdString()));

    control({"play"});
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 2; }, "playing"));
    EXPECT_TRUE(answers({"status"}, "Playing"));
    control({"pause"});
    EXPECT_TRUE(answers({"status"}, "Paused"));
    ASSERT_TRUE(settledFrame());
    control({"position", "5"});
    EXPECT_TRUE(frameBecomes(150));
    EXPECT_EQ(control({"position"}), "5.000000");
    control({"position", "2-"});
    EXPECT_TRUE(frameBecomes(90));
    control({"volume", "0.5"});
    EXPECT_TRUE(answers({"volume"}, "0.500000"));
    control({"loop", "Track"});
    EXPECT_TRUE(answers({"loop"}, "Track"));
    control({"next"});
    EXPECT_TRUE(colorBecomes(green));
    EXPECT_TRUE(answers({"metadata", "xesam:title"}, "green.mp4"));
    EXPECT_NE(control({"status"}), "Playing") << "what rests stays at rest";
    control({"open", numbered("blue.mp4", blue, 300)});
    EXPECT_TRUE(colorBecomes(blue));
    control({"play-pause"});
    EXPECT_TRUE(answers({"status"}, "Playing"));
    control({"stop"});
    EXPECT_TRUE(frameBecomes(0));
    ASSERT_TRUE(quitsCleanly());
    EXPECT_FALSE(std::filesystem::exists(QUrl(QString::fromStdString(art)).toLocalFile().toStdString()));
}
