// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/SettingsKeys.h"
#include "tests/prefs/ShownPreferences.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFocusEvent>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPixmap>
#include <QPushButton>
#include <QSlider>
#include <QTabWidget>

#include <cmath>
#include <limits>
#include <utility>

namespace {

/// What the window has beside the controls that store what they show.
class PreferencesWindow : public ShownPreferences {
protected:
    void openPage(const char* name) { control<QTabWidget>("_pages").setCurrentWidget(&control<QWidget>(name)); }
    QString openPage() { return control<QTabWidget>("_pages").currentWidget()->objectName(); }
    static bool press(QWidget& widget, int key) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
        return event.isAccepted();
    }
    QVariant stored(const QString& key) { return env.defaults().persistentDomain().value(key); }
};

} // namespace

TEST_F(PreferencesWindow, sliders_store_each_step_and_leave_alone_what_they_only_show) {
    desktop.brightnessLevels[1] = 0.5F;
    const struct {
        const char* slider;
        const QString& key;
        double stored;
        int shown;
        const char* text;
        int moved;
        double chosen;
        const char* after;
    } cases[] = {
        {"_overlayPadding", kQVOverlayDefaultPadding, 24, 24, "24 pt", 30, 30, "30 pt"},
        {"_overlayPadding", kQVOverlayDefaultPadding, 500, 120, "120 pt", 119, 119, "119 pt"},
        {"_overlayPadding", kQVOverlayDefaultPadding, -3, 0, "0 pt", 1, 1, "1 pt"},
        {"_overlayPadding", kQVOverlayDefaultPadding, std::numeric_limits<double>::quiet_NaN(), 0, "0 pt", 8, 8,
         "8 pt"},
        {"_pictureHue", kQVPictureHue, -7, -7, "-7", 12, 12, "12"},
        {"_pictureGamma", kQVPictureGamma, 500, 100, "100", -100, -100, "-100"},
        {"_screenBrightness", kQVScreenBrightness, 0.754, 75, "75 %", 80, 0.8, "80 %"},
        {"_screenBrightness", kQVScreenBrightness, 0, 5, "5 %", 6, 0.06, "6 %"},
    };
    for (const auto& c : cases) {
        show({{c.key, c.stored}, {kQVForceScreenBrightness, true}});
        auto& slider = control<QSlider>(c.slider);
        const auto& label = control<QLabel>((QByteArray(c.slider) + "Value").constData());
        EXPECT_TRUE(slider.isEnabled());
        EXPECT_EQ(slider.value(), c.shown);
        EXPECT_EQ(label.text(), c.text);
        EXPECT_EQ(keys, QStringList());
        slider.setValue(c.moved);
        EXPECT_DOUBLE_EQ(stored(c.key).toDouble(), c.chosen);
        EXPECT_EQ(label.text(), c.after);
        EXPECT_EQ(std::exchange(keys, {}), QStringList{c.key});
    }
    control<QCheckBox>("_screenForceBrightness").click();
    EXPECT_FALSE(control<QSlider>("_screenBrightness").isEnabled());
    desktop.brightnessLevels.clear(); // a screen with a knob
    show({{kQVForceScreenBrightness, true}});
    EXPECT_FALSE(control<QCheckBox>("_screenForceBrightness").isEnabled());
    EXPECT_FALSE(control<QSlider>("_screenBrightness").isEnabled());
}

TEST_F(PreferencesWindow, without_a_movie_the_sample_is_shown_in_the_colors) {
    show();
    control<QTabWidget>("_pages").setCurrentWidget(&control<QWidget>("_picturePage"));
    const auto sampled = [&](const char* slider, int value) {
        control<QSlider>(slider).setValue(value);
        const QImage picture = control<QWidget>("pictureSample").grab().toImage();
        control<QSlider>(slider).setValue(0);
        return picture.pixelColor(picture.width() / 4, picture.height() / 2); // the sky by day
    };
    const QColor original = sampled("_pictureHue", 0);
    EXPECT_GT(original.hsvSaturation(), 12);
    EXPECT_NEAR(sampled("_pictureSaturation", -100).hsvSaturation(), 0, 2);
    EXPECT_NEAR(std::abs(sampled("_pictureHue", 100).hsvHue() - original.hsvHue()), 180, 20);
    EXPECT_LT(sampled("_pictureBrightness", -20).value(), original.value() - 30);
    EXPECT_LT(sampled("_pictureGamma", -50).value(), original.value() - 15);
    EXPECT_NEAR(sampled("_pictureContrast", -100).lightness(), 128, 12);
}

