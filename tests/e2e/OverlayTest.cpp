// SPDX-License-Identifier: GPL-3.0-or-later
// What stands over the picture: the on-screen display, the feedback of commands, the fades of the window, the picture
// moved by the pointer.
#include "tests/e2e/PlayerFixture.h"

#include <signal.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <fstream>
#include <map>
#include <string>

using namespace harness;

namespace {

using Values = std::map<std::string, std::string>; // a style's key and its value as the settings file has it

std::string real(double value) {
    return "<real>" + std::to_string(value) + "</real>";
}

class Overlays : public PlayerFixture {
protected:
    static constexpr int padding = 24; // QVOverlayDefaultPadding as it is shipped
    static constexpr Color panelOverRed{74, 14, 18};
    enum class Corner { left, right };

    // A minute of plain red that is larger than the screen.
    static std::string plain() {
        return media()
            .makeColored("plain.mp4", {red}, 60, 2560, 1440, 5,
                         {"-c:v", "libx264", "-preset", "ultrafast", "-pix_fmt", "yuv420p"})
            .string();
    }

    static std::string quarters() {
        return media()
            .make("quarters.mp4", {"-f", "lavfi", "-i", "color=c=0xC80000:s=1280x720:r=5:d=60", "-vf",
                                   "drawbox=x=640:w=640:color=0x009600:t=fill,"
                                   "drawbox=y=360:w=640:h=360:color=0x0000C8:t=fill",
                                   "-c:v", "libx264", "-preset", "ultrafast", "-pix_fmt", "yuv420p"})
            .string();
    }

    void writeSettings(const std::string& entries) {
        std::filesystem::create_directories(user.settingsFile().parent_path());
        std::ofstream(user.settingsFile())
            << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>" << entries
            << "</dict></plist>\n";
    }

    void writeStyles(const std::map<std::string, Values>& styles) {
        std::string entries = "<key>QVOverlayStyles</key><dict>";
        for (const auto& [name, values] : styles) {
            entries += "<key>" + name + "</key><dict>";
            for (const auto& [key, value] : values)
                entries += "<key>" + key + "</key>" + value;
            entries += "</dict>";
        }
        writeSettings(entries + "</dict>");
    }

    struct Seen {
        Region panel; // what is not the picture
        Region text;  // what is bright in it
    };

    // What stands in the upper half of the screen over a red picture, at one side.
    Seen look(Corner corner) {
        const Region part{corner == Corner::left ? 0 : screenWidth / 2, 0, screenWidth / 2, screenHeight / 2};
        const Picture picture = probe.picture(part);
        return {picture.extentWhere([](const Color& color) { return !color.isNear(red, 60); }),
                picture.extentWhere([](const Color& color) { return color.green > 150; })};
    }

    // Whether a panel in full opacity stands in the corner, and a text in its middle.
    testing::AssertionResult panelStands(Corner corner) {
        Seen seen;
        Color ground;
        const auto near = [](int a, int b) { return std::abs(a - b) <= 3; };
        const bool stands = waitUntil([&] {
            seen = look(corner);
            const Region &panel = seen.panel, &text = seen.text;
            if (text.width == 0)
                return false;
            ground = probe.pixel(panel.x + panel.width / 2, panel.y + 4);
            const bool placed =
                panel.y == padding &&
                (corner == Corner::left ? panel.x == padding : near(panel.x + panel.width, screenWidth - padding));
            // The letters' own space to the left and right is not the same.
            const bool centred = std::abs((text.x - panel.x) - (panel.x + panel.width - text.x - text.width)) <= 8;
            const bool inside =
                text.x >= panel.x + 8 && text.y >= panel.y + 8 && text.y + text.height <= panel.y + panel.height - 6;
            const bool legible = text.height >= 18 && panel.height <= 64;
            return placed && centred && inside && legible && ground.isNear(panelOverRed, 16);
        });
        if (stands)
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << "panel " << seen.panel << ", text " << seen.text << ", ground " << ground;
    }

    bool panelGoes(Corner corner) {
        return waitUntil([&] { return look(corner).panel.width == 0; });
    }

