// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

/// What a scan filled in.
struct Scan {
    /// Numbers and characters, in the format's order.
    std::size_t filled = 0;
    /// The bytes taken until the format ended or stopped fitting.
    std::size_t consumed = 0;
};

/// Reads a line by a format as scanf does: "%d" is a decimal number with blanks and a sign before it, "%c" any one
/// byte (its value is filled in), a blank stands for any run of white space or none, everything else for itself.
/// A number that does not fit is the nearest that does. Stops at what does not fit, with what was filled so far; a
/// literal after the last number that does not fit shows only in what was consumed.
Scan scanLine(std::string_view line, std::string_view format, std::span<std::int32_t> values);
