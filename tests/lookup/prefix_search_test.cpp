// SPDX-License-Identifier: MIT
#include "lookup/prefix_search.h"

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "database/record_store.h"
#include "database/string_order.h"
#include "database/szdd.h"
#include "tests/support/fakes.h"
#include "tests/support/named_case.h"

namespace brelex {
namespace {

std::vector<std::string> SampleRows() {
    return {"10GE\tTen", "A-B\tHyphen", "AB-C\tHyphen", "AB C\tBlank", "AB\tFirst",   "AB\tSecond",
            "ab\tThird", "ABC\tLonger", "AC\tNext",     "XML\tMarkup", "XSS\tAttack", "Z\tLast"};
}

struct LookupCase {
    const char* name;
    std::string text;
    std::int32_t row;
};

class FindFirstByPrefixTest : public testing::TestWithParam<LookupCase> {};

TEST_P(FindFirstByPrefixTest, SelectsTheRow) {
    EXPECT_EQ(FindFirstByPrefix(FakeRows(SampleRows()), GetParam().text), GetParam().row);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, FindFirstByPrefixTest,
    testing::Values(LookupCase{"FirstOfThoseThatBegin", "AB", 2},
                    LookupCase{"CaseDoesNotMatter", "ab", 2},
                    LookupCase{"WithTabTheFirstOfEqualAbbreviations", "AB\t", 4},
                    LookupCase{"TheTabIsAnOrdinaryCharacter", "ab\tsec", 5},
                    LookupCase{"NoneBeginsWithXqSoTheFirstX", "XQ", 9},
                    LookupCase{"ShortenedFromTheEnd", "XSSQQQQQQQ", 10},
                    LookupCase{"NothingBeginsWithIt", "?", 0}, LookupCase{"Empty", "", 0},
                    LookupCase{"LastRow", "Z", 11}, LookupCase{"FirstRow", "1", 0},
                    LookupCase{"LongerThanAnyRow", std::string(5000, 'Z'), 11},
                    LookupCase{"TextEndsAtANul", std::string("AC\0ZZZ", 6), 8}),
    CaseName());

TEST(FindFirstByPrefix, AnEmptyListGivesRowZero) {
    EXPECT_EQ(FindFirstByPrefix(FakeRows({}), "A"), 0);
}

TEST(FindFirstByPrefix, OneRowIsFoundOrFallenBackTo) {
    const FakeRows rows({"B\tx"});
    EXPECT_EQ(FindFirstByPrefix(rows, "B"), 0);
    EXPECT_EQ(FindFirstByPrefix(rows, "A"), 0);
    EXPECT_EQ(FindFirstByPrefix(rows, "C"), 0);
}

bool Begins(const RowList& rows, std::int32_t row, std::string_view probe) {
    return EqualIgnoringCase(rows.RowText(row).substr(0, probe.size()), probe);
}

// Any row that begins with the probe, by halving; -1 if that meets none.
std::int32_t Halving(const RowList& rows, std::string_view probe) {
    std::int32_t low = 0;
    std::int32_t high = rows.RowCount() - 1;
    while (low <= high) {
        const std::int32_t mid = (low + high) / 2;
        const auto order = CompareTexts(probe, rows.RowText(mid).substr(0, probe.size()));
        if (std::is_eq(order)) {
            return mid;
        }
        std::is_lt(order) ? high = mid - 1 : low = mid + 1;
    }
    return -1;
}

// The search as it is defined, with every step back taken singly.
std::int32_t StepByStep(const RowList& rows, std::string_view text) {
    for (std::string_view probe = text; !probe.empty(); probe.remove_suffix(1)) {
        std::int32_t row = Halving(rows, probe);
        if (row >= 0) {
            while (row > 0 && Begins(rows, row - 1, probe)) {
                --row;
            }
            return row;
        }
    }
    return 0;
}

// A text can have a TAB and then be longer than a record.
TEST(FindFirstByPrefix, ARecordThatEndsBeforeTheTextDoesNotBeginWithIt) {
    EXPECT_EQ(FindFirstByPrefix(FakeRows({"A\t", "A\tb"}), "A\tbc"), 1);
}

// A store of records that are in order.
void FillStore(RecordStore& store, const std::vector<std::string>& records) {
    std::string block;
    for (const std::string& record : records) {
        block += record;
        block.push_back('\0');
    }
    WorkWatcher progress;
    ASSERT_TRUE(store.Fill(*ExpandSzdd(block), 0, static_cast<std::int32_t>(records.size()), 100,
                           progress));
    store.MeasureOrder();
}

// A store of random records over few letters, so that long runs share a beginning.
void FillRandomly(RecordStore& store, std::mt19937& random, std::string_view letters, int count) {
    std::vector<std::string> records;
    for (int i = 0; i < count; ++i) {
        std::string text;
        for (std::size_t length = 1 + random() % 5; length > 0; --length) {
            text.push_back(letters[random() % letters.size()]);
        }
        records.push_back(text + "\tx");
    }
    std::sort(records.begin(), records.end(), [](const std::string& a, const std::string& b) {
        return std::is_lt(CompareTexts(a, b));
    });
    FillStore(store, records);
}

class WalkBackTest : public testing::TestWithParam<std::string> {};

TEST_P(WalkBackTest, GivesTheRowThatSingleStepsGive) {
    std::mt19937 random(11);
    for (int round = 0; round < 60; ++round) {
        RecordStore store;
        FillRandomly(store, random, GetParam(), 1 + static_cast<int>(random() % 400));
        for (int i = 0; i < 60; ++i) {
            std::string text;
            for (std::size_t length = 1 + random() % 6; length > 0; --length) {
                text.push_back(GetParam()[random() % GetParam().size()]);
            }
            ASSERT_EQ(FindFirstByPrefix(store, text), StepByStep(store, text)) << text;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Letters, WalkBackTest,
                         testing::Values("ab", "aAbB-", "AB C'",
                                         "a\xE9"
                                         "b\xE6\xAD",
                                         "e\xE9\xC9"
                                         "E1\xB9"));

std::int64_t StepsFor(const RecordStore& store, std::string_view text) {
    std::int64_t steps = 0;
    (void)FindFirstByPrefix(store, text, &steps);
    return steps;
}

TEST(FindFirstByPrefix, LooksAtOneRowForEachTimeThatTheRowsCanBeHalved) {
    constexpr int kRecords = 1023;
    std::vector<std::string> records;
    records.reserve(kRecords);
    for (int i = 0; i < kRecords; ++i) {
        records.push_back(std::to_string(1000 + i) + "\tx");
    }
    RecordStore store;
    FillStore(store, records);
    for (const std::string& record : records) {
        ASSERT_EQ(StepsFor(store, record), 10);
    }
    EXPECT_EQ(StepsFor(store, "2022?"), 2 * 10);  // once more without the last character
}

TEST(FindFirstByPrefix, ALongRunOfRowsTakesNoMoreStepsUnlessAccentsDisturbTheirOrder) {
    // Cut to two bytes, the E with an accent is greater than the E behind it.
    std::vector<std::string> records(1021, "AA\tx");
    records.insert(records.end(), {"A\xC9"
                                   "A\tx",
                                   "AEB\tx"});
    RecordStore store;
    FillStore(store, records);
    EXPECT_EQ(StepsFor(store, "A"), 10);
    EXPECT_GT(StepsFor(store, "AA"), 500);
}

}  // namespace
}  // namespace brelex
