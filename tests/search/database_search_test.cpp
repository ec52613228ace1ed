// SPDX-License-Identifier: MIT
#include "search/database_search.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/fakes.h"

namespace brelex {
namespace {

// Records of which those at multiples of `step` have an "x" in their expansions.
FakeRows RowsWithHits(int count, int step) {
    std::vector<std::string> records;
    records.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        records.push_back("R" + std::to_string(i) + (i % step == 0 ? "\tx" : "\ty"));
    }
    return FakeRows(records);
}

SearchOutcome SearchForX(const RowList& rows, std::int32_t position, WorkWatcher* watcher) {
    const auto finder = RecordFinder::Compile({"x", SearchIn::Expansions}, rows);
    return SearchDatabase(*finder, rows, position, kMaxHits, watcher);
}

TEST(SearchDatabase, GivesTheHitsInTheirOrder) {
    const FakeRows rows = RowsWithHits(1000, 400);
    const SearchOutcome outcome = SearchForX(rows, 0, nullptr);
    EXPECT_EQ(outcome.hits, (std::vector<std::int32_t>{0, 400, 800}));
    EXPECT_FALSE(outcome.limitReached);
}

TEST(SearchDatabase, BeginsAtAPosition) {
    const FakeRows rows = RowsWithHits(1000, 400);
    EXPECT_EQ(SearchForX(rows, 400, nullptr).hits, (std::vector<std::int32_t>{400, 800}));
    EXPECT_EQ(SearchForX(rows, 401, nullptr).hits, (std::vector<std::int32_t>{800}));
    EXPECT_TRUE(SearchForX(rows, 1000, nullptr).hits.empty());
    EXPECT_TRUE(SearchForX(rows, 5000, nullptr).hits.empty());
    EXPECT_EQ(SearchForX(rows, -5, nullptr).hits.size(), 3U);
}

TEST(SearchDatabase, OfNoRecordsFindsNothing) {
    const FakeRows rows({});
    RecordingWatcher watcher;
    EXPECT_TRUE(SearchForX(rows, 0, &watcher).hits.empty());
    EXPECT_TRUE(watcher.events.empty());
}

TEST(SearchDatabase, AWatcherThatFollowsNothingStopsNothing) {
    WorkWatcher nobody;
    EXPECT_EQ(SearchForX(RowsWithHits(1000, 400), 0, &nobody).hits.size(), 3U);
}

TEST(SearchDatabase, WithALimitOfNothingStopsAtTheFirstHit) {
    const FakeRows rows = RowsWithHits(10, 4);
    const auto finder = RecordFinder::Compile({"x", SearchIn::Expansions}, rows);
    const SearchOutcome outcome = SearchDatabase(*finder, rows, 1, 0, nullptr);
    EXPECT_TRUE(outcome.hits.empty());
    EXPECT_TRUE(outcome.limitReached);
    EXPECT_EQ(outcome.nextPosition, 4);
}

TEST(SearchDatabase, PausesBehindEvery150thRecordFromTheFirstOn) {
    const FakeRows rows = RowsWithHits(302, 151);
    RecordingWatcher watcher;
    (void)SearchForX(rows, 0, &watcher);
    EXPECT_EQ(watcher.events,
              (std::vector<std::string>{"hit 0", "pause", "pause", "hit 151", "pause"}));
}

TEST(SearchDatabase, PausesBehindAHitAtSuchARecord) {
    const FakeRows rows = RowsWithHits(301, 150);
    RecordingWatcher watcher;
    (void)SearchForX(rows, 100, &watcher);
    EXPECT_EQ(watcher.events, (std::vector<std::string>{"hit 150", "pause", "hit 300", "pause"}));
}

TEST(SearchDatabase, EndsWithTheRecordsEvenIfAPauseWasDueBehindTheNext) {
    const FakeRows rows = RowsWithHits(150, 149);
    RecordingWatcher watcher;
    EXPECT_EQ(SearchForX(rows, 1, &watcher).hits, (std::vector<std::int32_t>{149}));
    EXPECT_EQ(watcher.events, (std::vector<std::string>{"hit 149"}));
}

TEST(SearchDatabase, StopsAt500HitsIfThereIsAnother) {
    const FakeRows rows = RowsWithHits(1100, 2);
    RecordingWatcher watcher;
    const SearchOutcome first = SearchForX(rows, 0, &watcher);
    EXPECT_EQ(first.hits.size(), 500U);
    EXPECT_EQ(first.hits.back(), 998);
    EXPECT_TRUE(first.limitReached);
    EXPECT_EQ(first.nextPosition, 1000);
    const SearchOutcome rest = SearchForX(rows, first.nextPosition, nullptr);
    EXPECT_EQ(rest.hits.size(), 50U);
    EXPECT_EQ(rest.hits.front(), 1000);
    EXPECT_FALSE(rest.limitReached);
}

TEST(SearchDatabase, With500HitsInAllEndsLikeAnyOther) {
    const FakeRows rows = RowsWithHits(999, 2);
    const SearchOutcome outcome = SearchForX(rows, 0, nullptr);
    EXPECT_EQ(outcome.hits.size(), 500U);
    EXPECT_FALSE(outcome.limitReached);
}

TEST(SearchDatabase, EndsBehindTheHitAtWhichItsWatcherEndsIt) {
    const FakeRows rows = RowsWithHits(1000, 10);
    RecordingWatcher watcher;
    watcher.endsAtHit = 3;
    EXPECT_EQ(SearchForX(rows, 0, &watcher).hits, (std::vector<std::int32_t>{0, 10, 20}));
}

TEST(SearchDatabase, EndsBehindThePauseAtWhichItsWatcherEndsIt) {
    const FakeRows rows = RowsWithHits(1000, 10);
    RecordingWatcher watcher;
    watcher.endsAtPause = 2;
    const SearchOutcome outcome = SearchForX(rows, 0, &watcher);
    EXPECT_EQ(outcome.hits.back(), 150);
    EXPECT_EQ(watcher.pauses, 2);
    EXPECT_FALSE(outcome.limitReached);
}

TEST(ResultText, HasEachWholeRecordInALine) {
    const FakeRows rows({"RAM\tRandom Access Memory", "A\tb", "ROM\tRead-Only Memory"});
    EXPECT_EQ(ResultText(rows, {0, 2}), "RAM\tRandom Access Memory\nROM\tRead-Only Memory\n");
    EXPECT_EQ(ResultText(rows, {}), "");
}

TEST(HitTexts, CountInDecimal) {
    EXPECT_EQ(FoundText(0), "Found 0");
    EXPECT_EQ(NumberOfHitsText(0), "Number of Hits: 0");
    EXPECT_EQ(NumberOfHitsText(12345), "Number of Hits: 12345");
}

TEST(HitLimitMessage, SaysHowToGoOn) {
    const Message message = HitLimitMessage();
    EXPECT_EQ(message.title, "Search Aborted");
    EXPECT_EQ(message.text,
              "Your search has returned the maximum number of hits. Brevilexicon search result "
              "cannot exceed 500 entries.\n\nCheck the 'Search from Next Position' box to continue "
              "searching from the next position.");
    EXPECT_EQ(message.icon, MessageIcon::Information);
}

}  // namespace
}  // namespace brelex
