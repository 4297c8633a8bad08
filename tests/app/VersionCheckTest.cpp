// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/VersionCheck.h"
#include "context/Notifications.h"
#include "platform/base/Bundle.h"
#include "platform/base/Localization.h"
#include "platform/base/PropertyList.h"
#include "settings/QVPreferencesChangedNotification.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"
#include "tests/support/CapturedLog.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FakeDownloads.h"
#include "tests/support/RecordingCommands.h"
#include "tests/support/TestEnvironment.h"

#include <QTimeZone>

#include <gtest/gtest.h>

namespace {

using Sender = VersionCheck::Sender;

const QString own = QStringLiteral("org.lumaro.Lumaro");

QByteArray listOf(const QVariantMap& list) {
    return platform::propertyList::toXml(list);
}

QVariantMap record(const QVariant& build, const QString& version = "2.0", const QString& page = "get.html") {
    return {{"Version", version}, {"Build", build}, {"Page", page}};
}

QByteArray release(const QVariant& build) {
    return listOf({{own, QVariantMap{{"Release", record(build)}}}});
}

class VersionCheckTest : public testing::Test {
protected:
    VersionCheckTest() {
        platform::setLocalizationLanguages({"en"});
        bundle.setInfoDictionary({{"CFBundleIdentifier", own}, {"CFBundleVersion", "40"}});
        env.defaults().setObject(QStringList{"https://a.example/", "https://b.example/", "https://c.example/"},
                                 kVersionMirrorsKey);
        env.defaults().setObject("versions.plist", kVersionDataKey);
        _begins = env.notifications.observe<QVVersionCheckNotification>(
            [this](const auto& posted) { events << (posted.mark == kQVVersionCheckBegin ? "begin" : "end"); });
        _changes = env.notifications.observe<QVPreferencesChangedNotification>(
            [this](const auto& posted) { events << posted.key; });
        desktop.whileAlertIsUp = [this] { events << "alert"; };
        gTracingEnabled = true;
    }
    ~VersionCheckTest() override {
        gTracingEnabled = false;
        platform::setLocalizationLanguages({});
    }
    void run(Sender sender = Sender::none) {
        check->checkLatestVersion(sender);
        for (int i = 0; i < 100 && check->isChecking(); ++i)
            env.runLoop.runPending();
    }
    QStringList mirrors() { return env.defaults().stringArrayForKey(kVersionMirrorsKey); }
    QVariant stored(const QString& key) { return env.defaults().persistentDomain().value(key); }

    TestEnvironment env;
    FakeDownloads downloads{env.runLoop};
    FakeDesktop desktop;
    RecordingCommands commands;
    platform::Bundle bundle;
    QStringList events;
    std::unique_ptr<VersionCheck> check = std::make_unique<VersionCheck>(
        env.environment, VersionCheck::Collaborators{downloads, desktop, commands, bundle});

private:
    platform::Subscription _begins, _changes;
};

} // namespace

TEST(VersionData, a_check_is_due_when_its_period_has_passed) {
    const QDateTime now(QDate(2026, 3, 29), QTime(12, 0), QTimeZone::utc());
    constexpr qint64 hour = 3600, day = 86400;
    const struct {
        int period;
        qint64 ago;
        bool isDue;
    } cases[] = {{1, day - 1, false},
                 {1, day, true},
                 {2, 7 * day - hour, false},
                 {2, 7 * day, true},
                 {3, 30 * day - 1, false},
                 {3, 30 * day, true},
                 {0, 0, true},
                 {4, 0, true},
                 {-1, 5, true},
                 {0, -1, false},
                 {1, -day, false}};
    for (const auto& c : cases)
        EXPECT_EQ(versionData::isDue(now.addSecs(-c.ago), c.period, now), c.isDue) << c.period << ' ' << c.ago;
    EXPECT_TRUE(versionData::isDue({}, 1, now));
}

TEST_F(VersionCheckTest, the_launch_checks_when_it_is_wanted_and_due) {
    EXPECT_FALSE(check->shouldCheckLatestVersion());
    env.defaults().setBool(true, kQVNewVersionShouldCheck);
    EXPECT_TRUE(check->shouldCheckLatestVersion());
    env.defaults().setObject(env.runLoop.date(), kQVNewVersionLastTimeChecked);
    EXPECT_FALSE(check->shouldCheckLatestVersion()) << "weekly, as is registered";
    env.runLoop.advance(7 * 86400);
    EXPECT_TRUE(check->shouldCheckLatestVersion());
}

