// SPDX-License-Identifier: MIT
#include "search/record_finder.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/fakes.h"
#include "tests/support/named_case.h"

namespace brelex {
namespace {

constexpr auto kAbbreviations = SearchIn::Abbreviations;
constexpr auto kExpansions = SearchIn::Expansions;
constexpr auto kAnywhere = SearchPosition::Anywhere;
constexpr auto kBeginning = SearchPosition::Beginning;
constexpr auto kEnding = SearchPosition::Ending;

struct FindCase {
    const char* name;

    struct {
        const char* text;
        SearchIn in;
        SearchPosition position = kAnywhere;
        bool matchCase = false;
        bool wholeWord = false;
    } request;

    const char* record;
    bool hit;

    [[nodiscard]] SearchRequest Request() const {
        return {request.text, request.in, request.position, request.matchCase, request.wholeWord};
    }
};

std::vector<std::int32_t> Hits(const RecordFinder& finder, std::int32_t first, std::int32_t last,
                               std::size_t limit) {
    std::vector<std::int32_t> hits;
    finder.FindHits(first, last, limit, hits);
    return hits;
}

// The first hit from `first` up to but not including `last`, or `last` if there is none.
std::int32_t FindNext(const RecordFinder& finder, std::int32_t first, std::int32_t last) {
    const std::vector<std::int32_t> hits = Hits(finder, first, last, 1);
    return hits.empty() ? last : hits.front();
}

class RecordFinderTest : public testing::TestWithParam<FindCase> {};

TEST_P(RecordFinderTest, FindsARecordOrNot) {
    // Among others, so that it is first, in the middle and last.
    const std::string other = "0\t0";
    for (std::int32_t at = 0; at < 3; ++at) {
        std::vector<std::string> records(3, other);
        records.at(static_cast<std::size_t>(at)) = GetParam().record;
        const FakeRows rows(records);
        const auto finder = RecordFinder::Compile(GetParam().Request(), rows);
        ASSERT_TRUE(finder);
        EXPECT_EQ(finder->IsHit(rows.RowText(at)), GetParam().hit);
        EXPECT_EQ(FindNext(*finder, at, at + 1), GetParam().hit ? at : at + 1);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Fields, RecordFinderTest,
    testing::Values(
        FindCase{"TheExpansion", {"random", kExpansions}, "RAM\tRandom Access Memory", true},
        FindCase{"NotTheAbbreviation", {"ram", kExpansions}, "RAM\tRandom Access Memory", false},
        FindCase{"TheAbbreviation", {"ram", kAbbreviations}, "RAM\tRandom Access Memory", true},
        FindCase{"NotTheExpansion", {"access", kAbbreviations}, "RAM\tRandom Access Memory", false},
        FindCase{"NotAcrossBoth", {"ram?random", kExpansions}, "RAM\tRandom", false},
        FindCase{"BehindTheFirstTab", {"b\tc", kExpansions}, "A\tb\tc", true},
        FindCase{"WithoutTabAllIsExpansion", {"lon", kExpansions, kBeginning}, "Lonely", true},
        FindCase{"WithoutTabThereIsNoAbbreviation", {"lon", kAbbreviations}, "Lonely", false}),
    CaseName());

INSTANTIATE_TEST_SUITE_P(
    Positions, RecordFinderTest,
    testing::Values(
        FindCase{"AnywhereInTheMiddle", {"ces", kExpansions, kAnywhere}, "A\tAccess", true},
        FindCase{"BeginningWith", {"acc", kExpansions, kBeginning}, "A\tAccess", true},
        FindCase{"BeginningWithNot", {"ces", kExpansions, kBeginning}, "A\tAccess", false},
        FindCase{"EndingWith", {"ess", kExpansions, kEnding}, "A\tAccess", true},
        FindCase{"EndingWithNot", {"ces", kExpansions, kEnding}, "A\tAccess", false},
        FindCase{"AbbreviationEndingWith", {"am", kAbbreviations, kEnding}, "RAM\tx", true},
        FindCase{"AbbreviationBeginningWith", {"ra", kAbbreviations, kBeginning}, "RAM\tx", true},
        FindCase{"RangeAtTheBeginning", {"[a-c]", kExpansions, kBeginning}, "X\tBus", true},
        FindCase{"RangeAtTheBeginningNot", {"[a-c]", kExpansions, kBeginning}, "X\tdata", false},
        FindCase{"RangeInside", {"x[a-c]y", kExpansions, kAnywhere}, "X\taxbyz", true}),
    CaseName());

INSTANTIATE_TEST_SUITE_P(
    Wildcards, RecordFinderTest,
    testing::Values(
        FindCase{"QuestionMarkIsAnyField", {"?", kExpansions}, "X\ta", true},
        FindCase{"QuestionMarkIsNoEmptyField", {"?", kExpansions}, "X\t", false},
        FindCase{"DigitAtTheBeginning", {"#", kExpansions, kBeginning}, "X\t3D", true},
        FindCase{"NoDigitAtTheBeginning", {"#", kExpansions, kBeginning}, "X\tD3", false},
        FindCase{"AsteriskInBrackets", {"a[*]b", kExpansions}, "X\tcA*Bc", true},
        FindCase{"AsteriskInBracketsIsNoWildcard", {"a[*]b", kExpansions}, "X\tacb", false},
        FindCase{"FreeAsteriskBesideIt", {"a*b[*]", kExpansions}, "X\taxxb*", true},
        FindCase{"OutsideTheCodePage", {"\xE5\xAD\x97", kExpansions}, "X\t?", false}),
    CaseName());

INSTANTIATE_TEST_SUITE_P(
    Case, RecordFinderTest,
    testing::Values(FindCase{"IgnoredSmall", {"ABC", kExpansions}, "X\tabc", true},
                    FindCase{"IgnoredMixed", {"ABC", kExpansions}, "X\tAbc", true},
                    FindCase{"IgnoredSame", {"ABC", kExpansions}, "X\tABC", true},
                    FindCase{"MatchedNot", {"ABC", kExpansions, kAnywhere, true}, "X\tabc", false},
                    FindCase{
                        "MatchedMixedNot", {"ABC", kExpansions, kAnywhere, true}, "X\tAbc", false},
                    FindCase{"Matched", {"ABC", kExpansions, kAnywhere, true}, "X\tABC", true},
                    FindCase{"AccentsIgnored", {"\xC3\x89TAT", kExpansions}, "X\t\xE9tat", true}),
    CaseName());

INSTANTIATE_TEST_SUITE_P(
    WholeWords, RecordFinderTest,
    testing::Values(
        FindCase{"FirstOccurrenceInAWord",
                 {"abc", kExpansions, kAnywhere, false, true},
                 "X\tabcd abc",
                 false},
        FindCase{
            "BeforeAFullStop", {"abc", kExpansions, kAnywhere, false, true}, "X\tthe abc.", true},
        FindCase{"InParentheses", {"abc", kExpansions, kAnywhere, false, true}, "X\t(abc)", true},
        FindCase{"Alone", {"abc", kExpansions, kAnywhere, false, true}, "X\tabc", true},
        FindCase{
            "WhateverItsCase", {"aBc", kExpansions, kAnywhere, false, true}, "X\tthe AbC", true},
        FindCase{"InItsOwnCase", {"ABC", kExpansions, kAnywhere, true, true}, "X\tthe ABC", true},
        FindCase{
            "EndingButNotFirst", {"abc", kExpansions, kEnding, false, true}, "X\tabcd abc", false}),
    CaseName());

INSTANTIATE_TEST_SUITE_P(
    EmptyParts, RecordFinderTest,
    testing::Values(
        FindCase{"AnEmptyRecordHasNoCharacter", {"?", kExpansions, kBeginning}, "", false},
        FindCase{"AnEmptyRecordBeginsWithNothing", {"[]", kExpansions, kBeginning}, "", true},
        FindCase{"AnEmptyRecordEndsWithNothing", {"[]", kAbbreviations, kEnding}, "", true},
        FindCase{"ATabAlone", {"[!a]", kExpansions, kBeginning}, "\t", false},
        FindCase{"ATabAloneEndsWithNothing", {"[]", kExpansions, kEnding}, "\t", true},
        FindCase{"AnEmptyAbbreviation", {"?", kAbbreviations, kEnding}, "\tx", false},
        FindCase{"AnEmptyExpansion", {"[!b]", kExpansions, kEnding}, "A\t", false},
        FindCase{"NotIntoTheNextRecord", {"b0", kExpansions}, "A\tab", false},
        FindCase{"NotFromTheRecordBefore", {"0a", kAbbreviations}, "ab\tc", false}),
    CaseName());

TEST(RecordFinder, RefusesAMalformedPattern) {
    const FakeRows rows({"A\tb"});
    EXPECT_FALSE(RecordFinder::Compile({"[abc", kExpansions, kBeginning}, rows));
    EXPECT_FALSE(RecordFinder::Compile({"x[", kExpansions, kAnywhere}, rows));
    EXPECT_FALSE(RecordFinder::Compile({"[c-a]", kExpansions, kEnding}, rows));
}

TEST(RecordFinder, FindsNothingInNoRecords) {
    const FakeRows rows({});
    const auto finder = RecordFinder::Compile({"a", kExpansions}, rows);
    ASSERT_TRUE(finder);
    EXPECT_EQ(FindNext(*finder, 0, 0), 0);
}

std::string AnyText(std::mt19937& random, std::string_view letters, std::size_t below) {
    std::string text;
    for (auto length = random() % below; length > 0; --length) {
        text.push_back(letters[random() % letters.size()]);
    }
    return text;
}

SearchRequest AnyRequest(std::mt19937& random) {
    SearchRequest request;
    request.text = AnyText(random, "abBAx1 *?#[]!-", 7);
    request.in = random() % 2 == 0 ? kExpansions : kAbbreviations;
    constexpr std::array kPositions = {kAnywhere, kBeginning, kEnding};
    request.position = kPositions.at(random() % 3);
    request.matchCase = random() % 2 == 0;
    request.wholeWord = random() % 4 == 0;
    return request;
}

// Records with and without TABs, most of them short and some of them longer than a few vectors.
std::vector<std::string> AnyRecords(std::mt19937& random) {
    std::vector<std::string> records;
    for (int i = 0; i < 400; ++i) {
        const char* const between = random() % 20 == 0 ? "" : "\t";
        records.push_back(AnyText(random, "abAB1x*-", 5) + between +
                          AnyText(random, "abBA1x *-\t\xE9", random() % 10 == 0 ? 300 : 12));
    }
    return records;
}

// Looking for fragments in all the text is only a faster way to what IsHit says.
TEST(RecordFinder, FindsWhatLookingAtEachRecordFinds) {
    std::mt19937 random(7);
    const FakeRows rows(AnyRecords(random));
    int found = 0;
    int compiled = 0;
    while (compiled < 2500) {
        const SearchRequest request = AnyRequest(random);
        const auto finder = RecordFinder::Compile(request, rows);
        if (!finder) {
            continue;
        }
        ++compiled;
        // Stretches of any length, also with hits just behind them.
        const auto count = static_cast<std::uint32_t>(rows.RowCount());
        auto next = static_cast<std::int32_t>(random() % count);
        const std::int32_t last =
            next +
            static_cast<std::int32_t>(random() % (count - static_cast<std::uint32_t>(next) + 1));
        for (std::int32_t row = next; row < last; ++row) {
            if (finder->IsHit(rows.RowText(row))) {
                ASSERT_EQ(FindNext(*finder, next, last), row) << request.text;
                next = row + 1;
                ++found;
            }
        }
        ASSERT_EQ(FindNext(*finder, next, last), last) << request.text;
    }
    EXPECT_GT(found, 20000);
}

TEST(RecordFinder, FindsAsManyHitsAsWanted) {
    std::mt19937 random(8);
    const FakeRows rows(AnyRecords(random));
    int cut = 0;
    for (int compiled = 0; compiled < 1000;) {
        const SearchRequest request = AnyRequest(random);
        const auto finder = RecordFinder::Compile(request, rows);
        if (!finder) {
            continue;
        }
        ++compiled;
        const auto first = static_cast<std::int32_t>(random() % 200);
        const auto last = first + static_cast<std::int32_t>(random() % 200);
        const std::size_t limit = 1 + random() % 50;
        std::vector<std::int32_t> expected;
        for (std::int32_t row = first; row < last && expected.size() < limit; ++row) {
            if (finder->IsHit(rows.RowText(row))) {
                expected.push_back(row);
            }
        }
        ASSERT_EQ(Hits(*finder, first, last, limit), expected) << request.text;
        cut += expected.size() == limit ? 1 : 0;
    }
    EXPECT_GT(cut, 200);
}

TEST(RecordFinder, KeepsTheHitsThatItWasGiven) {
    const FakeRows rows({"A\tb", "A\tc", "A\tb"});
    const auto finder = RecordFinder::Compile({"b", kExpansions}, rows);
    ASSERT_TRUE(finder);
    std::vector<std::int32_t> hits = {7};
    finder->FindHits(0, 3, 2, hits);
    EXPECT_EQ(hits, (std::vector<std::int32_t>{7, 0, 2}));
}

}  // namespace
}  // namespace brelex
