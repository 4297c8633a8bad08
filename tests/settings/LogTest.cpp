// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/Log.h"
#include "settings/Tracing.h"
#include "tests/support/CapturedLog.h"

#include <gtest/gtest.h>

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
