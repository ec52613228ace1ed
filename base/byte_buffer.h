// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <new>
#include <string_view>

namespace brelex {

/// A block of bytes with one owner. They are not cleared when allocated.
class ByteBuffer {
  public:
    ByteBuffer() = default;

    /// Allocates `size` bytes. The buffer IsNull if there is no free block of that size.
    explicit ByteBuffer(std::size_t size)
        : bytes_(new (std::nothrow) char[size]),
          size_(bytes_ == nullptr ? 0 : size) {}

    [[nodiscard]] bool IsNull() const { return bytes_ == nullptr; }

    [[nodiscard]] char* Data() { return bytes_.get(); }

    [[nodiscard]] const char* Data() const { return bytes_.get(); }

    [[nodiscard]] std::size_t Size() const { return size_; }

    [[nodiscard]] std::string_view View() const { return {bytes_.get(), size_}; }

  private:
    std::unique_ptr<char[]> bytes_;
    std::size_t size_ = 0;
};

}  // namespace brelex
