// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/Log.h"
#include "app/settings/Tracing.h"
#include "tests/support/CapturedLog.h"

#include <gtest/gtest.h>

#include <thread>
#include <unistd.h>
#include <vector>

namespace {

/// Standard error as the write end of a pipe.
class PipedStandardError {
public:
    PipedStandardError() {
        EXPECT_EQ(::pipe(_ends), 0);
        _before = ::dup(STDERR_FILENO);
        ::dup2(_ends[1], STDERR_FILENO);
        ::close(_ends[1]);
    }
    ~PipedStandardError() {
        ::dup2(_before, STDERR_FILENO);
        ::close(_before);
        closeReader();
    }
    void closeReader() {
        if (_ends[0] >= 0)
            ::close(_ends[0]);
        _ends[0] = -1;
    }
    QByteArray read() const {
        QByteArray bytes(65536, '\0');
        bytes.resize(::read(_ends[0], bytes.data(), static_cast<std::size_t>(bytes.size())));
        return bytes;
    }

private:
    int _ends[2] = {-1, -1};
    int _before = -1;
};

} // namespace

TEST(Log, a_line_ends_once_and_a_reader_that_has_gone_or_sleeps_does_no_harm) {
    PipedStandardError standardError;
    platform::Log::write("ERROR: ä\n\n");
    platform::Log::write("next");
    EXPECT_EQ(standardError.read(), "ERROR: ä\nnext\n");
    for (int line = 0; line < 3000; ++line)
        platform::Log::write(QString(100, 'x'));
    standardError.read();
    standardError.closeReader();
    platform::Log::write("nobody reads this");
}

TEST(Log, threads_do_not_mix_their_lines) {
    const CapturedLog log;
    std::vector<std::thread> threads;
    for (int number = 0; number < 4; ++number) {
        threads.emplace_back([] {
            for (int line = 0; line < 250; ++line)
                logAlways("%@ %d", "line", 1);
        });
    }
    for (auto& thread : threads)
        thread.join();
    EXPECT_EQ(log.lines().size(), 1000);
    EXPECT_EQ(log.count("line 1"), 1000);
}

TEST(Tracing, informational_lines_and_scopes_appear_while_tracing_alone) {
    const CapturedLog log;
    const auto work = [] {
        const TraceScope scope("-[QVAppController finishLaunching]");
        trace("%@: x%d %g", QString("Class"), 2, 0.5);
        logAlways("ERROR: %@", "always");
    };
    gTracingEnabled = false;
    work();
    EXPECT_EQ(log.lines(), QStringList{"ERROR: always"});
    gTracingEnabled = true;
    work();
    gTracingEnabled = false;
    EXPECT_EQ(log.lines().mid(1), (QStringList{"BEGIN: -[QVAppController finishLaunching] {", "Class: x2 0.5",
                                               "ERROR: always", "} END: -[QVAppController finishLaunching]"}));
}
