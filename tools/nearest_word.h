// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace brelex {

/// The one of `known` that `word` was probably meant to be: the one that takes the fewest changes,
/// or that begins with it. Empty if all of them are too different.
[[nodiscard]] std::string NearestWord(std::string_view word, const std::vector<std::string>& known);

}  // namespace brelex
