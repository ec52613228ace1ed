// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "base/byte_buffer.h"

namespace brelex {

/// The compressed file format "SZDD": a 14-byte header and LZSS data over a ring of 4096 bytes.
/// docs/data-format.md describes it.

/// Expanded files longer than this (1 GiB) are refused.
inline constexpr std::size_t kMaxExpandedBytes = std::size_t{1} << 30U;

/// What a compressed file expands to. The bytes are in one buffer, after room for the ring's first
/// content.
class ExpandedFile {
  public:
    ExpandedFile() = default;

    ExpandedFile(ByteBuffer buffer, std::size_t begin, std::size_t size)
        : buffer_(std::move(buffer)),
          begin_(begin),
          size_(size) {}

    [[nodiscard]] std::string_view View() const {
        return size_ == 0 ? std::string_view() : buffer_.View().substr(begin_, size_);
    }

  private:
    ByteBuffer buffer_;
    std::size_t begin_ = 0;
    std::size_t size_ = 0;
};

/// Expands `file` like the Windows function LZCopy: copies bytes without the signature unchanged,
/// takes the length that the header declares as a hint only, and returns what came out so far if
/// the stream ends early. Nothing if the result would be longer than `mostBytes` or does not fit
/// into memory.
[[nodiscard]] std::optional<ExpandedFile> ExpandSzdd(std::string_view file,
                                                     std::size_t mostBytes = kMaxExpandedBytes);

/// Compresses `bytes` into a file that ExpandSzdd and LZCopy can expand. The same bytes always give
/// the same file. Requires at most kMaxExpandedBytes.
[[nodiscard]] std::string CompressSzdd(std::string_view bytes);

}  // namespace brelex
