// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace brelex {

/// The suggested search texts of a database: its search list, trimmed, cut at every digit "1". An
/// empty list has none.
[[nodiscard]] std::vector<std::string> SearchListItems(std::string_view searchList);

}  // namespace brelex
