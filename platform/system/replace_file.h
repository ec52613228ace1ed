// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace brelex {

/// A file to write.
struct FileToWrite {
    std::filesystem::path path;
    std::string_view bytes;
};

/// Replaces a file, or writes a new one, in one step: a program that reads it meanwhile gets either
/// the old content or the new, and so does whoever looks after a power cut. The new file has the
/// mode of the old one. On failure, leaves the old file as it was, describes the reason in `why`
/// (may be null) and returns false.
[[nodiscard]] bool ReplaceFile(const std::filesystem::path& path, std::string_view bytes,
                               std::string* why = nullptr);

/// The same for files that belong together: replaces either all of them or none.
[[nodiscard]] bool ReplaceFiles(const std::vector<FileToWrite>& files, std::string* why = nullptr);

}  // namespace brelex
