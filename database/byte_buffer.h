// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <new>
#include <optional>
#include <string_view>
#include <utility>

namespace brelex {

/// Bytes of one owner that are not cleared when they are allocated.
class ByteBuffer {
  public:
    ByteBuffer() = default;

    /// A buffer of `size` bytes; nothing if there is not so much memory in one piece.
    [[nodiscard]] static std::optional<ByteBuffer> Allocate(std::size_t size) {
        std::unique_ptr<char[]> bytes(new (std::nothrow) char[size]);
        return bytes == nullptr ? std::nullopt : std::optional(ByteBuffer(std::move(bytes), size));
    }

    [[nodiscard]] char* Data() { return bytes_.get(); }

    [[nodiscard]] const char* Data() const { return bytes_.get(); }

    [[nodiscard]] std::size_t Size() const { return size_; }

    [[nodiscard]] std::string_view View() const { return {bytes_.get(), size_}; }

  private:
    ByteBuffer(std::unique_ptr<char[]> bytes, std::size_t size)
        : bytes_(std::move(bytes)),
          size_(size) {}

    std::unique_ptr<char[]> bytes_;
    std::size_t size_ = 0;
};

}  // namespace brelex
