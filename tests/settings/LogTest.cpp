// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/Log.h"
#include "platform/base/Journal.h"
#include "settings/Tracing.h"
#include "tests/support/CapturedLog.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdlib>
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

TEST(Log, a_line_ends_once_and_a_reader_that_has_gone_or_sleeps_does_no_harm) {
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    const int before = ::dup(STDERR_FILENO);
    ::dup2(ends[1], STDERR_FILENO);
    ::close(ends[1]);
    platform::Log::write("ERROR: ä\n\n");
    platform::Log::write("next");
    char bytes[100];
    EXPECT_EQ(QByteArray(bytes, ::read(ends[0], bytes, sizeof(bytes))), "ERROR: ä\nnext\n");
    for (int line = 0; line < 3000; ++line)
        platform::Log::write(QString(100, 'x'));
    ::close(ends[0]);
    platform::Log::write("nobody reads this");
    ::dup2(before, STDERR_FILENO);
    ::close(before);
}

TEST(Journal, gets_each_line_once_in_its_own_form) {
    const QTemporaryDir folder;
    const QByteArray path = QFile::encodeName(folder.filePath("journal"));
    const int before = ::dup(STDERR_FILENO);
    const auto leadStandardErrorTo = [](int file) {
        ::dup2(file, STDERR_FILENO);
        ::close(file);
    };
    leadStandardErrorTo(::open((path + ".log").constData(), O_WRONLY | O_CREAT, 0600));
    ::unsetenv("JOURNAL_STREAM");
    const platform::Journal nobody(path.constData());
    const int reader = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.left(sizeof(address.sun_path) - 1).toStdString().copy(address.sun_path, sizeof(address.sun_path) - 1);
    ASSERT_EQ(::bind(reader, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
    const auto got = [&] {
        char bytes[1000];
        const ssize_t size = ::recv(reader, bytes, sizeof(bytes), MSG_DONTWAIT);
        return QByteArray(bytes, std::max<ssize_t>(size, 0));
    };
    nobody.write("too early");
    EXPECT_EQ(got(), "");
    const QByteArray name = "SYSLOG_IDENTIFIER=lumaro\n";
    const std::pair<QByteArray, QByteArray> lines[] = {
        {"Opened.", "MESSAGE=Opened.\nPRIORITY=6\n"},
        {"WARNING: Odd.", "MESSAGE=WARNING: Odd.\nPRIORITY=4\n"},
        {"ERROR: Gone.", "MESSAGE=ERROR: Gone.\nPRIORITY=3\n"},
        {"Two\nlines", QByteArray("MESSAGE\n\x09\0\0\0\0\0\0\0", 16) + "Two\nlines\nPRIORITY=6\n"},
        {QByteArray(0x102, '\n'),
         QByteArray("MESSAGE\n\2\1\0\0\0\0\0\0", 16) + QByteArray(0x102, '\n') + "\nPRIORITY=6\n"},
    };
    {
        const platform::Journal journal(path.constData());
        for (const auto& [line, datagram] : lines) {
            journal.write(line);
            EXPECT_EQ(got(), datagram + name);
        }
    }
    // What the journal, or a person, reads already.
    struct stat file {};
    ::fstat(STDERR_FILENO, &file);
    const auto id = [](auto device, auto inode) { return std::to_string(device) + ':' + std::to_string(inode); };
    const std::pair<std::string, const char*> streams[] = {{id(file.st_dev, file.st_ino), "no"},
                                                           {id(file.st_dev, file.st_ino + 1), "yes"}};
    for (const auto& [stream, isWritten] : streams) {
        ::setenv("JOURNAL_STREAM", stream.c_str(), 1);
        platform::Journal(path.constData()).write("Opened.");
        EXPECT_STREQ(got().isEmpty() ? "no" : "yes", isWritten) << stream;
    }
    ::unsetenv("JOURNAL_STREAM");
    const int terminal = ::posix_openpt(O_RDWR | O_NOCTTY);
    if (::grantpt(terminal) == 0 && ::unlockpt(terminal) == 0) {
        leadStandardErrorTo(::open(::ptsname(terminal), O_WRONLY | O_NOCTTY));
        platform::Journal(path.constData()).write("Opened.");
        EXPECT_EQ(got(), "");
    }
    leadStandardErrorTo(before);
    ::close(terminal);
    ::close(reader);
}

namespace {

const bool tracesUnasked = gTracingEnabled;

} // namespace

TEST(Tracing, informational_lines_and_scopes_appear_while_tracing_alone) {
    const CapturedLog log;
    const auto work = [] {
        const TraceScope scope("-[QVAppController finishLaunching]");
        trace("%@: x%d %g", QString("Class"), 2, 0.5);
        logAlways("ERROR: %@", "always");
    };
    EXPECT_FALSE(tracesUnasked);
    gTracingEnabled = false;
    work();
    EXPECT_EQ(log.lines(), QStringList{"ERROR: always"});
    gTracingEnabled = true;
    work();
    gTracingEnabled = false;
    EXPECT_EQ(log.lines().mid(1), (QStringList{"BEGIN: -[QVAppController finishLaunching] {", "Class: x2 0.5",
                                               "ERROR: always", "} END: -[QVAppController finishLaunching]"}));
}
