// SPDX-License-Identifier: MIT
#include "base/number_text.h"

#include <limits>

#include <gtest/gtest.h>

#include "tests/support/named_case.h"

namespace brelex {
namespace {

struct GroupedCase {
    std::int32_t number;
    const char* separator;
    const char* text;
};

class FormatGroupedTest : public testing::TestWithParam<GroupedCase> {};

TEST_P(FormatGroupedTest, GroupsByThousands) {
    EXPECT_EQ(FormatGrouped(GetParam().number, GetParam().separator), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, FormatGroupedTest,
    testing::Values(GroupedCase{0, ",", "0"}, GroupedCase{999, ",", "999"},
                    GroupedCase{1234, ",", "1,234"}, GroupedCase{12345, ",", "12,345"},
                    GroupedCase{1000000, ".", "1.000.000"},
                    GroupedCase{1234567, "\u202F", "1\u202F234\u202F567"},
                    GroupedCase{-1234, ",", "-1,234"},
                    GroupedCase{std::numeric_limits<std::int32_t>::min(), ",", "-2,147,483,648"}));

struct LargeCase {
    const char* name;
    double number;
    const char* text;
};

class FormatGroupedLargeTest : public testing::TestWithParam<LargeCase> {};

TEST_P(FormatGroupedLargeTest, HasFifteenExactDigits) {
    EXPECT_EQ(FormatGrouped(GetParam().number, ","), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, FormatGroupedLargeTest,
    testing::Values(LargeCase{"Zero", 0.0, "0"}, LargeCase{"Rounded", 2.9999999999, "3"},
                    LargeCase{"Thousands", 39916800.0, "39,916,800"},
                    LargeCase{"FifteenDigits", 999999999999999.0, "999,999,999,999,999"},
                    LargeCase{"TwentyFactorial", 2432902008176640000.0,
                              "2,432,902,008,176,640,000"},
                    LargeCase{"TwentyFiveFactorial", 15511210043330985984000000.0,
                              "15,511,210,043,331,000,000,000,000"}),
    CaseName());

struct DecimalCase {
    const char* name;
    float number;
    const char* separator;
    const char* text;
};

class FormatOneDecimalTest : public testing::TestWithParam<DecimalCase> {};

TEST_P(FormatOneDecimalTest, HasOneDecimalAndNoLeadingZero) {
    EXPECT_EQ(FormatOneDecimal(GetParam().number, GetParam().separator), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, FormatOneDecimalTest,
    testing::Values(
        DecimalCase{"OneDecimal", 6.1F, ".", "6.1"}, DecimalCase{"Whole", 1.0F, ".", "1.0"},
        DecimalCase{"BelowOne", 0.5F, ".", ".5"}, DecimalCase{"Nothing", 0.0F, ".", ".0"},
        DecimalCase{"HalfUp", 1.25F, ".", "1.3"}, DecimalCase{"BelowHalf", 1.24F, ".", "1.2"},
        DecimalCase{"HalfUpFromOdd", 1.35F, ".", "1.4"}, DecimalCase{"UpToTen", 9.95F, ".", "10.0"},
        DecimalCase{"UpToOne", 0.95F, ".", "1.0"}, DecimalCase{"DownToNothing", 0.04F, ".", ".0"},
        DecimalCase{"Negative", -0.5F, ".", "-.5"},
        DecimalCase{"NegativeNothing", -0.04F, ".", ".0"},
        DecimalCase{"Large", 1e9F, ".", "1000000000.0"},
        DecimalCase{"GermanWhole", 1.0F, ",", "1,0"},
        DecimalCase{"GermanBelowOne", 0.5F, ",", ",5"},
        DecimalCase{"GermanNegative", -12.34F, ",", "-12,3"},
        DecimalCase{"ArabicSeparator", 6.1F, "\xD9\xAB",
                    "6\xD9\xAB"
                    "1"},
        DecimalCase{"Infinite", std::numeric_limits<float>::infinity(), ",", "inf"}),
    CaseName());

struct ParseCase {
    const char* name;
    const char* text;
    std::optional<std::int32_t> number;
};

class ParseWholeNumberTest : public testing::TestWithParam<ParseCase> {};

TEST_P(ParseWholeNumberTest, ReadsWhatAPersonTypes) {
    EXPECT_EQ(ParseWholeNumber(GetParam().text, ","), GetParam().number);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ParseWholeNumberTest,
    testing::Values(
        ParseCase{"Plain", "42", 42}, ParseCase{"Zero", "0", 0}, ParseCase{"Negative", "-7", -7},
        ParseCase{"Plus", "+7", 7}, ParseCase{"BlanksAround", "  42 ", 42},
        ParseCase{"Grouped", "12,345", 12345}, ParseCase{"Largest", "2147483647", 2147483647},
        ParseCase{"OneDigitBeforeAGroup", "1,234", 1234},
        ParseCase{"ThreeDigitsBeforeAGroup", "999,999", 999999},
        ParseCase{"SeveralGroups", "1,234,567", 1234567},
        ParseCase{"AShortGroupInside", "1,23,456", std::nullopt},
        ParseCase{"AShortGroupAtTheEnd", "1,234,56", std::nullopt},
        ParseCase{"AnotherSeparator", "12.345", std::nullopt},
        ParseCase{"ACharacterBehindTheDigits", "10:", std::nullopt},
        ParseCase{"ACharacterBeforeTheDigits", "1/0", std::nullopt},
        ParseCase{"TooLarge", "2147483648", std::nullopt},
        ParseCase{"Smallest", "-2147483648", -2147483647 - 1},
        ParseCase{"TooSmall", "-2147483649", std::nullopt},
        ParseCase{"FarTooLarge", "99999999999999999999", std::nullopt},
        ParseCase{"Letters", "abc", std::nullopt},
        ParseCase{"LettersBehind", "12abc", std::nullopt},
        ParseCase{"Fraction", "1.5", std::nullopt}, ParseCase{"WrongGroups", "1,23", std::nullopt},
        ParseCase{"LongFirstGroup", "1234,567", std::nullopt},
        ParseCase{"SeparatorFirst", ",123", std::nullopt}, ParseCase{"OnlySign", "-", std::nullopt},
        ParseCase{"TwoSigns", "--1", std::nullopt}, ParseCase{"OnlyBlanks", "   ", std::nullopt},
        ParseCase{"Empty", "", std::nullopt}),
    CaseName());

TEST(ParseWholeNumber, WithoutASeparatorThereAreNoGroups) {
    EXPECT_EQ(ParseWholeNumber("1234", ""), 1234);
    EXPECT_EQ(ParseWholeNumber("1,234", ""), std::nullopt);
}

TEST(PercentOf, RoundsToTheNearestAndHalvesToEven) {
    EXPECT_EQ(PercentOf(0, 250), 0);
    EXPECT_EQ(PercentOf(3, 250), 1);      // 1.2
    EXPECT_EQ(PercentOf(1, 200), 0);      // 0.5
    EXPECT_EQ(PercentOf(3, 200), 2);      // 1.5
    EXPECT_EQ(PercentOf(5, 200), 2);      // 2.5
    EXPECT_EQ(PercentOf(199, 200), 100);  // 99.5
    EXPECT_EQ(PercentOf(2147483646, 2147483647), 100);
    // With more digits than a double has between the steps, these would be halves.
    EXPECT_EQ(PercentOf(10900, 20000), 55);
    EXPECT_EQ(PercentOf(11500, 20000), 57);
}

TEST(FormatPlain, HasNoFixedDecimals) {
    EXPECT_EQ(FormatPlain(0.25F, "."), "0.25");
    EXPECT_EQ(FormatPlain(0.01F, ","), "0,01");
    EXPECT_EQ(FormatPlain(3, "."), "3");
    EXPECT_EQ(FormatPlain(-86399.98F, "."), "-86399.98");
    EXPECT_EQ(FormatPlain(100000, "."), "100000");
}

}  // namespace
}  // namespace brelex
