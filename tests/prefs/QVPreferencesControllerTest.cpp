// SPDX-License-Identifier: GPL-3.0-or-later
#include "context/Notifications.h"
#include "platform/base/TextEncoding.h"
#include "prefs/FloatSlider.h"
#include "settings/OverlayStyle.h"
#include "settings/QVOverlayStyleDefaults.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"
#include "subtitles/JHStringEncodings.h"
#include "tests/prefs/ShownPreferences.h"
#include "tests/support/CapturedLog.h"
#include "tests/support/ShippedLanguages.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QButtonGroup>

#include <QComboBox>
#include <QFile>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>

#include <algorithm>
#include <map>
#include <stdexcept>

namespace {

const QVariantList recentEncodings{4, 12, 0};

class Preferences : public ShownPreferences {
protected:
    using ShownPreferences::ShownPreferences;

    /// Chooses the item or button of a tag, or switches a check box, as the user does.
    void chooseTag(const char* name, int tag) {
        QWidget& window = controller->window();
        if (auto* popUp = window.findChild<QComboBox*>(name)) {
            const int item = popUp->findData(tag);
            ASSERT_GE(item, 0) << name << " has no item of tag " << tag;
            popUp->setCurrentIndex(item);
            emit popUp->activated(item);
        } else if (auto* group = window.findChild<QButtonGroup*>(name)) {
            ASSERT_NE(group->button(tag), nullptr) << name << " has no button of tag " << tag;
            // What waits for another part of the program is not offered, and stored all the same.
            group->button(tag)->setEnabled(true);
            group->button(tag)->click();
        } else {
            auto& box = control<QAbstractButton>(name);
            box.setEnabled(true);
            box.setChecked(tag == 0);
            box.click();
        }
    }
    /// What a control shows: a tag, or on and off; -1 for no selection.
    int shownTag(const char* name) {
        QWidget& window = controller->window();
        if (auto* popUp = window.findChild<QComboBox*>(name))
            return popUp->currentIndex() < 0 ? -1 : popUp->currentData().toInt();
        if (auto* group = window.findChild<QButtonGroup*>(name))
            return group->checkedButton() ? group->checkedId() : -1;
        return control<QAbstractButton>(name).isChecked();
    }
    bool isEnabled(const QString& name) { return control<QWidget>(name.toUtf8().constData()).isEnabled(); }
    void type(QWidget& field, const QString& text) {
        for (const QChar letter : text) {
            QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(letter));
            QApplication::sendEvent(&field, &press);
        }
    }
    QStringList recentTitles() {
        QStringList titles;
        for (const QAction* item : control<QPushButton>("_subtitlesDefaultEncoding").menu()->actions())
            if (item->isCheckable())
                titles << item->text();
        return titles;
    }
    QMenu& submenu() {
        for (const QAction* item : control<QPushButton>("_subtitlesDefaultEncoding").menu()->actions())
            if (item->menu())
                return *item->menu();
        throw std::runtime_error("no submenu");
    }
    QAction& encodingItem(QMenu& menu, const QString& title) {
        for (QAction* item : menu.actions())
            if (item->text() == title)
                return *item;
        throw std::runtime_error("no item " + title.toStdString());
    }
    /// The controls of a page but for those of the styles' sections.
    static QList<QWidget*> ownControls(const QWidget& page) {
        QList<QWidget*> controls;
        for (QWidget* widget : page.findChildren<QWidget*>())
            if (widget->focusPolicy() != Qt::NoFocus && widget->objectName().startsWith(u'_'))
                controls << widget;
        return controls;
    }
    /// Whatever takes the keyboard or the pointer, but for the parts that controls are made of.
    QList<QWidget*> everyControl() {
        QList<QWidget*> controls;
        for (QWidget* widget : controller->window().findChildren<QWidget*>()) {
            // The list of a pop-up is a window of its own.
            const bool isPart = widget->window() != &controller->window() || widget->focusProxy() ||
                                qobject_cast<QAbstractSpinBox*>(widget->parent()) ||
                                qobject_cast<QAbstractScrollArea*>(widget->parent());
            if (widget->focusPolicy() != Qt::NoFocus && !isPart)
                controls << widget;
        }
        EXPECT_GT(controls.size(), 100);
        return controls;
    }
    QLabel* labelOf(const QWidget& widget) {
        for (auto* label : controller->window().findChildren<QLabel*>())
            if (label->buddy() == &widget)
                return label;
        return nullptr;
    }
    QStringList checkedEncodings() {
        QStringList titles;
        for (const QAction* item : submenu().actions())
            if (item->isChecked())
                titles << item->text();
        return titles;
    }
};

