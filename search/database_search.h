// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/long_work.h"
#include "base/message_sink.h"
#include "database/row_list.h"
#include "search/record_finder.h"

namespace brelex {

/// The most hits that one search gives.
inline constexpr std::int32_t kMaxHits = 500;

/// What a search has found.
struct SearchOutcome {
    std::vector<std::int32_t> hits;  ///< their rows (0-based), ascending
    bool limitReached = false;       ///< there is at least one more hit than may be given
    std::int32_t nextPosition = 0;   ///< the row of that one, if there is
};

/// Searches the rows from `position` (0-based) on. Never gives more than `limit` hits. `watcher`,
/// which may be null, is told of each, and of a pause behind row 0, 150, 300, ...
[[nodiscard]] SearchOutcome SearchDatabase(const RecordFinder& finder, const RowList& rows,
                                           std::int32_t position, std::int32_t limit,
                                           WorkWatcher* watcher);

/// The hits' record texts as Windows-1252 bytes, each with a line end behind it.
[[nodiscard]] std::string ResultText(const RowList& rows, const std::vector<std::int32_t>& hits);

/// "Found 3", while searching.
[[nodiscard]] std::string FoundText(std::int32_t hits);

/// "Number of Hits: 3", when done.
[[nodiscard]] std::string NumberOfHitsText(std::int32_t hits);

/// The message at the end of a search that has all the hits it may have.
[[nodiscard]] Message HitLimitMessage();

/// What stands in place of the hits if there are none.
inline constexpr const char* kNothingFoundText = "Search text is not found";

}  // namespace brelex
