// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <ostream>
#include <string>

#include "search/search_request.h"

namespace brelex {

/// What `brelex search` is asked for.
struct SearchOptions {
    SearchRequest request;
    std::int32_t from = 1;  ///< the record to begin at, 1-based
    bool all = false;       ///< all hits, however many
    bool json = false;
};

/// Searches a database with wildcards. Prints the records found, one a line, and on `err` how many
/// there are and where to go on. Returns 0, 1 if there are none, 2 if the file cannot be loaded or
/// the request is refused, with the reason on `err`.
int RunSearch(const std::string& database, const SearchOptions& options, std::ostream& out,
              std::ostream& err);

/// Searches a database for entries whose abbreviations are anagrams of `letters` (UTF-8). Prints a
/// line for each: its number (1-based), abbreviation and expansion, parted by TABs; and on `err`
/// how many rearrangements the letters have. Returns 0, 1 if there are none, 2 if the file cannot
/// be loaded or the letters are refused, with the reason on `err`.
int RunAnagram(const std::string& database, const std::string& letters, bool json,
               std::ostream& out, std::ostream& err);

}  // namespace brelex
