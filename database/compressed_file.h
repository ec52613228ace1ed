// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string_view>
#include <utility>

#include "base/byte_buffer.h"

namespace brelex {

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

/// A compressed file in memory. It lies at the end of the buffer that it is expanded in, so that
/// what comes out overwrites what has been read: the memory for it is needed, and cleared by the
/// system, only once.
class CompressedFile {
  public:
    /// Reads a file. Nothing if it cannot be read or changes its length meanwhile.
    [[nodiscard]] static std::optional<CompressedFile> Read(const std::filesystem::path& path);

    /// Copies the content of a file.
    [[nodiscard]] static CompressedFile Copy(std::string_view file);

    /// How many bytes the compressed file has.
    [[nodiscard]] std::size_t Length() const { return length_; }

    /// Expands the file like the Windows function LZCopy: leaves bytes without the signature
    /// unchanged, takes the length that the header declares as a hint only, and returns what came
    /// out so far if the stream ends early. Nothing if the result would be longer than `mostBytes`,
    /// which is at most kMaxExpandedBytes.
    [[nodiscard]] std::optional<ExpandedFile> Expand(std::size_t mostBytes = kMaxExpandedBytes) &&;

  private:
    CompressedFile() = default;

    template <typename ReadNext>
    static std::optional<CompressedFile> Fill(std::size_t length, ReadNext&& readNext);

    ByteBuffer buffer_;
    std::size_t dataAt_ = 0;  // where the compressed data begin, which end where the buffer does
    std::size_t length_ = 0;
    bool hasSignature_ = false;
};

}  // namespace brelex
