// SPDX-License-Identifier: MIT
#include "database/string_order.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/named_case.h"

namespace brelex {
namespace {

struct OrderCase {
    const char* name;
    std::string less;
    std::string greater;
};

class CompareTextsTest : public testing::TestWithParam<OrderCase> {};

TEST_P(CompareTextsTest, OneStandsBeforeTheOther) {
    EXPECT_TRUE(std::is_lt(CompareTexts(GetParam().less, GetParam().greater)));
    EXPECT_TRUE(std::is_gt(CompareTexts(GetParam().greater, GetParam().less)));
    EXPECT_FALSE(EqualIgnoringCase(GetParam().less, GetParam().greater));
}

INSTANTIATE_TEST_SUITE_P(Order, CompareTextsTest,
                         testing::Values(OrderCase{"ApostropheBeforeHyphen", "A'", "A-"},
                                         OrderCase{"HyphenBeforeBlank", "A-", "A "},
                                         OrderCase{"BlankBeforeTab", "A ", "A\t"},
                                         OrderCase{"HyphenatedRecordBeforePlainOne", "AB-C\tx",
                                                   "AB\tx"},
                                         OrderCase{"TabBeforePunctuation", "AB\tx", "AB.C\tx"},
                                         OrderCase{"TabBeforeDigits", "AB\tx", "AB1\tx"},
                                         OrderCase{"DigitsBeforeLetters", "9", "a"},
                                         OrderCase{"PlusBeforeDigits", "C+", "C0"},
                                         OrderCase{"BeginningBeforeLongerText", "ab", "ABC"},
                                         OrderCase{"EmptyBeforeEverything", "", "'"},
                                         OrderCase{"FractionBetweenZeroAndOne", "0", "\xBD"},
                                         OrderCase{"FractionBelowOne", "\xBD", "1"},
                                         OrderCase{"AccentsDecideAtATie", "Ea",
                                                   "\xC9"
                                                   "a"},
                                         OrderCase{"AccentsDecideOnlyAtATie",
                                                   "\xC9"
                                                   "a",
                                                   "Eb"},
                                         OrderCase{"TheFirstAccentDecides", "e\xE9",
                                                   "\xE9"
                                                   "e"},
                                         OrderCase{"ResidueDecidesLast", "2", "\xB2"},
                                         OrderCase{"TrademarkBetweenTAndU", "T", "\x99"}),
                         CaseName());

TEST(EqualIgnoringCase, CaseNeverCounts) {
    EXPECT_TRUE(EqualIgnoringCase("TcP/iP", "tCp/Ip"));
    EXPECT_TRUE(EqualIgnoringCase("\xC9\xD8", "\xE9\xF8"));
}

TEST(EqualIgnoringCase, ALigatureEqualsItsLetters) {
    EXPECT_TRUE(EqualIgnoringCase("\xC6", "ae"));
    EXPECT_TRUE(
        EqualIgnoringCase("stra\xDF"
                          "e",
                          "STRASSE"));
    EXPECT_TRUE(EqualIgnoringCase("\xFE", "th"));
    EXPECT_FALSE(EqualIgnoringCase("\xC6", "a"));
}

TEST(EqualIgnoringCase, SoftHyphensDoNotCount) {
    EXPECT_TRUE(
        EqualIgnoringCase("a\xAD"
                          "b\xAD",
                          "ab"));
    EXPECT_TRUE(EqualIgnoringCase("\xAD", ""));
}

TEST(EqualIgnoringCase, TheTwoCircumflexesAreEqual) {
    EXPECT_TRUE(EqualIgnoringCase("^", "\x88"));
}

TEST(CompareTexts, IsConsistentForAllPairsOfBytes) {
    for (int i = 1; i < 256; ++i) {
        for (int j = 1; j < 256; ++j) {
            const std::string a(1, static_cast<char>(i));
            const std::string b(1, static_cast<char>(j));
            EXPECT_EQ(std::is_lt(CompareTexts(a, b)), std::is_gt(CompareTexts(b, a)))
                << i << " " << j;
            // Behind the same text nothing changes.
            EXPECT_EQ(std::is_lt(CompareTexts("Q" + a, "q" + b)), std::is_lt(CompareTexts(a, b)))
                << i << " " << j;
        }
    }
}

TEST(EqualIgnoringCaseUtf8, CharactersOutsideTheCodePageEqualOnlyThemselves) {
    EXPECT_TRUE(EqualIgnoringCaseUtf8("日", "日"));
    EXPECT_FALSE(EqualIgnoringCaseUtf8("日", "本"));
    EXPECT_FALSE(EqualIgnoringCaseUtf8("A日", "a日"));
    EXPECT_FALSE(EqualIgnoringCaseUtf8("A日", "A"));
    EXPECT_FALSE(EqualIgnoringCaseUtf8("A", "A日"));
    EXPECT_TRUE(EqualIgnoringCaseUtf8("É", "é"));
}

}  // namespace
}  // namespace brelex
