// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/ToolProcess.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>

namespace {

platform::ToolRequest shell(const char* script) {
    platform::ToolRequest request;
    request.program = QString("sh");
    request.arguments = {QString("-c"), script};
    request.longestSeconds = 20;
    return request;
}

} // namespace

TEST(ToolProcess, limits_end_the_program_and_what_it_started) {
    const QTemporaryDir folder;
    auto slow = shell("sleep 1000 & echo $!; sleep 1000");
    slow.longestSeconds = 0.2;
    pid_t child = 0;
    slow.output = [&](const QByteArray& piece) { child = piece.trimmed().toInt(); };
    EXPECT_EQ(platform::runTool(slow), 128 + SIGKILL);
    ASSERT_GT(child, 0);
    EXPECT_TRUE(::kill(child, 0) != 0 || QFile::symLinkTarget(QString("/proc/%1/exe").arg(child)).isEmpty());

    auto stopped = shell("sleep 1000");
    int asked = 0;
    stopped.mayGoOn = [&] { return ++asked < 3; };
    EXPECT_EQ(platform::runTool(stopped), 128 + SIGKILL);

    auto writer = shell("head -c 200000 /dev/zero > file");
    writer.folder = folder.path();
    writer.fileSize = 100'000;
    EXPECT_NE(platform::runTool(writer), 0);
    EXPECT_EQ(QFile(folder.filePath(QString("file"))).size(), 100'000);

    auto eater = shell("head -c 400000000 /dev/zero | tail -c 400000000 > /dev/null");
    eater.memory = 100'000'000;
    EXPECT_EQ(platform::runTool(eater), 1);
}
