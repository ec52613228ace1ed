// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace brelex {

/// `text` (UTF-8) with a visible sign for each control character that is not one of `kept`, so that
/// a foreign database cannot send commands to the terminal. Each sign is one column wide.
[[nodiscard]] std::string VisibleText(std::string_view text, std::string_view kept = {});

}  // namespace brelex
