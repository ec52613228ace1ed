// SPDX-License-Identifier: MIT
#include "lookup/abbreviation_finder.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/fakes.h"
#include "tests/support/memory_meter.h"
#include "tests/support/named_case.h"

namespace brelex {
namespace {

using Rows = std::vector<std::int32_t>;
using Texts = std::vector<std::string_view>;

std::vector<std::string> SampleRows() {
    return {"/.\tSlashdot",  "AI RMF\tFramework", "AI\tIntelligence",
            "A/I\tInterval", "AI\tInterface",     "Lonely",
            "P.S.\tPost",    "PS\tPlay",          "P-S/ \tWith a blank at its end",
            "TCP-ACO\tAlt",  "TCP/IP\tInternet",  "TCPI\tIndex",
            "\xC9U\tUnion"};
}

struct FindCase {
    const char* name;
    std::string text;
    Rows rows;
};

class FindAbbreviationTest : public testing::TestWithParam<FindCase> {};

TEST_P(FindAbbreviationTest, FindsTheRowsInOrder) {
    const FakeRows rows(SampleRows());
    AbbreviationFinder finder(rows);
    EXPECT_EQ(finder.Find(GetParam().text), GetParam().rows);
    EXPECT_EQ(finder.Find(GetParam().text), GetParam().rows) << "the second time";
}

INSTANTIATE_TEST_SUITE_P(
    Texts, FindAbbreviationTest,
    testing::Values(
        FindCase{"AllOfThem", "AI", {2, 3, 4}},
        FindCase{"InTheOrderOfTheRowsHoweverTyped", "A/I", {2, 3, 4}},
        FindCase{"CaseDoesNotMatter", "ai", {2, 3, 4}},
        FindCase{"NorDoesTheCaseOfAccentedLetters", "\xE9u", {12}},
        FindCase{"AnAccentDoesMatter", "eu", {}}, FindCase{"WithoutItsSlash", "tcpip", {10}},
        FindCase{"WithOtherMarks", "t.c.p - i.p.", {10}},
        FindCase{"WithoutItsPeriods", "ps", {6, 7, 8}}, FindCase{"WithoutItsBlank", "airmf", {1}},
        FindCase{"NotTheBeginningOfALongerOne", "TCP", {}}, FindCase{"NotALongerText", "AIX", {}},
        FindCase{"NotTheSameCharactersInAnotherOrder", "IA", {}},
        FindCase{"NotTheSameCharactersMoreOften", "AII", {}},
        FindCase{"WithoutTabTheWholeRecord", "lonely", {5}},
        FindCase{"OnlyMarksExactly", "/.", {0}}, FindCase{"OtherMarksOnly", "./", {}},
        FindCase{"Empty", "", {}}, FindCase{"ANul", std::string("AI\0", 3), {}}),
    CaseName());

TEST(AbbreviationFinder, OfNoRowsFindsNothing) {
    const FakeRows rows({});
    EXPECT_EQ(AbbreviationFinder(rows).Find("A"), Rows());
    EXPECT_EQ(AbbreviationFinder(rows).FindSimilar("A", 1), Texts());
}

struct SimilarCase {
    const char* name;
    std::string text;
    Texts abbreviations;
};

class FindSimilarTest : public testing::TestWithParam<SimilarCase> {};

TEST_P(FindSimilarTest, FindsThoseOneEditAway) {
    const FakeRows rows({"SCSI\tx", "SCSI\ty", "scsi\tz", "S-CSI\tu", "SQL\tx", "SSL\tx", "TSL\tx",
                         "U2\tx", "/.\tx", "XSCSI\tx"});
    EXPECT_EQ(AbbreviationFinder(rows).FindSimilar(GetParam().text, 10), GetParam().abbreviations);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, FindSimilarTest,
    testing::Values(SimilarCase{"OneTooMany", "SCSII", {"SCSI"}},
                    SimilarCase{"OneMissing", "SCI", {"SCSI"}},
                    SimilarCase{"OneMissingAtTheFront", "csi", {"SCSI"}},
                    SimilarCase{"OneWrong", "SCXI", {"SCSI"}},
                    SimilarCase{"NeighborsExchanged", "SCIS", {"SCSI"}},
                    SimilarCase{"NeighborsExchangedAtTheFront", "csSi", {"SCSI"}},
                    SimilarCase{"NotTwoWrong", "SXXI", {}}, SimilarCase{"NotTwoMissing", "SC", {}},
                    SimilarCase{"NotExchangedOverAnother", "ISCS", {}},
                    SimilarCase{"NotItself", "XSCSI", {"SCSI"}},
                    SimilarCase{"TheSameFirstCharacterComesFirst", "SSCL", {"SSL"}},
                    SimilarCase{"ThenExchangedNeighborsThenMissingThenWrong", "SLS", {"SSL"}},
                    SimilarCase{"WrongOnesInTheOrderOfTheRows", "SXL", {"SQL", "SSL"}},
                    SimilarCase{"OtherFirstCharactersLast", "XSL", {"SSL", "TSL"}},
                    SimilarCase{"MarksDoNotCount", "S/X/L", {"SQL", "SSL"}},
                    SimilarCase{
                        "ACharacterNoRowHasIsWrong", std::string("S\0L", 3), {"SQL", "SSL"}},
                    SimilarCase{"OnlyMarks", "./", {}}, SimilarCase{"Empty", "", {}}),
    CaseName());

TEST(AbbreviationFinder, RanksSlipsByHowLikelyTheyAre) {
    const FakeRows rows({"ABCE\tWrong", "ABCDE\tMissing", "ABC\tToo many", "ABDC\tExchanged",
                         "BACD\tExchanged at the front", "XBCD\tWrong at the front"});
    EXPECT_EQ(AbbreviationFinder(rows).FindSimilar("abcd", 10),
              Texts({"ABDC", "ABCDE", "ABC", "ABCE", "BACD", "XBCD"}));
    EXPECT_EQ(AbbreviationFinder(rows).FindSimilar("abcd", 2), Texts({"ABDC", "ABCDE"}));
}

TEST(AbbreviationFinder, TakesEightBytesForEachRowFromTheSecondSearchOn) {
    const FakeRows rows(std::vector<std::string>(5000, "ABC\tx"));
    AbbreviationFinder finder(rows);
    for (const std::size_t expected : {0U, 40000U, 0U}) {
        const MemoryMeter meter(1000);
        (void)finder.Find("XY");
        EXPECT_EQ(meter.Bytes(), expected);
    }
}

// Looking at an abbreviation this long takes memory for its letters.
TEST(AbbreviationFinder, LooksAtNoRowWithMoreThanTwoOtherLetters) {
    const std::string letters(100, 'A');
    const FakeRows rows(std::vector<std::string>(50, letters + "BCD\tx"));
    AbbreviationFinder finder(rows);
    (void)finder.FindSimilar("X", 10);
    const MemoryMeter meter(100);
    EXPECT_EQ(finder.FindSimilar("A", 10), Texts({}));
    EXPECT_EQ(meter.Bytes(), 0U);
}

}  // namespace
}  // namespace brelex
