// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/KeysPage.h"
#include "platform/base/Localization.h"
#include "settings/QVPreferencesChangedNotification.h"
#include "settings/SettingsKeys.h"
#include "tests/support/TestEnvironment.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>

#include <gtest/gtest.h>

namespace {

class Keys : public testing::Test {
protected:
    Keys() {
        platform::setLocalizationLanguages({"en"});
        page.widget()->show();
    }
    ~Keys() override {
        platform::setLocalizationLanguages({});
        delete page.widget();
    }

    template <class Control>
    Control& control(const char* name) {
        return *page.widget()->findChild<Control*>(name);
    }
    QTreeWidget& tree() { return control<QTreeWidget>("_keysCommands"); }
    QTreeWidgetItem& item(const char* title) {
        const auto found = tree().findItems(title, Qt::MatchExactly | Qt::MatchRecursive);
        EXPECT_EQ(found.size(), 1) << title;
        return *found.first();
    }
    std::string keys(const char* title) { return item(title).text(1).toStdString(); }
    std::string message() { return control<QLabel>("_keysMessage").text().toStdString(); }
    void click(const char* name) { control<QPushButton>(name).click(); }
    bool shows(const char* name) { return control<QPushButton>(name).isVisible(); }
    bool isEnabled(const char* name) { return control<QPushButton>(name).isEnabled(); }
    void send(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers = {}, const QString& text = {}) {
        QKeyEvent event(type, key, modifiers, text);
        QApplication::sendEvent(&control<QPushButton>("_keysAdd"), &event);
    }
    /// Gives the command the key that is pressed.
    void add(const char* title, int key, Qt::KeyboardModifiers modifiers = {}) {
        tree().setCurrentItem(&item(title));
        click("_keysAdd");
        send(QEvent::KeyRelease, Qt::Key_Space); // of the press that chose the button
        send(QEvent::KeyPress, Qt::Key_Shift, modifiers);
        send(QEvent::KeyPress, key, modifiers);
    }
    QVariant stored() { return env.defaults().objectForKey(kQVCommandKeys); }

    TestEnvironment env;
    int posts = 0;
    KeysPage page{env.environment, [this](const QVariant& value, const QString& key) {
                      ++posts;
                      env.defaults().setChosenObject(value, key);
                      env.notifications.post(QVPreferencesChangedNotification{key});
                  }};
};

} // namespace

