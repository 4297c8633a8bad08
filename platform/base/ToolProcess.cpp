// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/ToolProcess.h"

#include "platform/base/PathNames.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <string>
#include <sys/eventfd.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char** environ;

namespace platform {

namespace {

/// Texts as exec takes them.
class TextList {
public:
    void add(std::string text) { _texts.push_back(std::move(text)); }
    void add(const QString& text) { _texts.push_back(bytesOfPath(text).toStdString()); }
    /// Valid until something is added.
    char** data() {
        _pointers.clear();
        for (std::string& text : _texts)
            _pointers.push_back(text.data());
        _pointers.push_back(nullptr);
        return _pointers.data();
    }

private:
    std::vector<std::string> _texts;
    std::vector<char*> _pointers;
};

TextList environmentWith(const QStringList& changes) {
    TextList result;
    for (char** variable = environ; *variable; ++variable) {
        const QString text = QString::fromLocal8Bit(*variable);
        const QString name = text.left(text.indexOf(u'=') + 1);
        const bool isReplaced =
            std::any_of(changes.begin(), changes.end(), [&](const QString& change) { return change.startsWith(name); });
        if (!isReplaced)
            result.add(std::string(*variable));
    }
    for (const QString& change : changes)
        result.add(change);
    return result;
}

void limit(decltype(RLIMIT_AS) resource, std::uint64_t maximum) {
    const rlimit value{maximum, maximum};
    ::setrlimit(resource, &value);
}

/// All that the new process needs, made before it is split off: between fork and exec nothing may ask for memory.
struct Start {
    std::string program;
    std::string folder;
    TextList arguments;
    TextList environment;
    int output = -1;
    pid_t parent = 0;
    const ToolRequest* request = nullptr;

    [[noreturn]] void run(char** argumentList, char** environmentList) const {
        constexpr int cannotRun = 127;
        ::setpgid(0, 0);
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (::getppid() != parent)
            ::_exit(cannotRun);
        sigset_t none;
        sigemptyset(&none);
        ::sigprocmask(SIG_SETMASK, &none, nullptr);
        std::signal(SIGPIPE, SIG_DFL);
        const int nothing = ::open("/dev/null", O_RDWR);
        ::dup2(nothing, STDIN_FILENO);
        ::dup2(output, STDOUT_FILENO);
        ::dup2(request->dropsErrors ? nothing : output, STDERR_FILENO);
        ::close_range(STDERR_FILENO + 1, ~0U, CLOSE_RANGE_CLOEXEC);
        limit(RLIMIT_CORE, 0);
        if (request->memory)
            limit(RLIMIT_AS, *request->memory);
        if (request->fileSize)
            limit(RLIMIT_FSIZE, *request->fileSize);
        if (folder.empty() || ::chdir(folder.c_str()) == 0)
            ::execvpe(program.c_str(), argumentList, environmentList);
        ::_exit(cannotRun);
    }
};

bool canBeFound(const std::string& program) {
    if (program.find('/') != std::string::npos)
        return ::access(program.c_str(), X_OK) == 0;
    const char* const path = std::getenv("PATH");
    for (const QString& folder : QString::fromLocal8Bit(path ? path : "/usr/bin:/bin").split(u':')) {
        const std::string file = QFile::encodeName(folder).toStdString() + '/' + program;
        if (::access(file.c_str(), X_OK) == 0)
            return !program.empty();
    }
    return false;
}

/// Can be waited for like a pipe: readable once a stop was requested.
class StopEvent {
public:
    explicit StopEvent(const std::stop_token& stop)
        : _event(stop.stop_possible() ? ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK) : -1)
        , _onStop(std::in_place, stop, Signal{_event}) {}
    StopEvent(const StopEvent&) = delete;
    StopEvent& operator=(const StopEvent&) = delete;
    ~StopEvent() {
        // No call of it is under way afterwards.
        _onStop.reset();
        if (_event >= 0)
            ::close(_event);
    }
    int descriptor() const { return _event; }

private:
    struct Signal {
        int event;
        void operator()() const { ::eventfd_write(event, 1); }
    };
    int _event;
    std::optional<std::stop_callback<Signal>> _onStop;
};

/// A running program and the end of the pipe that it writes to.
class Running {
public:
    Running(pid_t process, int pipe, const ToolRequest& request)
        : _process(process)
        , _pipe(pipe)
        , _request(request)
        , _stop(request.stop) {}

