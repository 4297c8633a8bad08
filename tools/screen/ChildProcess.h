// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/screen/Waiting.h"

#include <sys/types.h>

#include <condition_variable>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace harness {

// A program started by a test, in a process group of its own, whose output is collected line by line. It is killed with
// its group when this object goes, and by the kernel when the test itself dies.
class ChildProcess {
public:
    struct Options {
        std::vector<std::string> arguments;             // the program first; searched in PATH when it has no slash
        std::map<std::string, std::string> environment; // on top of the test's own
        std::vector<std::string> withoutEnvironment;    // taken out of the test's own
        std::string workingDirectory;                   // the test's own when empty
    };

    // Throws std::runtime_error when no process could be made. A program that cannot be executed ends with status 127.
    explicit ChildProcess(const Options& options);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    pid_t pid() const { return _pid; }
    bool isRunning();
    // The exit status, or minus the number of the signal that ended it; none while it runs after the timeout.
    std::optional<int> waitForExit(Seconds timeout = defaultTimeout);
    // Sends the signal to the process alone.
    void signal(int number);
    // Sends SIGKILL to the process and what it started, and waits for its end.
    void kill();

    // How many lines of output there are now: where waitForLine may begin to look.
    std::size_t lineCount() const;
    std::vector<std::string> errorLines() const;
    std::string output() const;      // standard output, whole
    std::string errorOutput() const; // standard error, whole
    // Waits for a line on standard error that contains the text, at or after the line numbered from. Answers the number
    // of the line after it, or none when the time is over or the process ended without it.
    std::optional<std::size_t> waitForErrorLine(const std::string& text, std::size_t from = 0,
                                                Seconds timeout = defaultTimeout);

    // From /proc: processor seconds used so far by the process, all its threads; resident memory in bytes. 0 after its
    // end.
    double processorSeconds() const;
    std::size_t residentBytes() const;

private:
    void collect();
    bool reap(bool block);

    pid_t _pid = -1;
    std::optional<int> _status;
    int _outputPipe = -1;
    int _errorPipe = -1;
    int _wakePipe[2] = {-1, -1};
    std::thread _collector;
    mutable std::mutex _mutex;
    std::condition_variable _changed;
    std::string _output;
    std::string _errorText;
    std::vector<std::string> _errorLines;
    std::string _errorRest;
    bool _errorClosed = false;
};

} // namespace harness
