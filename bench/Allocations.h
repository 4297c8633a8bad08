// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

/// How often any thread of this program has asked for memory so far, by malloc, calloc, realloc or what calls them
/// (operator new). Counted in a program that is linked with Allocations.cpp.
std::uint64_t allocationsSoFar();
