// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brelex {

/// The separator between groups of digits in the user's settings (UTF-8); "," if they have none.
[[nodiscard]] std::string UserGroupSeparator();

/// The decimal separator in the user's settings (UTF-8); "." if they have none.
[[nodiscard]] std::string UserDecimalSeparator();

}  // namespace brelex
