// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brelex {

/// The folder of the running program (UTF-8), ending in the separator.
[[nodiscard]] std::string ProgramFolder();

}  // namespace brelex
