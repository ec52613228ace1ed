// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <string>

#include "database/record_number.h"
#include "search/search_request.h"

namespace brelex {

/// The options of `brelex search`.
struct SearchOptions {
    SearchRequest request;
    RecordNumber from{1};  ///< the record at which to start
    bool all = false;      ///< return every hit, however many there are
    bool json = false;
};

/// Searches a database with wildcards. Prints each record found on a line of `out`, and on `err`
/// how many there are and where to continue. Returns kFound, kNothingFound, or kFailed with the
/// reason on `err` if the file cannot be loaded or the request is refused.
int RunSearch(const std::string& database, const SearchOptions& options, std::ostream& out,
              std::ostream& err);

/// Finds the entries whose abbreviations are anagrams of `letters` (UTF-8). Prints a line for each:
/// its number (1-based), abbreviation and expansion, separated by TABs. Prints on `err` how many
/// rearrangements the letters have. Returns kFound, kNothingFound, or kFailed with the reason on
/// `err` if the file cannot be loaded or the letters are refused.
int RunAnagram(const std::string& database, const std::string& letters, bool json,
               std::ostream& out, std::ostream& err);

}  // namespace brelex
