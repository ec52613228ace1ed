// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace brelex {

/// The page of the help that fits a window, by the window's name: a file in help/, which may go on
/// with "#" and a place on the page. Empty, which is the first page, for a window that has none.
[[nodiscard]] std::string_view HelpPageOf(std::string_view window);

}  // namespace brelex