TEST_F(VersionCheckTest, mirrors_are_asked_in_their_order_and_the_one_that_answered_comes_first) {
    downloads.answer("https://c.example/versions.plist", release(40));
    const CapturedLog log;
    run();
    EXPECT_EQ(log.lines().join(u'\n').toStdString(),
              "BEGIN: -[QVAppController checkLatestVersion:] {\n"
              "Attempt #1\n"
              "Trying root: https://a.example/\n"
              "Downloading version data from: https://a.example/versions.plist\n"
              "Download failed: not in the table\n"
              "ERROR: Unable to download any data from https://a.example/versions.plist.\n"
              "Will retry with next mirror from the list.\n"
              "Attempt #2\n"
              "Trying root: https://b.example/\n"
              "Downloading version data from: https://b.example/versions.plist\n"
              "Download failed: not in the table\n"
              "ERROR: Unable to download any data from https://b.example/versions.plist.\n"
              "Will retry with next mirror from the list.\n"
              "Attempt #3\n"
              "Trying root: https://c.example/\n"
              "Downloading version data from: https://c.example/versions.plist\n"
              "Checking for latest Release.\n"
              "Found info about latest Release: version 2.0(v40), download page: get.html\n"
              "Local version is up to date.\n"
              "} END: -[QVAppController checkLatestVersion:]");
    EXPECT_EQ(mirrors(), (QStringList{"https://c.example/", "https://a.example/", "https://b.example/"}));
    EXPECT_EQ(events, (QStringList{"begin", kQVNewVersionLastTimeChecked, "end"}));
    EXPECT_EQ(env.defaults().dateForKey(kQVNewVersionLastTimeChecked), env.runLoop.date());
    EXPECT_EQ(stored(kQVNewVersionStatus), "Up to date");
}

TEST_F(VersionCheckTest, what_no_mirror_answers_is_told_to_the_user_who_asked) {
    for (const Sender sender : {Sender::none, Sender::user}) {
        events.clear();
        const CapturedLog log;
        run(sender);
        EXPECT_TRUE(log.contains("Failed to reach all mirror sites, not connected to internet?"));
        EXPECT_EQ(events.join(u' '), sender == Sender::user ? "begin alert end" : "begin end");
    }
    EXPECT_EQ(desktop.alerts.front().title, "Looking for a new version failed.");
    EXPECT_EQ(desktop.alerts.front().defaultButton, "OK");
    EXPECT_FALSE(stored(kQVNewVersionLastTimeChecked).isValid());
    EXPECT_FALSE(stored(kQVNewVersionStatus).isValid());

    env.defaults().setObject(QStringList(), kVersionMirrorsKey);
    events.clear();
    run(Sender::user);
    EXPECT_EQ(events.join(u' '), "begin end") << "without a mirror there is nobody to ask, and nothing to say";
    EXPECT_FALSE(check->hasMirrors());
}

TEST_F(VersionCheckTest, what_is_no_version_data_makes_way_for_the_next_mirror) {
    const QVariantMap good{{"Release", record(40)}};
    const struct {
        const char* root;
        const char* path;
        QByteArray data;
        const char* error;
        bool isAsked = true;
    } cases[] = {
        {"https://a.example/", "v", "", "Unable to download any data from https://a.example/v."},
        {"https://a.example/", "v", "<html><body>Welcome</body></html>", "Unable to download any data from"},
        {"https://a.example/", "v", "<plist version=\"1.0\"><array/></plist>", "Unable to download any data from"},
        {"https://a.example/", "v", release(41).left(150), "Unable to download any data from"},
        {"https://a.example/", "v", listOf({{"org.other", good}}), "No version data for bundle: org.lumaro.Lumaro"},
        {"https://a.example/", "v", listOf({{own, "Release"}}), "No version data for bundle: org.lumaro.Lumaro"},
        {"https://a.example/", "v", listOf({{own, QVariantMap{{"Release", "2.0"}}}}),
         "No version data neither for Beta nor for Release, file corrupt?"},
        {"https://a b.example/", "v", "", "Unable to construct root URL.", false},
        {"", "v", "", "Unable to construct root URL.", false},
        {"https://a.example/", "", "", "Unable to construct version data URL.", false},
    };
    for (const auto& c : cases) {
        downloads.answers.clear();
        downloads.asked.clear();
        env.defaults().setObject(QStringList{c.root, "https://b.example/"}, kVersionMirrorsKey);
        env.defaults().setObject(QString::fromUtf8(c.path), kVersionDataKey);
        if (!c.data.isEmpty())
            downloads.answer("https://a.example/v", c.data);
        downloads.answer("https://b.example/v", release(40));
        const CapturedLog log;
        run();
        EXPECT_TRUE(log.contains(QString("ERROR: ") + c.error)) << c.error << '\n'
                                                                << log.lines().join('\n').toStdString();
        EXPECT_EQ(downloads.asked.contains("https://a.example/v"), c.isAsked) << c.error;
        EXPECT_EQ(log.contains("ERROR: Unable to download any data from"), c.isAsked) << c.error;
        EXPECT_TRUE(log.contains("Will retry with next mirror from the list."));
        EXPECT_EQ(downloads.asked.contains("https://b.example/v"), *c.path != 0) << c.error;
    }
}

