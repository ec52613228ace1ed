// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>
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

/// Why a command must not write `output`; an empty text if it may. It never replaces what is not a
/// regular file, or a file that the command reads. Any other file that is neither empty nor what
/// `isReplaceable` accepts, it replaces only by force; the reason then says that the file is not
/// `kind`.
[[nodiscard]] std::string ReasonNotToWrite(
    const OutputRequest& output, const std::vector<std::filesystem::path>& inputs, const char* kind,
    const std::function<bool(const std::filesystem::path&)>& isReplaceable);

/// Writes `bytes` to the file, in one step, or to `standardOutput`. Keeps the mode of the file it
/// replaces; replaces what a link leads to and not the link. Returns the reason if that fails, or
/// an empty text.
[[nodiscard]] std::string WriteOutput(const std::string& name, std::string_view bytes,
                                      std::ostream& standardOutput);

}  // namespace brelex
