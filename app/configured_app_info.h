// SPDX-License-Identifier: MIT
#pragma once

#include "database/program_values.h"

namespace brelex {

/// The program's version, legal text and addresses, as configured at build time.
[[nodiscard]] AppInfo ConfiguredAppInfo();

/// The version as a number: major version 6 and minor version 1 give 6.1.
[[nodiscard]] float AppVersionOf(const AppInfo& info);

}  // namespace brelex
