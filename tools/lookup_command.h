// SPDX-License-Identifier: MIT
#pragma once

#include <istream>
#include <ostream>
#include <string>
#include <vector>

#include "tools/record_output.h"

namespace brelex {

/// What `brelex lookup` is to look up.
struct LookupOptions {
    std::vector<std::string> texts;  ///< UTF-8; "-" means the lines of the standard input
    bool first = false;  ///< for each text, find only the entry that typing it would select
};

/// For each text, prints the entries whose abbreviation it is, as AbbreviationFinder finds them. If
/// there are none, prints the entry that typing the text would select, and on `err` says so and
/// names similar abbreviations. Skips empty lines of `in`.
///
/// Returns kFound, kNothingFound if no text has an entry, or kFailed with the reason on `err` if
/// the file cannot be loaded. With `first`, a text has an entry if one begins with its first
/// character.
int RunLookup(const std::string& database, const LookupOptions& options,
              const OutputOptions& output, std::istream& in, std::ostream& out, std::ostream& err);

}  // namespace brelex
