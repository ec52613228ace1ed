// SPDX-License-Identifier: MIT
#include "database/database_statistics.h"

#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "base/calendar_day.h"
#include "database/database_builder.h"
#include "tests/support/fakes.h"
#include "tests/support/named_case.h"

namespace brelex {
namespace {

using std::chrono::year;

const std::vector<std::string> kRecords = {"A B C\tAlpha", "BIOS\tBasic Input/Output System",
                                           "CAF\xC9\tCaf\xE9 Racer (two wheels)"};

// A database of three entries whose header a test changes.
class StatisticsTest : public testing::Test {
  protected:
    StatisticsTest() {
        values_.AcronymList = &rows_;
        values_.AppVersion = 1.5F;
        values_.Header.Version = 1.5F;
        values_.Header.ReleaseDate = CountOfDay(year(2005) / 2 / 3);
        values_.Header.RecordCount = 3;
    }

    // What the label `name` shows.
    [[nodiscard]] std::string Shown(std::string_view name) const {
        for (const std::vector<Statistic>& group : StatisticsOf(values_).groups) {
            for (const Statistic& statistic : group) {
                if (statistic.name == name) {
                    return statistic.text;
                }
            }
        }
        return "no such label";
    }

    [[nodiscard]] std::string ApplicationVersion() const { return StatisticsOf(values_).version; }

