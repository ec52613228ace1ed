// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

#include "database/database_header.h"

namespace brelex {

/// What a database is made of.
struct DatabaseContent {
    float version = 1;
    std::chrono::year_month_day releaseDate{};
    std::vector<std::string> records;  ///< record texts as Windows-1252 bytes, in any order
    std::string searchList;            ///< search texts separated by the digit 1
};

/// A database ready to be compressed.
struct BuiltDatabase {
    DatabaseHeader header;
    std::string expanded;               ///< the header's bytes and the record block
    std::size_t duplicatesDropped = 0;  ///< records left out because they occurred twice
};

/// Sorts the records, drops exact duplicates and computes the header. Records that differ only in
/// case have a fixed order, so the same content always gives the same bytes. Requires records that
/// are not empty and contain no NUL.
[[nodiscard]] BuiltDatabase BuildDatabase(DatabaseContent content);

/// The header fields that are counted over `records`, which are in their final order. All other
/// fields keep their defaults. Averages are over all records and rounded to the nearest number. The
/// longest text is the one with the most characters other than blanks; if there are several, the
/// first.
[[nodiscard]] DatabaseHeader ComputeStatistics(const std::vector<std::string_view>& records);

}  // namespace brelex