TEST_F(VersionCheckTest, a_list_may_name_another_root_which_is_kept_in_front) {
    downloads.answer("https://a.example/versions.plist", listOf({{"RedirectURL", "https://r.example/x/"}, {own, 5}}));
    downloads.answer("https://r.example/x/versions.plist", release(40));
    const CapturedLog log;
    run();
    EXPECT_TRUE(log.contains("Redirecting to: https://r.example/x/"));
    EXPECT_TRUE(log.contains("Attempt #2"));
    EXPECT_FALSE(log.contains("ERROR")) << "no further message";
    EXPECT_EQ(mirrors().join(u' '), "https://r.example/x/ https://a.example/ https://b.example/ https://c.example/");

    // Another type is none, and the list is read.
    downloads.answer("https://r.example/x/versions.plist",
                     listOf({{"RedirectURL", 5}, {own, QVariantMap{{"Release", record(40)}}}}));
    downloads.asked.clear();
    run();
    EXPECT_EQ(downloads.asked.size(), 1);
}

TEST_F(VersionCheckTest, redirects_of_both_kinds_count_together_and_none_leaves_https) {
    const auto lists = listOf({{"RedirectURL", "https://a.example/"}});
    downloads.answer("https://b.example/versions.plist", release(40));
    downloads.answer("https://a.example/versions.plist", lists);
    {
        const CapturedLog log;
        run();
        EXPECT_EQ(downloads.asked.count("https://a.example/versions.plist"), 11);
        EXPECT_EQ(downloads.allowedRedirects, (QList<int>{10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0, 10}));
        EXPECT_TRUE(log.contains("ERROR: Too many redirects."));
        EXPECT_TRUE(mirrors().startsWith("https://b.example/"));
    }
    env.defaults().setObject(QStringList{"https://a.example/", "https://b.example/"}, kVersionMirrorsKey);
    downloads.asked.clear();
    downloads.answers["https://a.example/versions.plist"].redirects = 4;
    run();
    EXPECT_EQ(downloads.asked.count("https://a.example/versions.plist"), 3) << "five each";

    const struct {
        const char* from; // where the list came from in the end
        const char* to;
        bool isRefused;
    } cases[] = {{"https://a.example/versions.plist", "http://r.example/", true},
                 {"https://a.example/versions.plist", "file:///etc/", true},
                 {"https://elsewhere.example/", "http://r.example/", true},
                 {"http://a.example/versions.plist", "http://r.example/", false},
                 {"http://a.example/versions.plist", "https://r.example/", false}};
    for (const auto& c : cases) {
        env.defaults().setObject(QStringList{"https://a.example/"}, kVersionMirrorsKey);
        downloads.asked.clear();
        downloads.answers["https://a.example/versions.plist"] = {listOf({{"RedirectURL", c.to}}), {}, 0, QUrl(c.from)};
        const CapturedLog log;
        run();
        EXPECT_EQ(downloads.asked.size(), c.isRefused ? 1 : 2) << c.from << ' ' << c.to;
        EXPECT_EQ(log.contains(QString("ERROR: Refusing to redirect to: %1").arg(c.to)), c.isRefused);
    }
}

