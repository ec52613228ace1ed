// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace brelex {

/// What a command is asked to write.
struct OutputRequest {
    std::string name;  ///< a file (UTF-8), or "-" for standard output
    bool force = false;
};

/// Whether the file may be replaced without force, and what it is not if it may not.
struct ReplaceableFile {
    const char* kind;
    bool (*accepts)(const std::filesystem::path& path);
};

/// Why a command must not write `output`; an empty text if it may. It never replaces what is not a
/// regular file, or a file that the command reads. Any other file that is neither empty nor
/// `replaceable` (may be null), it replaces only by force.
[[nodiscard]] std::string ReasonNotToWrite(const OutputRequest& output,
                                           const std::vector<std::filesystem::path>& inputs,
                                           const ReplaceableFile* replaceable = nullptr);

/// Writes `bytes` to the file, in one step, or to `standardOutput`. Keeps the mode of the file it
/// replaces; replaces what a link leads to and not the link. Returns the reason if that fails, or
/// an empty text.
[[nodiscard]] std::string WriteOutput(const std::string& name, std::string_view bytes,
                                      std::ostream& standardOutput);

}  // namespace brelex
