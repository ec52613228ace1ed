// SPDX-License-Identifier: MIT
#include "tests/support/memory_meter.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <limits>
#include <new>

namespace {

constexpr std::size_t kNone = std::numeric_limits<std::size_t>::max();

std::atomic<std::size_t> smallestCounted = kNone;
std::atomic<std::size_t> bytesCounted = 0;

}  // namespace

// The test program uses these in place of the standard library's own.

void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    if (size >= smallestCounted) {
        bytesCounted += size;
    }
    return std::malloc(std::max<std::size_t>(size, 1));
}

void* operator new[](std::size_t size, const std::nothrow_t& tag) noexcept {
    return operator new(size, tag);
}

void* operator new(std::size_t size) {
    void* const block = operator new(size, std::nothrow);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    return block;
}

void* operator new[](std::size_t size) {
    return operator new(size);
}

void operator delete(void* block) noexcept {
    std::free(block);
}

void operator delete(void* block, std::size_t /*size*/) noexcept {
    std::free(block);
}

void operator delete[](void* block) noexcept {
    std::free(block);
}

void operator delete[](void* block, std::size_t /*size*/) noexcept {
    std::free(block);
}

namespace brelex {

MemoryMeter::MemoryMeter(std::size_t smallest) {
    bytesCounted = 0;
    smallestCounted = smallest;
}

MemoryMeter::~MemoryMeter() {
    smallestCounted = kNone;
}

std::size_t MemoryMeter::Bytes() const {
    return bytesCounted;
}

}  // namespace brelex