TEST_F(VersionCheckTest, builds_are_compared_as_numbers_whatever_they_are_written_as) {
    const struct {
        QVariant build;
        bool isNewer;
    } cases[] = {{40, false},
                 {41, true},
                 {"40", false},
                 {"41", true},
                 {"41 beta", true},
                 {" 41", true},
                 {39, false},
                 {-41, false},
                 {40.9, false},
                 {41.5, true},
                 {"", false},
                 {"newest", false},
                 {true, false},
                 {1e300, true},
                 {"99999999999999999999", true},
                 {QVariantList{41}, false},
                 {qlonglong(4294967336), true}, // not 40 in 32 bits
                 {QVariant(), false}};
    for (const auto& c : cases) {
        downloads.answer("https://a.example/versions.plist", release(c.build));
        desktop.alertAnswers = {-1};
        run();
        EXPECT_EQ(stored(kQVNewVersionStatus), c.isNewer ? "Newer Release version 2.0 available" : "Up to date")
            << c.build.toString().toStdString();
    }
}

TEST_F(VersionCheckTest, the_kind_is_the_one_that_was_taken) {
    const struct {
        bool wantsBeta;
        QVariantMap entry;
        const char* status;
    } cases[] = {{false, {{"Beta", record(50, "3.0")}, {"Release", record(41)}}, "Newer Release version 2.0 available"},
                 {true, {{"Beta", record(50, "3.0")}, {"Release", record(41)}}, "Newer Beta version 3.0 available"},
                 {true, {{"Beta", record(39, "1.0")}, {"Release", record(41)}}, "Up to date"},
                 {true, {{"Release", record(41)}}, "Newer Release version 2.0 available"},
                 {true, {{"Beta", 50}, {"Release", record(41)}}, "Newer Release version 2.0 available"}};
    for (const auto& c : cases) {
        env.defaults().setBool(c.wantsBeta, kQVNewVersionShouldCheckBeta);
        downloads.answer("https://a.example/versions.plist", listOf({{own, c.entry}}));
        desktop.alertAnswers = {-1};
        const CapturedLog log;
        run();
        EXPECT_EQ(stored(kQVNewVersionStatus), c.status);
        EXPECT_EQ(log.contains("Checking for latest Beta."), c.wantsBeta);
        EXPECT_EQ(log.contains("There is no Beta available."),
                  c.wantsBeta && c.entry.value("Beta").typeId() != QMetaType::QVariantMap);
    }
}

TEST_F(VersionCheckTest, a_newer_version_is_announced_unless_it_was_skipped_and_nobody_asked) {
    downloads.answer("https://a.example/versions.plist", release(45));
    const struct {
        int skipTo;
        Sender sender;
        bool isShown;
    } cases[] = {{0, Sender::none, true},   {44, Sender::none, true}, {45, Sender::none, false},
                 {46, Sender::none, false}, {45, Sender::user, true}, {0, Sender::user, true}};
    for (const auto& c : cases) {
        env.defaults().setInteger(c.skipTo, kQVNewVersionSkipToBuild);
        env.defaults().removeObjectForKey(kQVNewVersionStatus);
        desktop.alerts.clear();
        desktop.alertAnswers = {-1};
        const CapturedLog log;
        run(c.sender);
        EXPECT_EQ(desktop.alerts.size(), c.isShown ? 1U : 0U) << c.skipTo;
        EXPECT_TRUE(
            log.contains(c.isShown ? "Postpone update till last scheduled check." : "Skipping version upon request."));
        EXPECT_EQ(stored(kQVNewVersionStatus), "Newer Release version 2.0 available");
        EXPECT_EQ(stored(kQVNewVersionSkipToBuild), c.skipTo);
    }
    const platform::Desktop::Alert& alert = desktop.alerts.front();
    EXPECT_EQ(alert.message, "Release version 2.0 can be downloaded now.");
    EXPECT_EQ((QStringList{alert.defaultButton, alert.alternateButton, alert.otherButton}),
              (QStringList{"&Download Now...", "&Skip Version", "Later"}));

    desktop.alertAnswers = {0};
    run(Sender::user);
    EXPECT_EQ(stored(kQVNewVersionSkipToBuild), 45);
    downloads.answer("https://a.example/versions.plist", release(40));
    run(Sender::user);
    EXPECT_EQ(desktop.alerts.back().title, "Lumaro is up to date.");
}

