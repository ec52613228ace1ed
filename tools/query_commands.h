// SPDX-License-Identifier: MIT
#pragma once

#include <istream>
#include <ostream>
#include <string>
#include <vector>

namespace brelex {

/// The commands of brelex that read a database file. Each returns the exit code: 0 if something was
/// found, 1 if not, 2 if the file cannot be loaded, with the reason on `err`.

/// Prints the header's fields, a line each, and then in words what the program shows of them.
int RunInfo(const std::string& database, std::ostream& out, std::ostream& err);

/// Prints the records as UTF-8, in their order.
int RunDump(const std::string& database, std::ostream& out, std::ostream& err);

/// Prints what is wrong with the database. 0 if nothing is, else 1, also for a file that can be
/// read but not be loaded.
int RunCheck(const std::string& database, std::ostream& out, std::ostream& err);

/// Prints for each text the record that typing it would select: its number (1-based), abbreviation
/// and expansion, parted by TABs. The text "-" stands for the lines of `in`. 1 if no entry begins
/// with even the first character of any of the texts.
int RunLookup(const std::string& database, const std::vector<std::string>& texts, std::istream& in,
              std::ostream& out, std::ostream& err);

}  // namespace brelex