    // The texts that the overlay was given, in their order.
    std::vector<std::string> textsOf(const std::string& overlay) {
        const std::string mark = overlay + ": Set Text: ";
        std::vector<std::string> texts;
        for (const std::string& line : player->errorLines())
            if (const auto at = line.find(mark); at != std::string::npos)
                texts.push_back(line.substr(at + mark.size()));
        return texts;
    }

    void startPlain(std::vector<std::string> arguments = {}) {
        arguments.push_back(plain());
        start(arguments);
        ASSERT_TRUE(colorBecomes(red));
    }

    // Whether the colours of the quarters meet there: blue is the lower left one, all the right is green.
    bool meet(int x, int y) {
        return std::abs(probe.extentOf(green).x - x) <= 2 && std::abs(probe.extentOf(blue).y - y) <= 2;
    }
    bool meetsAt(int x, int y) {
        return waitUntil([&] { return meet(x, y); });
    }
};

} // namespace

TEST_F(Overlays, the_display_walks_through_its_types_and_stands_at_the_top_left) {
    startPlain();
    const struct {
        const char* text;
        std::vector<KeySym> modifiers;
    } types[] = {{"Time: 0:00:0", {}}, {"Movie: plain.mp4 (1/1)", {}}, {"Subtitles: None", {}},
                 {"Loop: Off", {}},    {"Volume: 100%", {}},           {"", {}},
                 {"", {XK_Shift_L}},   {"Loop: Off", {XK_Shift_L}}};
    for (const auto& type : types) {
        const std::size_t from = player->lineCount();
        probe.tap(XK_d, type.modifiers);
        if (type.text[0] == '\0' && type.modifiers.empty()) {
            EXPECT_TRUE(panelGoes(Corner::left)) << "type 0 shows something";
            continue;
        }
        // What has the same text still is shown anew after type 0, without being set.
        if (type.text[0] != '\0') {
            EXPECT_TRUE(logs(std::string("QVOSDOverlay: Set Text: ") + type.text, from));
        }
        EXPECT_TRUE(panelStands(Corner::left)) << type.text;
    }
    EXPECT_EQ(look(Corner::right).panel, Region{}) << "the display is confirmed by a message";
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Overlays, commands_of_a_playing_movie_are_confirmed_at_the_top_right) {
    // A message stays long enough to be looked at on a busy machine, too.
    writeStyles({{"Feedback", {{"FadingDelayInterval", real(5)}}}});
    startPlain({"--set", "QVJumpInterval=3"});
    const struct {
        KeySym key;
        std::vector<KeySym> modifiers;
        std::string feedback; // empty: nothing is said
    } presses[] = {{XK_m, {}, "Mute: On"},
                   {XK_m, {}, "Mute: Off"},
                   {XK_Up, {}, "Volume: 110%"},
                   {XK_Down, {}, "Volume: 100%"},
                   {XK_Tab, {}, ""}, // there is no other screen
                   {XK_s, {}, "Subtitles: None"},
                   {XK_l, {}, "Loop: One"},
                   {XK_l, {XK_Shift_L}, "Loop: Off"},
                   {XK_Right, {XK_Control_L}, "Jump Forward 3 s"},
                   {XK_Left, {XK_Control_L}, "Jump Backward 3 s"},
                   {XK_Right, {}, "Fast Forward x2"},
                   {XK_Right, {}, "Fast Forward x4"},
                   {XK_Left, {}, "Fast Rewind x2"},
                   {XK_space, {}, "Movie: Play"},
                   {XK_Left, {XK_Alt_L}, "Movie: Beginning"},
                   {XK_space, {}, "Movie: Pause"}};
    std::vector<std::string> expected;
    for (const auto& press : presses) {
        probe.tap(press.key, press.modifiers);
        if (press.feedback.empty())
            continue;
        expected.push_back(press.feedback);
        ASSERT_TRUE(waitUntil([&] { return textsOf("QVFeedbackOverlay").size() >= expected.size(); }))
            << "nothing was said: " << press.feedback;
        ASSERT_EQ(textsOf("QVFeedbackOverlay"), expected);
        EXPECT_TRUE(panelStands(Corner::right)) << press.feedback;
    }
    EXPECT_TRUE(panelGoes(Corner::right)) << "the last message stays";
    ASSERT_TRUE(quitsCleanly());
    EXPECT_EQ(textsOf("QVFeedbackOverlay").back(), "Quit");
}

