// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/peers/SoundServer.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <stdexcept>

using harness::Seconds;

namespace bench {

namespace {

constexpr int samplesPerSecond = 48000;
constexpr int loud = 1500;

double now() {
    return Seconds(std::chrono::steady_clock::now().time_since_epoch()).count();
}

} // namespace

SoundServer::SoundServer(const std::filesystem::path& folder)
    : _socket(folder / "sound") {
    std::filesystem::create_directories(folder);
    harness::ChildProcess::Options options;
    options.arguments = {"pulseaudio",
                         "-n",
                         "--daemonize=no",
                         "--use-pid-file=no",
                         "--exit-idle-time=-1",
                         "--realtime=no",
                         "-L",
                         "module-native-protocol-unix socket=" + _socket.string() + " auth-anonymous=1",
                         "-L",
                         "module-null-sink sink_name=speakers rate=" + std::to_string(samplesPerSecond)};
    options.environment = {{"XDG_RUNTIME_DIR", folder.string()}, {"DBUS_SESSION_BUS_ADDRESS", "disabled:"}};
    _server = std::make_unique<harness::ChildProcess>(options);
    // The socket is there before it is listened to.
    const auto answers = [this] {
        harness::ChildProcess::Options asking;
        asking.arguments = {"pactl", "-s", address(), "info"};
        return harness::ChildProcess(asking).waitForExit() == 0;
    };
    if (!harness::waitUntil(answers))
        throw std::runtime_error("no sound server: " + _server->errorOutput());
    int ends[2];
    if (::pipe(ends) != 0 || (_recorder = ::fork()) < 0)
        throw std::runtime_error("nothing records");
    if (_recorder == 0) {
        ::dup2(ends[1], STDOUT_FILENO);
        ::close(ends[0]);
        ::close(ends[1]);
        ::execlp("parec", "parec", "-s", address().c_str(), "-d", "speakers.monitor", "--raw", "--format=s16le",
                 "--rate=48000", "--channels=1", "--latency-msec=5", nullptr);
        ::_exit(127);
    }
    ::close(ends[1]);
    _pipe = ends[0];
    _thread = std::thread([this] { record(); });
}

SoundServer::~SoundServer() {
    ::kill(_recorder, SIGTERM);
    ::waitpid(_recorder, nullptr, 0);
    _thread.join();
    ::close(_pipe);
}

void SoundServer::record() {
    std::array<std::int16_t, 512> piece;
    std::int64_t count = 0, silent = 0;
    // Of the first sample, by the piece that came with the least delay.
    double beginning = std::numeric_limits<double>::infinity();
    for (ssize_t size; (size = ::read(_pipe, piece.data(), sizeof piece)) > 0;) {
        const auto samples = size / ssize_t(sizeof piece[0]);
        beginning = std::min(beginning, now() - double(count + samples) / samplesPerSecond);
        for (ssize_t i = 0; i < samples; ++i) {
            if (std::abs(int(piece[std::size_t(i)])) < loud) {
                ++silent;
                continue;
            }
            if (silent > samplesPerSecond / 10) {
                const std::lock_guard lock(_mutex);
                _tones.push_back(beginning + double(count + i) / samplesPerSecond);
            }
            silent = 0;
        }
        count += samples;
    }
}

std::optional<double> SoundServer::toneAfter(double moment, Seconds timeout) {
    std::optional<double> heard;
    harness::waitUntil(
        [&] {
            const std::lock_guard lock(_mutex);
            const auto tone = std::ranges::find_if(_tones, [&](double begun) { return begun > moment; });
            if (tone != _tones.end())
                heard = *tone;
            return heard.has_value();
        },
        timeout);
    return heard;
}

} // namespace bench
