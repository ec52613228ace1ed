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

/// A file (UTF-8), or "-" for standard output, and what it is to contain.
struct OutputFile {
    std::string name;
    std::string_view bytes;
};

/// Writes either all of the files or none. Keeps the mode of a file that it replaces; replaces what
/// a link leads to and not the link. Returns the reason if that fails, or an empty text.
[[nodiscard]] std::string WriteOutputs(const std::vector<OutputFile>& outputs,
                                       std::ostream& standardOutput);

}  // namespace brelex
