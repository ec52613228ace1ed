// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brelex {

/// The folder of the running program (UTF-8), ending in the separator.
[[nodiscard]] std::string ProgramFolder();

/// The name of the running program's file (UTF-8), on Windows without its ".exe". The user may have
/// renamed the file.
[[nodiscard]] std::string ProgramName();

}  // namespace brelex
