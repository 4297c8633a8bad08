// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <optional>
#include <string>

namespace bench {

// Clock ticks of user and system time used so far by every process of the group.
std::uint64_t processorTicks(pid_t group);
double ticksPerSecond();

// Milliseconds that the process has run, all its threads: finer than ticks.
double millisecondsRun(pid_t process);

struct Memory {
    double residentMegabytes = 0;     // VmRSS
    double proportionalMegabytes = 0; // Pss: what is shared with other processes counts in part
};
Memory memoryOf(pid_t process);

// A child of this process, by its name.
std::optional<pid_t> childNamed(const std::string& name);

} // namespace bench
