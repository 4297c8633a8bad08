// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/e2e/PreferencesFixture.h"
#include "tests/support/FakePortal.h"
#include "tests/support/PrivateBus.h"

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <utility>
#include <vector>

using namespace harness;

namespace {

class Preferences : public PreferencesFixture {};

} // namespace

TEST_F(Preferences, are_changed_without_a_mouse_while_the_movie_plays_on) {
    start({"--set", "QVPauseOnDeactivate=1", numbered("red.mp4", red, 900)});
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 2; }, "playing"));
    ASSERT_TRUE(opens());
    const std::size_t before = keysHeard();
    probe.tap(XK_f, {XK_Alt_L});
    EXPECT_TRUE(stores("QVOnLaunchDefaultAction", "<integer>2</integer>")) << "a radio button";
    probe.tap(XK_z, {XK_Alt_L});
    probe.tap(XK_Home);
    EXPECT_TRUE(stores("QVDefaultMovieSize", "<integer>0</integer>")) << "a pop-up";
    EXPECT_TRUE(probe.waitForColor(5, 5, Color{0, 0, 0})) << "the movie is half as large";
    probe.tap(XK_Tab);
    probe.tap(XK_Tab);
    probe.tap(XK_space);
    EXPECT_TRUE(stores("QVControllerVisible", "<true/>")) << "a check box";
    EXPECT_TRUE(logs("Showing movie contoller."));
    probe.tap(XK_Tab);
    probe.tap(XK_End);
    EXPECT_TRUE(stores("QVControllerOverPicture", "<integer>2</integer>")) << "the other bar";
    probe.tap(XK_Home);
    EXPECT_TRUE(stores("QVControllerOverPicture", "<integer>0</integer>"));
    probe.tap(XK_Tab);
    probe.tap(XK_3);
    probe.tap(XK_5);
    EXPECT_TRUE(stores("QVJumpInterval", "<integer>35</integer>")) << "a number";
    EXPECT_EQ(keysHeard(), before) << "the player hears of no key";
    EXPECT_FALSE(isLogged("Saved movie state")) << "its own window pauses the movie";

    for (const bool byEscape : {true, false}) {
        if (byEscape)
            probe.tap(XK_Escape);
        else
            probe.tap(XK_w, {XK_Control_L});
        EXPECT_TRUE(closes());
        // The keyboard is the player's again.
        EXPECT_TRUE(tapUntil(XK_m, [&] { return isLogged("Char: \"m\""); }));
        EXPECT_TRUE(opens());
    }
    probe.tap(XK_Escape);
    EXPECT_TRUE(closes());
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Preferences, act_at_once_on_what_is_drawn_and_played) {
    const std::string movie = (user.folder() / "film.mp4").string();
    std::filesystem::copy_file(numbered("red.mp4", red, 900), movie);
    for (const char* language : {"de", "en"})
        std::ofstream(user.folder() / ("film." + std::string(language) + ".srt"))
            << "1\n00:00:00,000 --> 00:01:00,000\n<i>" << language << "</i>\n";
    writeSettings("<key>QVPreferredLanguages</key><array><string>en</string><string>de</string></array>");
    start({movie});
    ASSERT_TRUE(logs("Switching to subtitles stream: \"film.en.srt\""));
    ASSERT_TRUE(opens());
    struct Row {
        KeySym page, control;
        std::vector<KeySym> then;
        std::string key, value, acts;
    };
    // Changed by the letters of the page and of the control; what the player says that it did.
    const std::vector<Row> rows{
        {XK_s, XK_h, {}, "QVDisplaySubtitles", "<false/>", "Turning subtitles OFF"},
        {XK_s, XK_h, {}, "QVDisplaySubtitles", "<true/>", "Turning subtitles ON"},
        {XK_s, XK_u, {}, "QVSubtitlesMarkup", "<false/>", "Set Text: <i>en</i>"},
        {XK_s, XK_d, {}, "QVSubtitlesRepair", "<true/>", "Added 1 subtitles stream(s) from file \"film.de.srt\""},
        {XK_s, XK_w, {}, "QVPreferredLanguages", "<array>", "Switching to subtitles stream: \"film.de.srt\""},
        {XK_o, XK_d, {XK_End}, "QVOverlayDefaultPadding", "<real>120</real>", "Overlay Frame After Recalc: x:120"},
        {XK_o, XK_t, {XK_End}, "QVOverlayTextFontSizeMin", "<integer>72</integer>", "Changed minimum text size to: 72"},
        {XK_o, XK_r, {}, "QVDisplayFeedback", "", "Overlay Frame After Recalc: x:24"}, // the page as it was
        {XK_p, XK_t, {}, "QVPlaylistDefaultArrangement", "<integer>2</integer>", "Playlist after sort:"},
        {XK_m, XK_b, {}, "QVControllerVisible", "<true/>", "Showing movie contoller."},
    };
    for (const Row& row : rows) {
        const std::size_t before = player->errorLines().size();
        probe.tap(row.page, {XK_Alt_L});
        probe.tap(row.control, {XK_Alt_L});
        for (const KeySym key : row.then)
            probe.tap(key);
        EXPECT_TRUE(logs(row.acts, before)) << row.key;
    }
    // The last value of each; the page that went back holds none.
    EXPECT_TRUE(stores("QVControllerVisible", "<true/>"));
    for (const Row& row : rows) {
        const bool isLast = &row == &rows.back() || row.key != (&row + 1)->key;
        if (row.page == XK_o) {
            EXPECT_EQ(user.settingsText().find("<key>" + row.key + "</key>"), std::string::npos) << row.key;
        } else if (isLast) {
            EXPECT_TRUE(stores(row.key, row.value)) << row.key;
        }
    }
    probe.tap(XK_Escape);
    EXPECT_TRUE(closes());
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Preferences, show_odd_values_without_touching_them_and_say_once_that_nothing_can_be_stored) {
    const std::vector<std::pair<std::string, std::string>> odd{
        {"QVJumpInterval", "<integer>9999</integer>"},     {"QVCursorAutohideDelay", "<integer>60</integer>"},
        {"QVMainWindowLayer", "<integer>77</integer>"},    {"QVPlaylistDefaultLooping", "<string>?</string>"},
        {"QVOverlayDefaultPadding", "<real>500.5</real>"}, {"QVSubtitlesEncodingsList", "<integer>3</integer>"},
        {"QVPreferredLanguages", "<string>de</string>"}};
    std::string entries;
    for (const auto& [key, value] : odd)
        entries += "<key>" + key + "</key>" + value;
    writeSettings(entries);
    start({numbered("red.mp4", red, 900)});
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 2; }, "playing"));
    ASSERT_TRUE(opens());
    for (const KeySym page : std::vector<KeySym>{XK_p, XK_s, XK_o, XK_a, XK_m})
        probe.tap(page, {XK_Alt_L});
    EXPECT_TRUE(staysTrue([&] { return !isLogged(" changed to: "); }, Seconds(1.5)));
    for (const auto& [key, value] : odd)
        EXPECT_TRUE(stores(key, value));

    // From here on the settings cannot be written: a folder lies in the file's place.
    std::filesystem::rename(user.settingsFile(), user.folder() / "away");
    std::filesystem::create_directories(user.settingsFile() / "in the way");
    const WindowId window = probe.windowAt(screenWidth / 2, screenHeight / 2);
    probe.tap(XK_b, {XK_Alt_L});
    EXPECT_TRUE(logs("Showing movie contoller.")) << "it acts all the same";
    const auto hasAlert = [&] { return probe.windowAt(screenWidth / 2, screenHeight / 2) != window; };
    ASSERT_TRUE(waitUntil(hasAlert));
    EXPECT_TRUE(tapUntil(XK_Return, [&] { return !hasAlert(); }));
    EXPECT_TRUE(tapUntil(XK_space, [&] { return isLogged("Hiding movie contoller."); })) << "the keyboard is back";
    EXPECT_TRUE(staysTrue([&] { return !hasAlert(); }, Seconds(2)));
    player->signal(SIGTERM);
    EXPECT_EQ(player->waitForExit(), 0);
}

