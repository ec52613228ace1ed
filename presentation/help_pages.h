// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace brelex {

/// The help page for a window, given the window's name: the name of a file in help/, possibly
/// followed by "#" and a place on the page. Empty for a window without a page; the help then opens
/// at its first page.
[[nodiscard]] std::string_view HelpPageOf(std::string_view window);

}  // namespace brelex
