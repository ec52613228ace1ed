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

/// The largest number of hits that one search returns.
inline constexpr std::int32_t kMaxHits = 500;

/// The result of a search.
struct SearchOutcome {
    std::vector<std::int32_t> hits;  ///< the rows of the hits (0-based), ascending
    bool limitReached = false;       ///< there is at least one more hit beyond the limit
    std::int32_t nextPosition = 0;   ///< the row of that hit, if there is one
};

/// Searches the rows from `position` (0-based) on and returns at most `limit` hits. Reports each
/// hit to `watcher`, which may be null, and pauses after rows 0, 150, 300, ...
[[nodiscard]] SearchOutcome SearchDatabase(const RecordFinder& finder, const RowList& rows,
                                           std::int32_t position, std::int32_t limit,
                                           WorkWatcher* watcher);

/// The record texts of the hits as Windows-1252 bytes, each followed by a line end.
[[nodiscard]] std::string ResultText(const RowList& rows, const std::vector<std::int32_t>& hits);

/// The text "Found 3", shown during a search.
[[nodiscard]] std::string FoundText(std::int32_t hits);

/// The text "Number of Hits: 3", shown when a search is done.
[[nodiscard]] std::string NumberOfHitsText(std::int32_t hits);

/// The message shown when a search stops at the limit of hits.
[[nodiscard]] Message HitLimitMessage();

/// Shown instead of the hits if there are none.
inline constexpr const char* kNothingFoundText = "Search text is not found";

}  // namespace brelex
