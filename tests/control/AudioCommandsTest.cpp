// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/Commands.h"
#include "control/QVMovieController.h"
#include "tests/control/MovieControllerRig.h"

namespace {

class AudioCommands : public MovieControllerRig {};

platform::MovieTrack sound(int id, const char* language) {
    return {.kind = platform::MovieTrack::Kind::audio, .id = id, .language = language, .codec = "ac3", .channels = 6};
}

} // namespace

TEST_F(AudioCommands, Tracks_are_chosen_by_key_and_menu_and_named) {
    platform::setLocalizationLanguages({"en"});
    toolkit.tracks = {sound(1, "eng"), sound(3, "ger"), sound(4, "")};
    const auto movie = show();
    const struct {
        char16_t key;
        std::uint32_t modifiers;
        int track;
        const char* says;
    } cases[] = {
        {u'a', 0, 3, "Audio: German, 5.1, AC-3 (2/3)"},
        {u'#', 0, 4, "Audio: Track 4, 5.1, AC-3 (3/3)"},
        {u'a', 0, 1, "Audio: English, 5.1, AC-3 (1/3)"},
        {u'a', platform::modifier::shift, 4, "Audio: Track 4, 5.1, AC-3 (3/3)"},
        {u'#', platform::modifier::shift, 1, "Audio: English, 5.1, AC-3 (1/3)"}, // as some keyboards type it
    };
    for (const auto& c : cases) {
        EXPECT_TRUE(press(c.key, c.modifiers));
        EXPECT_EQ(movie->audioTrack(), c.track);
        EXPECT_EQ(posted(), c.says);
    }
    platform::Menu menu;
    controller.fillAudioMenu(menu);
    EXPECT_EQ(titles(menu), "English, 5.1, AC-3|German, 5.1, AC-3|Track 4, 5.1, AC-3");
    controller.performMenuItem(menu.itemAt(1));
    EXPECT_EQ(movie->audioTrack(), 3);
    for (int index = 0; index < menu.count(); ++index) {
        EXPECT_TRUE(controller.validateMenuItem(menu.itemAt(index)));
        EXPECT_EQ(menu.itemAt(index).state, index == 1);
    }
    perform(changeAudioOperation, 2);
    EXPECT_EQ(movie->audioTrack(), 3) << "no such track";
    view.setMovie(nullptr);
    press(u'a');
    EXPECT_EQ(posted(), "Audio: None");
    controller.fillAudioMenu(menu);
    EXPECT_EQ(titles(menu), "None");
    EXPECT_FALSE(controller.validateMenuItem(menu.itemAt(0)));
    platform::setLocalizationLanguages({});
}

TEST_F(AudioCommands, Qualities_of_a_stream_are_chosen_by_key_and_menu_and_what_is_live_is_gone_to) {
    platform::setLocalizationLanguages({"en"});
    show();
    press(u'q');
    EXPECT_EQ(posted(), "Only One Quality");
    press(platform::functionKey::end);
    EXPECT_EQ(posted(), "Not a Live Stream");
    platform::Menu menu;
    controller.fillQualityMenu(menu);
    EXPECT_EQ(titles(menu), "Only One Quality");
    EXPECT_FALSE(controller.validateMenuItem(menu.itemAt(0)));

    for (const auto& [id, bitRate] : {std::pair(1, 700'000), std::pair(2, 3'000'000)})
        toolkit.tracks.push_back({.kind = platform::MovieTrack::Kind::video, .id = id, .variantBitRate = bitRate});
    const auto movie = show();
    press(u'q');
    EXPECT_EQ(posted(), "Quality: 700 kbit/s (2/2)");
    press(u'q');
    EXPECT_EQ(posted(), "Quality: 3 Mbit/s (1/2)");
    controller.fillQualityMenu(menu);
    controller.performMenuItem(menu.itemAt(1));
    EXPECT_EQ(movie->quality(), 1);
    EXPECT_TRUE(controller.validateMenuItem(menu.itemAt(1)) && menu.itemAt(1).state);
    player().behind = 12;
    press(platform::functionKey::end);
    EXPECT_EQ(posted(), "Live");
    EXPECT_EQ(player().livePlaces, 1);
    platform::setLocalizationLanguages({});
}
