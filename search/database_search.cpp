// SPDX-License-Identifier: MIT
#include "search/database_search.h"

#include <algorithm>

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
    std::int32_t row = std::max(position, 0);
    while (row < rows.RowCount()) {
        // The end of the rows before the next pause.
        const std::int32_t end =
            watcher == nullptr ? rows.RowCount() : EndOfStretch(row, rows.RowCount());
        const std::int32_t hit = finder.FindNext(row, end);
        if (hit < end) {
            const auto hits = static_cast<std::int32_t>(outcome.hits.size());
            if (hits >= limit) {
                outcome.limitReached = true;
                outcome.nextPosition = hit;
                return outcome;
            }
            outcome.hits.push_back(hit);
            if (watcher != nullptr && !watcher->OnHit(hit)) {
                return outcome;
            }
            row = hit + 1;
        } else {
            row = end;
        }
        if (watcher != nullptr && row == end && (end - 1) % kRecordsBetweenPauses == 0 &&
            !watcher->OnPause()) {
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