QString nameOf(std::uint32_t encoding) {
    return platform::localizedNameOfTextEncoding(encoding);
}

struct Plain {
    const char* control;
    const QString& key;
    bool isBoolean;
    QList<int> values; // each of its values, the last one not the registered one
};

const Plain plainControls[] = {
    {"_movieAutofetchSubtitles", kQVAutoloadSubtitles, true, {1, 0}},
    {"_movieDefaultSize", kQVDefaultMovieSize, false, {0, 1, 2, 3, 4, 6, 5}},
    {"_movieHideOnDeactivate", kQVHideOnDeactivate, true, {0, 1}},
    {"_movieOpenSavedPlaylist", kQVOnLaunchDefaultAction, false, {1, 2, 0}},
    {"_movieRemember", kQVRememberMovies, true, {1, 0}},
    {"_moviePauseOnDeactivate", kQVPauseOnDeactivate, true, {0, 1}},
    {"_movieShowController", kQVControllerVisible, true, {0, 1}},
    {"_movieControllerOverPicture", kQVControllerOverPicture, false, {0, 1, 2}},
    {"_openVideoPages", kQVOpenVideoPages, true, {0, 1}},
    {"_volumeSave", kQVVolumeSave, true, {1, 0}},
    {"_mainWindowLayer", kQVMainWindowLayer, false, {0, 3}},
    {"_playlistSort", kQVPlaylistDefaultArrangement, false, {0, 1, 2}},
    {"_playlistSortNumerically", kQVSortNumerically, true, {1, 0}},
    {"_playlistSortOnlyFilenames", kQVSortOnlyFilenames, true, {0, 1}},
    {"_playlistAutoPlay", kQVPlaylistAutoPlay, true, {1, 0}},
    {"_playlistAutoNext", kQVPlaylistAutoNext, true, {1, 0}},
    {"_playlistAutoQuit", kQVPlaylistAutoQuit, true, {0, 1}},
    {"_playlistDefaultLoop", kQVPlaylistDefaultLooping, false, {0, 1, 2}},
    {"_subtitlesShow", kQVDisplaySubtitles, true, {1, 0}},
    {"_subtitlesDefaultFPS", kQVSubtitlesDefaultFPS, false, {0, 1, 2, 3, 4, 5}},
    {"_subtitlesMarkup", kQVSubtitlesMarkup, true, {1, 0}},
    {"_subtitlesRepair", kQVSubtitlesRepair, true, {0, 1}},
    {"_useRemote", kQVUseRemote, true, {1, 0}},
    {"_advancedEnableTrace", kQVEnableTrace, true, {0, 1}},
    {"_overlayTextFontSizeMin", kQVOverlayTextFontSizeMin, false, {8, 14, 18, 20}},
    {"_feedbackShow", kQVDisplayFeedback, true, {1, 0}},
    {"_displaySaveState", kQVOSDStateSave, true, {1, 0}},
    {"_versionCheck", kQVNewVersionShouldCheck, true, {0, 1}},
    {"_versionCheckBeta", kQVNewVersionShouldCheckBeta, true, {0, 1}},
    {"_versionCheckPeriod", kQVNewVersionCheckingPeriod, false, {0, 1, 2, 3}},
    {"_screenForceBrightness", kQVForceScreenBrightness, true, {0, 1}},
};

} // namespace

