// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/SettingsFile.h"
#include "platform/base/Background.h"
#include "tests/support/CapturedLog.h"
#include "tests/support/Files.h"
#include "tests/support/ManualRunLoop.h"

#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <vector>

using platform::SettingsFile;

namespace {

class SettingsFileTest : public testing::Test {
protected:
    QStringList names() const {
        return QDir(folder.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::Hidden | QDir::System);
    }
    static QByteArray contents(const QString& name) {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir folder;
    QString path = folder.filePath("settings.plist");
    CapturedLog log;
    const QVariantMap settings{{"QVJumpInterval", 15}, {"QVVolumeSavedLevel", 0.3F}};
};

} // namespace

TEST_F(SettingsFileTest, it_stands_where_the_user_keeps_settings) {
    const QByteArray before = qgetenv("XDG_CONFIG_HOME");
    const QString name = "/lumaro/org.lumaro.Lumaro.plist";
    const QString usual = QDir::homePath() + "/.config" + name;
    for (const auto& [variable, expected] :
         {std::pair<QByteArray, QString>{"/settings//of/../mine/", "/settings/mine" + name},
          {"relative", usual},
          {"", usual}}) {
        qputenv("XDG_CONFIG_HOME", variable);
        EXPECT_EQ(SettingsFile::defaultPath(), expected);
    }
    qputenv("XDG_CONFIG_HOME", before);
}

TEST_F(SettingsFileTest, a_damaged_file_is_put_aside_and_reported) {
    const char* const damages[] = {"", "no property list", "<plist version=\"1.0\"><dict><key>a</key>",
                                   "<plist version=\"1.0\"><string>no dictionary</string></plist>", "bplist00"};
    for (const char* damage : damages) {
        log.clear();
        writeFile(path, QByteArray(damage));
        SettingsFile file(path);
        EXPECT_TRUE(file.load().isEmpty()) << damage;
        EXPECT_EQ(log.count("ERROR: "), 1) << damage;
        ASSERT_TRUE(file.trouble()) << damage;
        EXPECT_EQ(file.trouble()->kind, platform::StorageTrouble::Kind::damaged);
        EXPECT_EQ(contents(file.trouble()->aside), damage);
        EXPECT_TRUE(file.store(settings)) << damage;
    }
    // None of them took another one's name, though they came within a second.
    QList<QByteArray> kept;
    for (const QString& name : names().filter("settings.plist.damaged-"))
        kept.append(contents(folder.filePath(name)));
    ASSERT_EQ(kept.size(), static_cast<qsizetype>(std::size(damages)));
    for (const char* damage : damages)
        EXPECT_TRUE(kept.contains(damage)) << damage;
}

TEST_F(SettingsFileTest, what_could_not_be_read_is_never_replaced) {
    const struct {
        const char* what;
        std::function<void()> make;
    } cases[] = {{"a folder", [&] { QDir().mkpath(path); }},
                 {"a pipe", [&] { ::mkfifo(QFile::encodeName(path).constData(), 0600); }},
                 {"a link to itself", [&] { QFile::link(path, path); }},
                 {"no permission", [&] {
                      writeFile(path, "kept");
                      ::chmod(QFile::encodeName(path).constData(), 0);
                  }}};
    for (const auto& [what, make] : cases) {
        if (::geteuid() == 0 && QByteArray(what) == "no permission")
            continue; // root may read everything
        log.clear();
        make();
        const QFileInfo before(path);
        SettingsFile file(path);
        EXPECT_TRUE(file.load().isEmpty()) << what;
        EXPECT_TRUE(file.trouble() && file.trouble()->kind == platform::StorageTrouble::Kind::unreadable) << what;
        EXPECT_EQ(log.count("ERROR: "), 1) << what;
        EXPECT_FALSE(file.store(settings)) << what;
        const QFileInfo after(path);
        EXPECT_EQ(before.isDir(), after.isDir()) << what;
        EXPECT_EQ(before.isSymLink(), after.isSymLink()) << what;
        EXPECT_EQ(names(), QStringList{"settings.plist"}) << what;
        after.isDir() ? QDir().rmdir(path) : QFile::remove(path);
    }
}

TEST_F(SettingsFileTest, a_link_stays_a_link_and_permissions_stay) {
    const QString target = folder.filePath("elsewhere.plist");
    ASSERT_TRUE(QFile::link("elsewhere.plist", path));
    SettingsFile file(path);
    EXPECT_TRUE(file.load().isEmpty());
    EXPECT_TRUE(file.store(settings));
    EXPECT_TRUE(QFileInfo(path).isSymLink());
    EXPECT_TRUE(QFileInfo(target).isFile());

    ::chmod(QFile::encodeName(target).constData(), 0640);
    EXPECT_TRUE(file.store({{"other", 1}}));
    struct stat info {};
    ::stat(QFile::encodeName(target).constData(), &info);
    EXPECT_EQ(info.st_mode & 0777U, 0640U);
    EXPECT_EQ(SettingsFile(path).load(), (QVariantMap{{"other", 1}}));
}

TEST_F(SettingsFileTest, players_that_share_it_keep_what_the_other_wrote) {
    ASSERT_TRUE(SettingsFile(path).store({{"volume", 1}, {"layer", 1}, {"style", 1}, {"of another program", 1}}));
    SettingsFile first(path);
    SettingsFile second(path);
    QVariantMap ofFirst = first.load();
    QVariantMap ofSecond = second.load();
    ofFirst["volume"] = 2;
    ofFirst["new"] = "first";
    ofFirst.remove("style");
    EXPECT_TRUE(first.store(ofFirst));
    ofSecond["layer"] = 3;
    EXPECT_TRUE(second.store(ofSecond));
    const QVariantMap both{{"volume", 2}, {"layer", 3}, {"new", "first"}, {"of another program", 1}};
    EXPECT_EQ(SettingsFile(path).load(), both);
    // The later change of one key counts, and what was stored once is not stored again.
    ofSecond["volume"] = 4;
    EXPECT_TRUE(second.store(ofSecond));
    ofFirst["layer"] = 5;
    EXPECT_TRUE(first.store(ofFirst));
    EXPECT_EQ(SettingsFile(path).load().value("volume"), 4);
    EXPECT_EQ(SettingsFile(path).load().value("layer"), 5);
    // Gone or damaged meanwhile: each has all that it knows.
    QFile::remove(path);
    ofFirst["layer"] = 6;
    EXPECT_TRUE(first.store(ofFirst));
    EXPECT_EQ(SettingsFile(path).load(), ofFirst);
    writeFile(path, "damaged");
    ofSecond["layer"] = 7;
    EXPECT_TRUE(second.store(ofSecond));
    EXPECT_EQ(SettingsFile(path).load(), ofSecond);
    EXPECT_EQ(names().filter(".damaged-").size(), 1);
}

TEST_F(SettingsFileTest, players_that_write_at_the_same_time_lose_nothing) {
    constexpr int players = 4;
    constexpr int keys = 25;
    std::vector<pid_t> children;
    for (int player = 0; player < players; ++player) {
        children.push_back(::fork());
        if (children.back() == 0) {
            SettingsFile file(path);
            QVariantMap domain = file.load();
            bool stored = true;
            for (int key = 0; key < keys; ++key) {
                domain[QStringLiteral("%1-%2").arg(player).arg(key)] = key;
                stored = file.store(domain) && stored;
                ::usleep(5000); // The lock is not fair, and nobody writes all the time.
            }
            ::_exit(stored ? 0 : 1);
        }
    }
    for (const pid_t child : children) {
        int status = 0;
        ::waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
    EXPECT_EQ(SettingsFile(path).load().size(), players * keys);
    EXPECT_EQ(names(), QStringList{"settings.plist"});
    // Somebody who holds the lock and does nothing delays it, no more.
    const int holder = ::open(QFile::encodeName(folder.path()).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    ASSERT_EQ(::flock(holder, LOCK_EX), 0);
    EXPECT_TRUE(SettingsFile(path).store(settings));
    ::close(holder);
}

TEST_F(SettingsFileTest, of_what_is_stored_in_the_background_the_last_one_stands) {
    ManualRunLoop loop;
    platform::RunLoop::setMain(&loop);
    {
        SettingsFile file(path);
        int answers = 0;
        const auto isStored = [&answers](bool stored) { answers += stored ? 1 : 100; };
        for (int number = 1; number <= 20; ++number)
            file.storeInBackground({{"number", number}}, isStored);
        EXPECT_EQ(answers, 0) << "nobody waits for it";
        while (answers < 20 && loop.runPosted()) {
        }
        EXPECT_EQ(answers, 20);
        EXPECT_EQ(SettingsFile(path).load().value("number"), 20);
        file.storeInBackground({{"number", 21}}, isStored);
        EXPECT_TRUE(file.store({{"number", 22}}));
    }
    EXPECT_TRUE(platform::background::waitUntilIdle(30));
    platform::RunLoop::setMain(nullptr);
    EXPECT_EQ(SettingsFile(path).load().value("number"), 22);
}

TEST_F(SettingsFileTest, killed_at_any_moment_it_reads_back_whole) {
    ASSERT_TRUE(SettingsFile(path).store({{"first", 0}, {"last", 0}}));
    for (unsigned round = 1; round <= 20; ++round) {
        const pid_t child = ::fork();
        if (child == 0) {
            SettingsFile file(path);
            for (int number = 1;; ++number)
                file.store({{"first", number}, {"filling", QString(50'000, 'x')}, {"last", number}});
        }
        ::usleep(round * 700); // The child needs real time to be in the middle of something.
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        const QVariantMap read = SettingsFile(path).load();
        ASSERT_TRUE(read.contains("first")) << round;
        ASSERT_EQ(read["first"], read["last"]) << round;
    }
    EXPECT_FALSE(log.contains("ERROR"));
}

TEST_F(SettingsFileTest, a_disk_that_is_full_leaves_the_old_settings_and_nothing_else) {
    ASSERT_TRUE(SettingsFile(path).store(settings));
    const QByteArray before = contents(path);
    const pid_t child = ::fork();
    if (child == 0) {
        const rlimit full{1000, 1000};
        ::setrlimit(RLIMIT_FSIZE, &full);
        std::signal(SIGXFSZ, SIG_IGN);
        const bool stored = SettingsFile(path).store({{"filling", QString(50'000, 'x')}});
        ::_exit(stored || log.count("ERROR: SettingsFile: Can't write the settings to ") != 1 ? 1 : 0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(contents(path), before);
    EXPECT_EQ(names(), QStringList{"settings.plist"});
}

TEST_F(SettingsFileTest, one_of_a_later_version_is_left_alone) {
    const platform::SettingsFormat format{"places", 2};
    ASSERT_TRUE(SettingsFile(path, {"places", 1}).store({{"a", 1}}));
    SettingsFile earlier(path, format);
    earlier.readAhead();
    EXPECT_EQ(earlier.load(), (QVariantMap{{"a", 1}, {"Version", 1}}));
    EXPECT_TRUE(earlier.store({{"a", 2}}));
    EXPECT_EQ(SettingsFile(path).load(), (QVariantMap{{"a", 2}, {"Version", 2}}));
    ASSERT_TRUE(SettingsFile(path, {"places", 3}).store({{"a", 3}}));
    const QByteArray later = contents(path);
    SettingsFile file(path, format);
    EXPECT_FALSE(earlier.trouble());
    EXPECT_TRUE(file.load().isEmpty());
    EXPECT_TRUE(file.trouble() && file.trouble()->kind == platform::StorageTrouble::Kind::later);
    EXPECT_FALSE(file.store({{"a", 4}}));
    EXPECT_FALSE(file.store({{"a", 5}}));
    EXPECT_EQ(contents(path), later);
    EXPECT_EQ(log.count("ERROR: SettingsFile: A later version of Lumaro wrote the places in "), 1);
}

TEST_F(SettingsFileTest, a_new_file_is_for_its_owner_alone) {
    const mode_t before = ::umask(0);
    const QString fresh = folder.filePath("new/folders/settings.plist");
    EXPECT_TRUE(SettingsFile(fresh).store(settings));
    ::umask(before);
    struct stat info {};
    ASSERT_EQ(::stat(QFile::encodeName(fresh).constData(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777U, 0600U);
}

TEST_F(SettingsFileTest, one_that_is_too_large_is_neither_read_nor_replaced) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    constexpr qint64 tooLarge = 16 * 1024 * 1024 + 1;
    ASSERT_TRUE(file.resize(tooLarge)); // takes no space
    SettingsFile settingsFile(path);
    EXPECT_TRUE(settingsFile.load().isEmpty());
    EXPECT_EQ(log.count("ERROR: "), 1);
    EXPECT_FALSE(settingsFile.store(settings));
    EXPECT_EQ(file.size(), tooLarge);
    EXPECT_EQ(names(), QStringList{"settings.plist"});
}
