// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <string>

#include "database/record_number.h"
#include "search/search_request.h"
#include "tools/record_output.h"

namespace brelex {

/// The options of `brelex search`.
struct SearchOptions {
    SearchRequest request;
    RecordNumber from{1};  ///< the record at which to start
    bool all = false;      ///< return every hit, however many there are
};

/// Searches a database with wildcards. Prints the records found on `out`, and on `err` how many
/// there are and where to continue. Returns kFound, kNothingFound, or kFailed with the reason on
/// `err` if the file cannot be loaded or the request is refused.
int RunSearch(const std::string& database, const SearchOptions& options,
              const OutputOptions& output, std::ostream& out, std::ostream& err);

/// Finds the entries whose abbreviations are anagrams of `letters` (UTF-8). Prints them on `out`,
/// and on `err` how many rearrangements the letters have. Returns kFound, kNothingFound, or kFailed
/// with the reason on `err` if the file cannot be loaded or the letters are refused.
int RunAnagram(const std::string& database, const std::string& letters, const OutputOptions& output,
               std::ostream& out, std::ostream& err);

}  // namespace brelex
