// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/peers/ProcessFigures.h"

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace bench {

namespace {

namespace fs = std::filesystem;

struct Status {
    pid_t id = 0, parent = 0, group = 0;
    std::string name;
    std::uint64_t ticks = 0;
};

std::optional<Status> statusOf(const fs::path& folder) {
    std::ifstream file(folder / "stat");
    std::string line;
    if (!std::getline(file, line))
        return std::nullopt;
    const auto open = line.find('('), close = line.rfind(')'); // The name between them may hold anything.
    if (open == std::string::npos || close == std::string::npos)
        return std::nullopt;
    Status status;
    status.id = pid_t(std::stol(line));
    status.name = line.substr(open + 1, close - open - 1);
    std::istringstream fields(line.substr(close + 1));
    std::string field;
    for (int number = 3; fields >> field && number <= 15; ++number) {
        if (number == 4)
            status.parent = pid_t(std::stol(field));
        else if (number == 5)
            status.group = pid_t(std::stol(field));
        else if (number >= 14)
            status.ticks += std::stoull(field);
    }
    return status;
}

template <typename Visit>
void forEachProcess(Visit visit) {
    for (const fs::directory_entry& entry : fs::directory_iterator("/proc")) {
        const std::string name = entry.path().filename();
        if (!std::ranges::all_of(name, [](char c) { return c >= '0' && c <= '9'; }))
            continue;
        if (const auto status = statusOf(entry.path()))
            visit(*status);
    }
}

double megabytesIn(const fs::path& path, const std::string& key) {
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);)
        if (line.starts_with(key))
            return std::stod(line.substr(key.size())) / 1024;
    return 0;
}

} // namespace

std::uint64_t processorTicks(pid_t group) {
    std::uint64_t ticks = 0;
    forEachProcess([&](const Status& status) { ticks += status.group == group ? status.ticks : 0; });
    return ticks;
}

double ticksPerSecond() {
    return double(::sysconf(_SC_CLK_TCK));
}

double millisecondsRun(pid_t process) {
    double milliseconds = 0;
    std::error_code gone;
    for (const auto& task : fs::directory_iterator("/proc/" + std::to_string(process) + "/task", gone)) {
        double nanoseconds = 0;
        std::ifstream(task.path() / "schedstat") >> nanoseconds;
        milliseconds += nanoseconds / 1e6;
    }
    return milliseconds;
}

Memory memoryOf(pid_t process) {
    const fs::path folder = "/proc/" + std::to_string(process);
    return {megabytesIn(folder / "status", "VmRSS:"), megabytesIn(folder / "smaps_rollup", "Pss:")};
}

std::optional<pid_t> childNamed(const std::string& name) {
    std::optional<pid_t> found;
    forEachProcess([&](const Status& status) {
        if (status.parent == ::getpid() && status.name == name)
            found = status.id;
    });
    return found;
}

} // namespace bench
