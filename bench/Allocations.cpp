// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/Allocations.h"

#include <atomic>
#include <cstddef>

namespace {
std::atomic<std::uint64_t> allocations = 0;

void count() {
    allocations.fetch_add(1, std::memory_order_relaxed);
}
} // namespace

std::uint64_t allocationsSoFar() {
    return allocations.load(std::memory_order_relaxed);
}

// A program's own malloc goes before the C library's for every library it loads; memory is freed by the library's.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t number, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);

void* malloc(std::size_t size) {
    count();
    return __libc_malloc(size);
}

void* calloc(std::size_t number, std::size_t size) {
    count();
    return __libc_calloc(number, size);
}

void* realloc(void* memory, std::size_t size) {
    count();
    return __libc_realloc(memory, size);
}
}
