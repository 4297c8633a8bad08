// SPDX-License-Identifier: GPL-3.0-or-later
// Data files that come out of archives: what is taken, what is refused, and that nothing stays behind.
#include "platform/base/PrivateFolder.h"
#include "settings/Tracing.h"
#include "subtitles/vobsub/QVVobSubInfo.h"
#include "subtitles/vobsub/SubFileSearch.h"
#include "tests/subtitles/SubtitleFiles.h"
#include "tests/support/CapturedLog.h"
#include "tests/support/RarWriter.h"

#include <QDir>
#include <QFileInfo>

#include <sys/stat.h>

namespace {

constexpr RarFormat formats[] = {RarFormat::rar4, RarFormat::rar5};

class Archives : public SubtitleFiles {
protected:
    /// An index with an archive beside it.
    std::shared_ptr<const QVVobSubInfo> infoWithArchive(const QByteArray& archive) {
        write(QStringLiteral("film.rar"), {archive.constData(), static_cast<std::size_t>(archive.size())});
        return QVVobSubInfo::infoWithFile(write(
            QStringLiteral("film.idx"), "# VobSub index file, v7 (do not modify this line!)\nid: en, index: 0\n"));
    }
    /// What the data file holds, with its name below the temporary folder in front; empty without one.
    QByteArray nameAndBytes(const QVVobSubInfo& info) const {
        QFile file(info.subPath());
        if (!file.open(QIODevice::ReadOnly))
            return {};
        return info.subPath().mid(temporary.path().size() + 1).toUtf8() + '=' + file.readAll();
    }
    QStringList leftBehind() const {
        return QDir(temporary.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    void SetUp() override { qputenv("TMPDIR", QFile::encodeName(temporary.path())); }
    void TearDown() override { qunsetenv("TMPDIR"); }

    QTemporaryDir temporary{QDir::tempPath() + QStringLiteral("/archives-XXXXXX")};
    CapturedLog log;
};

} // namespace

TEST_F(Archives, the_data_file_is_taken_out_for_as_long_as_the_index_lives) {
    const QByteArray bytes(100'000, 'x');
    const struct {
        const char* what;
        std::vector<RarEntry> entries;
        QByteArray file;
    } cases[] = {
        {"of the index's name", {{"AAA.sub", "no"}, {"Film.SUB", bytes}}, "film/film.sub=" + bytes},
        {"of another name", {{"read me.txt", "no"}, {"B.sub", "no"}, {"a.sub", "yes"}}, "film/a.sub=yes"},
        {"before one further down", {{"x/film.sub", "no"}, {"z.sub", "yes"}}, "film/z.sub=yes"},
        {"further down", {{"CD1/Subs/Film.Sub", "yes"}, {"CD1/a.txt", "no"}}, "film/cd1/subs/film.sub=yes"},
        {"names that differ in case", {{"FILM.SUB", "no"}, {"film.sub", "yes"}}, "film/film.sub=yes"},
        {"beside a link, a pipe and a device",
         {{"film.sub", {}, 0120777, {}, {}, false, "/etc/passwd"},
          {"p.sub", {}, 0010644},
          {"d.sub", {}, 0060644},
          {"e.sub", "yes"}},
         "film/e.sub=yes"},
        {"below a link's name", {{"l", {}, 0120777, {}, {}, false, "/tmp"}, {"l/f.sub", "yes"}}, "film/l/f.sub=yes"},
    };
    for (const auto& one : cases) {
        for (const RarFormat format : formats) {
            auto info = infoWithArchive(rarArchive(format, one.entries));
            ASSERT_TRUE(info) << one.what;
            const QByteArray found = nameAndBytes(*info);
            EXPECT_EQ(found.mid(found.indexOf('/', found.indexOf('/') + 1) + 1), one.file) << one.what;
            EXPECT_TRUE(info->subPath().startsWith(temporary.path())) << one.what;
            const QFileInfo kept(temporary.filePath(leftBehind().value(0)));
            EXPECT_EQ(kept.permissions() & ~QFile::Permissions(0x7000), QFile::Permissions(0x0700)) << one.what;
            info.reset();
            EXPECT_EQ(leftBehind(), QStringList()) << one.what;
        }
    }
}

TEST_F(Archives, an_archive_that_is_not_in_order_gives_nothing_and_leaves_nothing) {
    const QByteArray bytes(6000, 'x');
    std::vector<RarEntry> many;
    for (int number = 0; number <= 10'000; ++number)
        many.push_back({QByteArray::number(number) + ".sub", "x"});
    const struct {
        const char* what;
        std::vector<RarEntry> entries;
    } cases[] = {
        {"wrong checksum", {{"film.sub", bytes, 0100644, {}, 1}}},
        {"wrong checksum of another file", {{"film.sub", bytes}, {"a.txt", bytes, 0100644, {}, 1}}},
        {"encrypted", {{"film.sub", bytes.left(5984), 0100644, 6000, {}, true}}},
        {"a name that leads out", {{"../film.sub", bytes}}},
        {"a name that leads out further down", {{"a/../../film.sub", bytes}}},
        {"an absolute name", {{QFile::encodeName(folder.filePath(QStringLiteral("out.sub"))), bytes}}},
        {"3 GiB, as it says", {{"a.sub", bytes, 0100644, 0xC0000000}}},
        {"larger than it says", {{"film.sub", bytes, 0100644, 100}}},
        {"forty folders deep", {{QByteArray("a/").repeated(40) + "film.sub", bytes}}},
        {"no data file", {{"read me.txt", bytes}}},
        {"too many entries", many},
        {"empty", {}},
    };
    for (const RarFormat format : formats) {
        std::vector<std::pair<const char*, QByteArray>> archives;
        for (const auto& one : cases)
            archives.emplace_back(one.what, rarArchive(format, one.entries));
        archives.emplace_back("encrypted headers", rarArchiveWithEncryptedHeaders(format));
        archives.emplace_back("truncated", rarArchive(format, {{"film.sub", bytes}}).left(3000));
        archives.emplace_back("a header cut", rarArchive(format, {{"film.sub", bytes}}).left(40));
        archives.emplace_back("no RAR archive", QByteArray("PK\x03\x04 something else"));
        for (const auto& [what, archive] : archives) {
            log.clear();
            const auto info = infoWithArchive(archive);
            ASSERT_TRUE(info) << what;
            EXPECT_EQ(info->subPath(), QString()) << what;
            EXPECT_EQ(log.count(QStringLiteral("ERROR: QVVobSubInfo: Unable to find SUB file at ")), 1) << what;
            EXPECT_EQ(leftBehind(), QStringList()) << what;
        }
    }
    EXPECT_FALSE(QFileInfo::exists(folder.filePath(QStringLiteral("out.sub"))));
}

TEST_F(Archives, a_data_file_beside_the_index_stands_in_for_a_bad_archive) {
    const QString sub = write(QStringLiteral("film.sub"), "beside");
    EXPECT_EQ(infoWithArchive("no archive")->subPath(), sub);
    EXPECT_NE(infoWithArchive(rarArchive(RarFormat::rar5, {{"film.sub", "inside"}}))->subPath(), sub);
}

TEST_F(Archives, archives_with_numbers_in_their_names_are_not_volumes_of_each_other) {
    for (const char* name : {"cd1.rar", "cd2.rar"}) {
        const QByteArray archive = rarArchive(RarFormat::rar5, {{"film.sub", name}});
        write(QString::fromUtf8(name), {archive.constData(), static_cast<std::size_t>(archive.size())});
    }
    const auto info = QVVobSubInfo::infoWithFile(
        write(QStringLiteral("cd2.idx"), "# VobSub index file, v7 (do not modify this line!)\nid: en, index: 0\n"));
    EXPECT_TRUE(nameAndBytes(*info).endsWith("/cd2/film.sub=cd2.rar"));
}

TEST_F(Archives, the_tool_that_is_missing_is_told_of) {
    const QByteArray resources = qgetenv("PATH");
    qputenv("PATH", "/nowhere");
    const auto info = infoWithArchive(rarArchive(RarFormat::rar4, {{"film.sub", "inside"}}));
    qputenv("PATH", resources);
    EXPECT_EQ(info->subPath(), QString());
    EXPECT_EQ(leftBehind(), QStringList());
}

TEST_F(Archives, private_folders_leave_no_descriptors_open) {
    const auto descriptors = [] {
        return QDir("/proc/self/fd").entryList(QDir::NoDotAndDotDot | QDir::AllEntries).size();
    };
    platform::PrivateFolder::make();
    const qsizetype before = descriptors();
    for (int i = 0; i < 4; ++i)
        EXPECT_TRUE(QFileInfo::exists(platform::PrivateFolder::make()->path()));
    EXPECT_EQ(descriptors(), before);
}

TEST_F(Archives, a_sweep_removes_what_killed_processes_left_and_nothing_else) {
    const auto used = platform::PrivateFolder::make();
    const QString abandoned = used->path() + QStringLiteral("-left");
    const QString other = temporary.filePath(QStringLiteral("other"));
    const QString link = used->path() + QStringLiteral("-link");
    for (const QString& path : {abandoned + QStringLiteral("/closed/inner"), other})
        ASSERT_TRUE(QDir().mkpath(path));
    ASSERT_TRUE(QFile::link(other, link));
    ASSERT_TRUE(QFile::link(other, abandoned + QStringLiteral("/link")));
    ASSERT_TRUE(QFile(other + QStringLiteral("/kept")).open(QIODevice::WriteOnly));
    ASSERT_EQ(::chmod(QFile::encodeName(abandoned + QStringLiteral("/closed")).constData(), 0), 0);
    platform::PrivateFolder::sweep();
    EXPECT_FALSE(QFileInfo::exists(abandoned));
    EXPECT_TRUE(QFileInfo::exists(used->path()));
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_TRUE(QFileInfo::exists(other + QStringLiteral("/kept")));
}

TEST_F(Archives, extensions_are_found_in_any_case) {
    const QString base = folder.filePath("Film.x");
    EXPECT_EQ(SubFileSearch::fileBeside(base, "sub"), QString());
    for (const char* extension : {"Sub", "SUB", "sub"}) {
        const QString path = write("Film.x." + QString::fromUtf8(extension), "x");
        EXPECT_EQ(SubFileSearch::fileBeside(base, "sub"), path);
    }
}