TEST_F(PreferencesWindow, languages_are_added_moved_and_removed) {
    platform::setLocalizationLanguages({"en-US", "en", "de"});
    show();
    auto& list = control<QListWidget>("_languages");
    auto& add = control<QComboBox>("_languageAdd");
    const auto shown = [&] {
        QStringList names;
        for (int row = 0; row < list.count(); ++row)
            names << list.item(row)->text();
        return names.join(u' ');
    };
    const auto choose = [&](const char* tag) {
        QFocusEvent focus(QEvent::FocusIn);
        QApplication::sendEvent(&add, &focus);
        add.setCurrentIndex(add.findData(QString(tag)));
        emit add.activated(add.currentIndex());
    };
    const auto click = [&](const char* button) { control<QPushButton>(button).click(); };
    EXPECT_EQ(shown(), "English (US) German") << "the system's";
    EXPECT_FALSE(stored(kQVPreferredLanguages).isValid());
    choose("fr");
    EXPECT_EQ(stored(kQVPreferredLanguages), (QStringList{"en-US", "de", "fr"}));
    EXPECT_EQ(add.currentIndex(), -1);
    click("_languageUp"); // the one just added
    click("_languageUp");
    EXPECT_FALSE(control<QPushButton>("_languageUp").isEnabled());
    EXPECT_EQ(shown(), "French English (US) German");
    click("_languageDown");
    EXPECT_EQ(shown(), "English (US) French German");
    EXPECT_EQ(keys.count(kQVPreferredLanguages), 4);
    choose("de");
    EXPECT_EQ(keys.size(), 4) << "it is there";
    click("_languageRemove");
    click("_languageRemove");
    EXPECT_EQ(stored(kQVPreferredLanguages), QStringList{"en-US"});
    click("_languageRemove");
    EXPECT_EQ(stored(kQVPreferredLanguages), QStringList());
    EXPECT_EQ(shown(), "English (US) German") << "the system's again";
    // At the end of the list the keyboard stays with it, and does not go on to the button that moves back.
    openPage("_subtitlesPage");
    control<QPushButton>("_languageDown").setFocus();
    click("_languageDown");
    EXPECT_EQ(controller->window().focusWidget(), &list);
    EXPECT_EQ(shown(), "German English (US)");

    platform::setLocalizationLanguages({"en"});
    show({{kQVPreferredLanguages, QVariantList()}});
    EXPECT_FALSE(control<QPushButton>("_languageRemove").isEnabled()) << "it would come back";
    show({{kQVPreferredLanguages, QVariantList{"en"}}});
    EXPECT_TRUE(control<QPushButton>("_languageRemove").isEnabled());
    show({{kQVPreferredLanguages, QVariantList{"xx-unknown", 7, "pt-BR"}}});
    EXPECT_EQ(control<QListWidget>("_languages").count(), 2);
    EXPECT_EQ(control<QListWidget>("_languages").item(0)->text(), "xx-unknown");
}

TEST_F(PreferencesWindow, a_page_goes_back_to_what_was_registered_and_comes_back) {
    const QVariantMap changed{{kQVPlaylistDefaultArrangement, 2},
                              {kQVPlaylistAutoNext, false},
                              {kQVEnableTrace, true},
                              {kQVOverlayTextFontSizeMin, 15},
                              {kQVOverlayDefaultPadding, 7},
                              {kQVJumpInterval, 30},
                              {kQVCursorAutohideDelay, 11},
                              {kQVSubtitlesDefaultEncoding, 4},
                              {kQVPreferredLanguages, QStringList{"fr"}}};
    show(changed);
    auto& reset = control<QPushButton>("_resetPage");
    auto& undo = control<QPushButton>("_undoReset");
    const struct {
        const char* page;
        QStringList keys;
    } pages[] = {{"_moviePage", {kQVJumpInterval}},
                 {"_playlistPage", {kQVPlaylistDefaultArrangement, kQVPlaylistAutoNext}},
                 {"_subtitlesPage", {kQVSubtitlesDefaultEncoding, kQVPreferredLanguages}},
                 {"_overlaysPage", {kQVOverlayTextFontSizeMin, kQVOverlayDefaultPadding}},
                 {"_advancedPage", {kQVEnableTrace, kQVCursorAutohideDelay}}};
    for (const auto& page : pages) {
        openPage(page.page);
        EXPECT_TRUE(reset.isEnabled()) << page.page;
        EXPECT_TRUE(undo.isHidden()) << page.page;
        keys.clear();
        reset.click();
        EXPECT_EQ(keys, page.keys) << page.page;
        for (const QString& key : page.keys)
            EXPECT_FALSE(stored(key).isValid()) << key.toStdString();
        EXPECT_FALSE(reset.isEnabled()) << page.page;
        EXPECT_FALSE(undo.isHidden()) << page.page;
    }
    EXPECT_EQ(control<QLabel>("_advancedCursorHideDelayValue").text(), "2 sec.") << "the controls follow";
    EXPECT_FALSE(control<QCheckBox>("_playlistSortNumerically").isEnabled());
    for (const auto& page : pages) {
        openPage(page.page);
        keys.clear();
        undo.click();
        EXPECT_EQ(keys, page.keys) << page.page;
        EXPECT_TRUE(undo.isHidden());
    }
    for (auto value = changed.begin(); value != changed.end(); ++value)
        EXPECT_EQ(stored(value.key()), value.value()) << value.key().toStdString();
    EXPECT_TRUE(control<QCheckBox>("_playlistSortNumerically").isEnabled());
}

