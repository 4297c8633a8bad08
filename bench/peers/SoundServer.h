// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/screen/ChildProcess.h"

#include <filesystem>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace bench {

// A sound server without loudspeakers, and what it would play.
class SoundServer {
public:
    // Its socket lies in the folder, which anybody may enter. Throws std::runtime_error when it does not come.
    explicit SoundServer(const std::filesystem::path& folder);
    ~SoundServer();
    SoundServer(const SoundServer&) = delete;
    SoundServer& operator=(const SoundServer&) = delete;

    // As PULSE_SERVER takes it.
    std::string address() const { return "unix:" + _socket.string(); }
    // The moment (of the steady clock, seconds) at which the first tone after `moment` was heard, which silence went
    // before; to some milliseconds, the same for all. None when none comes in time.
    std::optional<double> toneAfter(double moment, harness::Seconds timeout);

private:
    void record();

    std::filesystem::path _socket;
    std::unique_ptr<harness::ChildProcess> _server;
    int _pipe = -1;
    int _recorder = -1;
    std::thread _thread;
    std::mutex _mutex;
    std::vector<double> _tones;
};

} // namespace bench
