// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace brelex {

/// The suggested search texts of a database: its search list, trimmed and divided at every digit
/// "1". None for an empty list.
[[nodiscard]] std::vector<std::string> SearchListItems(std::string_view searchList);

}  // namespace brelex
