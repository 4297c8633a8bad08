// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/panels/QVOpenURLPanel.h"
#include "platform/base/Localization.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"
#include "tests/support/CapturedLog.h"
#include "tests/support/TestEnvironment.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

namespace {

class OpenURLPanel : public testing::Test {
protected:
    explicit OpenURLPanel(const QVariantMap& stored = {})
        : env(stored) {
        platform::setLocalizationLanguages({"en"});
        QGuiApplication::clipboard()->clear();
    }
    ~OpenURLPanel() override { platform::setLocalizationLanguages({}); }

    /// Runs the panel, and in its event loop what the user does, who leaves by Escape at last.
    std::int32_t run(std::int32_t type, const std::function<void(QDialog&)>& user) {
        // A posted call would come while the panel is being shown, before its event loop runs.
        QTimer::singleShot(0, qApp, [&] {
            auto* panel = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(panel);
            user(*panel);
            if (panel->isVisible())
                press(*panel, Qt::Key_Escape);
        });
        return panels.runModalWithType(type, nullptr);
    }
    static void press(QWidget& widget, Qt::Key key) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &event);
    }
    template <class Widget>
    static Widget& the(QDialog& panel, const char* name) {
        return *panel.findChild<Widget*>(name);
    }
    static QComboBox& combo(QDialog& panel) { return the<QComboBox>(panel, "_urlCombo"); }
    std::int32_t open(const QString& text) {
        return run(0, [&](QDialog& panel) {
            combo(panel).setEditText(text);
            the<QPushButton>(panel, "_btnOkS").click();
        });
    }
    std::string recent() {
        return env.defaults().objectForKey(kQVOpenURLRecentListS).toStringList().join(u' ').toStdString();
    }

    TestEnvironment env;
    QVOpenURLPanel panels{env.environment};
};

} // namespace

TEST_F(OpenURLPanel, the_latest_addresses_are_kept_the_oldest_first) {
    env.defaults().setInteger(3, kQVOpenURLRecentListSSize);
    // A list that something else wrote to.
    env.defaults().setObject(QVariantList{"http://x/a", 7, QVariantList{"http://x/z"}, QString(), "http://x/b"},
                             kQVOpenURLRecentListS);
    EXPECT_EQ(open("http://x/c"), 1);
    EXPECT_EQ(recent(), "http://x/a http://x/b http://x/c");
    open("http://x/d");
    EXPECT_EQ(recent(), "http://x/b http://x/c http://x/d");
    open("http://x/b");
    EXPECT_EQ(recent(), "http://x/c http://x/d http://x/b");
    EXPECT_EQ(open("no address"), 1) << "it is the application's to say so";
    EXPECT_EQ(panels.urlStrings(), QStringList("no address"));
    EXPECT_TRUE(panels.urls().isEmpty());
    run(0, [](QDialog& panel) { combo(panel).setEditText("http://x/never"); });
    EXPECT_EQ(recent(), "http://x/c http://x/d http://x/b");
}

TEST_F(OpenURLPanel, a_single_address_is_taken_by_enter_or_the_button_and_dropped_by_escape) {
    const CapturedLog log;
    gTracingEnabled = true;
    EXPECT_EQ(run(0,
                  [](QDialog& panel) {
                      EXPECT_FALSE(the<QPushButton>(panel, "_btnOkS").isEnabled()) << "nothing is entered";
                      press(panel, Qt::Key_Return);
                      EXPECT_TRUE(panel.isVisible());
                      combo(panel).setEditText("a.example/b c.mp4");
                      the<QCheckBox>(panel, "_addS").setChecked(true);
                      press(panel, Qt::Key_Return);
                  }),
              1);
    gTracingEnabled = false;
    EXPECT_TRUE(panels.isAddingChosen());
    EXPECT_EQ(panels.urls(), QList{QUrl("http://a.example/b%20c.mp4")});
    EXPECT_TRUE(log.contains("QVOpenURLPanel: Opening URLs: ("));
    EXPECT_EQ(run(0,
                  [](QDialog& panel) {
                      EXPECT_FALSE(the<QCheckBox>(panel, "_addS").isChecked()) << "asked anew";
                      EXPECT_EQ(combo(panel).currentText(), "a.example/b c.mp4") << "to be corrected";
                      QComboBox& box = combo(panel);
                      box.clearEditText();
                      EXPECT_FALSE(the<QPushButton>(panel, "_btnOkS").isEnabled());
                      box.setCurrentIndex(0);
                      emit box.activated(0);
                      EXPECT_TRUE(the<QPushButton>(panel, "_btnOkS").isEnabled()) << "an earlier address is chosen";
                  }),
              0);
}

