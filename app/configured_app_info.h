// SPDX-License-Identifier: MIT
#pragma once

#include "database/program_values.h"

namespace brelex {

/// The program's version, legal-rights text and addresses, as they were configured.
[[nodiscard]] AppInfo ConfiguredAppInfo();

/// Major and minor version joined by a point, as a number: 6 and 1 give 6.1.
[[nodiscard]] float AppVersionOf(const AppInfo& info);

}  // namespace brelex
