// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace brelex {

/// Counts the bytes of all large blocks that the program asks for while the meter exists, even of
/// those that it gives back. Only one meter may exist at a time.
class MemoryMeter {
  public:
    /// Counts blocks of at least `smallest` bytes.
    explicit MemoryMeter(std::size_t smallest);
    MemoryMeter(const MemoryMeter&) = delete;
    MemoryMeter& operator=(const MemoryMeter&) = delete;
    ~MemoryMeter();

    [[nodiscard]] std::size_t Bytes() const;
};

}  // namespace brelex