TEST_F(Preferences, plain_changes_are_stored_and_posted_also_when_nothing_changed) {
    show();
    for (const Plain& plain : plainControls) {
        for (const int value : plain.values) {
            for (int time = 0; time < 2; ++time) {
                keys.clear();
                chooseTag(plain.control, value);
                const QVariant stored = env.defaults().objectForKey(plain.key);
                EXPECT_EQ(stored, plain.isBoolean ? QVariant(value != 0) : QVariant(value)) << plain.control;
                EXPECT_EQ(stored.typeId(), plain.isBoolean ? QMetaType::Bool : QMetaType::Int) << plain.control;
                EXPECT_EQ(keys, QStringList{plain.key}) << plain.control;
            }
        }
    }
}

TEST_F(Preferences, showing_stored_values_neither_beeps_stores_nor_posts) {
    QVariantMap values;
    for (const Plain& plain : plainControls)
        values.insert(plain.key, plain.isBoolean ? QVariant(plain.values.last() != 0) : QVariant(plain.values.last()));
    values.insert(kQVJumpInterval, 9999); // beyond the bounds
    values.insert(kQVCursorAutohideDelay, 60);
    values.insert(kQVSubtitlesDefaultEncoding, 12);
    values.insert(kQVSubtitlesEncodingsList, recentEncodings);
    show(values);
    for (const Plain& plain : plainControls)
        EXPECT_EQ(shownTag(plain.control), plain.values.last()) << plain.control;
    EXPECT_EQ(control<QSpinBox>("_jumpIntervalStepper").value(), 3600) << "the nearest";
    EXPECT_EQ(control<QLabel>("_advancedCursorHideDelayValue").text(), "Never");
    EXPECT_EQ(control<QPushButton>("_subtitlesDefaultEncoding").text(), nameOf(12));
    EXPECT_EQ(checkedEncodings(), QStringList{nameOf(12)});
    EXPECT_EQ(keys, QStringList());
    EXPECT_EQ(desktop.beeps, 0);
    for (auto value = values.begin(); value != values.end(); ++value)
        EXPECT_EQ(env.defaults().objectForKey(value.key()), value.value()) << value.key().toStdString();
    // Each showing is a new one.
    env.defaults().setBool(true, kQVSubtitlesMarkup);
    for (const QString& key : {kQVSubtitlesOverlayStyle, kQVVobSubOverlayStyle, kQVFeedbackOverlayStyle,
                               kQVOSDOverlayStyle, kQVFullscreenOverlayStyle})
        QVOverlayStyleDefaults::overlayStyleDefaultsWithKey(env.defaults(), key)->set(&OverlayStyle::maxAlpha, 0.45F);
    controller->syncWithDefaults();
    EXPECT_EQ(shownTag("_subtitlesMarkup"), 1);
    const auto opacities = controller->window().findChildren<QLabel*>("maxAlphaValue");
    EXPECT_EQ(opacities.size(), 5);
    for (const auto* opacity : opacities)
        EXPECT_EQ(opacity->text(), "45 %") << "of each style";
}

