// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace brelex {

/// Escapes `text` for use as the value of a key in a desktop entry.
[[nodiscard]] std::string EscapedForDesktopEntry(std::string_view text);

/// Escapes `text` for use between the double quotes of an argument in a desktop entry's Exec line.
/// Such a line is read twice: first as the value of a key, which removes backslashes, and then as a
/// command, which removes more of them.
[[nodiscard]] std::string EscapedForExecLine(std::string_view text);

}  // namespace brelex
