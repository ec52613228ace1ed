// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "base/byte_buffer.h"

namespace brelex {

/// The path that UTF-8 text names, and back. On systems whose paths are bytes they pass unchanged.
[[nodiscard]] std::filesystem::path PathOfUtf8(std::string_view utf8);
[[nodiscard]] std::string Utf8OfPath(const std::filesystem::path& path);

/// `folder` with the system's separator at its end, where it has one already unchanged.
[[nodiscard]] std::string WithTrailingSeparator(std::string folder);

/// The path of the file called `name` in `folder` (which ends in the separator). The case of ASCII
/// letters does not matter, also where the file system tells cases apart. The very name is
/// preferred, and of other spellings always the same one. Folders are no files.
[[nodiscard]] std::optional<std::string> FindFileIgnoringCase(const std::string& folder,
                                                              std::string_view name);

/// The whole content of a file; nothing if it cannot be read, is longer than 2 GiB or
/// does not fit into memory.
[[nodiscard]] std::optional<ByteBuffer> ReadWholeFile(const std::filesystem::path& path);

/// Replaces the file at `path` with one that contains `bytes`, in one step: a program that reads it
/// meanwhile gets either the old content or the new. On failure, leaves the old file as it was,
/// describes the reason in `why` (may be null) and returns false.
[[nodiscard]] bool ReplaceFile(const std::filesystem::path& path, std::string_view bytes,
                               std::string* why = nullptr);

}  // namespace brelex