TEST_F(Preferences, values_that_no_control_offers_select_nothing_or_are_added) {
    show({{kQVDefaultMovieSize, 77},
          {kQVOnLaunchDefaultAction, 7},
          {kQVPlaylistDefaultArrangement, -1},
          {kQVPlaylistDefaultLooping, 3},
          {kQVMainWindowLayer, 25},
          {kQVOverlayTextFontSizeMin, 15},
          {kQVCursorAutohideDelay, -4},
          {kQVJumpInterval, 0},
          {kQVSubtitlesDefaultEncoding, 0x1234},
          {kQVSubtitlesEncodingsList, QVariantList{4, "text", 0x4321}}});
    for (const char* name :
         {"_movieDefaultSize", "_movieOpenSavedPlaylist", "_playlistSort", "_playlistDefaultLoop", "_mainWindowLayer"})
        EXPECT_EQ(shownTag(name), -1) << name;
    auto& sizes = control<QComboBox>("_overlayTextFontSizeMin");
    EXPECT_EQ(sizes.currentText(), "15 pt");
    const int offered = sizes.count();
    for (const int size : {8, 15, 20}) {
        env.defaults().setInteger(size, kQVOverlayTextFontSizeMin);
        controller->syncWithDefaults();
    }
    EXPECT_EQ(sizes.count(), offered) << "each once";
    sizes.setCurrentIndex(sizes.findData(15));
    EXPECT_EQ(sizes.itemData(sizes.currentIndex() - 1).toInt(), 14);
    EXPECT_EQ(sizes.itemData(sizes.currentIndex() + 1).toInt(), 16);
    EXPECT_EQ(control<QLabel>("_advancedCursorHideDelayValue").text(), "1 sec.");
    EXPECT_EQ(control<QSpinBox>("_jumpIntervalStepper").value(), 1);
    EXPECT_EQ(control<QPushButton>("_subtitlesDefaultEncoding").text(), "Unknown");
    EXPECT_EQ(recentTitles(), QStringList{nameOf(4)});
    EXPECT_EQ(checkedEncodings(), QStringList());
    EXPECT_EQ(keys, QStringList());
    // A selection made after that counts as ever.
    chooseTag("_playlistSort", 2);
    EXPECT_EQ(env.defaults().integerForKey(kQVPlaylistDefaultArrangement), 2);
}

TEST_F(Preferences, the_jump_interval_is_taken_as_it_is_typed_and_refused_beyond_its_bounds) {
    show({{kQVJumpInterval, 25}});
    auto& stepper = control<QSpinBox>("_jumpIntervalStepper");
    auto& field = *stepper.findChild<QLineEdit*>();
    const auto stored = [&] { return env.defaults().integerForKey(kQVJumpInterval); };
    const struct {
        const char* before;
        const char* typed;
        int stored, beeps;
        const char* shown;
        QStringList posted;
    } cases[] = {
        {"", "7", 7, 0, "7", {kQVJumpInterval}},
        {"7", "5", 75, 0, "75", {kQVJumpInterval}},
        {"360", "0", 3600, 0, "3600", {kQVJumpInterval}},
        {"3600", "0", 3600, 1, "3600", {}},
        {"", "0", 3600, 1, "3600", {}},
        {"", "x", 3600, 0, "", {}},
        {"360", "0", 3600, 0, "3600", {}}, // the stored one again
    };
    for (const auto& c : cases) {
        field.setText(c.before);
        keys.clear();
        desktop.beeps = 0;
        type(field, c.typed);
        EXPECT_EQ(stored(), c.stored) << c.before << c.typed;
        EXPECT_EQ(desktop.beeps, c.beeps) << c.before << c.typed;
        EXPECT_EQ(field.text(), c.shown) << c.before << c.typed;
        EXPECT_EQ(keys, c.posted) << c.before << c.typed;
    }
    stepper.stepDown();
    EXPECT_EQ(stored(), 3599);
    EXPECT_EQ(field.text(), "3599");
    EXPECT_EQ(keys, QStringList{kQVJumpInterval});
}

TEST_F(Preferences, the_pointer_stays_above_ten_seconds) {
    show();
    auto& slider = control<QSlider>("_advancedCursorHideDelay");
    const auto& label = control<QLabel>("_advancedCursorHideDelayValue");
    EXPECT_EQ(label.text(), "2 sec.");
    slider.setValue(10);
    EXPECT_EQ(label.text(), "10 sec.");
    slider.setValue(11);
    EXPECT_EQ(label.text(), "Never");
    EXPECT_EQ(env.defaults().integerForKey(kQVCursorAutohideDelay), 11);
    slider.setValue(11);
    EXPECT_EQ(keys, (QStringList{kQVCursorAutohideDelay, kQVCursorAutohideDelay}));
}