TEST_F(Overlays, the_window_fades_in_at_launch_and_then_the_movie_starts) {
    writeStyles({{"Full Screen", {{"FadingInInterval", real(3)}, {"BackgroundColor", "<string>1 1 1 1</string>"}}}});
    start({plain()});
    int steps = 0, last = 0;
    EXPECT_TRUE(waitUntil([&] {
        const Color seen = probe.pixel(320, 600);
        if (seen.green != seen.red)
            return true; // the movie
        EXPECT_GE(seen.red, last) << "it darkens";
        steps += seen.red > last && seen.red < 255;
        last = seen.red;
        return false;
    }));
    EXPECT_GE(steps, 3) << "it stood at once";
    EXPECT_GE(last, 200) << "the movie did not wait for the window";
    EXPECT_TRUE(logs("QVFullScreenWindow: Start Fading IN, interval: 3.000000"));
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Overlays, quitting_fades_out_and_then_ends_whatever_is_going_on) {
    writeStyles({{"Full Screen", {{"FadingOutInterval", real(2)}}}});
    for (const bool menu : {false, true}) {
        SCOPED_TRACE(menu);
        startPlain();
        if (menu) {
            const auto window = probe.windowAt(320, 220);
            probe.click(300, 200, 3);
            ASSERT_TRUE(waitUntil([&] { return probe.windowAt(320, 220) != window; })) << "no menu opened";
        }
        const auto asked = std::chrono::steady_clock::now();
        player->signal(SIGTERM);
        bool darkened = false;
        EXPECT_TRUE(waitUntil([&] {
            const int seen = probe.pixel(1000, 600).red;
            darkened = darkened || (seen > 8 && seen < 150);
            return !player->isRunning();
        }));
        const Seconds took = std::chrono::steady_clock::now() - asked;
        EXPECT_EQ(player->waitForExit(), 0);
        EXPECT_TRUE(darkened) << "it went at once";
        EXPECT_GE(took.count(), 1.5);
    }
}

