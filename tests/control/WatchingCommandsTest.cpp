// SPDX-License-Identifier: GPL-3.0-or-later
// Speed, and places in the movie.
#include "platform/base/Background.h"
#include "settings/SettingsKeys.h"
#include "tests/control/MovieControllerRig.h"

#include <QDir>
#include <QImage>

namespace {

namespace key = platform::functionKey;
namespace held = platform::modifier;

class WatchingCommands : public MovieControllerRig {
protected:
    /// A minute of three chapters, 600 units a second.
    std::shared_ptr<QVMovie> showChapters() {
        platform::MovieInfo info = ScriptedToolkit::plainMovie(QUrl("file:///movies/chapters.mp4"));
        info.chapters = {{6000, "Harbour"}, {12000, "Storm"}, {30000, {}}};
        auto movie = QVMovie::movieWithOpened(settings.environment, this->movies, {info, 0});
        view.setMovie(movie);
        return movie;
    }
    /// The menu's titles, the chosen one in brackets, the disabled in parentheses.
    std::string itemsOf(platform::Menu& menu) {
        QStringList list;
        for (int i = 0; i < menu.count(); ++i) {
            platform::MenuItem& shown = menu.itemAt(i);
            const bool isEnabled = shown.separator || controller.validateMenuItem(shown);
            const char* form = shown.separator ? "-" : !isEnabled ? "(%1)" : shown.state ? "[%1]" : "%1";
            list << (shown.separator ? QString(form) : QString(form).arg(shown.title));
        }
        return list.join('|').toStdString();
    }
};

} // namespace

TEST_F(WatchingCommands, Speed_is_set_by_keys_and_menu_and_leaves_the_rate_alone) {
    platform::setLocalizationLanguages({"en"});
    addMovies(1);
    const struct {
        char16_t character;
        double speed;
        const char* says;
    } cases[] = {{u']', 1.05, "1.05x"}, {u'[', 1, "1x"},     {u'{', 0.5, "0.5x"},      {u'{', 0.25, "0.25x"},
                 {u'[', 0.25, "0.25x"}, {u'}', 0.5, "0.5x"}, {key::backspace, 1, "1x"}};
    view.start();
    for (const auto& c : cases) {
        EXPECT_TRUE(press(c.character));
        EXPECT_DOUBLE_EQ(view.speed(), c.speed);
        EXPECT_EQ(posted(), text("Speed: %@", {c.says}));
        EXPECT_EQ(view.rate(), 1.0F);
        EXPECT_FALSE(view.isMuted());
    }
    perform(setSpeedOperation, 400);
    platform::Menu menu;
    controller.fillSpeedMenu(menu);
    EXPECT_EQ(itemsOf(menu),
              "0.25x|0.5x|0.75x|1x|1.25x|1.5x|2x|3x|[4x]|-|(Faster)|Slower|(Twice as Fast)|Half as Fast");
    EXPECT_EQ(menu.itemAt(3).keyHint, "Backspace");
    platform::setLocalizationLanguages({});
}

TEST_F(WatchingCommands, Chapters_are_reached_by_keys_and_menu_and_named) {
    platform::setLocalizationLanguages({"en"});
    const auto movie = showChapters();
    const struct {
        std::int32_t from;
        char16_t character;
        std::int32_t to;
        const char* says;
    } cases[] = {
        {0, key::pageDown, 6000, "Chapter 1 of 3: Harbour"},
        {6000, key::pageDown, 12000, "Chapter 2 of 3: Storm"},
        {29999, key::pageDown, 30000, "Chapter 3 of 3"},
        {30001, key::pageDown, 30001, "beep"},
        {15000, key::pageUp, 12000, "Chapter 2 of 3: Storm"},
        {12000 + 3 * 600, key::pageUp, 6000, "Chapter 1 of 3: Harbour"},
        {6100, key::pageUp, 6000, "Chapter 1 of 3: Harbour"},
        {5999, key::pageUp, 5999, "beep"},
    };
    for (const auto& c : cases) {
        view.setTime(c.from);
        confirmations.last.clear();
        desktop.beeps = 0;
        EXPECT_TRUE(press(c.character, held::shift));
        EXPECT_EQ(view.time(), c.to) << c.from;
        EXPECT_EQ(desktop.beeps > 0 ? "beep" : posted(), c.says) << c.from;
    }
    platform::Menu menu;
    view.setTime(14000);
    controller.fillChaptersMenu(menu);
    EXPECT_EQ(itemsOf(menu), "0:00:10   Harbour|[0:00:20   Storm]|0:00:50   Chapter 3 of 3");
    perform(gotoChapterOperation, 2);
    EXPECT_EQ(view.time(), 30000);
    perform(gotoChapterOperation, 3);
    EXPECT_EQ(view.time(), 30000);

    addMovies(1);
    playlist.play(0);
    view.setMovie(playlist.movieAtIndex(0));
    controller.fillChaptersMenu(menu);
    EXPECT_EQ(itemsOf(menu), "(No Chapters)");
    EXPECT_TRUE(press(key::pageUp, held::shift));
    EXPECT_EQ(posted(), "No Chapters");
    platform::setLocalizationLanguages({});
}