TEST_F(PreferencesWindow, a_control_is_found_by_its_words) {
    const struct {
        const char *language, *typed, *page, *result;
        const char* found; // what Return goes to
    } cases[] = {
        {"en", "volume", "_moviePage", "1 of 3", "_volumeSave"},               // commands, too
        {"en", "LOOP one", "_playlistPage", "1 of 1", "_playlistDefaultLoop"}, // an item
        {"en", "paragraph", "_moviePage", "Nothing found", ""},
        {"en", "pointer hide", "_advancedPage", "1 of 1", "_advancedCursorHideDelay"}, // group and label
        {"en", "frame width window", "_moviePage", "Nothing found", ""},               // what is not shown
        {"en", "feedback stay", "_overlaysPage", "1 of 1", "fadingDelayInterval"},     // on a page within a page
        {"en", "   ", "_moviePage", "", ""},
        {"de", "lautstarke merken", "_moviePage", "1 von 1", "_volumeSave"}, // without accents
        {"de", "grosse film", "_moviePage", "1 von 2", "_movieDefaultSize"},
    };
    for (const auto& c : cases) {
        platform::setLocalizationLanguages({c.language});
        show();
        auto& field = control<QLineEdit>("_find");
        field.setText(c.typed);
        EXPECT_EQ(openPage(), c.page) << c.typed;
        EXPECT_EQ(control<QLabel>("_findResult").text(), c.result) << c.typed;
        EXPECT_TRUE(press(field, Qt::Key_Return)) << "no button is pressed by it";
        if (const QWidget* focused = controller->window().focusWidget(); *c.found) {
            EXPECT_EQ(focused->objectName(), c.found) << c.typed;
        }
        EXPECT_EQ(keys, QStringList()) << "finding changes nothing";
        int marks = 0;
        for (const auto* mark : controller->window().findChildren<QWidget*>()) {
            if (!mark->testAttribute(Qt::WA_TransparentForMouseEvents) || !mark->objectName().isEmpty() ||
                mark->metaObject() != &QWidget::staticMetaObject)
                continue;
            ++marks;
            EXPECT_TRUE(mark->geometry().contains(
                mark->parentWidget()->findChild<QWidget*>(c.found)->geometry().adjusted(-2, -2, 2, 2)))
                << c.typed;
        }
        EXPECT_EQ(marks, *c.found ? 1 : 0) << c.typed;
    }
    for (const auto* button : controller->window().findChildren<QPushButton*>())
        EXPECT_FALSE(button->autoDefault()) << "Return would press " << button->objectName().toStdString();
    auto& field = control<QLineEdit>("_find");
    const auto& result = control<QLabel>("_findResult");
    field.setText("film");
    const QString first = result.text();
    press(field, Qt::Key_Up);
    EXPECT_NE(result.text(), first) << "around the end";
    press(field, Qt::Key_Down);
    EXPECT_EQ(result.text(), first);
    press(field, Qt::Key_Escape);
    EXPECT_EQ(field.text() + result.text(), QString());
    EXPECT_TRUE(controller->window().isVisible());
    press(field, Qt::Key_Escape);
    EXPECT_FALSE(controller->window().isVisible());
}
