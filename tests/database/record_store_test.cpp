// SPDX-License-Identifier: MIT
#include "database/record_store.h"

#include <limits>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "database/szdd.h"
#include "tests/support/fakes.h"
#include "tests/support/memory_meter.h"
#include "tests/support/named_case.h"

namespace brelex {
namespace {

ExpandedFile FileOf(std::string_view bytes) {
    return *ExpandSzdd(bytes);  // plain bytes are copied
}

using namespace std::string_literals;

TEST(RecordStore, KeepsTheRecordsInFileOrder) {
    RecordStore store;
    WorkWatcher progress;
    ASSERT_TRUE(store.Fill(FileOf("B\tx\0A\ty\0A\tz\0"s), 0, 3, 1, progress));
    EXPECT_EQ(store.RowCount(), 3);
    EXPECT_EQ(store.RowText(0), "B\tx");
    EXPECT_EQ(store.RowText(1), "A\ty");
    EXPECT_EQ(store.RowText(2), "A\tz");
}

TEST(RecordStore, TheBlockBeginsBehindTheHeader) {
    RecordStore store;
    WorkWatcher progress;
    ASSERT_TRUE(store.Fill(FileOf("head\0A\tx\0"s), 5, 1, 1, progress));
    EXPECT_EQ(store.RowText(0), "A\tx");
    EXPECT_EQ(store.Block(), "A\tx\0"s);
}

TEST(RecordStore, RecordsBeyondTheCountAreNotRead) {
    RecordStore store;
    WorkWatcher progress;
    ASSERT_TRUE(store.Fill(FileOf("A\tx\0B\ty\0"s), 0, 1, 1, progress));
    EXPECT_EQ(store.RowCount(), 1);
}

TEST(RecordStore, ACountThatTheBlockDoesNotHoldIsRefused) {
    WorkWatcher progress;
    for (const std::int32_t count : {3, 4, 100, std::numeric_limits<std::int32_t>::max()}) {
        RecordStore store;
        EXPECT_FALSE(store.Fill(FileOf("A\tx\0B\ty\0C\tz"s), 0, count, 1, progress)) << count;
        EXPECT_EQ(store.RowCount(), 0);
    }
}

TEST(RecordStore, ZeroOrFewerRecordsAreAnEmptyList) {
    WorkWatcher progress;
    for (const std::int32_t count : {0, -1, std::numeric_limits<std::int32_t>::min()}) {
        RecordStore store;
        EXPECT_TRUE(store.Fill(FileOf("A\tx\0"s), 0, count, 1, progress));
        EXPECT_EQ(store.RowCount(), 0);
    }
}

TEST(RecordStore, AllRecordsMayBeEmpty) {
    RecordStore store;
    WorkWatcher progress;
    ASSERT_TRUE(store.Fill(FileOf("\0\0\0"s), 0, 3, 1, progress));
    EXPECT_EQ(store.RowCount(), 3);
    EXPECT_EQ(store.RowText(2), "");
    EXPECT_FALSE(store.Fill(FileOf("\0\0\0"s), 0, 4, 1, progress));
}

TEST(RecordStore, ReportsTheFirstRecordAndOneOfEachStep) {
    RecordStore store;
    RecordingWatcher progress;
    ASSERT_TRUE(store.Fill(FileOf(std::string(10, '\0')), 0, 10, 4, progress));
    EXPECT_EQ(progress.percents, (std::vector<int>{0, 40, 80}));
}

TEST(RecordStore, ARecordMayBeEmptyOrLackItsTab) {
    RecordStore store;
    WorkWatcher progress;
    ASSERT_TRUE(store.Fill(FileOf("\0no tab\0"s), 0, 2, 1, progress));
    EXPECT_EQ(store.RowText(0), "");
    EXPECT_EQ(store.RowText(1), "no tab");
}

struct PrefixCase {
    const char* name;
    std::string block;
    std::int32_t count;
    std::size_t bytes;
};

class AscendingPrefixTest : public testing::TestWithParam<PrefixCase> {};

TEST_P(AscendingPrefixTest, IsFound) {
    RecordStore store;
    WorkWatcher progress;
    ASSERT_TRUE(store.Fill(FileOf(GetParam().block), 0, GetParam().count, 1, progress));
    EXPECT_EQ(store.AscendingPrefixBytes(), 0U);
    store.MeasureOrder();
    EXPECT_EQ(store.AscendingPrefixBytes(), GetParam().bytes);
}

constexpr auto kAnyLength = std::string_view::npos;

INSTANTIATE_TEST_SUITE_P(
    Blocks, AscendingPrefixTest,
    testing::Values(PrefixCase{"SortedRows", "AA\tx\0AB\tx\0AB\ty\0"s, 3, kAnyLength},
                    PrefixCase{"CaseDoesNotMatter", "ab\tx\0AB\ty\0"s, 2, kAnyLength},
                    PrefixCase{"DescendingAtTheThirdByte", "ABD\0ABC\0"s, 2, 2},
                    PrefixCase{"BeginningBehindTheLongerText", "ABC\0AB\0"s, 2, 2},
                    PrefixCase{"ASingleRow", "ABC\0"s, 1, kAnyLength},
                    PrefixCase{"EqualRows", "AB\0AB\0"s, 2, kAnyLength},
                    PrefixCase{"BeginningBeforeTheLongerText", "AB\0ABC\0"s, 2, kAnyLength},
                    PrefixCase{"DescendingAtTheFirstByte", "B\0A\0"s, 2, 0},
                    PrefixCase{"AccentAtTheFirstByte", "\xC9\0F\0"s, 2, 0},
                    PrefixCase{"AccentBehindAPlainLetter", "E\0\xC9\0"s, 2, 0},
                    PrefixCase{"TheLightestByte",
                               "\x01"
                               "A\0\x01"
                               "B\0"s,
                               2, kAnyLength},
                    PrefixCase{"AccentAtTheSecondByte", "AB\0A\xC9\0"s, 2, 1},
                    PrefixCase{"AccentBehindTheDifference", "AB\xC9\0AC\xC9\0"s, 2, kAnyLength}),
    CaseName());

TEST(RecordStore, TakesFourBytesForEachRecordAndOneMore) {
    ExpandedFile file = FileOf(std::string(5000, '\0'));
    RecordStore store;
    WorkWatcher progress;
    const MemoryMeter meter(1000);
    ASSERT_TRUE(store.Fill(std::move(file), 0, 5000, 100, progress));
    EXPECT_EQ(meter.Bytes(), 4U * 5001);
}

}  // namespace
}  // namespace brelex