TEST_F(OpenURLPanel, several_addresses_stand_a_line_each_and_are_kept_however_the_panel_ends) {
    env.defaults().setObject("http://x/old", kQVOpenURLRecentListM);
    EXPECT_EQ(run(1,
                  [](QDialog& panel) {
                      auto& text = the<QPlainTextEdit>(panel, "_urlText");
                      EXPECT_EQ(text.toPlainText(), "http://x/old");
                      text.clear();
                      EXPECT_FALSE(the<QPushButton>(panel, "_btnOkM").isEnabled());
                      text.setPlainText("http://x/a\n\n http://x/b\n");
                      the<QPushButton>(panel, "_btnOkM").click();
                  }),
              1);
    EXPECT_EQ(panels.urls(), (QList{QUrl("http://x/a"), QUrl("http://x/b")}));
    EXPECT_EQ(env.defaults().stringForKey(kQVOpenURLRecentListM), "http://x/a\n\n http://x/b\n");
    EXPECT_EQ(run(1, [](QDialog& panel) { the<QPlainTextEdit>(panel, "_urlText").setPlainText("half of an"); }), 0);
    EXPECT_EQ(env.defaults().stringForKey(kQVOpenURLRecentListM), "half of an");
    EXPECT_EQ(recent(), "") << "that is the other panel's";
}

TEST_F(OpenURLPanel, an_address_on_the_clipboard_is_offered_and_nothing_else) {
    const auto offered = [this](std::int32_t type, const QString& copied) {
        QGuiApplication::clipboard()->setText(copied);
        QString text;
        run(type, [&](QDialog& panel) {
            text = type == 0 ? combo(panel).currentText() : the<QPlainTextEdit>(panel, "_urlText").toPlainText();
        });
        return text.toStdString();
    };
    EXPECT_EQ(offered(0, "my password"), "");
    EXPECT_EQ(offered(0, "look: https://x.example/a.mp4!"), "https://x.example/a.mp4");
    EXPECT_EQ(offered(1, "my password"), "");
    EXPECT_EQ(offered(1, "https://x/a https://x/b"), "https://x/a\nhttps://x/b\n");
    EXPECT_EQ(offered(1, "https://x/c"), "https://x/a\nhttps://x/b\n") << "what stands there stays";
}

TEST_F(OpenURLPanel, stands_above_a_movie_that_stands_above_others_and_tells_its_names) {
    for (const std::int32_t level : {0, 3}) {
        env.defaults().setInteger(level, kQVMainWindowLayer);
        run(0, [&](QDialog& panel) {
            EXPECT_EQ(panel.windowFlags().testFlag(Qt::WindowStaysOnTopHint), level > 0);
            EXPECT_EQ(combo(panel).accessibleName(), "Address");
        });
    }
    platform::setLocalizationLanguages({"de"});
    QVOpenURLPanel german(env.environment);
    QTimer::singleShot(0, qApp, [] {
        auto* panel = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        EXPECT_EQ(panel->windowTitle(), QString::fromUtf8("URLs öffnen"));
        EXPECT_EQ(the<QPlainTextEdit>(*panel, "_urlText").accessibleName(), "Adressen");
        panel->reject();
    });
    EXPECT_EQ(german.runModalWithType(1, nullptr), 0);
}