TEST_F(Preferences, are_entered_by_tab_from_the_names_of_the_pages) {
    start({numbered("red.mp4", red, 900), "--set", "QVPlaylistAutoPlay=0"});
    ASSERT_TRUE(frameBecomes(0));
    ASSERT_TRUE(opens());
    probe.tap(XK_Tab); // the radio button that is on
    probe.tap(XK_Down);
    EXPECT_TRUE(stores("QVOnLaunchDefaultAction", "<integer>")) << "another one";
    probe.tap(XK_Escape);
    EXPECT_TRUE(closes());
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Preferences, are_walked_by_tab_through_every_page_and_back_without_changing_anything) {
    start({"--set", "QVPlaylistAutoPlay=0", numbered("red.mp4", red, 900)});
    ASSERT_TRUE(frameBecomes(0));
    ASSERT_TRUE(opens());
    // What the screen shows once a key has acted on it; the cursor of a text blinks more slowly.
    const auto shownAfter = [this](KeySym key, const std::vector<KeySym>& modifiers = {}) {
        Picture last = probe.screen();
        probe.tap(key, modifiers);
        EXPECT_TRUE(waitUntil([&] { return probe.screen().pixels != last.pixels; })) << "it holds the keyboard";
        waitUntil([&] {
            last = probe.screen();
            return staysTrue([&] { return probe.screen().pixels == last.pixels; }, Seconds(0.1));
        });
        return last;
    };
    shownAfter(XK_Tab);
    constexpr std::size_t pages = 7, enough = 80;
    for (std::size_t page = 0; page < pages && !HasFailure(); ++page) {
        SCOPED_TRACE(page);
        if (page > 0)
            shownAfter(XK_Tab, {XK_Control_L});
        // A round is made when the keyboard is where it was before. Overlays that come with a page may come later.
        std::vector<std::vector<std::uint32_t>> stops;
        const auto isRound = [&](const Picture& now) { return std::ranges::count(stops, now.pixels) > 0; };
        for (Picture now = shownAfter(XK_Tab); !isRound(now) && stops.size() < enough; now = shownAfter(XK_Tab))
            stops.push_back(now.pixels);
        EXPECT_GT(stops.size(), 4) << "page " << page;
        EXPECT_LT(stops.size(), enough) << "page " << page;
    }
    EXPECT_FALSE(isLogged(" changed to: "));
    probe.tap(XK_Escape);
    EXPECT_TRUE(closes());
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Preferences, and_panels_keep_from_the_player_what_is_typed_before_they_have_the_keyboard) {
    start({numbered("red.mp4", red, 900), "--set", "QVPlaylistAutoPlay=0"});
    ASSERT_TRUE(frameBecomes(0));
    probe.tap(XK_comma, {XK_Control_L});
    for (const KeySym key : std::vector<KeySym>{XK_Tab, XK_Down, XK_Escape})
        probe.tap(key);
    EXPECT_TRUE(stores("QVOnLaunchDefaultAction", "<integer>")) << "the next radio button";
    const WindowId movie = probe.windowAt(20, 100);
    const auto isAlone = [&] { return probe.windowAt(screenWidth / 2, screenHeight / 2) == movie; };
    EXPECT_TRUE(waitUntil(isAlone)) << "Escape closes it";
    struct Panel {
        KeySym key;
        std::vector<KeySym> modifiers;
    };
    for (const Panel& panel : std::vector<Panel>{{XK_comma, {XK_Control_L}}, {XK_u, {XK_Control_L}}, {XK_F1, {}}}) {
        probe.tap(panel.key, panel.modifiers);
        probe.tap(XK_Escape);
        std::this_thread::sleep_for(Seconds(0.5));
        EXPECT_TRUE(waitUntil([&] {
            if (!isAlone())
                probe.tap(XK_Escape);
            return staysTrue(isAlone, Seconds(0.5));
        })) << panel.key;
    }
    EXPECT_FALSE(isLogged("ESC pressed"));
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Preferences, give_a_command_another_key_which_acts_at_once_and_at_the_next_start) {
    const std::string movie = numbered("red.mp4", red, 900);
    start({"--set", "QVPlaylistAutoPlay=0", movie});
    ASSERT_TRUE(frameBecomes(0));
    ASSERT_TRUE(opens());
    // Each key changes the window, and what it does is waited for: a button that is pressed by its letter acts a
    // moment after it shows that.
    const auto tap = [this](KeySym key, const std::vector<KeySym>& modifiers = {}) {
        const Picture before = probe.screen();
        probe.tap(key, modifiers);
        const bool hasChanged = waitUntil([&] { return probe.screen().pixels != before.pixels; });
        return hasChanged && waitUntil([&] {
                   const Picture now = probe.screen();
                   return staysTrue([&] { return probe.screen().pixels == now.pixels; }, Seconds(0.25));
               });
    };
    EXPECT_TRUE(tap(XK_c, {XK_Alt_L})) << "the page";
    EXPECT_TRUE(tap(XK_h, {XK_Alt_L})) << "its search";
    for (const KeySym letter : std::vector<KeySym>{XK_m, XK_u, XK_t, XK_e})
        EXPECT_TRUE(tap(letter));
    EXPECT_TRUE(tap(XK_d, {XK_Alt_L})) << "a key is asked for";
    EXPECT_TRUE(tap(XK_s)) << "which means the next subtitles";
    EXPECT_TRUE(tap(XK_space)) << "taken over";
    EXPECT_TRUE(stores("mute", "<array>"));
    probe.tap(XK_Escape);
    EXPECT_TRUE(closes());
    for (const bool isNextStart : {false, true}) {
        if (isNextStart) {
            start({"--set", "QVPlaylistAutoPlay=0", movie});
            ASSERT_TRUE(frameBecomes(0));
        }
        EXPECT_TRUE(tapUntil(XK_s, [&] { return isLogged("Set Text: Mute"); })) << isNextStart;
        EXPECT_FALSE(isLogged("Set Text: Subtitles")) << isNextStart;
        ASSERT_TRUE(quitsCleanly());
    }
}

