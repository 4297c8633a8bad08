// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/LaunchQuestions.h"
#include "platform/base/Bundle.h"
#include "platform/base/Localization.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"
#include "tests/support/CapturedLog.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/TestEnvironment.h"

#include <gtest/gtest.h>

namespace {

const QString page = QStringLiteral("https://lumaro.example/donate");

class LaunchQuestionsTest : public testing::Test {
protected:
    LaunchQuestionsTest() {
        platform::setLocalizationLanguages({"en"});
        gTracingEnabled = true;
    }
    ~LaunchQuestionsTest() override {
        gTracingEnabled = false;
        platform::setLocalizationLanguages({});
    }
    /// A launch with what is stored: the titles of the alerts shown, and "help", in their order.
    QString launch(const QVariantMap& stored, const QList<int>& answers = {}, const QVariant& build = "40") {
        env.reset(); // one at a time is the process's
        env = std::make_unique<TestEnvironment>(stored);
        platform::Bundle bundle;
        bundle.setInfoDictionary({{"CFBundleVersion", build}});
        QStringList events;
        FakeDesktop desktop;
        desktop.alertAnswers = answers;
        desktop.opensURLs = opensURLs;
        desktop.whileAlertIsUp = [&] {
            events << desktop.alerts.back().title.section(u' ', 0, 1);
            desktop.terminating = endsWhileAsking;
        };
        LaunchQuestions questions(env->environment, desktop, bundle, [&] { events << "help"; });
        questions.runFirstTimeConfig();
        if (!desktop.terminating)
            questions.askDonation();
        opened = desktop.openedURLs;
        return events.join(u", ");
    }
    QVariant stored(const QString& key) const { return env->defaults().persistentDomain().value(key); }

    std::unique_ptr<TestEnvironment> env;
    bool opensURLs = true;
    bool endsWhileAsking = false;
    QList<QUrl> opened;
};

} // namespace

TEST_F(LaunchQuestionsTest, each_upgrade_asks_and_shows_what_is_new_to_it) {
    const QStringList mirrors{"https://a.example/"};
    const struct {
        QVariant current;
        QVariant last;
        QStringList mirrors;
        int answer;
        const char* events;
        QVariant seen;
        QVariant checks;
    } cases[] = {
        {"40", {}, mirrors, 1, "Look for, help", 40, true},
        {"40", {}, mirrors, -1, "Look for, help", 40, false},
        {"40", {}, {}, 1, "help", 40, {}},
        {"40", 13, mirrors, 1, "Look for, help", 40, true},
        {"40", 14, mirrors, 1, "help", 40, {}},
        {"40", 20, mirrors, 1, "help", 40, {}},
        {"40", 21, mirrors, 1, "", 40, {}},
        {"40", 25, mirrors, 1, "", 40, {}},
        {"40", 40, mirrors, 1, "", 40, {}},
        {"39", 40, mirrors, 1, "", 40, {}},
        {"13", 12, mirrors, 1, "Look for, help", 13, true},
        {"a build", {}, mirrors, 1, "", {}, {}},
    };
    for (const auto& c : cases) {
        QVariantMap values{{kVersionMirrorsKey, c.mirrors}};
        if (c.last.isValid())
            values[kQVLastVersionSeen] = c.last;
        EXPECT_EQ(launch(values, {c.answer}, c.current), c.events) << c.last.toInt();
        EXPECT_EQ(stored(kQVLastVersionSeen), c.seen) << c.last.toInt();
        EXPECT_EQ(stored(kQVNewVersionShouldCheck), c.checks) << c.last.toInt();
    }
}

TEST_F(LaunchQuestionsTest, who_ends_the_player_instead_of_answering_is_asked_again) {
    endsWhileAsking = true;
    const QVariantMap first{{kVersionMirrorsKey, QStringList{"https://a.example/"}}, {kQVDonationPageURL, page}};
    EXPECT_EQ(launch(first, {-1}), "Look for");
    EXPECT_FALSE(stored(kQVLastVersionSeen).isValid());
    EXPECT_FALSE(stored(kQVNewVersionShouldCheck).isValid());
    for (const int answer : {1, -1}) {
        EXPECT_EQ(launch({{kQVLastVersionSeen, 40}, {kQVDonationPageURL, page}}, {answer}), "Do you");
        EXPECT_FALSE(stored(kQVAskDonationAfter).isValid());
        EXPECT_EQ(opened.size(), 0);
    }
}

TEST_F(LaunchQuestionsTest, the_prompt_for_a_donation_comes_once_a_week) {
    const QDateTime now = TestEnvironment().runLoop.date();
    const auto after = [&](qint64 seconds) { return QVariant(now.addSecs(seconds)); };
    constexpr qint64 week = 7 * 86400;
    const struct {
        QVariant asks;
        QVariant after;
        QString address;
        bool isAsked;
    } cases[] = {{{}, {}, page, true},
                 {{}, after(-1), page, true},
                 {{}, after(0), page, true},
                 {{}, after(1), page, false},
                 {{}, after(week), page, false},
                 {{}, after(week + 1), page, true},
                 {{}, after(30 * 86400), page, true},
                 {false, after(-1), page, false},
                 {{}, {}, "", false},
                 {{}, {}, "javascript:alert(1)", false},
                 {{}, {}, "file:///etc/passwd", false},
                 {{}, {}, "donate.html", false}};
    for (const auto& c : cases) {
        QVariantMap values{{kQVLastVersionSeen, 40}, {kQVDonationPageURL, c.address}};
        if (c.asks.isValid())
            values[kQVAskDonation] = c.asks;
        if (c.after.isValid())
            values[kQVAskDonationAfter] = c.after;
        const CapturedLog log;
        EXPECT_EQ(launch(values, {-1}), c.isAsked ? "Do you" : "");
        EXPECT_EQ(log.lines(), c.isAsked ? QStringList({"QVAppController: Asking for donation ...",
                                                        "QVAppController: ... Choose not donate :-( ..."})
                                         : QStringList());
        EXPECT_EQ(stored(kQVAskDonationAfter), c.isAsked ? after(week) : c.after);
    }
    EXPECT_EQ(launch({{kQVDonationPageURL, page}}, {-1}), "help, Do you") << "the very first launch";
}

TEST_F(LaunchQuestionsTest, a_donation_page_that_opened_ends_the_prompts) {
    for (const bool opens : {true, false}) {
        opensURLs = opens;
        const CapturedLog log;
        EXPECT_EQ(launch({{kQVLastVersionSeen, 40}, {kQVDonationPageURL, page}}, {1}), "Do you");
        EXPECT_EQ(opened, QList<QUrl>{QUrl(page)});
        EXPECT_TRUE(log.contains("QVAppController: ... Donating :-)) ..."));
        EXPECT_EQ(stored(kQVAskDonation), opens ? QVariant(false) : QVariant());
        EXPECT_FALSE(stored(kQVAskDonationAfter).isValid());
    }
}