TEST_F(Preferences, controls_that_need_another_one_are_enabled_with_it) {
    show();
    const QStringList sorting{"_playlistSortNumerically", "_sortPaths", "_sortFilenames"};
    const QStringList subtitles{"_subtitlesDefaultEncoding", "_subtitlesDefaultFPS"};
    const QStringList version{"_versionCheckBeta", "_versionCheckPeriod"};
    const struct {
        const char* control;
        int tag;
        QStringList group;
        bool enables;
    } cases[] = {{"_playlistSort", 2, sorting, true},    {"_playlistSort", 1, sorting, false},
                 {"_playlistSort", 0, sorting, false},   {"_subtitlesShow", 0, subtitles, false},
                 {"_subtitlesShow", 1, subtitles, true}, {"_versionCheck", 1, version, true},
                 {"_versionCheck", 0, version, false}};
    for (const auto& c : cases) {
        bool atPost = false;
        const auto observer = env.notifications.observe<QVPreferencesChangedNotification>(
            [&](const auto&) { atPost = isEnabled(c.group.first()) == c.enables; });
        chooseTag(c.control, c.tag);
        EXPECT_TRUE(atPost) << c.control << ": the group comes before the value";
        for (int shownAgain = 0; shownAgain < 2; ++shownAgain) {
            for (const QString& member : c.group)
                EXPECT_EQ(isEnabled(member), c.enables) << c.control << member.toStdString();
            controller->syncWithDefaults();
        }
    }
}

TEST_F(Preferences, the_styles_of_what_is_not_shown_can_not_be_changed) {
    const auto enabled = [this] {
        const auto opacities = controller->window().findChildren<QSlider*>("maxAlpha");
        return std::ranges::count_if(opacities, [](const QSlider* opacity) { return opacity->isEnabled(); });
    };
    show();
    EXPECT_EQ(enabled(), 5);
    chooseTag("_feedbackShow", 0);
    EXPECT_EQ(enabled(), 4);
    chooseTag("_subtitlesShow", 0);
    EXPECT_EQ(enabled(), 2) << "of texts and of pictures";
    chooseTag("_feedbackShow", 1);
    EXPECT_EQ(enabled(), 3);
}

TEST_F(Preferences, a_recent_encoding_becomes_the_default_and_the_latest) {
    show({{kQVSubtitlesEncodingsList, recentEncodings}});
    QMenu& menu = *control<QPushButton>("_subtitlesDefaultEncoding").menu();
    EXPECT_EQ(recentTitles(), (QStringList{nameOf(0), nameOf(4), nameOf(12)})) << "sorted";
    encodingItem(menu, nameOf(12)).trigger();
    EXPECT_EQ(env.defaults().objectForKey(kQVSubtitlesDefaultEncoding), 12);
    EXPECT_EQ(env.defaults().arrayForKey(kQVSubtitlesEncodingsList), (QVariantList{12, 4, 0}));
    EXPECT_EQ(keys, QStringList{kQVSubtitlesDefaultEncoding});
    EXPECT_EQ(control<QPushButton>("_subtitlesDefaultEncoding").text(), nameOf(12));
    EXPECT_EQ(checkedEncodings(), QStringList{nameOf(12)});
    for (int time = 0; time < 2; ++time) { // the default again, from either menu
        encodingItem(time ? submenu() : menu, nameOf(12)).trigger();
        EXPECT_EQ(keys.size(), 1);
        EXPECT_EQ(checkedEncodings(), QStringList{nameOf(12)});
    }
}