TEST_F(Preferences, go_with_the_player) {
    start({numbered("red.mp4", red, 900)});
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 2; }, "playing"));
    ASSERT_TRUE(opens());
    player->signal(SIGTERM);
    EXPECT_EQ(player->waitForExit(), 0);
    EXPECT_TRUE(player->faults().empty());
}

TEST_F(Preferences, show_a_style_on_the_screen_while_it_is_changed) {
    start({"--set", "QVPauseOnDeactivate=0", numbered("red.mp4", red, 900)});
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 2; }, "playing"));
    ASSERT_TRUE(opens());
    // The right end of the panel that confirmations stand on, beside the window.
    constexpr int x = 1249, y = 50;
    const Color panel{74, 14, 18};
    EXPECT_TRUE(probe.pixel(x, y).isNear(red));
    probe.tap(XK_o, {XK_Alt_L});
    EXPECT_TRUE(probe.waitForColor(x, y, panel)) << "a sample";
    probe.tap(XK_y, {XK_Alt_L});
    probe.tap(XK_Home);
    EXPECT_TRUE(probe.waitForColor(x, y, red)) << "without any opacity";
    probe.tap(XK_End);
    EXPECT_TRUE(probe.waitForColor(x, y, panel));
    // The window of a colour has the keyboard, and gives it back.
    const WindowId preferences = probe.windowAt(screenWidth / 2, screenHeight / 2);
    const auto isInFront = [&] { return probe.windowAt(screenWidth / 2, screenHeight / 2) == preferences; };
    probe.tap(XK_l, {XK_Alt_L});
    probe.tap(XK_space);
    EXPECT_TRUE(waitUntil([&] { return !isInFront(); }));
    EXPECT_TRUE(staysTrue([&] { return !isInFront(); }, Seconds(0.5)));
    probe.tap(XK_Escape);
    EXPECT_TRUE(waitUntil(isInFront));
    EXPECT_TRUE(staysTrue(isInFront, Seconds(0.5)));
    probe.tap(XK_s, {XK_Alt_L});
    EXPECT_TRUE(probe.waitForColor(x, y, red)) << "another page";
    probe.tap(XK_o, {XK_Alt_L});
    EXPECT_TRUE(probe.waitForColor(x, y, panel));
    probe.tap(XK_Escape);
    EXPECT_TRUE(closes());
    EXPECT_TRUE(probe.waitForColor(x, y, red)) << "closed";
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Preferences, and_menus_are_dark_while_the_desktop_is) {
    PrivateBus bus;
    FakePortal portal{PrivateBus::connection()};
    portal.colorScheme = 1U;
    ASSERT_TRUE(portal.offer());
    const auto served = [](const std::function<bool()>& done) {
        return waitUntil([&] {
            QCoreApplication::processEvents();
            return done();
        });
    };
    startRecorded(LUMARO_PROGRAM, {{"DBUS_SESSION_BUS_ADDRESS", qgetenv("DBUS_SESSION_BUS_ADDRESS").toStdString()}},
                  {"--set", "QVPlaylistAutoPlay=0", numbered("red.mp4", red, 900)});
    ASSERT_TRUE(frameBecomes(0));
    ASSERT_TRUE(served([&] { return portal.calls.contains("Read(org.freedesktop.appearance|color-scheme)"); }));
    ASSERT_TRUE(opens());
    // Left of the button at the window's lower edge.
    constexpr int x = screenWidth / 2, y = 676;
    const Color dark{46, 46, 46}, light{239, 239, 239};
    EXPECT_TRUE(probe.waitForColor(x, y, dark));
    for (const bool isDark : {false, true}) {
        portal.changeSetting("org.freedesktop.appearance", "color-scheme", isDark ? 1U : 2U);
        EXPECT_TRUE(probe.waitForColor(x, y, isDark ? dark : light)) << isDark;
    }
    probe.tap(XK_Escape);
    EXPECT_TRUE(closes());
    probe.click(screenWidth / 4, screenHeight / 2, 3);
    EXPECT_TRUE(probe.waitForColor(screenWidth / 4 + 60, screenHeight / 2 + 3, dark)) << "the menu";
    probe.tap(XK_Escape);
    ASSERT_TRUE(quitsCleanly());
}
