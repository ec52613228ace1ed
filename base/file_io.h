// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>

#include "base/byte_buffer.h"

namespace brelex {

/// Converts between UTF-8 text and paths. Where paths are bytes, they are passed on unchanged.
[[nodiscard]] std::filesystem::path PathOfUtf8(std::string_view utf8);
[[nodiscard]] std::string Utf8OfPath(const std::filesystem::path& path);

/// `folder` with the system's separator at its end, added only if it is missing.
[[nodiscard]] std::string WithTrailingSeparator(std::string folder);

/// The path of the file called `name` in `folder`, which has to end in the separator. Ignores the
/// case of ASCII letters, even on a case-sensitive file system. Prefers the exact name, and among
/// other spellings always the same one. Never finds a folder.
[[nodiscard]] std::optional<std::string> FindFileIgnoringCase(const std::string& folder,
                                                              std::string_view name);

/// A file that is read from its beginning to its end. What is in it when it is opened is what is
/// read, even if another file takes its place meanwhile.
class FileReader {
  public:
    explicit FileReader(const std::filesystem::path& path);

    /// Whether the file can be read and is no longer than 2 GiB. Never true for a folder, a device
    /// or a pipe.
    [[nodiscard]] bool IsOpen() const { return isOpen_; }

    /// How many bytes it had when it was opened.
    [[nodiscard]] std::size_t Size() const { return size_; }

    /// Reads the next `count` bytes to `bytes`. Returns false if there are fewer or they cannot be
    /// read.
    [[nodiscard]] bool Read(char* bytes, std::size_t count);

    /// Whether the file ends where reading has got to. If it does not after Size() bytes, it has
    /// grown since it was opened.
    [[nodiscard]] bool IsAtEnd();

  private:
    std::ifstream file_;
    std::size_t size_ = 0;
    bool isOpen_ = false;
};

/// The whole content of a file. Nothing if it cannot be read, is longer than 2 GiB or changes its
/// length meanwhile.
[[nodiscard]] std::optional<ByteBuffer> ReadWholeFile(const std::filesystem::path& path);

}  // namespace brelex