TEST_F(VersionCheckTest, the_download_page_opens_in_the_browser_and_only_then_the_player_ends) {
    const struct {
        const char* page;
        const char* opened; // null: refused
        bool opens = true;
    } cases[] = {{"get.html", "https://a.example/get.html"},
                 {"/get?x=1#y", "https://a.example/get?x=1#y"},
                 {"", "https://a.example/"},
                 {"https://other.example/get", "https://other.example/get"},
                 {"http://other.example/get", "http://other.example/get"},
                 {"//other.example/get", "https://other.example/get"},
                 {"get.html", "https://a.example/get.html", false},
                 {"javascript:alert(1)", nullptr},
                 {"file:///etc/passwd", nullptr},
                 {"mailto:a@b.example", nullptr},
                 {"https:///get", nullptr}};
    for (const auto& c : cases) {
        downloads.answer("https://a.example/versions.plist",
                         listOf({{own, QVariantMap{{"Release", record(45, "2.0", c.page)}}}}));
        desktop.alertAnswers = {1};
        desktop.openedURLs.clear();
        desktop.opensURLs = c.opens;
        commands.actions.clear();
        events.clear();
        const CapturedLog log;
        run();
        EXPECT_EQ(desktop.openedURLs, c.opened ? QList<QUrl>{QUrl(c.opened)} : QList<QUrl>()) << c.page;
        EXPECT_EQ(log.contains("ERROR: Refusing to open download page:"), !c.opened) << c.page;
        EXPECT_EQ(log.contains("Opening in default browser download page: "), c.opened != nullptr) << c.page;
        EXPECT_EQ(commands.actions.size(), c.opened && c.opens ? 1U : 0U) << c.page;
        EXPECT_EQ(events.last(), "end");
        EXPECT_TRUE(events.contains(kQVNewVersionLastTimeChecked)) << c.page;
    }
    EXPECT_EQ(stored(kQVNewVersionSkipToBuild), QVariant());
}

TEST_F(VersionCheckTest, the_address_for_donations_is_taken_over_when_it_is_one) {
    for (const auto& [address, isTaken] : {std::pair{"https://d.example/", true}, std::pair{"", false},
                                           std::pair{"javascript:x", false}, std::pair{"d.html", false}}) {
        env.defaults().removeObjectForKey(kQVDonationPageURL);
        downloads.answer("https://a.example/versions.plist",
                         listOf({{own, QVariantMap{{kQVDonationPageURL, address}, {"Release", record(1)}}}}));
        run();
        EXPECT_EQ(stored(kQVDonationPageURL), isTaken ? QVariant(address) : QVariant());
    }
}

TEST_F(VersionCheckTest, a_check_under_way_is_the_only_one) {
    downloads.hangs = true;
    check->checkLatestVersion(Sender::none);
    check->checkNow();
    EXPECT_EQ(downloads.asked.size(), 1);
    EXPECT_TRUE(check->isChecking());
    EXPECT_EQ(events, QStringList{"begin"});
    check.reset();
    EXPECT_EQ(downloads.underWay, 0);
    EXPECT_FALSE(stored(kQVNewVersionLastTimeChecked).isValid());
}

TEST_F(VersionCheckTest, its_alert_waits_for_panels_and_an_ending_player_leaves_it_unanswered) {
    downloads.answer("https://a.example/versions.plist", release(45));
    desktop.panelStands = true;
    desktop.alertAnswers = {0};
    check->checkLatestVersion(Sender::none);
    env.runLoop.runPending();
    EXPECT_EQ(events, QStringList{"begin"});
    desktop.closePanels();
    EXPECT_EQ(events, (QStringList{"begin", "alert", kQVNewVersionLastTimeChecked, "end"}));

    env.defaults().removeObjectForKey(kQVNewVersionLastTimeChecked);
    env.defaults().removeObjectForKey(kQVNewVersionSkipToBuild);
    desktop.alertAnswers = {-1};
    desktop.whileAlertIsUp = [this] { desktop.terminating = true; };
    run();
    EXPECT_FALSE(check->isChecking());
    EXPECT_FALSE(stored(kQVNewVersionLastTimeChecked).isValid()) << "the next launch tells again";
}

TEST_F(VersionCheckTest, a_long_name_of_a_version_stays_on_a_line) {
    downloads.answer("https://a.example/versions.plist",
                     listOf({{own, QVariantMap{{"Release", record(45, "2.0\n\n" + QString(5000, 'x'))}}}}));
    desktop.alertAnswers = {-1};
    run();
    EXPECT_LT(desktop.alerts.front().message.size(), 120);
    EXPECT_FALSE(desktop.alerts.front().message.contains(u'\n'));
}
