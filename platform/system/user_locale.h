// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brelex {

/// What the user's settings put between groups of digits (UTF-8); "," if they put nothing.
[[nodiscard]] std::string UserGroupSeparator();

/// What they put before the decimals (UTF-8); "." if they put nothing.
[[nodiscard]] std::string UserDecimalSeparator();

}  // namespace brelex
