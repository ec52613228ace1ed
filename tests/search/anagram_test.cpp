// SPDX-License-Identifier: MIT
#include "search/anagram.h"

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "base/letter_case.h"
#include "base/windows1252.h"
#include "database/record_text.h"
#include "tests/support/fakes.h"
#include "tests/support/memory_meter.h"
#include "tests/support/named_case.h"

namespace brelex {
namespace {

struct CountCase {
    const char* name;
    const char32_t* text;
    std::int32_t distinct;
    double rearrangements;
};

class LetterCountTest : public testing::TestWithParam<CountCase> {};

TEST_P(LetterCountTest, CountsDistinctLettersAndRearrangements) {
    EXPECT_EQ(CountDistinctLetters(GetParam().text), GetParam().distinct);
    EXPECT_EQ(CountRearrangements(GetParam().text), GetParam().rearrangements);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, LetterCountTest,
    testing::Values(CountCase{"Empty", U"", 0, 0}, CountCase{"One", U"A", 1, 1},
                    CountCase{"AllDistinct", U"CPU", 3, 6}, CountCase{"OneTwice", U"AAB", 2, 3},
                    CountCase{"InEitherCase", U"AaB", 2, 3}, CountCase{"TheSame", U"CC", 1, 1},
                    CountCase{"TwoTwice", U"ABAB", 2, 6}, CountCase{"DigitsDivide", U"A11", 1, 3},
                    CountCase{"HyphensDivide", U"A--", 1, 3}, CountCase{"NoLetters", U"123", 0, 6},
                    CountCase{"FirstAndLast", U"AZ", 2, 2},
                    CountCase{"CharactersBesideThem", U"A@[", 1, 6},
                    CountCase{"AccentsAreNoneOfTheLetters", U"\u00C9\u00E9", 0, 1},
                    CountCase{"Long", U"ABCDEFGHIJKLM", 13, 6227020800.0}),
    CaseName());

TEST(RearrangementsText, IsGrouped) {
    EXPECT_EQ(RearrangementsText(U"", ","), "0");
    EXPECT_EQ(RearrangementsText(U"CPU", ","), "6");
    EXPECT_EQ(RearrangementsText(U"ABCDEFGH", ","), "40,320");
    EXPECT_EQ(RearrangementsText(U"ABCDEFGH", "."), "40.320");
    // 21! has more digits than a double can tell apart.
    EXPECT_EQ(RearrangementsText(U"ABCDEFGHIJKLMNOPQRSTU", ","), "51,090,942,171,709,400,000");
    EXPECT_EQ(RearrangementsText(std::u32string(170, U'A'), ","), "1");
    EXPECT_EQ(RearrangementsText(std::u32string(171, U'A'), ","), "too many to count");
}

TEST(Factorial, IsInDoublePrecision) {
    EXPECT_EQ(Factorial(-3), 1);
    EXPECT_EQ(Factorial(0), 1);
    EXPECT_EQ(Factorial(5), 120);
    EXPECT_EQ(Factorial(20), 2432902008176640000.0);
}

TEST(GetNumOccr, CountsInEitherCase) {
    EXPECT_EQ(GetNumOccr(U'a', U"aAbA"), 3);
    EXPECT_EQ(GetNumOccr(U'-', U"a-b-"), 2);
    EXPECT_EQ(GetNumOccr(U'x', U"aAbA"), 0);
    EXPECT_EQ(GetNumOccr(U'\u00E9', U"\u00C9"), 1);
}

TEST(AnagramRefusalOf, WantsTwoDistinctLetters) {
    for (const char32_t* letters : {U"", U"A", U"CC", U"AAA", U"A1", U"12", U"aA"}) {
        const auto refusal = AnagramRefusalOf(letters);
        ASSERT_TRUE(refusal);
        EXPECT_EQ(refusal->text, "Type at least 2 distinct letters");
        EXPECT_EQ(refusal->title, "Brevilexicon");
        EXPECT_EQ(refusal->icon, MessageIcon::Exclamation);
        EXPECT_EQ(refusal->buttons, MessageButtons::Ok);
    }
    EXPECT_FALSE(AnagramRefusalOf(U"AB"));
    EXPECT_FALSE(AnagramRefusalOf(U"A1B"));
}

struct AnagramCase {
    const char* name;
    const char32_t* letters;
    const char* record;
    bool hit;
};

class AnagramTest : public testing::TestWithParam<AnagramCase> {};

TEST_P(AnagramTest, TellsWhetherAnAbbreviationIsOne) {
    EXPECT_EQ(AnagramLetters(GetParam().letters).IsHit(GetParam().record), GetParam().hit);
}

INSTANTIATE_TEST_SUITE_P(
    Records, AnagramTest,
    testing::Values(AnagramCase{"AnotherOrder", U"PUC", "CPU\tx", true},
                    AnagramCase{"TheSameOrder", U"CPU", "CPU\tx", true},
                    AnagramCase{"HyphensAreDropped", U"PUC", "C-PU\tx", true},
                    AnagramCase{"HyphensAtTheEnds", U"PUC", "-CPU-\tx", true},
                    AnagramCase{"BlanksAreNot", U"PUC", "CP U\tx", false},
                    AnagramCase{"ABlankTypedCounts", U"P UC", "CP U\tx", true},
                    AnagramCase{"AHyphenTypedFindsNothing", U"P-UC", "C-PU\tx", false},
                    AnagramCase{"SmallLettersInTheEntry", U"PUC", "cpu\tx", true},
                    AnagramCase{"MixedLettersInTheEntry", U"PUC", "cPu\tx", true},
                    AnagramCase{"SmallLettersTyped", U"puc", "CPU\tx", true},
                    AnagramCase{"OneTooMany", U"PUC", "CPUS\tx", false},
                    AnagramCase{"OneTooFew", U"PUC", "CP\tx", false},
                    AnagramCase{"ALetterTooOften", U"AAB", "ABB\tx", false},
                    AnagramCase{"DigitsCount", U"31D", "D13\tx", true},
                    AnagramCase{"TheExpansionDoesNot", U"PUC", "X\tCPU", false},
                    AnagramCase{"OnlyTheFirstTabEndsIt", U"PUC", "CPU\tCPU\tx", true},
                    AnagramCase{"WithoutTabThereIsNoAbbreviation", U"PUC", "CPU", false},
                    AnagramCase{"AnEmptyRecord", U"PUC", "", false},
                    AnagramCase{"AccentsInEitherCase", U"\u00E9T", "T\xC9\tx", true},
                    AnagramCase{"OutsideTheCodePage", U"\u4E2DAB", "AB?\tx", false},
                    AnagramCase{"OutsideTheCodePageIsNotLeftOut", U"\u4E2DAB", "AB\tx", false}),
    CaseName());

// What letters are compared with: an abbreviation without its hyphens.
std::u32string CandidateOf(std::string_view record) {
    std::string candidate(GetAbbreviation(record));
    std::erase(candidate, '-');
    return DecodeUtf8(candidate);
}

// The definition, step by step.
bool IsAnagramPlainly(const std::u32string& letters, const std::u32string& candidate) {
    return candidate.size() == letters.size() &&
           std::all_of(letters.begin(), letters.end(), [&](char32_t c) {
               return GetNumOccr(c, letters) == GetNumOccr(c, candidate);
           });
}

// One search of rows that have not been searched before.
std::vector<std::int32_t> FindAnagrams(const RowList& rows, std::u32string_view letters,
                                       WorkWatcher* watcher) {
    return AnagramFinder(rows).Find(AnagramLetters(letters), watcher);
}

TEST(AnagramFinder, FindsWhatTheDefinitionFinds) {
    std::mt19937 random(5);
    const auto anyText = [&random](std::string_view letters, std::size_t below) {
        std::string text;
        for (auto length = random() % below; length > 0; --length) {
            text.push_back(letters[random() % letters.size()]);
        }
        return text;
    };
    std::vector<std::string> records;
    records.reserve(1000);
    for (int i = 0; i < 1000; ++i) {
        records.push_back(anyText("abAB1- ", random() % 10 == 0 ? 30 : 7) +
                          (random() % 30 == 0 ? "" : "\tx"));
    }
    const FakeRows rows(records);
    AnagramFinder finder(rows);
    std::vector<std::u32string> candidates;
    candidates.reserve(records.size());
    for (const std::string& record : records) {
        candidates.push_back(CandidateOf(record));
    }
    std::size_t found = 0;
    for (int i = 0; i < 500; ++i) {
        const std::string typed = anyText("abAB1- ", 6);
        const std::u32string letters = DecodeUtf8(typed);
        std::vector<std::int32_t> expected;
        for (std::size_t row = 0; row < records.size(); ++row) {
            const bool noTab = records[row].find('\t') == std::string::npos;
            if (!(noTab && typed.empty()) && IsAnagramPlainly(letters, candidates[row])) {
                expected.push_back(static_cast<std::int32_t>(row));
            }
        }
        ASSERT_EQ(FindAnagrams(rows, letters, nullptr), expected) << typed;
        ASSERT_EQ(finder.Find(AnagramLetters(letters), nullptr), expected) << typed;
        found += expected.size();
    }
    EXPECT_GT(found, 1000U);
}

TEST(AnagramFinder, AnyOrderOfAnAbbreviationFindsIt) {
    std::mt19937 random(9);
    const FakeRows rows({"3GPP\ta", "ASCII\tb", "CD-ROM\tc", "I/O\td", "LISP\te", "R&D\tf",
                         "TCP/IP\tg", "WYSIWYG\th", "cc-NUMA\ti", "EIGHT-BY\tj", "SEVENER\tk",
                         "AN-ABBREVIATION-OF-MANY-WORDS\tl"});
    AnagramFinder finder(rows);
    for (std::int32_t row = 0; row < rows.RowCount(); ++row) {
        std::string letters(GetAbbreviation(rows.RowText(row)));
        std::erase(letters, '-');
        for (int i = 0; i < 50; ++i) {
            std::shuffle(letters.begin(), letters.end(), random);
            EXPECT_EQ(finder.Find(AnagramLetters(DecodeUtf8(letters)), nullptr),
                      std::vector<std::int32_t>{row});
        }
    }
}

FakeRows CpuAmong(int count, int at) {
    std::vector<std::string> records(static_cast<std::size_t>(count), "X\ty");
    records.at(static_cast<std::size_t>(at)) = "CPU\tz";
    return FakeRows(records);
}

TEST(AnagramFinder, ReportsEvery100thEntryOf250As0And40And80Percent) {
    RecordingWatcher watcher;
    (void)FindAnagrams(CpuAmong(250, 100), U"PUC", &watcher);
    EXPECT_EQ(watcher.events,
              (std::vector<std::string>{"0%", "pause", "hit 100", "40%", "pause", "80%", "pause"}));
}

TEST(AnagramFinder, RoundsHalvesToEven) {
    RecordingWatcher watcher;
    (void)FindAnagrams(CpuAmong(8000, 0), U"PUC", &watcher);
    // 100 of 8000 are 1.25 %, 200 are 2.5 %, 600 are 7.5 %.
    EXPECT_EQ(watcher.percents[1], 1);
    EXPECT_EQ(watcher.percents[2], 2);
    EXPECT_EQ(watcher.percents[6], 8);
}

TEST(AnagramFinder, WorksThePercentageOutInDoublePrecision) {
    RecordingWatcher watcher;
    (void)FindAnagrams(CpuAmong(20000, 0), U"PUC", &watcher);
    // 10900 of 20000 are a little more than 54.5 % then, 11500 a little less than 57.5 %.
    EXPECT_EQ(watcher.percents[109], 55);
    EXPECT_EQ(watcher.percents[115], 57);
}

TEST(AnagramFinder, EndsWhenItsWatcherSaysSo) {
    RecordingWatcher watcher;
    watcher.endsAtPause = 2;
    EXPECT_TRUE(FindAnagrams(CpuAmong(500, 300), U"PUC", &watcher).empty());
    EXPECT_EQ(watcher.events, (std::vector<std::string>{"0%", "pause", "20%", "pause"}));
}

TEST(AnagramFinder, EndsAtTheHitAtWhichItsWatcherSaysSo) {
    const FakeRows rows(std::vector<std::string>(250, "AB\tx"));
    RecordingWatcher watcher;
    watcher.endsAtHit = 3;
    EXPECT_EQ(FindAnagrams(rows, U"BA", &watcher), (std::vector<std::int32_t>{0, 1, 2}));
    EXPECT_EQ(watcher.hits, 3);
    EXPECT_EQ(watcher.pauses, 1);
}

TEST(AnagramFinder, ReportsTheSameWhenItHasSearchedBefore) {
    const FakeRows rows = CpuAmong(250, 100);
    AnagramFinder finder(rows);
    for (int search = 0; search < 4; ++search) {
        RecordingWatcher watcher;
        EXPECT_EQ(finder.Find(AnagramLetters(U"PUC"), &watcher), std::vector<std::int32_t>{100});
        EXPECT_EQ(watcher.events, (std::vector<std::string>{"0%", "pause", "hit 100", "40%",
                                                            "pause", "80%", "pause"}));
    }
}

TEST(AnagramFinder, TakesTwoBytesForEachRowFromTheSecondSearchOn) {
    const FakeRows rows(std::vector<std::string>(5000, "ABC\tx"));
    AnagramFinder finder(rows);
    const AnagramLetters letters(U"XY");
    for (const std::size_t expected : {0U, 10000U, 0U}) {
        const MemoryMeter meter(1000);
        (void)finder.Find(letters, nullptr);
        EXPECT_EQ(meter.Bytes(), expected);
    }
}

TEST(AnagramFinder, FindsAllAfterASearchThatWasStopped) {
    const FakeRows rows = CpuAmong(500, 300);
    AnagramFinder finder(rows);
    for (int search = 0; search < 3; ++search) {
        RecordingWatcher watcher;
        watcher.endsAtPause = 1 + search;
        EXPECT_TRUE(finder.Find(AnagramLetters(U"PUC"), &watcher).empty());
    }
    EXPECT_EQ(finder.Find(AnagramLetters(U"PUC"), nullptr), std::vector<std::int32_t>{300});
}

TEST(AnagramFinder, FindsEveryByteInEitherCase) {
    for (int byte = 1; byte < 256; ++byte) {
        const auto letter = static_cast<char>(byte);
        const auto other = static_cast<char>(SmallLetterOfByte(static_cast<unsigned char>(byte)));
        if (letter == '-' || letter == '\t') {
            continue;
        }
        const FakeRows rows({std::string("X") + letter + "\ta", std::string("x") + other + "\tb"});
        AnagramFinder finder(rows);
        const std::u32string typed = {U'X', CharacterOfByte(static_cast<unsigned char>(byte))};
        for (int search = 0; search < 3; ++search) {
            EXPECT_EQ(finder.Find(AnagramLetters(typed), nullptr),
                      (std::vector<std::int32_t>{0, 1}))
                << byte;
        }
    }
}

// A hit is compared in a copy, which takes memory if it is this long.
TEST(AnagramLetters, CopiesNoAbbreviationWithOtherLetters) {
    const AnagramLetters letters(std::u32string(99, U'A') + U'B');
    const std::string hit = std::string(99, 'a') + "b\tx";
    const std::string other = std::string(99, 'a') + "c\tx";
    const MemoryMeter meter(100);
    EXPECT_FALSE(letters.IsHit(other));
    EXPECT_EQ(meter.Bytes(), 0U);
    EXPECT_TRUE(letters.IsHit(hit));
    EXPECT_GT(meter.Bytes(), 0U);
}

}  // namespace
}  // namespace brelex
