// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace brelex {

/// The suggested search texts of a database: its search list, trimmed and split at every digit "1".
/// Empty for an empty list.
[[nodiscard]] std::vector<std::string> SearchListItems(std::string_view searchList);

}  // namespace brelex