TEST_F(Keys, are_added_by_pressing_them_and_removed_and_had_again) {
    const QVariant before = stored();
    add("Mute", Qt::Key_K, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(keys("Mute"), "M, Media Mute, Ctrl+Shift+K");
    EXPECT_EQ(message(), "Ctrl+Shift+K means “Mute” now.");
    EXPECT_EQ(control<QListWidget>("_keysOfCommand").currentRow(), 2) << "the one just added";
    EXPECT_GE(tree().header()->sectionSize(1), tree().fontMetrics().horizontalAdvance("M, Media Mute, Ctrl+Shift+K"));
    EXPECT_EQ(stored(), (QVariantMap{{"mute", QVariantList{"M", "Volume Mute", "Ctrl+Shift+K"}}}));
    EXPECT_TRUE(item("Mute").font(0).bold());
    add("Mute", Qt::Key_Exclam, Qt::ShiftModifier);
    EXPECT_EQ(keys("Mute"), "M, Media Mute, Ctrl+Shift+K, !") << "Shift makes another character";
    add("Mute", Qt::Key_F5);
    EXPECT_EQ(message(), "“Mute” has as many keys as it can have; remove one first.");
    control<QListWidget>("_keysOfCommand").setCurrentRow(0);
    click("_keysRemove");
    EXPECT_EQ(keys("Mute"), "Media Mute, Ctrl+Shift+K, !");
    EXPECT_EQ(posts, 3);
    click("_keysReset");
    EXPECT_EQ(keys("Mute"), "M, Media Mute");
    EXPECT_FALSE(isEnabled("_keysReset"));
    EXPECT_FALSE(isEnabled("_keysResetAll"));
    for (const char* undone : {"Media Mute, Ctrl+Shift+K, !", "M, Media Mute, Ctrl+Shift+K, !",
                               "M, Media Mute, Ctrl+Shift+K", "M, Media Mute"}) {
        click("_keysUndo");
        EXPECT_EQ(keys("Mute"), undone);
    }
    EXPECT_FALSE(isEnabled("_keysUndo"));
    EXPECT_EQ(stored(), before);
}

TEST_F(Keys, that_mean_another_command_wait_for_the_users_word) {
    add("Mute", Qt::Key_S);
    EXPECT_EQ(message(), "S means “Next Subtitles” already.");
    EXPECT_EQ(keys("Mute"), "M, Media Mute");
    click("_keysLeave");
    EXPECT_FALSE(shows("_keysTakeOver"));
    EXPECT_EQ(posts, 0);
    add("Mute", Qt::Key_S);
    EXPECT_TRUE(shows("_keysTakeOver"));
    click("_keysTakeOver");
    EXPECT_EQ(keys("Mute"), "M, Media Mute, S");
    EXPECT_EQ(keys("Next Subtitles"), "");
    EXPECT_FALSE(shows("_keysLeave"));
    add("Mute", Qt::Key_F);
    tree().setCurrentItem(&item("Stop"));
    EXPECT_FALSE(shows("_keysTakeOver")) << "it was about another command";
    click("_keysResetAll");
    EXPECT_EQ(keys("Next Subtitles"), "S");
}

TEST_F(Keys, that_others_need_are_refused_in_a_sentence) {
    const struct {
        int key;
        Qt::KeyboardModifiers modifiers;
        const char* message;
    } cases[] = {
        {Qt::Key_Escape, {}, "Esc closes windows and ends Lumaro; that can’t be changed."},
        {Qt::Key_F4, Qt::AltModifier, "Alt+F4 belongs to the desktop."},
        {Qt::Key_M, {}, "M means “Mute” already."},
        {Qt::Key_ScreenSaver, {}, "Lumaro does not know this key."},
    };
    for (const auto& c : cases) {
        add("Mute", c.key, c.modifiers);
        EXPECT_EQ(message(), c.message);
        EXPECT_FALSE(shows("_keysTakeOver"));
    }
    EXPECT_EQ(posts, 0);
    // Tab is a key like others while one is asked for.
    add("Mute", Qt::Key_Tab);
    EXPECT_EQ(message(), "Tab means “Next Screen” already.");
}

TEST_F(Keys, are_found_by_words_and_by_key) {
    const auto found = [this](const char* words) {
        control<QLineEdit>("_keysSearch").setText(words);
        QStringList titles;
        for (QTreeWidgetItemIterator each(&tree(), QTreeWidgetItemIterator::NotHidden); *each; ++each)
            if ((*each)->parent() && !(*each)->parent()->isHidden())
                titles << (*each)->text(0);
        return titles.join(u'|').toStdString();
    };
    EXPECT_EQ(found("volume UP"), "Volume Up");
    EXPECT_EQ(found("ctrl+o"), "Open");
    EXPECT_EQ(tree().currentItem()->text(0), "Open") << "what is marked is among what is found";
    EXPECT_EQ(found("nothing like this"), "");
    EXPECT_FALSE(isEnabled("_keysAdd")) << "what is hidden is not changed";
    EXPECT_NE(found(""), "");
}

TEST_F(Keys, that_are_changed_elsewhere_are_followed) {
    add("Mute", Qt::Key_K);
    env.defaults().setObject(QVariantMap{{"stop", QVariantList{"Home"}}, {"damaged", 1}}, kQVCommandKeys);
    env.notifications.post(QVPreferencesChangedNotification{kQVCommandKeys});
    EXPECT_EQ(keys("Mute"), "M, Media Mute");
    EXPECT_EQ(keys("Stop"), "Home");
    EXPECT_FALSE(isEnabled("_keysUndo"));
}