TEST_F(Preferences, an_encoding_of_the_full_list_takes_a_place_among_the_recent_ones) {
    show({{kQVSubtitlesEncodingsList, recentEncodings}, {kQVSubtitlesEncodingsListSize, 3}});
    EXPECT_EQ(submenu().title(), "More Encodings");
    const auto available = JHStringEncodings::sharedManager().availableEncodings();
    QStringList offered;
    for (const QAction* item : submenu().actions())
        if (item->isCheckable())
            offered << item->text();
    EXPECT_EQ(offered.size(), available.size());
    encodingItem(submenu(), nameOf(10)).trigger();
    EXPECT_EQ(env.defaults().arrayForKey(kQVSubtitlesEncodingsList), (QVariantList{10, 4, 12}));
    QStringList sorted{nameOf(10), nameOf(4), nameOf(12)};
    sorted.sort();
    EXPECT_EQ(recentTitles(), sorted) << "the oldest has gone";
    EXPECT_EQ(env.defaults().objectForKey(kQVSubtitlesDefaultEncoding), 10);
    EXPECT_EQ(keys, QStringList{kQVSubtitlesDefaultEncoding});
    EXPECT_EQ(checkedEncodings(), QStringList{nameOf(10)});
    // One that is listed already is only chosen.
    encodingItem(submenu(), nameOf(12)).trigger();
    EXPECT_EQ(checkedEncodings(), QStringList{nameOf(12)});
    env.defaults().setInteger(4, kQVSubtitlesDefaultEncoding);
    controller->syncWithDefaults();
    EXPECT_EQ(checkedEncodings(), QStringList{nameOf(4)}) << "chosen elsewhere";
    env.defaults().setInteger(12, kQVSubtitlesDefaultEncoding);
    controller->syncWithDefaults();
    EXPECT_EQ(env.defaults().arrayForKey(kQVSubtitlesEncodingsList), (QVariantList{12, 10, 4}));
    EXPECT_EQ(recentTitles(), sorted);
}

TEST_F(Preferences, typing_a_part_of_a_name_finds_the_encoding) {
    show();
    submenu().popup(QPoint());
    type(submenu(), "cyrillic (win");
    QStringList left;
    for (const QAction* item : submenu().actions())
        if (item->isCheckable() && item->isVisible())
            left << item->text();
    ASSERT_EQ(left.size(), 1) << left.join(", ").toStdString();
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(&submenu(), &enter);
    EXPECT_EQ(env.defaults().integerForKey(kQVSubtitlesDefaultEncoding), 11);
    submenu().popup(QPoint());
    EXPECT_TRUE(encodingItem(submenu(), nameOf(4)).isVisible()) << "each time from the start";
    submenu().close();
}

TEST_F(Preferences, the_minimum_text_size_never_stays_above_a_size_just_chosen) {
    show({{kQVOverlayTextFontSizeMin, 20}});
    const struct {
        const QString& style;
        int size;
        const char* styleKey;
        int minimum;
    } cases[] = {{kQVSubtitlesOverlayStyle, 22, "TextFontSize", 20}, {kQVSubtitlesOverlayStyle, 19, "TextFontSize", 19},
                 {kQVFeedbackOverlayStyle, 18, "TextFontSize", 18},  {kQVOSDOverlayStyle, 17, "TextFontSize", 17},
                 {kQVVobSubOverlayStyle, 9, "TextFontSize", 17},     {kQVOSDOverlayStyle, 9, "MinAlpha", 17}};
    for (const auto& c : cases) {
        QVOverlayStyleDefaults::overlayStyleDefaultsWithKey(env.defaults(), c.style)
            ->set(&OverlayStyle::textFontSize, c.size);
        const int before = env.defaults().integerForKey(kQVOverlayTextFontSizeMin);
        keys.clear();
        env.notifications.post(QVPreferencesChangedNotification{c.style, {c.styleKey}});
        EXPECT_EQ(env.defaults().integerForKey(kQVOverlayTextFontSizeMin), c.minimum);
        EXPECT_EQ(shownTag("_overlayTextFontSizeMin"), c.minimum);
        EXPECT_EQ(keys.contains(kQVOverlayTextFontSizeMin), before != c.minimum);
    }
}

