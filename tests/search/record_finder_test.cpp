// SPDX-License-Identifier: MIT
#include "search/record_finder.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "database/record_store.h"
#include "tests/support/fakes.h"
#include "tests/support/memory_meter.h"
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
        bool loose = false;
    } request;

    const char* record;
    bool hit;

    [[nodiscard]] SearchRequest Request() const {
        return {request.text,      request.in,        request.position,
                request.matchCase, request.wholeWord, request.loose};
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

// A search of expansions that does not tell hyphens, commas, apostrophes and blanks apart.
struct LooseCase {
    const char* name;
    const char* text;
    const char* expansion;
    std::string_view match;  // empty: not a hit
    SearchPosition position = kAnywhere;
    bool wholeWord = false;
};

class LooseFinderTest : public testing::TestWithParam<LooseCase> {};

TEST_P(LooseFinderTest, FindsTheWordsHoweverTheyAreSeparated) {
    const LooseCase& row = GetParam();
    const FakeRows rows({"A\t0", std::string("B\t") + row.expansion, "C\t0"});
    const auto finder = RecordFinder::Compile(
        {row.text, kExpansions, row.position, false, row.wholeWord, true}, rows);
    ASSERT_TRUE(finder);
    const std::vector<std::int32_t> expected(row.match.empty() ? 0 : 1, 1);
    EXPECT_EQ(Hits(*finder, 0, 3, 3), expected);
    if (!row.match.empty()) {
        EXPECT_EQ(finder->MatchIn(rows.RowText(1)), row.match);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Separators, LooseFinderTest,
    testing::Values(LooseCase{"ABlankIsAHyphen", "solid state drive", "a Solid-State Drive (NVMe)",
                              "Solid-State Drive"},
                    LooseCase{"AHyphenIsABlank", "end-to-end", "End to End", "End to End"},
                    LooseCase{"ABlankIsACommaAndABlank", "build operate",
                              "Build, Operate and Transfer", "Build, Operate"},
                    LooseCase{"ACommaIsAHyphen", "a,b", "a-b", "a-b"},
                    LooseCase{"ABlankIsAnApostrophe", "programmer s", "Programmer's Guide",
                              "Programmer's"},
                    LooseCase{"TheTypographicOneToo", "programmer's", "Programmer\x92s Guide",
                              "Programmer\x92s"},
                    LooseCase{"ARunIsAnyOtherRun", "a - b", "a,--' b", "a,--' b"},
                    LooseCase{"NoSeparatorIsNotARun", "real time", "Realtime", ""},
                    LooseCase{"ARunIsNotNone", "realtime", "Real-Time", ""},
                    LooseCase{"OtherMarksAreNot", "a b", "a/b", ""},
                    LooseCase{"SeparatorsAtTheEnds", " a ", "0-a,0", "-a,"},
                    LooseCase{"NothingButASeparator", "-", "0, 0", ", "},
                    LooseCase{"TheFirstOfSeveral", "a b", "x a b a-b", "a b"}),
    CaseName());

INSTANTIATE_TEST_SUITE_P(Positions, LooseFinderTest,
                         testing::Values(LooseCase{"Beginning", "a b", "a-b c", "a-b", kBeginning},
                                         LooseCase{"BeginningNot", "a b", "xa-b c", "", kBeginning},
                                         LooseCase{"NotBehindASeparator", "a b", "-a-b c", "",
                                                   kBeginning},
                                         LooseCase{"Ending", "b c", "a-b--c", "b--c", kEnding},
                                         LooseCase{"EndingNot", "b c", "a-b-cx", "", kEnding}),
                         CaseName());

INSTANTIATE_TEST_SUITE_P(
    Wildcards, LooseFinderTest,
    testing::Values(LooseCase{"QuestionMarkIsAWholeRun", "a?b", "0a, b0", "a, b"},
                    LooseCase{"QuestionMarkIsALetter", "a?b c", "axb-c", "axb-c"},
                    LooseCase{"AListWithASeparator", "real[-]time", "Real Time", "Real Time"},
                    LooseCase{"AListWithSeparatorsOnly", "a[- ] b", "a,b", "a,b"},
                    LooseCase{"AListWithALetter", "a[-x]b", "a  b", "a  b"},
                    LooseCase{"ADigit", "rfc #", "RFC-1", "RFC-1"},
                    LooseCase{"BetweenStars", "a b*[*]", "0a-b c*0", "a-b c*"}),
    CaseName());

INSTANTIATE_TEST_SUITE_P(WholeWords, LooseFinderTest,
                         testing::Values(LooseCase{"TwoWords", "solid state",
                                                   "the solid-state drive", "solid-state",
                                                   kAnywhere, true},
                                         LooseCase{"PartOfAWord", "solid st",
                                                   "the solid-state drive", "", kAnywhere, true}),
                         CaseName());

struct MatchCase {
    const char* name;
    const char* text;
    SearchPosition position;
    const char* record;
    std::string_view match;
};

class MatchInTest : public testing::TestWithParam<MatchCase> {};

TEST_P(MatchInTest, IsTheFirstPartThatMatches) {
    const FakeRows rows({GetParam().record});
    const auto finder =
        RecordFinder::Compile({GetParam().text, kExpansions, GetParam().position}, rows);
    ASSERT_TRUE(finder);
    EXPECT_EQ(finder->MatchIn(rows.RowText(0)), GetParam().match);
}

INSTANTIATE_TEST_SUITE_P(
    Positions, MatchInTest,
    testing::Values(MatchCase{"Anywhere", "cces", kAnywhere, "A\tAccess, access", "cces"},
                    MatchCase{"NotTheAbbreviation", "a", kAnywhere, "aaa\tbA", "A"},
                    MatchCase{"Beginning", "a", kBeginning, "A\tAccess", "A"},
                    MatchCase{"Ending", "s", kEnding, "A\tAccess", "s"},
                    MatchCase{"Wildcards", "c?[a-f]", kAnywhere, "A\tAccess", "cce"},
                    MatchCase{"UpToTheLastOfItsStars", "c*s[*]*", kAnywhere, "A\tAccess* s*",
                              "ccess*"},
                    MatchCase{"FromTheBeginningToTheLastOfItsStars", "a*s[*]", kBeginning,
                              "A\tAccess* s*", "Access*"},
                    MatchCase{"FromTheFirstOfItsStarsToTheEnd", "*c*[*]", kEnding, "A\tAccess* s*",
                              "ccess* s*"},
                    MatchCase{"WholeFieldByStars", "[*]*", kBeginning, "A\t*b", "*"},
                    MatchCase{"Nothing", "[]x[]", kAnywhere, "A\txx", "x"}),
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
    request.loose = random() % 4 == 0;
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
    EXPECT_GT(cut, 150);
}

TEST(RecordFinder, KeepsTheHitsThatItWasGiven) {
    const FakeRows rows({"A\tb", "A\tc", "A\tb"});
    const auto finder = RecordFinder::Compile({"b", kExpansions}, rows);
    ASSERT_TRUE(finder);
    std::vector<std::int32_t> hits = {7};
    finder->FindHits(0, 3, 2, hits);
    EXPECT_EQ(hits, (std::vector<std::int32_t>{7, 0, 2}));
}

TEST(RecordFinder, FindsNothingInAStoreThatWasNeverFilled) {
    const RecordStore nothing;
    const auto finder = RecordFinder::Compile({"a*b", SearchIn::Expansions}, nothing);
    ASSERT_TRUE(finder.has_value());
    std::vector<std::int32_t> hits;
    finder->FindHits(0, 0, 1, hits);
    EXPECT_TRUE(hits.empty());
}

// A loose search copies each field that it looks at, which takes memory if it is this long.
TEST(RecordFinder, LooksOnlyAtTheFirstRecordAndThoseWithTheRarestFragment) {
    std::vector<std::string> records(1000, "A\t" + std::string(200, 'x'));
    records[500] += "needle";
    const FakeRows rows(records);
    SearchRequest request;
    request.text = "needle";
    request.loose = true;
    request.position = SearchPosition::Ending;
    const auto finder = RecordFinder::Compile(request, rows);
    std::vector<std::int32_t> hits;
    const MemoryMeter meter(200);
    finder->FindHits(0, rows.RowCount(), 10, hits);
    EXPECT_EQ(hits, (std::vector<std::int32_t>{500}));
    EXPECT_LT(meter.Bytes(), 3U * 200);
}

// The sample grows to 4 KiB by doubling, each time with a byte for its end.
TEST(RecordFinder, RatesItsFragmentsByASampleOf4KiB) {
    const FakeRows rows(std::vector<std::string>(5001, "A\tbcd"));
    const MemoryMeter meter(1500);
    const auto finder = RecordFinder::Compile({"b", SearchIn::Expansions}, rows);
    EXPECT_TRUE(finder.has_value());
    EXPECT_EQ(meter.Bytes(), 2049U + 4097U);
}

}  // namespace
}  // namespace brelex
