// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

namespace brelex {

/// A block of bytes with one owner. They are not cleared when allocated.
class ByteBuffer {
  public:
    ByteBuffer() = default;

    /// Allocates `size` bytes.
    explicit ByteBuffer(std::size_t size)
        : bytes_(std::make_unique_for_overwrite<char[]>(size)),
          size_(size) {}

    [[nodiscard]] char* Data() { return bytes_.get(); }

    [[nodiscard]] const char* Data() const { return bytes_.get(); }

    [[nodiscard]] std::size_t Size() const { return size_; }

    [[nodiscard]] std::string_view View() const { return {bytes_.get(), size_}; }

  private:
    std::unique_ptr<char[]> bytes_;
    std::size_t size_ = 0;
};

}  // namespace brelex