TEST_F(Preferences, the_lines_of_the_version_check_follow_it) {
    show();
    const auto lines = [&] {
        return control<QLabel>("_versionCheckLastTime").text() + u'|' + control<QLabel>("_versionCheckStatus").text();
    };
    EXPECT_EQ(lines(), "Never|Unknown");
    env.notifications.post(QVVersionCheckNotification{kQVVersionCheckBegin});
    EXPECT_EQ(control<QLabel>("_versionCheckLastTime").text(), "Checking now...");
    EXPECT_FALSE(isEnabled("_versionCheckNow"));
    const QDateTime date(QDate(2026, 3, 14), QTime(15, 9));
    env.defaults().setObject(date, kQVNewVersionLastTimeChecked);
    env.defaults().setObject("This is the latest version.", kQVNewVersionStatus);
    const QString after = QLocale::system().toString(date, QLocale::ShortFormat) + "|This is the latest version.";
    env.notifications.post(QVPreferencesChangedNotification{kQVNewVersionLastTimeChecked, {}});
    EXPECT_EQ(lines(), after);
    env.notifications.post(QVVersionCheckNotification{kQVVersionCheckEnd});
    EXPECT_EQ(lines(), after);
    EXPECT_TRUE(isEnabled("_versionCheckNow"));
    control<QPushButton>("_versionCheckNow").click();
    EXPECT_EQ(versions.checks, 1);
    // One that began before the window was opened.
    versions.checking = true;
    controller->syncWithDefaults();
    EXPECT_EQ(control<QLabel>("_versionCheckLastTime").text(), "Checking now...");
    EXPECT_FALSE(isEnabled("_versionCheckNow"));
}

TEST_F(Preferences, without_a_mirror_the_systems_packages_are_named) {
    const QStringList controls{"_versionCheck",
                               "_versionCheckBeta",
                               "_versionCheckPeriodLabel",
                               "_versionCheckPeriod",
                               "_versionCheckLastTimeLabel",
                               "_versionCheckLastTime",
                               "_versionCheckStatusLabel",
                               "_versionCheckStatus",
                               "_versionCheckNow"};
    show();
    for (const bool hasMirrors : {true, false, true}) {
        versions.mirrors = hasMirrors;
        controller->syncWithDefaults();
        for (const QString& name : controls)
            EXPECT_EQ(control<QWidget>(name.toUtf8().constData()).isHidden(), !hasMirrors) << name.toStdString();
        EXPECT_EQ(control<QLabel>("_versionCheckByPackages").isHidden(), hasMirrors);
    }
}

TEST_F(Preferences, what_is_chosen_by_hand_is_stored_though_this_run_has_a_value_of_its_own) {
    env.defaults().setOverride(kQVPlaylistAutoNext, true);
    show();
    chooseTag("_playlistAutoNext", 0);
    EXPECT_EQ(env.defaults().persistentDomain().value(kQVPlaylistAutoNext), false);
    EXPECT_FALSE(env.defaults().boolForKey(kQVPlaylistAutoNext));
}

TEST_F(Preferences, a_file_that_cannot_be_written_is_said_once_and_changes_act) {
    env.disk->refuses = true;
    env.defaults().setInteger(12, kQVJumpInterval);
    show();
    env.runLoop.advance(2);
    EXPECT_EQ(desktop.alerts.size(), 0U) << "the user has changed nothing here";
    for (int time = 0; time < 2; ++time) {
        chooseTag("_playlistSort", 1 + time);
        env.runLoop.advance(2);
        ASSERT_EQ(desktop.alerts.size(), 1U);
    }
    EXPECT_TRUE(desktop.alerts.front().message.contains(".plist"));
    EXPECT_EQ(env.defaults().integerForKey(kQVPlaylistDefaultArrangement), 2);
    EXPECT_EQ(keys.size(), 2);
    controller.reset();
    env.defaults().setInteger(1, kQVJumpInterval);
    env.runLoop.advance(2); // nobody is told any more
}

