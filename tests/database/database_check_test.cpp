// SPDX-License-Identifier: MIT
#include "database/database_check.h"

#include <algorithm>
#include <functional>
#include <random>
#include <utility>

#include <gtest/gtest.h>

#include "database/database_file.h"
#include "database/szdd.h"
#include "lookup/prefix_search.h"
#include "tests/support/test_files.h"

namespace brelex {
namespace {

std::vector<std::string> Findings(const std::function<void(DatabaseHeader&, std::string&)>& damage,
                                  const std::vector<std::string>& records = {
                                      "ABC\tAlpha", "ABD\tBeta", "RAM\tMemory"}) {
    const std::string expanded = ExpandedBytes(records);
    DatabaseHeader header = DecodeHeader(expanded);
    std::string block = expanded.substr(kHeaderBytes);
    damage(header, block);
    header.DataSize = static_cast<std::int32_t>(block.size());
    RecordStore store;
    EXPECT_EQ(ReadDatabase(CompressSzdd(EncodeHeader(header) + block), header, store),
              LoadFailure::None);
    return CheckDatabase(header, store, FindFirstByPrefix);
}

bool Contains(const std::vector<std::string>& lines, const std::string& part) {
    return std::any_of(lines.begin(), lines.end(), [&](const std::string& line) {
        return line.find(part) != std::string::npos;
    });
}

TEST(CheckDatabase, FindsNothingInAGoodOne) {
    EXPECT_EQ(Findings([](DatabaseHeader&, std::string&) {}), std::vector<std::string>());
}

TEST(CheckDatabase, AChangedLetterIsAWrongCrc) {
    EXPECT_EQ(Findings([](DatabaseHeader&, std::string& block) { block[6] = 'l'; }),
              std::vector<std::string>{"the CRC of the records is not the header's DataCRC"});
}

TEST(CheckDatabase, NulsAreComparedWithTheCount) {
    EXPECT_TRUE(
        Contains(Findings([](DatabaseHeader& header, std::string&) { header.RecordCount = 2; }),
                 "the record block holds 3 NULs, RecordCount is 2"));
}

TEST(CheckDatabase, ARecordOutOfOrderIsNamed) {
    EXPECT_TRUE(Contains(Findings([](DatabaseHeader&, std::string& block) { block[0] = 'Z'; }),
                         "record 2 stands behind a greater one: ABD"));
}

TEST(CheckDatabase, ARecordWithoutTabIsNamed) {
    EXPECT_TRUE(Contains(Findings([](DatabaseHeader&, std::string& block) { block[3] = 'x'; }),
                         "record 1 has no TAB"));
}

TEST(CheckDatabase, EachRecordWithAControlCharacterIsNamed) {
    const auto lines = Findings([](DatabaseHeader& header, std::string& block) {
        block[5] = '\x1B';
        block[14] = '\n';
        block[23] = '\x9D';  // Windows-1252 has no character there
        header.SearchListText[1] = '\x7F';
    });
    EXPECT_TRUE(Contains(lines, "record 1 contains the control character 1B"));
    EXPECT_TRUE(Contains(lines, "record 2 contains the control character 0A"));
    EXPECT_TRUE(Contains(lines, "record 3 contains the control character 9D"));
    EXPECT_TRUE(Contains(lines, "the search list contains the control character 7F"));
}

TEST(CheckDatabase, VisibleCharactersNextToControlCharactersAreGood) {
    EXPECT_EQ(Findings([](DatabaseHeader&, std::string&) {}, {"A\t ~\x80\xA0\xFF"}),
              std::vector<std::string>());
}

TEST(CheckDatabase, RecordsInABadOrderDoNotTakeStepsWithoutEnd) {
    // Whoever looks up A lands in the first half and goes back to its beginning. It has to be
    // looked up for every other record of the second half.
    constexpr std::size_t kHalf = 10000;
    const std::string expanded = ExpandedBytes(NumberedRecords(1));
    std::string block;
    for (std::size_t i = 0; i < kHalf; ++i) {
        block += std::string("AA\tx\0", 5);
    }
    for (std::size_t i = 0; i < kHalf / 2; ++i) {
        block += std::string("B\tx\0A\tx\0", 8);
    }
    DatabaseHeader header = DecodeHeader(expanded);
    header.RecordCount = 2 * kHalf;
    header.DataSize = static_cast<std::int32_t>(block.size());
    RecordStore store;
    ASSERT_EQ(ReadDatabase(CompressSzdd(EncodeHeader(header) + block), header, store),
              LoadFailure::None);
    std::int64_t steps = 0;
    const auto lines = CheckDatabase(
        header, store, [&](const RowList& rows, std::string_view text, std::int64_t* counted) {
            const std::int64_t before = *counted;
            const std::int32_t row = FindFirstByPrefix(rows, text, counted);
            steps += *counted - before;
            return row;
        });
    EXPECT_LT(steps, 30'000'000);
    EXPECT_TRUE(Contains(lines, " on were not looked up: "));
}

// Checks a good database with three records. The first look-up claims to have taken so many steps.
std::vector<std::string> FindingsAfterSteps(std::int64_t claimed) {
    DatabaseHeader header;
    RecordStore store;
    EXPECT_EQ(ReadDatabase(DatabaseBytes(NumberedRecords(3)), header, store), LoadFailure::None);
    return CheckDatabase(header, store,
                         [&](const RowList& rows, std::string_view text, std::int64_t* steps) {
                             *steps += std::exchange(claimed, 0);
                             std::int64_t taken = 0;
                             return FindFirstByPrefix(rows, text, &taken);
                         });
}

TEST(CheckDatabase, AMillionStepsAndAThousandForEachRecordAreNotTooMany) {
    EXPECT_EQ(FindingsAfterSteps(1'003'000), std::vector<std::string>());
    EXPECT_EQ(FindingsAfterSteps(1'003'001),
              std::vector<std::string>{"the beginnings from record 2 on were not looked up: that "
                                       "takes too many steps in this order"});
}

TEST(CheckDatabase, EachWrongStatisticIsNamed) {
    const auto lines = Findings([](DatabaseHeader& header, std::string&) {
        header.MaxAbbrvLength = 77;
        header.LongestExpansionIndex = -1;
        header.CommonFirstLetter = 'Q';
    });
    EXPECT_TRUE(Contains(lines, "MaxAbbrvLength is 77, the records give 3"));
    EXPECT_TRUE(Contains(lines, "LongestExpansionIndex is -1, the records give 2"));
    EXPECT_TRUE(Contains(lines, "CommonFirstLetter is 'Q', the records give 'A'"));
    EXPECT_EQ(lines.size(), 3U);
}

TEST(CheckDatabase, BeginningsThatAccentsHideAreNamed) {
    // These are in order, but cut to one byte, E-acute sorts before E.
    std::vector<std::string> records = {"A\tx",
                                        "\xC9"
                                        "a\tx"};
    for (const char* c : {"b", "c", "d", "f", "g", "h"}) {
        records.push_back(std::string("E") + c + "\tx");
    }
    EXPECT_TRUE(Contains(Findings([](DatabaseHeader&, std::string&) {}, records),
                         "does not reach record 2"));
}

// How often a check of a good database looks up anything.
int LookupsOfCheck(const std::vector<std::string>& records) {
    DatabaseHeader header;
    RecordStore store;
    EXPECT_EQ(ReadDatabase(DatabaseBytes(records), header, store), LoadFailure::None);
    int lookups = 0;
    EXPECT_EQ(CheckDatabase(header, store,
                            [&](const RowList& rows, std::string_view text, std::int64_t* steps) {
                                ++lookups;
                                return FindFirstByPrefix(rows, text, steps);
                            }),
              std::vector<std::string>());
    return lookups;
}

TEST(CheckDatabase, LooksUpEachBeginningOnce) {
    EXPECT_EQ(LookupsOfCheck({"ABC\tx", "ABD\tx", "ABD\ty", "AC\tx"}), 3 + 1 + 0 + 1);
}

TEST(CheckDatabase, OnlyTheBeginningOfALongAbbreviationIsLookedUp) {
    EXPECT_EQ(LookupsOfCheck({std::string(200000, 'A') + "\tx", "B\ty"}), 100 + 1);
    EXPECT_EQ(LookupsOfCheck({std::string(200000, '\xC9') + "\tx", "F\ty"}), 100 + 1);
}

TEST(CheckDatabase, WithAndWithoutTheOrderFindsTheSame) {
    std::mt19937 random(12);
    std::size_t findings = 0;
    for (int round = 0; round < 200; ++round) {
        std::vector<std::string> records;
        for (std::size_t i = 1 + random() % 60; i > 0; --i) {
            std::string text;
            for (std::size_t length = 1 + random() % 4; length > 0; --length) {
                text.push_back("aBe\xE9\xC6"[random() % (round % 2 == 0 ? 3 : 5)]);
            }
            records.push_back(text + "\tx");
        }
        DatabaseHeader header;
        RecordStore store;
        ASSERT_EQ(ReadDatabase(DatabaseBytes(records), header, store), LoadFailure::None);
        const auto without = CheckDatabase(header, store, FindFirstByPrefix);
        store.MeasureOrder();
        EXPECT_EQ(CheckDatabase(header, store, FindFirstByPrefix), without);
        findings += without.size();
    }
    EXPECT_GT(findings, 0U);
}

TEST(CheckDatabase, TenFindingsOfAKindAreAllNamed) {
    const auto lines =
        Findings([](DatabaseHeader&,
                    std::string& block) { std::replace(block.begin(), block.end(), '\t', ' '); },
                 NumberedRecords(10));
    EXPECT_TRUE(Contains(lines, "record 10 has no TAB"));
    EXPECT_FALSE(Contains(lines, "more"));
}

TEST(CheckDatabase, ManyFindingsOfAKindAreSummedUp) {
    const auto lines =
        Findings([](DatabaseHeader&,
                    std::string& block) { std::replace(block.begin(), block.end(), '\t', ' '); },
                 NumberedRecords(30));
    EXPECT_TRUE(Contains(lines, "... and 20 more records without TAB"));
}

}  // namespace
}  // namespace brelex