TEST_F(Overlays, dragging_moves_a_picture_larger_than_the_screen_as_far_as_its_edge) {
    start({quarters()});
    ASSERT_TRUE(meetsAt(640, 360));
    probe.drag(600, 300, 700, 350);
    EXPECT_TRUE(staysTrue([&] { return meet(640, 360); }, Seconds(0.3))) << "a picture that fits moved";
    probe.tap(XK_2);
    ASSERT_TRUE(logs("Size: Double"));
    ASSERT_TRUE(meetsAt(640, 360));
    probe.drag(600, 300, 700, 350);
    EXPECT_TRUE(meetsAt(740, 410));
    probe.drag(700, 350, 400, 150);
    EXPECT_TRUE(meetsAt(440, 210));
    probe.drag(1100, 600, 300, 200);
    EXPECT_TRUE(waitUntil([&] {
        return probe.extentOf(green) == Region{0, 0, screenWidth, screenHeight};
    })) << "it ends somewhere else than at the picture's edge";
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Overlays, sound_shows_its_cover_and_title_and_its_bar_works) {
    const auto cover =
        media().make("cover.png", {"-f", "lavfi", "-i", "color=c=0xC80000:s=600x600:d=1", "-frames:v", "1"});
    const auto song =
        media().make("song.mp3", {"-f", "lavfi", "-i", "sine=d=60", "-i", cover.string(), "-map", "0:a", "-map", "1:v",
                                  "-c:v", "copy", "-disposition:v:0", "attached_pic", "-metadata", "title=Sea Song"});
    start({"--set", "QVControllerVisible=true", song.string()});
    const Region square{(screenWidth - screenHeight / 2) / 2, 0, screenHeight / 2, screenHeight / 2};
    Region seen;
    ASSERT_TRUE(waitUntil([&] {
        seen = probe.extentOf(red);
        return seen.x == square.x && seen.width == square.width && seen.height == square.height;
    })) << seen;
    const int below = seen.y + seen.height;
    const Region text =
        probe.picture({0, below, screenWidth, screenHeight - 16 - below}).extentWhere([](const Color& color) {
            return color.green > 150;
        });
    EXPECT_GE(text.height, 20) << "the title";
    EXPECT_LE(std::abs(2 * text.x + text.width - screenWidth), 4) << "below the cover's middle: " << text;
    // The bar stands at the bottom, and its slider moves the time.
    probe.tap(XK_d);
    ASSERT_TRUE(logs("QVOSDOverlay: Set Text: Time: 0:00:0"));
    probe.click(screenWidth * 3 / 4, screenHeight - 8);
    EXPECT_TRUE(logs("QVOSDOverlay: Set Text: Time: 0:00:4"));
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Overlays, an_empty_player_says_how_to_open_a_movie_until_there_is_one) {
    start({});
    const auto text = [&] { return probe.screen().extentWhere([](const Color& color) { return color.green > 80; }); };
    EXPECT_TRUE(waitUntil([&] {
        const Region seen = text();
        return seen.height > 30 && seen.height < 120 && std::abs(2 * seen.y + seen.height - screenHeight) < 20 &&
               std::abs(2 * seen.x + seen.width - screenWidth) < 8;
    })) << text();
    startAnother({plain()})->waitForExit();
    EXPECT_TRUE(colorBecomes(red));
    EXPECT_EQ(text(), Region{});
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Overlays, the_pointer_hides_when_it_rests_and_comes_back_when_it_moves) {
    startPlain({"--set", "QVCursorAutohideDelay=3"});
    probe.movePointer(500, 400);
    ASSERT_TRUE(waitUntil([&] { return probe.pointerShows(); }));
    EXPECT_TRUE(waitUntil([&] { return !probe.pointerShows(); })) << "it stays";
    probe.movePointer(520, 420);
    EXPECT_TRUE(waitUntil([&] { return probe.pointerShows(); })) << "it does not come back";
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Overlays, a_damaged_style_keeps_the_program_neither_from_starting_nor_from_ending) {
    const auto startAndEnd = [this] {
        start({plain()});
        ASSERT_TRUE(logs("Start Playing movie"));
        probe.tap(XK_d);
        ASSERT_TRUE(logs("QVOSDOverlay: Set Text: Time"));
        player->signal(SIGTERM);
        EXPECT_EQ(player->waitForExit(), 0) << player->errorOutput();
        for (const std::string& fault : player->faults())
            ADD_FAILURE() << fault;
    };
    for (const char* value : {"<real>nan</real>", "<real>1e9</real>", "<real>-1e9</real>", "<string>1e9 -1e9</string>",
                              "<string></string>", "<array><string>1</string></array>"}) {
        SCOPED_TRACE(value);
        Values values;
        for (const char* key :
             {"TextColor", "TextFontName", "TextFontSize", "ShadowOn", "ShadowColor", "ShadowRadius", "ShadowOffset",
              "BackgroundOn", "BackgroundColor", "BackgroundRounded", "BackgroundRadius", "FrameOn", "FrameWidth",
              "Alignment", "FadingInInterval", "FadingOutInterval", "FadingDelayInterval", "MinAlpha", "MaxAlpha"})
            values[key] = value;
        Values visible = values; // a window without opacity takes no keys
        visible.erase("MinAlpha");
        visible.erase("MaxAlpha");
        writeStyles({{"OSD", values}, {"Feedback", values}, {"Full Screen", visible}});
        startAndEnd();
    }
    for (const char* entries : {"<key>QVOverlayStyles</key><array/>",
                                "<key>QVOverlayStyles</key><dict><key>OSD</key><string>none</string></dict>",
                                "<key>QVOSDOverlayStyle</key><string>No Such Style</string>"}) {
        SCOPED_TRACE(entries);
        writeSettings(entries);
        startAndEnd();
    }
}
