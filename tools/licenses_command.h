// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <string>

namespace brelex {

/// The file with the licenses of the program, the database and their components.
inline constexpr const char* kLicensesName = "Licenses.txt";

/// Prints the licenses, which are in the file kLicensesName in `folder` (UTF-8, ending in the
/// separator). Returns kFound, or kFailed with the reason on `err` if the file cannot be read.
int RunLicenses(const std::string& folder, std::ostream& out, std::ostream& err);

}  // namespace brelex
