// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace brelex {

/// What stands for `text` between the double quotes of an argument in a desktop entry's Exec line.
/// That is read twice: as the value of a key, which takes backslashes off, and as a command, which
/// takes more of them off.
[[nodiscard]] std::string EscapedForExecLine(std::string_view text);

}  // namespace brelex