TEST_F(WatchingCommands, A_section_is_begun_ended_and_given_up_by_one_key) {
    platform::setLocalizationLanguages({"en"});
    press(u'l', held::control);
    EXPECT_EQ(desktop.beeps, 1) << "there is no movie";
    const auto movie = showChapters();
    const auto titleOf = [this] {
        platform::MenuItem shown = item("repeatSection", 0);
        controller.validateMenuItem(shown);
        return shown.title.toStdString() + (shown.state ? "*" : "");
    };
    EXPECT_EQ(titleOf(), "Repeat from Here");
    view.setTime(12060);
    EXPECT_TRUE(press(u'l', held::control));
    EXPECT_EQ(posted(), "Repeat from 0:00:20.1");
    EXPECT_EQ(titleOf(), "Repeat until Here");
    press(u'l', held::control);
    EXPECT_EQ(desktop.beeps, 2) << "nothing lies between";
    view.setTime(6000); // before: the places count, not their order
    press(u'l', held::control);
    EXPECT_EQ(view.repeated(), (platform::MoviePlayer::Section{6000, 12060}));
    EXPECT_EQ(posted(), "Repeat: 0:00:10.0 – 0:00:20.1");
    EXPECT_EQ(titleOf(), "Repeat Section*");
    press(u'l', held::control);
    EXPECT_EQ(view.repeated(), std::nullopt);
    EXPECT_EQ(posted(), "Repeat: Off");
    press(u'l', held::control);
    showChapters();
    EXPECT_EQ(titleOf(), "Repeat from Here") << "what was begun was of another movie";
    platform::setLocalizationLanguages({});
}

TEST_F(WatchingCommands, A_time_is_asked_for_and_gone_to) {
    press(u'g');
    EXPECT_EQ(desktop.beeps, 1);
    showChapters();
    view.setTime(6000);
    EXPECT_TRUE(press(u'g'));
    EXPECT_EQ(services.calls, QStringList("time of 10/60"));
    EXPECT_EQ(view.time(), 6000) << "cancelled";
    services.time = 12.345;
    press(u'g');
    EXPECT_EQ(view.time(), 7407);
    EXPECT_EQ(posted(), text("Time: %@", {"0:00:12.3"}));
}

TEST_F(WatchingCommands, A_still_is_saved_beside_the_others_and_its_place_said) {
    press(u's', held::control | held::shift);
    EXPECT_EQ(posted(), text("No Picture to Save"));
    const auto movie = showChapters();
    view.setTime(7407);
    player().stillPicture = QImage(64, 36, QImage::Format_RGB32);
    player().stillPicture.fill(Qt::red);
    for (const char* name : {"chapters 0.00.12.345.png", "chapters 0.00.12.345 (2).png"}) {
        confirmations.last.clear();
        EXPECT_TRUE(press(u's', held::control | held::shift));
        const QString path = pictures.filePath(name);
        for (int i = 0; i < 500 && posted().empty(); ++i) {
            platform::background::waitUntilIdle(1);
            settings.runLoop.advance(0.01);
        }
        EXPECT_EQ(posted(), text("Still: %@", {path}));
        EXPECT_EQ(QImage(path).pixelColor(5, 5), QColor(Qt::red));
    }
    EXPECT_EQ(QDir(pictures.path()).entryList(QDir::Files | QDir::Hidden).size(), 2) << "nothing else is left";
}

