// SPDX-License-Identifier: MIT
#include "database/database_builder.h"

#include <random>
#include <set>

#include <gtest/gtest.h>

#include "base/calendar_day.h"
#include "database/modCRC32.h"
#include "database/string_order.h"

namespace brelex {
namespace {

using namespace std::string_literals;

BuiltDatabase Build(std::vector<std::string> records) {
    DatabaseContent content;
    content.version = 2;
    content.releaseDate = std::chrono::year(2005) / 2 / 3;
    content.records = std::move(records);
    content.searchList = "network1memory";
    return BuildDatabase(std::move(content));
}

std::string Block(const BuiltDatabase& built) {
    return built.expanded.substr(kHeaderBytes);
}

TEST(BuildDatabase, SortsWholeRecords) {
    EXPECT_EQ(Block(Build({"AB\tx", "AB-C\tx", "AB C\tx", "A\tz", "AB\ta"})),
              "A\tz\0AB-C\tx\0AB C\tx\0AB\ta\0AB\tx\0"s);
}

TEST(BuildDatabase, DropsExactDuplicatesOnly) {
    const BuiltDatabase built = Build({"A\tx", "A\tx", "a\tx", "A\tx"});
    EXPECT_EQ(Block(built), "A\tx\0a\tx\0"s);
    EXPECT_EQ(built.duplicatesDropped, 2U);
}

TEST(BuildDatabase, ARecordMayComeAnyNumberOfTimes) {
    const BuiltDatabase built = Build(std::vector<std::string>(5000, "A\tx"));
    EXPECT_EQ(Block(built), "A\tx\0"s);
    EXPECT_EQ(built.duplicatesDropped, 4999U);
}

TEST(BuildDatabase, TheOrderOfTheInputDoesNotMatter) {
    const std::vector<std::string> records = {"a\tx", "A\tx", "A\tX", "B\ty", "\xC6\tz", "AE\tz"};
    std::vector<std::string> reversed(records.rbegin(), records.rend());
    EXPECT_EQ(Build(records).expanded, Build(reversed).expanded);
}

TEST(BuildDatabase, TheOrderIsThatOfTheTexts) {
    std::mt19937 random(13);
    for (int round = 0; round < 100; ++round) {
        std::vector<std::string> records;
        for (std::size_t i = random() % 100; i > 0; --i) {
            std::string text;
            for (std::size_t length = 1 + random() % 12; length > 0; --length) {
                text.push_back("aA-b\t\xE9\xC6\xAD"[random() % (round % 2 == 0 ? 5 : 8)]);
            }
            records.push_back(text);
        }
        std::string expected;
        const auto before = [](const std::string& a, const std::string& b) {
            const auto order = CompareTexts(a, b);
            return std::is_lt(order) || (std::is_eq(order) && a < b);
        };
        for (const std::string& record : std::set(records.begin(), records.end(), before)) {
            expected += record + '\0';
        }
        EXPECT_EQ(Block(Build(records)), expected);
    }
}

TEST(BuildDatabase, TheHeaderTellsOfTheBlock) {
    const BuiltDatabase built = Build({"AB\tx", "C\tyz"});
    EXPECT_EQ(DecodeHeader(built.expanded), built.header);
    EXPECT_EQ(built.header.Version, 2);
    EXPECT_EQ(built.header.ReleaseDate, CountOfDay(std::chrono::year(2005) / 2 / 3));
    EXPECT_EQ(built.header.RecordCount, 2);
    EXPECT_EQ(built.header.MaxAbbrvLength, 2);
    EXPECT_EQ(built.header.MaxExpansionLength, 2);
    EXPECT_EQ(built.header.LongestAbbrvIndex, 0);
    EXPECT_EQ(built.header.LongestExpansionIndex, 1);
    EXPECT_EQ(built.header.DataSize, 10);
    EXPECT_EQ(built.header.DataCRC, GetCRCFromByteArray(Block(built)));
    EXPECT_EQ(built.header.SearchListText.substr(0, 16), "network1memory  ");
    EXPECT_EQ(built.header.SearchListText.size(), kSearchListLength);
}

TEST(ComputeStatistics, MaximaCountAllCharacters) {
    const auto header = ComputeStatistics({"A B C\tx", "ABCD\ta b c d"});
    EXPECT_EQ(header.MaxAbbrvLength, 5);
    EXPECT_EQ(header.MaxExpansionLength, 7);
}

TEST(ComputeStatistics, TheLongestCountLettersWithoutBlanks) {
    const auto header = ComputeStatistics({"A B C\ta b c d e", "ABCD\tabcdef"});
    EXPECT_EQ(header.LongestAbbrvIndex, 1);
    EXPECT_EQ(header.LongestExpansionIndex, 1);
}

TEST(ComputeStatistics, OfSeveralLongestTheFirstCounts) {
    const auto header = ComputeStatistics({"A\tx", "BC\tyy", "DE\tzz"});
    EXPECT_EQ(header.LongestAbbrvIndex, 1);
    EXPECT_EQ(header.LongestExpansionIndex, 1);
}

TEST(ComputeStatistics, TheLongestMayHaveOneLetter) {
    const auto header = ComputeStatistics({" \t ", "A\tx"});
    EXPECT_EQ(header.LongestAbbrvIndex, 1);
    EXPECT_EQ(header.LongestExpansionIndex, 1);
}

TEST(ComputeStatistics, AveragesAreOverRecordsToTheNearest) {
    const auto header = ComputeStatistics({"A\tx", "BC\tyyyy"});  // 1.5 and 2.5
    EXPECT_EQ(header.AvgAbbrvLength, 2);
    EXPECT_EQ(header.AvgExpansionLength, 3);
    EXPECT_EQ(ComputeStatistics({"A\tx", "A\ty", "BC\tz"}).AvgAbbrvLength, 1);  // 1.33
    EXPECT_EQ(ComputeStatistics({"A\tx", "A\ty", "B\tzz"}).AvgExpansionLength, 1);
}

TEST(ComputeStatistics, FirstLettersAreFoldedToCapitals) {
    const auto header = ComputeStatistics({"Ab\tx", "b\tx", "B\ty"});
    EXPECT_EQ(header.CommonFirstLetter, 'B');
    EXPECT_EQ(header.CommonFirstLetterCount, 2);
}

TEST(ComputeStatistics, OfEquallyFrequentLettersTheFirstCounts) {
    for (const auto& records : {std::vector<std::string_view>{"B\tx", "A\tx", "A\ty", "B\ty"},
                                std::vector<std::string_view>{"B\tx", "A\tx", "B\ty", "A\ty"}}) {
        EXPECT_EQ(ComputeStatistics(records).CommonFirstLetter, 'B');
    }
}

TEST(ComputeStatistics, ARecordWithoutAbbreviationHasNoFirstLetter) {
    EXPECT_EQ(ComputeStatistics({"\tx", "A\tx", " B\tx"}).CommonFirstLetter, 'A');
}

TEST(ComputeStatistics, MostExpansionsGoByExactAbbreviation) {
    const auto header = ComputeStatistics({"ab\tx", "AB\ty", "ab\tz", "C\tx", "C\ty"});
    EXPECT_EQ(header.MostExpansionsCount, 2);
    EXPECT_EQ(header.MostExpansionsIndex, 0);  // "ab", though "AB" stands between
}

TEST(ComputeStatistics, OfEquallyManyExpansionsTheFirstCounts) {
    EXPECT_EQ(ComputeStatistics({"B\tx", "A\tx"}).MostExpansionsIndex, 0);
    const auto header = ComputeStatistics({"B\tx", "A\tx", "A\ty"});
    EXPECT_EQ(header.MostExpansionsIndex, 1);
    EXPECT_EQ(header.MostExpansionsCount, 2);
}

TEST(ComputeStatistics, NoRecordsGiveNoStatistics) {
    EXPECT_EQ(ComputeStatistics({}), DatabaseHeader());
}

}  // namespace
}  // namespace brelex
