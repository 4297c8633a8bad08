// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/ToolProcess.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <unistd.h>

namespace {

platform::ToolRequest shell(const char* script) {
    platform::ToolRequest request;
    request.program = QString("sh");
    request.arguments = {QString("-c"), script};
    request.timeout = 20;
    return request;
}

} // namespace

TEST(ToolProcess, limits_end_the_program_and_what_it_started) {
    const QTemporaryDir folder;
    auto slow = shell("sleep 1000 & echo $!; sleep 1000");
    slow.timeout = 0.2;
    pid_t child = 0;
    slow.output = [&](const QByteArray& piece) { child = piece.trimmed().toInt(); };
    EXPECT_EQ(platform::runTool(slow), 128 + SIGKILL);
    ASSERT_GT(child, 0);
    EXPECT_TRUE(::kill(child, 0) != 0 || QFile::symLinkTarget(QString("/proc/%1/exe").arg(child)).isEmpty());

    auto stopped = shell("sleep 1000");
    int asked = 0;
    stopped.mayGoOn = [&] { return ++asked < 3; };
    EXPECT_EQ(platform::runTool(stopped), 128 + SIGKILL);

    std::stop_source source;
    auto unwanted = shell("sleep 1000 & echo begun; wait");
    unwanted.stop = source.get_token();
    unwanted.output = [&](const QByteArray&) { source.request_stop(); };
    EXPECT_EQ(platform::runTool(unwanted), 128 + SIGKILL);
    EXPECT_EQ(platform::runTool(unwanted), std::nullopt) << "begun all the same";

    auto writer = shell("head -c 200000 /dev/zero > file");
    writer.folder = folder.path();
    writer.fileSize = 100'000;
    EXPECT_NE(platform::runTool(writer), 0);
    EXPECT_EQ(QFile(folder.filePath(QString("file"))).size(), 100'000);

    auto eater = shell("head -c 400000000 /dev/zero | tail -c 400000000 > /dev/null");
    eater.memory = 100'000'000;
    EXPECT_EQ(platform::runTool(eater), 1);

    auto talker = shell("yes");
    talker.maximumOutput = 100'000;
    qsizetype said = 0;
    talker.output = [&](const QByteArray& piece) { said += piece.size(); };
    EXPECT_EQ(platform::runTool(talker), 128 + SIGKILL);
    EXPECT_EQ(said, 100'000);
    auto terse = shell("printf 12345");
    terse.maximumOutput = 5;
    EXPECT_EQ(platform::runTool(terse), 0);
}

TEST(ToolProcess, status_and_output_come_back_and_what_cannot_be_started_is_nothing) {
    // A program is started as any is, whatever this one has opened, holds back or ignores.
    constexpr int leaked = 98;
    ASSERT_EQ(::dup2(STDERR_FILENO, leaked), leaked);
    sigset_t heldBack, before;
    sigemptyset(&heldBack);
    sigaddset(&heldBack, SIGTERM);
    ::pthread_sigmask(SIG_BLOCK, &heldBack, &before);
    const auto onPipe = std::signal(SIGPIPE, SIG_IGN);
    QByteArray said;
    const struct {
        const char* script;
        int status;
        const char* output;
    } cases[] = {
        {"echo out; echo err >&2; exit 3", 3, "out\nerr\n"},
        {"cat; pwd; echo $SOMETHING $HOME", 0, "/usr\nchanged /root-of-none\n"},
        {"kill -9 $$", 128 + SIGKILL, ""},
        {"kill -TERM $$", 128 + SIGTERM, ""},
        {"kill -PIPE $$", 128 + SIGPIPE, ""},
        {"! [ -e /proc/self/fd/98 ]", 0, ""},
        {"exec 1>&- 2>&-; sleep 0.1; exit 4", 4, ""},
    };
    for (const auto& one : cases) {
        said.clear();
        auto request = shell(one.script);
        request.folder = "/usr";
        request.environment = {"HOME=/root-of-none", "SOMETHING=changed"};
        request.output = [&](const QByteArray& piece) { said += piece; };
        EXPECT_EQ(platform::runTool(request), one.status) << one.script;
        EXPECT_EQ(said, QByteArray(one.output)) << one.script;
    }
    ::close(leaked);
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
    std::signal(SIGPIPE, onPipe);
    auto request = shell("echo out; echo err >&2; head -c 300000 /dev/zero");
    request.dropsErrors = true;
    qsizetype length = 0;
    request.output = [&](const QByteArray& piece) { length += piece.size(); };
    EXPECT_EQ(platform::runTool(request), 0);
    EXPECT_EQ(length, 300'004);
    request.folder = "/nowhere";
    EXPECT_EQ(platform::runTool(request), 127);
    for (const char* program : {"", "no such program", "/nowhere/sh", "/etc/passwd"}) {
        request.program = program;
        EXPECT_EQ(platform::runTool(request), std::nullopt) << program;
    }
}