TEST_F(WatchingCommands, The_pictures_shape_is_changed_by_keys_and_the_view_follows) {
    platform::setLocalizationLanguages({"en"});
    const auto movie = showChapters(); // 640 by 480
    toolkit.bars = {0, 0.125, 0, 0.125};
    const struct {
        char16_t character;
        std::uint32_t modifiers;
        QSizeF size;
        const char* says;
    } cases[] = {
        {u'a', held::control, {640, 480}, "Aspect: 4:3"},
        {u'a', held::control, {853, 480}, "Aspect: 16:9"},
        {u'a', held::control, {1128, 480}, "Aspect: 2.35:1"},
        {u'a', held::control, {640, 480}, "Aspect: Automatic"},
        {u'b', held::control, {640, 360}, "Crop: On"},
        {u't', 0, {360, 640}, "Turned by 90°"},
        {u't', held::shift, {360, 640}, "Mirror: On"},
        {u'b', held::control, {480, 640}, "Crop: Off"},
        {u't', 0, {640, 480}, "Turned by 180°"},
        {u't', held::shift, {640, 480}, "Mirror: Off"},
    };
    for (const auto& c : cases) {
        EXPECT_TRUE(press(c.character, c.modifiers));
        EXPECT_NEAR(view.frame().width(), c.size.width(), 1) << c.says;
        EXPECT_NEAR(view.frame().height(), c.size.height(), 1) << c.says;
        EXPECT_NEAR(view.aspectRatio(), c.size.width() / c.size.height(), 0.01) << "of what stands on the picture";
        EXPECT_EQ(posted(), c.says);
    }
    EXPECT_EQ(player().shapeChanges, 10);
    toolkit.bars = {};
    press(u'b', held::control);
    EXPECT_EQ(posted(), "No Black Bars");
    platform::Menu menu;
    perform(setAspectOperation, 2);
    controller.fillAspectMenu(menu);
    EXPECT_EQ(itemsOf(menu), "Automatic|4:3|[16:9]|2.35:1");
    showChapters();
    EXPECT_EQ(itemsOf(menu), "[Automatic]|4:3|16:9|2.35:1") << "each movie has its own";
    platform::setLocalizationLanguages({});
}

TEST_F(WatchingCommands, Colors_and_fields_are_changed_by_keys_and_menus) {
    platform::setLocalizationLanguages({"en"});
    showChapters();
    const std::pair<char16_t, const char*> cases[] = {
        {key::f1 + 2, "Contrast: +2"},   {key::f1 + 1, "Contrast: 0"}, {key::f1 + 3, "Brightness: -2"},
        {key::f1 + 3, "Brightness: -4"}, {key::f1 + 6, "Gamma: +2"},   {key::f1 + 7, "Saturation: -2"},
        {key::f1 + 10, "Hue: +2"},
    };
    for (const auto& [character, says] : cases) {
        EXPECT_TRUE(press(character));
        EXPECT_EQ(posted(), says);
    }
    EXPECT_EQ(view.adjustment(), (platform::PictureAdjustment{0, -4, 2, -2, 2}));
    for (int i = 0; i < 60; ++i)
        perform(adjustPictureOperation, -2);
    EXPECT_EQ(view.adjustment().brightness, -100);
    EXPECT_EQ(settings.defaults().integerForKey(kQVPictureBrightness), -100) << "for every movie";
    press(key::backspace, held::control);
    EXPECT_EQ(view.adjustment(), platform::PictureAdjustment());
    platform::Menu menu;
    controller.fillColorsMenu(menu);
    EXPECT_EQ(itemsOf(menu), "Less Contrast|More Contrast|Darker|Brighter|Less Gamma|More Gamma|Less Saturation|"
                             "More Saturation|Hue towards Red|Hue towards Green|-|(Original Colors)");
    for (const char* says : {"On", "Off", "Automatic"}) {
        EXPECT_TRUE(press(u'i', held::control));
        EXPECT_EQ(posted(), std::string("Deinterlacing: ") + says);
    }
    perform(setDeinterlacingOperation, 2);
    controller.fillDeinterlacingMenu(menu);
    EXPECT_EQ(itemsOf(menu), "Automatic|On|[Off]");
    platform::setLocalizationLanguages({});
}
