// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/screen/ChildProcess.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <fstream>
#include <sstream>
#include <stdexcept>

extern char** environ;

namespace harness {

namespace {

void makePipe(int ends[2]) {
    if (::pipe2(ends, O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe");
}

void closeDescriptor(int& descriptor) {
    if (descriptor >= 0)
        ::close(descriptor);
    descriptor = -1;
}

std::vector<std::string> environmentOf(const ChildProcess::Options& options) {
    std::map<std::string, std::string> variables;
    for (char** entry = environ; *entry; ++entry) {
        const std::string text = *entry;
        const auto equals = text.find('=');
        variables[text.substr(0, equals)] = equals == std::string::npos ? "" : text.substr(equals + 1);
    }
    for (const std::string& name : options.withoutEnvironment)
        variables.erase(name);
    for (const auto& [name, value] : options.environment)
        variables[name] = value;
    std::vector<std::string> result;
    for (const auto& [name, value] : variables)
        result.push_back(name + "=" + value);
    return result;
}

std::vector<char*> pointersTo(std::vector<std::string>& texts) {
    std::vector<char*> result;
    for (std::string& text : texts)
        result.push_back(text.data());
    result.push_back(nullptr);
    return result;
}

} // namespace

ChildProcess::ChildProcess(const Options& options) {
    // Everything that allocates happens before the fork: another thread may hold the allocator's lock.
    std::vector<std::string> arguments = options.arguments;
    std::vector<std::string> environment = environmentOf(options);
    std::vector<char*> argumentPointers = pointersTo(arguments);
    std::vector<char*> environmentPointers = pointersTo(environment);
    int output[2], error[2];
    makePipe(output);
    makePipe(error);
    makePipe(_wakePipe);
    const pid_t parent = ::getpid();
    _pid = ::fork();
    if (_pid < 0)
        throw std::runtime_error("no process");
    if (_pid == 0) {
        ::setpgid(0, 0);
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (::getppid() != parent)
            ::_exit(127);
        const int null = ::open("/dev/null", O_RDONLY);
        ::dup2(null, STDIN_FILENO);
        ::dup2(output[1], STDOUT_FILENO);
        ::dup2(error[1], STDERR_FILENO);
        if (!options.workingDirectory.empty() && ::chdir(options.workingDirectory.c_str()) != 0)
            ::_exit(127);
        ::execvpe(argumentPointers[0], argumentPointers.data(), environmentPointers.data());
        ::_exit(127);
    }
    ::setpgid(_pid, _pid);
    ::close(output[1]);
    ::close(error[1]);
    _outputPipe = output[0];
    _errorPipe = error[0];
    _collector = std::thread([this] { collect(); });
}

ChildProcess::~ChildProcess() {
    kill();
    [[maybe_unused]] const auto written = ::write(_wakePipe[1], "x", 1);
    _collector.join();
    closeDescriptor(_outputPipe);
    closeDescriptor(_errorPipe);
    closeDescriptor(_wakePipe[0]);
    closeDescriptor(_wakePipe[1]);
}

void ChildProcess::collect() {
    bool outputOpen = true, errorOpen = true;
    while (outputOpen || errorOpen) {
        pollfd descriptors[3] = {{outputOpen ? _outputPipe : -1, POLLIN, 0},
                                 {errorOpen ? _errorPipe : -1, POLLIN, 0},
                                 {_wakePipe[0], POLLIN, 0}};
        if (::poll(descriptors, 3, -1) < 0)
            continue;
        char buffer[8192];
        for (int i = 0; i < 2; ++i) {
            if (!descriptors[i].revents)
                continue;
            const ssize_t size = ::read(descriptors[i].fd, buffer, sizeof buffer);
            std::lock_guard lock(_mutex);
            if (size <= 0) {
                (i == 0 ? outputOpen : errorOpen) = false;
                _errorClosed = !errorOpen;
            } else if (i == 0) {
                _output.append(buffer, std::size_t(size));
            } else {
                _errorText.append(buffer, std::size_t(size));
                _errorRest.append(buffer, std::size_t(size));
                for (auto end = _errorRest.find('\n'); end != std::string::npos; end = _errorRest.find('\n')) {
                    _errorLines.push_back(_errorRest.substr(0, end));
                    _errorRest.erase(0, end + 1);
                }
            }
            _changed.notify_all();
        }
        if (descriptors[2].revents)
            return;
    }
}

bool ChildProcess::reap(bool block) {
    if (_status)
        return true;
    int status = 0;
    if (::waitpid(_pid, &status, block ? 0 : WNOHANG) != _pid)
        return false;
    _status = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    return true;
}

bool ChildProcess::isRunning() {
    return !reap(false);
}

std::optional<int> ChildProcess::waitForExit(Seconds timeout) {
    waitUntil([this] { return reap(false); }, timeout);
    if (_status) { // What it wrote last may still lie in the pipe.
        std::unique_lock lock(_mutex);
        _changed.wait_for(lock, Seconds(0.5), [this] { return _errorClosed; });
    }
    return _status;
}

void ChildProcess::signal(int number) {
    if (isRunning())
        ::kill(_pid, number);
}

void ChildProcess::kill() {
    if (!_status) {
        ::kill(-_pid, SIGKILL);
        reap(true);
    } else {
        ::kill(-_pid, SIGKILL); // What it left behind in its group.
    }
}

std::size_t ChildProcess::lineCount() const {
    std::lock_guard lock(_mutex);
    return _errorLines.size();
}

std::vector<std::string> ChildProcess::errorLines() const {
    std::lock_guard lock(_mutex);
    return _errorLines;
}

std::string ChildProcess::output() const {
    std::lock_guard lock(_mutex);
    return _output;
}

std::string ChildProcess::errorOutput() const {
    std::lock_guard lock(_mutex);
    return _errorText;
}

std::optional<std::size_t> ChildProcess::waitForErrorLine(const std::string& text, std::size_t from, Seconds timeout) {
    std::unique_lock lock(_mutex);
    std::optional<std::size_t> found;
    _changed.wait_for(lock, timeout, [&] {
        for (; from < _errorLines.size(); ++from)
            if (_errorLines[from].find(text) != std::string::npos) {
                found = from + 1;
                return true;
            }
        return _errorClosed;
    });
    return found;
}

double ChildProcess::processorSeconds() const {
    std::ifstream file("/proc/" + std::to_string(_pid) + "/stat");
    std::string line;
    if (!std::getline(file, line))
        return 0;
    std::istringstream fields(line.substr(line.rfind(')') + 1)); // The name before it may hold anything.
    std::string field;
    double ticks = 0;
    for (int number = 3; fields >> field && number <= 15; ++number)
        if (number >= 14)
            ticks += std::stod(field);
    return ticks / double(::sysconf(_SC_CLK_TCK));
}

std::size_t ChildProcess::residentBytes() const {
    std::ifstream file("/proc/" + std::to_string(_pid) + "/statm");
    std::size_t total = 0, resident = 0;
    file >> total >> resident;
    return resident * std::size_t(::sysconf(_SC_PAGESIZE));
}

} // namespace harness
