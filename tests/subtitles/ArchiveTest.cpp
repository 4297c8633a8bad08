// SPDX-License-Identifier: GPL-3.0-or-later
// Data files that come out of archives: what is taken, what is refused, and that nothing stays behind.
#include "platform/base/PathNames.h"
#include "platform/base/PrivateFolder.h"
#include "platform/base/RegularFile.h"
#include "settings/Tracing.h"
#include "subtitles/vobsub/QVVobSubSubtitles.h"
#include "subtitles/vobsub/SubFileSearch.h"
#include "tests/subtitles/SubtitleFiles.h"
#include "tests/subtitles/VobSubFiles.h"
#include "tests/support/CapturedLog.h"
#include "tests/support/RarWriter.h"

#include <QDir>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <thread>

namespace {

constexpr RarFormat formats[] = {RarFormat::rar4, RarFormat::rar5};

class Archives : public SubtitleFiles {
protected:
    /// An index with an archive beside it.
    std::shared_ptr<const QVVobSubInfo> infoWithArchive(const QByteArray& archive) {
        writeArchive(QStringLiteral("film.rar"), archive);
        return QVVobSubInfo::infoWithFile(writeIndex(QStringLiteral("film.idx")));
    }
    void writeArchive(const QString& name, const QByteArray& archive) {
        write(name, {archive.constData(), static_cast<std::size_t>(archive.size())});
    }
    QString writeIndex(const QString& name) {
        return write(name, "# VobSub index file, v7 (do not modify this line!)\nid: en, index: 0\n");
    }
    /// The data file, as a track gets it.
    static QString pathIn(const QVVobSubInfo& info) { return info.subFile().claim()->path({}); }
    /// What the data file holds, with its name below the temporary folder in front; empty without one.
    QByteArray nameAndBytes(const QVVobSubInfo& info) const {
        QFile file(pathIn(info));
        if (!file.open(QIODevice::ReadOnly))
            return {};
        return file.fileName().mid(temporary.path().size() + 1).toUtf8() + '=' + file.readAll();
    }
    QStringList leftBehind() const {
        EXPECT_TRUE(platform::PrivateSubfolder::waitUntilGone(20));
        return inTemporary();
    }
    QStringList inTemporary() const {
        return QDir(temporary.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    void SetUp() override { qputenv("TMPDIR", QFile::encodeName(temporary.path())); }
    void TearDown() override {
        EXPECT_TRUE(platform::PrivateSubfolder::waitUntilGone(20));
        qunsetenv("TMPDIR");
    }

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
            EXPECT_TRUE(pathIn(*info).startsWith(temporary.path())) << one.what;
            const QFileInfo kept(temporary.filePath(inTemporary().value(0)));
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
            EXPECT_EQ(pathIn(*info), QString()) << what;
            EXPECT_EQ(log.count(QStringLiteral("ERROR: QVVobSubInfo: Unable to find SUB file at ")), 1) << what;
            EXPECT_EQ(leftBehind(), QStringList()) << what;
        }
    }
    EXPECT_FALSE(QFileInfo::exists(folder.filePath(QStringLiteral("out.sub"))));
}

TEST_F(Archives, a_data_file_beside_the_index_comes_before_an_archive) {
    const QString sub = write(QStringLiteral("film.sub"), "beside");
    EXPECT_EQ(pathIn(*infoWithArchive(rarArchive(RarFormat::rar5, {{"film.sub", "inside"}}))), sub);
}

TEST_F(Archives, volumes_of_both_numberings_are_put_together) {
    QByteArray bytes;
    for (int number = 0; bytes.size() < 100'000; ++number)
        bytes += QByteArray::number(number) + ' ';
    const auto old = [](int number) {
        constexpr int perLetter = 100;
        const QString extension = QStringLiteral("%1").arg((number - 1) % perLetter, 2, 10, QChar(u'0'));
        return number == 0 ? QStringLiteral("film.rar")
                           : QStringLiteral("film.") + "rst"[(number - 1) / 100] + extension;
    };
    const auto parts = [](int digits) {
        return [=](int number) { return QStringLiteral("film.part%1.rar").arg(number + 1, digits, 10, QChar(u'0')); };
    };
    const auto upper = [](auto name) {
        return [=](int number) { return name(number).toUpper().replace("FILM", "film"); };
    };
    const struct {
        const char* what;
        RarFormat format;
        RarNumbering numbering;
        int volumes;
        std::function<QString(int)> name;
    } cases[] = {
        {"old", RarFormat::rar4, RarNumbering::old, 3, old},
        {"old, in capitals", RarFormat::rar4, RarNumbering::old, 3, upper(old)},
        {"old, beyond r99", RarFormat::rar4, RarNumbering::old, 104, old},
        {"new", RarFormat::rar4, RarNumbering::parts, 11, parts(1)},
        {"new, with zeros", RarFormat::rar4, RarNumbering::parts, 11, parts(2)},
        {"new, with more of them", RarFormat::rar5, RarNumbering::parts, 3, parts(3)},
        {"new, in capitals", RarFormat::rar5, RarNumbering::parts, 3, upper(parts(2))},
        {"new of the newer format", RarFormat::rar5, RarNumbering::parts, 11, parts(1)},
    };
    for (const auto& one : cases) {
        const auto volumes = rarVolumes(one.format, one.numbering, {"Film.sub", bytes}, one.volumes);
        QStringList written;
        for (int number = 0; number < one.volumes; ++number) {
            written.append(one.name(number));
            writeArchive(written.last(), volumes[static_cast<std::size_t>(number)]);
        }
        const QString index = writeIndex(QStringLiteral("film.idx"));
        EXPECT_TRUE(QVVobSubSubtitles::isFormatValid(index, "# VobSub index file, v7 (do not modify this line!)\n"))
            << one.what;
        EXPECT_TRUE(nameAndBytes(*QVVobSubInfo::infoWithFile(index)).endsWith("/film.sub=" + bytes)) << one.what;
        // With one of them gone there is nothing.
        QFile::remove(folder.filePath(written.takeAt(1)));
        EXPECT_EQ(pathIn(*QVVobSubInfo::infoWithFile(index)), QString()) << one.what;
        EXPECT_EQ(leftBehind(), QStringList()) << one.what;
        for (const QString& name : written)
            QFile::remove(folder.filePath(name));
    }
}

TEST_F(Archives, archives_with_numbers_in_their_names_are_not_volumes_of_each_other) {
    for (const char* name : {"cd1.rar", "cd2.rar", "film.part1.rar", "film.part2.rar"})
        writeArchive(QString::fromUtf8(name), rarArchive(RarFormat::rar5, {{"film.sub", name}}));
    for (const char* name : {"cd2", "film.part1", "film.part2"}) {
        const auto info = QVVobSubInfo::infoWithFile(writeIndex(QString::fromUtf8(name) + ".idx"));
        EXPECT_TRUE(nameAndBytes(*info).endsWith(QByteArray(name) + "/film.sub=" + name + ".rar")) << name;
    }
}

TEST_F(Archives, the_tool_that_is_missing_is_told_of) {
    const QByteArray resources = qgetenv("PATH");
    qputenv("PATH", "/nowhere");
    EXPECT_EQ(pathIn(*infoWithArchive(rarArchive(RarFormat::rar4, {{"film.sub", "inside"}}))), QString());
    qputenv("PATH", resources);
    EXPECT_EQ(leftBehind(), QStringList());
}

namespace {

/// Archives with two tracks, whose listing says when it begins and goes on when it is told.
class SlowArchives : public Archives {
protected:
    void SetUp() override {
        Archives::SetUp();
        for (const QString& fifo : {started, mayGoOn})
            ASSERT_EQ(::mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
        const QString path = QString::fromLocal8Bit(qgetenv("PATH"));
        const QString lister = QStringLiteral("#!/bin/sh\necho $$ >> '%1'\necho >> '%2'\nread word < '%3'\nPATH='%4'\n"
                                              "exec lsar \"$@\"\n")
                                   .arg(runs, started, mayGoOn, path);
        ASSERT_TRUE(
            QFile(write(QStringLiteral("lsar"), lister.toStdString())).setPermissions(QFile::Permissions(0x7700)));
        qputenv("PATH", QFile::encodeName(folder.path() + u':' + path));
        _path = path.toLocal8Bit();

        vobsub::PairWriter pair;
        for (const char* language : {"en", "de"})
            pair.addStream(language);
        for (const int stream : {0, 1})
            pair.add(stream, 1000, uncropped(randomBitmap(120, 30, 9, 1)));
        const vobsub::Bytes& data = pair.data().bytes();
        writeArchive(QStringLiteral("film.rar"),
                     rarArchive(RarFormat::rar5, {{"film.sub", QByteArray(reinterpret_cast<const char*>(data.data()),
                                                                          static_cast<qsizetype>(data.size()))}}));
        tracks = QVVobSubSubtitles::subtitlesWithFilePath(settings.environment,
                                                          write(QStringLiteral("film.idx"), pair.index()), owner);
        ASSERT_EQ(tracks.size(), 2U);
    }
    void TearDown() override {
        tracks.clear();
        qputenv("PATH", _path);
        Archives::TearDown();
    }
    static void pass(const QString& fifo, QIODevice::OpenMode mode) {
        QFile file(fifo);
        ASSERT_TRUE(file.open(mode | QIODevice::Unbuffered));
        if (mode == QIODevice::ReadOnly)
            file.readAll();
        else
            file.write("go on\n");
    }
    void waitForStart() { pass(started, QIODevice::ReadOnly); }
    void letItGoOn() { pass(mayGoOn, QIODevice::WriteOnly); }
    /// The processes that it was begun in.
    QList<QByteArray> listers() const {
        QFile file(runs);
        return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed().split('\n') : QList<QByteArray>();
    }

    const QString started = folder.filePath(QStringLiteral("started"));
    const QString mayGoOn = folder.filePath(QStringLiteral("may go on"));
    const QString runs = folder.filePath(QStringLiteral("runs"));
    std::vector<std::shared_ptr<QVSubtitles>> tracks;

private:
    QByteArray _path;
};

} // namespace

TEST_F(SlowArchives, one_is_taken_apart_once_for_the_tracks_that_are_loaded) {
    EXPECT_EQ(inTemporary(), QStringList()) << "before a track was needed";
    tracks[0]->preload();
    waitForStart();
    EXPECT_TRUE(tracks[0]->isLoading());
    tracks[1]->preload();
    // The other one takes over.
    tracks[0]->unload();
    EXPECT_FALSE(tracks[0]->isLoading());
    letItGoOn();
    tracks[1]->waitForLoading();
    EXPECT_EQ(tracks[1]->count(), 1U);
    tracks[0]->preload();
    tracks[0]->waitForLoading();
    EXPECT_EQ(tracks[0]->count(), 1U);
    EXPECT_EQ(listers().size(), 1);
    tracks.clear();
    EXPECT_EQ(leftBehind(), QStringList());
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_F(SlowArchives, one_that_nobody_waits_for_is_given_up_and_begun_anew_when_it_is_needed) {
    for (int round = 1; round <= 3; ++round) {
        tracks[0]->preload();
        waitForStart();
        EXPECT_EQ(inTemporary().size(), 1);
        tracks[0]->unload();
        EXPECT_EQ(leftBehind(), QStringList());
        EXPECT_EQ(listers().size(), round);
        // It was killed, and is gone as soon as the system comes to it.
        const QString exe = QStringLiteral("/proc/%1/exe").arg(QString::fromLatin1(listers().last()));
        for (int tries = 0; tries < 5000 && !QFile::symLinkTarget(exe).isEmpty(); ++tries)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        EXPECT_EQ(QFile::symLinkTarget(exe), QString()) << "it goes on";
    }
    tracks[0]->preload();
    waitForStart();
    letItGoOn();
    tracks[0]->waitForLoading();
    EXPECT_EQ(tracks[0]->count(), 1U);
    EXPECT_EQ(log.lines(), QStringList());
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
    // Nor to the programs that are started: they would hold the lock.
    const auto used = platform::PrivateFolder::make();
    const QDir open("/proc/self/fd");
    for (const QString& number : open.entryList(QDir::NoDotAndDotDot | QDir::AllEntries))
        if (QFile::symLinkTarget(open.filePath(number)) == used->path()) {
            EXPECT_EQ(::fcntl(number.toInt(), F_GETFD), FD_CLOEXEC);
        }
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

TEST_F(Archives, names_that_are_no_utf8_are_taken_apart_and_read) {
    const QByteArray base = folder.path().toUtf8() + "/caf\xE9";
    std::ofstream((base + ".idx").toStdString())
        << "# VobSub index file, v7 (do not modify this line!)\nid: en, index: 0\n";
    if (!std::filesystem::exists((base + ".idx").toStdString()))
        GTEST_SKIP() << "this file system takes UTF-8 alone";
    const auto data = [&] {
        const auto info = QVVobSubInfo::infoWithFile(platform::pathOfBytes(base + ".idx"));
        return info ? platform::readRegularFile(pathIn(*info), 100).value_or("no file") : QByteArray("no index");
    };
    for (const RarFormat format : formats) {
        const QByteArray archive = rarArchive(format, {{"film.sub", "packed"}});
        std::ofstream((base + ".rar").toStdString(), std::ios::binary) << archive.toStdString();
        EXPECT_EQ(data(), "packed");
    }
    std::ofstream((base + ".SUB").toStdString()) << "beside";
    EXPECT_EQ(data(), "beside");
    for (const char* extension : {".idx", ".rar", ".SUB"}) // the folder's own end does not know how to
        std::filesystem::remove((base + extension).toStdString());
    EXPECT_EQ(leftBehind(), QStringList());
}

TEST_F(Archives, extensions_are_found_in_any_case) {
    const QString base = folder.filePath("Film.x");
    EXPECT_EQ(SubFileSearch::fileBeside(base, "sub"), QString());
    for (const char* extension : {"Sub", "SUB", "sub"}) {
        const QString path = write("Film.x." + QString::fromUtf8(extension), "x");
        EXPECT_EQ(SubFileSearch::fileBeside(base, "sub"), path);
    }
}
