// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string_view>

#include "base/byte_buffer.h"
#include "tools/input_entries.h"

namespace brelex {

/// The name that stands for standard input or output on the command line.
inline constexpr std::string_view kStandardStream = "-";

/// Calls `read`, which reads the file `path`. Returns whether nobody has changed or replaced the
/// file in the meantime.
[[nodiscard]] bool StaysTheSame(const std::filesystem::path& path,
                                const std::function<void()>& read);

/// The whole content of an input file. Nothing, and an error in the report, if it cannot be read or
/// changes while it is read.
[[nodiscard]] std::optional<ByteBuffer> ReadInputFile(const std::filesystem::path& path,
                                                      InputReport& report);

/// The path of the input file `name`, whatever the case of its letters, in the folder of the file
/// `sibling`. The path with exactly that name if there is no such file.
[[nodiscard]] std::filesystem::path FileBeside(const std::filesystem::path& sibling,
                                               const std::filesystem::path& name);

}  // namespace brelex
