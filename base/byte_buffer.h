// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <new>
#include <string_view>

namespace brelex {

/// Bytes of one owner that are not cleared when they are allocated.
class ByteBuffer {
  public:
    ByteBuffer() = default;

    /// A buffer of `size` bytes, or one that IsNull if there is not so much memory in one piece.
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
