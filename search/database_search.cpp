// SPDX-License-Identifier: MIT
#include "search/database_search.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "base/app_info.h"

namespace brelex {

namespace {

constexpr std::int32_t kRecordsBetweenPauses = 150;

// The end of the rows from `row` up to the next pause, including the row after which it comes.
std::int32_t EndOfStretch(std::int32_t row, std::int32_t rowCount) {
    const std::int32_t past = row % kRecordsBetweenPauses;
    const std::int32_t left = past == 0 ? 0 : kRecordsBetweenPauses - past;
    return left < rowCount - row ? row + left + 1 : rowCount;
}

}  // namespace

SearchOutcome SearchDatabase(const RecordFinder& finder, const RowList& rows, std::int32_t position,
                             std::int32_t limit, WorkWatcher* watcher) {
    SearchOutcome outcome;
    std::vector<std::int32_t>& hits = outcome.hits;
    // One more shows that the limit has been reached, and where the search would go on.
    const std::size_t wanted = static_cast<std::size_t>(std::max(limit, 0)) + 1;
    std::int32_t row = std::max(position, 0);
    while (row < rows.RowCount()) {
        // The end of the rows before the next pause.
        const std::int32_t end =
            watcher == nullptr ? rows.RowCount() : EndOfStretch(row, rows.RowCount());
        std::size_t told = hits.size();
        finder.FindHits(row, end, wanted - told, hits);
        std::optional<std::int32_t> nextPosition;
        if (hits.size() == wanted) {
            nextPosition = hits.back();
            hits.pop_back();
        }
        while (watcher != nullptr && told < hits.size()) {
            if (!watcher->OnHit(hits[told++])) {
                hits.resize(told);
                return outcome;
            }
        }
        if (nextPosition) {
            outcome.limitReached = true;
            outcome.nextPosition = *nextPosition;
            return outcome;
        }
        row = end;
        if (watcher != nullptr && (end - 1) % kRecordsBetweenPauses == 0 && !watcher->OnPause()) {
            return outcome;
        }
    }
    return outcome;
}

std::string ResultText(const RowList& rows, const std::vector<std::int32_t>& hits) {
    std::string text;
    for (const std::int32_t row : hits) {
        text += rows.RowText(row);
        text.push_back('\n');
    }
    return text;
}

std::string FoundText(std::int32_t hits) {
    return "Found " + std::to_string(hits);
}

std::string NumberOfHitsText(std::int32_t hits) {
    return "Number of Hits: " + std::to_string(hits);
}

Message HitLimitMessage() {
    return {"Your search has returned the maximum number of hits. " + std::string(kAppTitle) +
                " search result cannot exceed " + std::to_string(kMaxHits) +
                " entries.\n\nCheck the 'Search from Next Position' box to continue searching from "
                "the next position.",
            "Search Aborted", MessageIcon::Information, MessageButtons::Ok};
}

}  // namespace brelex
