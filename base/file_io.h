// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
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

/// The whole content of a file. Nothing if it cannot be read, is longer than 2 GiB or does not fit
/// into memory.
[[nodiscard]] std::optional<ByteBuffer> ReadWholeFile(const std::filesystem::path& path);

/// Replaces the file at `path` with one that contains `bytes`, in one step: a program that reads it
/// meanwhile gets either the old content or the new. On failure, leaves the old file as it was,
/// describes the reason in `why` (may be null) and returns false.
[[nodiscard]] bool ReplaceFile(const std::filesystem::path& path, std::string_view bytes,
                               std::string* why = nullptr);

}  // namespace brelex
