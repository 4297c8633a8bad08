// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <linux/input.h>

#include <cstdint>
#include <vector>

/// What the kernel sends for a key of a remote: the reports that a program reads from the remote's event node.
namespace recorded {

inline input_event event(std::uint16_t type, std::uint16_t code, std::int32_t value) {
    input_event made{};
    made.type = type;
    made.code = code;
    made.value = value;
    return made;
}

/// One report: the scan code, when there is one, and the key with 1 (pressed), 0 (let go) or 2 (automatic repeat).
inline std::vector<input_event> key(std::uint16_t code, std::int32_t value, std::uint32_t scanCode = 0) {
    std::vector<input_event> report;
    if (scanCode)
        report.push_back(event(EV_MSC, MSC_SCAN, static_cast<std::int32_t>(scanCode)));
    report.push_back(event(EV_KEY, code, value));
    report.push_back(event(EV_SYN, SYN_REPORT, 0));
    return report;
}

} // namespace recorded
