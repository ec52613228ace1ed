// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <string>

namespace brelex {

/// The commands of brelex that report on a database file. Each returns the exit code: kFound,
/// kNothingFound, or kFailed with the reason on `err` if the file cannot be loaded.

/// Prints each field of the header on a line of its own, then the facts that the program shows
/// about the database.
int RunInfo(const std::string& database, std::ostream& out, std::ostream& err);

/// Prints all records as UTF-8, in file order.
int RunDump(const std::string& database, std::ostream& out, std::ostream& err);

/// Prints the problems found in the database. Returns kFound if there are none, and kNothingFound
/// if there are some or if the file can be read but not loaded.
int RunCheck(const std::string& database, std::ostream& out, std::ostream& err);

}  // namespace brelex