TEST_F(Preferences, changes_are_traced_with_their_key_and_value) {
    show();
    CapturedLog log;
    gTracingEnabled = true;
    chooseTag("_playlistSort", 2);
    encodingItem(submenu(), nameOf(4)).trigger();
    gTracingEnabled = false;
    EXPECT_TRUE(log.contains(QString("QVPreferencesController: QVPlaylistDefaultArrangement changed to: 2")));
    EXPECT_TRUE(log.contains("QVPreferencesController: QVSubtitlesDefaultEncoding changed to: " + nameOf(4)));
}

TEST_F(Preferences, every_control_has_a_name_a_tip_and_a_letter_of_its_own_in_every_language) {
    for (const QString& shipped : shippedLanguages()) {
        const std::string language = shipped.toStdString();
        platform::setLocalizationLanguages({shipped});
        show();
        auto& pages = control<QTabWidget>("_pages");
        for (QWidget* widget : everyControl()) {
            QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
            ASSERT_NE(accessible, nullptr) << widget->objectName().toStdString();
            const QString name = accessible->text(QAccessible::Name);
            EXPECT_FALSE(name.isEmpty()) << language << ": " << widget->metaObject()->className() << " of "
                                         << widget->parent()->objectName().toStdString();
            EXPECT_FALSE(name.contains(u'&')) << language << ": " << name.toStdString();
        }
        std::map<QString, QString> everywhere;
        const auto letter = [](const QString& text) {
            const auto at = text.indexOf(u'&');
            return at < 0 ? QString() : text.mid(at + 1, 1).toLower();
        };
        const auto take = [&](std::map<QString, QString>& taken, const QString& text) {
            EXPECT_FALSE(letter(text).isEmpty()) << language << ": " << text.toStdString();
            EXPECT_TRUE(taken.emplace(letter(text), text).second)
                << language << ": " << text.toStdString() << " and " << taken[letter(text)].toStdString();
        };
        for (int page = 0; page < pages.count(); ++page)
            take(everywhere, pages.tabText(page));
        take(everywhere, control<QPushButton>("_resetPage").text());
        for (int page = 0; page < pages.count(); ++page) {
            std::map<QString, QString> taken = everywhere;
            for (QWidget* widget : ownControls(*pages.widget(page))) {
                EXPECT_FALSE(widget->toolTip().isEmpty()) << widget->objectName().toStdString();
                if (const auto* button = qobject_cast<QAbstractButton*>(widget);
                    button && widget->objectName() != "_subtitlesDefaultEncoding")
                    take(taken, button->text());
                if (const auto* label = labelOf(*widget))
                    take(taken, label->text());
            }
            // What else the page holds, the sections of styles, keeps off these letters.
            for (const auto* label : pages.widget(page)->findChildren<QLabel*>()) {
                const auto other = taken.find(letter(label->text()));
                EXPECT_TRUE(letter(label->text()).isEmpty() || other == taken.end() || other->second == label->text())
                    << language << ": " << label->text().toStdString();
            }
        }
    }
}

TEST(PreferencesInterface, every_text_of_the_interface_file_is_a_message_of_the_translations) {
    const auto contentsOf = [](const char* path) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path;
        return QString::fromUtf8(file.readAll());
    };
    const QString interface = contentsOf(LUMARO_SOURCE_DIR "/resources/interface/Preferences.ui") +
                              contentsOf(LUMARO_SOURCE_DIR "/resources/interface/Keys.ui");
    const QString english = contentsOf(LUMARO_SOURCE_DIR "/resources/translations/lumaro_en.ts");
    auto texts = QRegularExpression("<string>([^<]*)</string>").globalMatch(interface);
    EXPECT_TRUE(texts.hasNext());
    while (texts.hasNext()) {
        const QString text = texts.next().captured(1);
        EXPECT_TRUE(english.contains("<message id=\"" + text + "\">")) << text.toStdString();
    }
}