    /// Hands over what there is to read, waiting for it, or for a stop, a little.
    void read() {
        constexpr int tick = 50;
        constexpr int tickWithoutPipe = 5;
        const int stop = _request.stop.stop_requested() ? -1 : _stop.descriptor(); // it says so only once
        pollfd states[] = {{_pipe, POLLIN, 0}, {stop, POLLIN, 0}};
        if (::poll(states, std::size(states), _pipe < 0 ? tickWithoutPipe : tick) > 0 && states[0].revents != 0)
            drain(1);
    }
    /// At most so many pieces: what the program started may go on writing.
    void drain(int pieces) {
        std::array<char, 65536> piece{};
        while (_pipe >= 0 && pieces-- > 0) {
            const ssize_t count = ::read(_pipe, piece.data(), piece.size());
            if (count < 0 && (errno == EINTR || errno == EAGAIN))
                return;
            if (count <= 0)
                closePipe();
            else
                handOver(QByteArray(piece.data(), count));
        }
    }
    bool saidTooMuch() const { return _request.maximumOutput && _said > *_request.maximumOutput; }
    void closePipe() {
        if (_pipe >= 0)
            ::close(_pipe);
        _pipe = -1;
    }
    bool hasEnded() const {
        siginfo_t facts{};
        return ::waitid(P_PID, static_cast<id_t>(_process), &facts, WEXITED | WNOHANG | WNOWAIT) != 0 ||
               facts.si_pid == _process;
    }
    /// Once it has ended.
    int status() const {
        int status = 0;
        ::waitpid(_process, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    }
    void kill() const { ::kill(-_process, SIGKILL); }

private:
    void handOver(QByteArray piece) {
        const qsizetype before = _said;
        _said += piece.size();
        if (saidTooMuch())
            piece.truncate(std::max<qsizetype>(*_request.maximumOutput - before, 0));
        if (_request.output && !piece.isEmpty())
            _request.output(piece);
    }

    pid_t _process;
    int _pipe;
    const ToolRequest& _request;
    StopEvent _stop;
    qsizetype _said = 0;
};

int waitFor(Running& running, const ToolRequest& request) {
    using Clock = std::chrono::steady_clock;
    const auto deadline = Clock::now() + std::chrono::duration<double>(request.timeout);
    for (;;) {
        running.read();
        if (running.hasEnded()) {
            running.kill(); // what it left running
            constexpr int piecesInAPipe = 16;
            running.drain(piecesInAPipe);
            running.closePipe();
            return running.status();
        }
        if (Clock::now() > deadline || running.saidTooMuch() || request.stop.stop_requested() ||
            (request.mayGoOn && !request.mayGoOn()))
            running.kill();
    }
}

} // namespace

std::optional<int> runTool(const ToolRequest& request) {
    Start start;
    start.program = QFile::encodeName(request.program).toStdString();
    if (!canBeFound(start.program) || request.stop.stop_requested())
        return std::nullopt;
    start.folder = QFile::encodeName(request.folder).toStdString();
    start.arguments.add(request.program);
    for (const QString& argument : request.arguments)
        start.arguments.add(argument);
    start.environment = environmentWith(request.environment);
    start.parent = ::getpid();
    start.request = &request;
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0)
        return std::nullopt;
    ::fcntl(ends[0], F_SETFL, O_NONBLOCK);
    start.output = ends[1];
    char** const argumentList = start.arguments.data();
    char** const environmentList = start.environment.data();
    const pid_t process = ::fork();
    if (process == 0)
        start.run(argumentList, environmentList);
    ::close(ends[1]);
    if (process < 0) {
        ::close(ends[0]);
        return std::nullopt;
    }
    ::setpgid(process, process); // whichever of the two comes first
    Running running(process, ends[0], request);
    return waitFor(running, request);
}

} // namespace platform