    FakeRows rows_{kRecords};
    ProgramValues values_;
};

TEST_F(StatisticsTest, AFirstLetterThatCannotBeShownIsLeftOut) {
    const std::vector<std::pair<char, const char*>> letters = {
        {'\0', ""}, {'\x1F', ""}, {' ', " "}, {'!', "!"}, {'A', "A"}, {'\xC9', "É"}};
    for (const auto& [letter, shown] : letters) {
        values_.Header.CommonFirstLetter = letter;
        EXPECT_EQ(Shown("lblFirstLetterOfMostAcronyms"),
                  "'" + std::string(shown) + "' (0 occurrences)");
    }
}

TEST_F(StatisticsTest, OnlyTheLoadingTimeIsOfThisRunAndTheLongestExpansionMayNeedLines) {
    for (const std::vector<Statistic>& group : StatisticsOf(values_).groups) {
        for (const Statistic& statistic : group) {
            const std::string_view name = statistic.name;
            EXPECT_EQ(statistic.isOfThisRun, name == "lblLoadingTime") << name;
            EXPECT_EQ(statistic.mayNeedLines, name == "lblLongestExpansion") << name;
        }
    }
}

TEST_F(StatisticsTest, StandInGroupsWithTheirCaptions) {
    std::string captions;
    for (const std::vector<Statistic>& group : StatisticsOf(values_).groups) {
        for (const Statistic& statistic : group) {
            captions += std::string(statistic.caption) + "\n";
        }
        captions += "\n";
    }
    EXPECT_EQ(captions,
              "Database version:\n"
              "Total number of entries:\n"
              "Loading time (current session):\n"
              "\n"
              "Most abbreviations start with:\n"
              "Abbreviation with highest no. of expansions*:\n"
              "\n"
              "Longest abbreviation*:\n"
              "Longest expansion including parenthetical note*:\n"
              "\n"
              "Average length of abbreviations:\n"
              "Average length of expansions:\n"
              "\n");
    EXPECT_STREQ(kStatisticsFootnote, "* The first such occurrence in the database");
}

TEST_F(StatisticsTest, TheApplicationsVersionHasOneDecimal) {
    values_.AppVersion = 6.1F;
    EXPECT_EQ(ApplicationVersion(), "Application version 6.1");
    values_.AppVersion = 2;
    EXPECT_EQ(ApplicationVersion(), "Application version 2.0");
}

struct VersionCase {
    const char* name;
    float database;
    double date;
    const char* text;
};

class DatabaseVersion : public StatisticsTest, public testing::WithParamInterface<VersionCase> {};

TEST_P(DatabaseVersion, IsShownWithItsDayAndAsUpdatedIfNewerThanTheApplication) {
    values_.Header.Version = GetParam().database;
    values_.Header.ReleaseDate = GetParam().date;
    EXPECT_EQ(Shown("lblDBVersion"), GetParam().text);
}

constexpr float kNoFloat = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

INSTANTIATE_TEST_SUITE_P(
    Table, DatabaseVersion,
    testing::Values(
        VersionCase{"Same", 1.5F, 38386, "1.5, released on 3 Feb 2005"},
        VersionCase{"Older", 1.4F, 38386, "1.4, released on 3 Feb 2005"},
        VersionCase{"Newer", 2, 38386, "2.0, released on 3 Feb 2005 (Updated)"},
        VersionCase{"InTheEvening", 1.5F, 38386.9, "1.5, released on 3 Feb 2005"},
        VersionCase{"DayZero", 1.5F, 0, "1.5, released on 30 Dec 1899"},
        VersionCase{"BeforeDayZero", 1.5F, -1, "1.5, released on 29 Dec 1899"},
        VersionCase{"LongBefore", 1.5F, -657434, "1.5, released on 1 Jan 0100"},
        VersionCase{"BeforeAllDates", 1.5F, -657435, "1.5, released on an unknown day"},
        VersionCase{"AfterAllDates", 1.5F, 2958466, "1.5, released on an unknown day"},
        VersionCase{"NoDate", 1.5F, std::numeric_limits<double>::quiet_NaN(),
                    "1.5, released on an unknown day"},
        VersionCase{"InfiniteDate", 1.5F, -std::numeric_limits<double>::infinity(),
                    "1.5, released on an unknown day"},
        VersionCase{"NoNumber", kNoFloat, 38386, "unknown, released on 3 Feb 2005"},
        VersionCase{"Infinite", kInfinity, 38386, "unknown, released on 3 Feb 2005 (Updated)"},
        VersionCase{"NegativelyInfinite", -kInfinity, 38386, "unknown, released on 3 Feb 2005"},
        VersionCase{"Negative", -2.5F, 38386, "-2.5, released on 3 Feb 2005"},
        VersionCase{"Zero", 0, 38386, ".0, released on 3 Feb 2005"}),
    CaseName());

TEST_F(StatisticsTest, TheCountIsTheHeadersInGroups) {
    values_.Header.RecordCount = 1234567;
    values_.groupSeparator = ".";
    EXPECT_EQ(Shown("lblAcronymCount"), "1.234.567");
    values_.Header.RecordCount = -5;
    EXPECT_EQ(Shown("lblAcronymCount"), "-5");
}

TEST_F(StatisticsTest, TheLoadingTimeHasTheUsersDecimalSeparatorAndNoFixedDecimals) {
    values_.LoadingTime = 0.11F;
    EXPECT_EQ(Shown("lblLoadingTime"), "0.11 seconds");
    values_.LoadingTime = 2;
    EXPECT_EQ(Shown("lblLoadingTime"), "2 seconds");
    values_.LoadingTime = -86399.9F;
    values_.decimalSeparator = ",";
    EXPECT_EQ(Shown("lblLoadingTime"), "-86399,9 seconds");
}

TEST_F(StatisticsTest, VersionsHaveTheUsersDecimalSeparator) {
    values_.AppVersion = 1.5F;
    values_.Header.Version = 2.0F;
    values_.decimalSeparator = ",";
    EXPECT_EQ(ApplicationVersion(), "Application version 1,5");
    EXPECT_TRUE(Shown("lblDBVersion").starts_with("2,0, released on "));
}

TEST_F(StatisticsTest, CountsAreShownWithoutGroups) {
    values_.Header.CommonFirstLetter = 'S';
    values_.Header.CommonFirstLetterCount = 1234;
    values_.Header.AvgAbbrvLength = 4;
    values_.Header.AvgExpansionLength = 1028;
    values_.Header.MostExpansionsIndex = 1;
    values_.Header.MostExpansionsCount = 1023;
    EXPECT_EQ(Shown("lblFirstLetterOfMostAcronyms"), "'S' (1234 occurrences)");
    EXPECT_EQ(Shown("lblAvgLenOfAcronyms"), "4 characters");
    EXPECT_EQ(Shown("lblAvgLenOfExpansions"), "1028 characters");
    EXPECT_EQ(Shown("lblAcronymWithHighestExpn"), "BIOS (1023 expansions)");
}

TEST_F(StatisticsTest, TheFirstLetterMayBeAnyByte) {
    values_.Header.CommonFirstLetter = '\xC9';
    EXPECT_EQ(Shown("lblFirstLetterOfMostAcronyms"), "'\u00C9' (0 occurrences)");
    values_.Header.CommonFirstLetter = '\0';
    EXPECT_EQ(Shown("lblFirstLetterOfMostAcronyms"), "'' (0 occurrences)");
}

TEST_F(StatisticsTest, LettersAreAllCharactersButBlanks) {
    values_.Header.LongestAbbrvIndex = 0;
    values_.Header.LongestExpansionIndex = 1;
    EXPECT_EQ(Shown("lblLongestAcronym"), "A B C (3 letters)");
    EXPECT_EQ(Shown("lblLongestExpansion"),
              "Basic Input/Output System (23 letters, abbreviated as BIOS)");
}

TEST_F(StatisticsTest, TheNoteBelongsToTheExpansion) {
    values_.Header.LongestExpansionIndex = 2;
    EXPECT_EQ(Shown("lblLongestExpansion"),
              "Caf\u00E9 Racer (two wheels) (20 letters, abbreviated as CAF\u00C9)");
}

TEST_F(StatisticsTest, AnEntryThatIsNotThereIsEmpty) {
    for (const std::int32_t index : {3, -1, 32767, 32768, 65535, -65537}) {
        values_.Header.LongestAbbrvIndex = index;
        values_.Header.LongestExpansionIndex = index;
        values_.Header.MostExpansionsIndex = index;
        EXPECT_EQ(Shown("lblLongestAcronym"), " (0 letters)") << index;
        EXPECT_EQ(Shown("lblLongestExpansion"), " (0 letters, abbreviated as )") << index;
        EXPECT_EQ(Shown("lblAcronymWithHighestExpn"), " (0 expansions)") << index;
    }
}

TEST_F(StatisticsTest, IndexesCountByTheirLow16Bits) {
    values_.Header.LongestAbbrvIndex = 65536 + 1;
    values_.Header.LongestExpansionIndex = std::numeric_limits<std::int32_t>::min() + 1;
    EXPECT_EQ(Shown("lblLongestAcronym"), "BIOS (4 letters)");
    EXPECT_EQ(Shown("lblLongestExpansion"),
              "Basic Input/Output System (23 letters, abbreviated as BIOS)");
}

TEST_F(StatisticsTest, ARecordWithoutTabIsAllExpansion) {
    const FakeRows rows({"no tab"});
    values_.AcronymList = &rows;
    EXPECT_EQ(Shown("lblLongestAcronym"), " (0 letters)");
    EXPECT_EQ(Shown("lblLongestExpansion"), "no tab (5 letters, abbreviated as )");
}

TEST_F(StatisticsTest, OfSeveralLongestTheFirstIsShown) {
    const std::vector<std::string_view> records = {"AAA\tone two", "BBB\tsix ten", "BBB\tsixteen",
                                                   "CCC\tonetwos"};
    values_.Header = ComputeStatistics(records);
    const FakeRows rows({records.begin(), records.end()});
    values_.AcronymList = &rows;
    EXPECT_EQ(Shown("lblLongestAcronym"), "AAA (3 letters)");
    EXPECT_EQ(Shown("lblLongestExpansion"), "sixteen (7 letters, abbreviated as BBB)");
    EXPECT_EQ(Shown("lblAcronymWithHighestExpn"), "BBB (2 expansions)");
}

TEST_F(StatisticsTest, AnEmptyListHasNoEntriesToShow) {
    const FakeRows rows({});
    values_.AcronymList = &rows;
    EXPECT_EQ(Shown("lblLongestAcronym"), " (0 letters)");
}

}  // namespace
}  // namespace brelex
