// SPDX-License-Identifier: MIT
#include "search/whole_word.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/named_case.h"

namespace brelex {
namespace {

struct WordCase {
    const char* name;
    const char* field;
    const char* word;
    bool standsAlone;
    ComparisonMode mode = ComparisonMode::Binary;
};

class IsWholeWordTest : public testing::TestWithParam<WordCase> {};

TEST_P(IsWholeWordTest, LooksAtTheFirstOccurrence) {
    EXPECT_EQ(IsWholeWord(GetParam().field, GetParam().word, GetParam().mode),
              GetParam().standsAlone);
}

INSTANTIATE_TEST_SUITE_P(
    Fields, IsWholeWordTest,
    testing::Values(WordCase{"TheWholeField", "abc", "abc", true},
                    WordCase{"BeforeAFullStop", "the abc.", "abc", true},
                    WordCase{"InParentheses", "(abc)", "abc", true},
                    WordCase{"OnlyTheFirstOccurrenceCounts", "abcd abc", "abc", false},
                    WordCase{"TheFirstOccurrenceAlone", "abc abcd", "abc", true},
                    WordCase{"ALetterBefore", "xabc", "abc", false},
                    WordCase{"ALetterBehind", "abcx", "abc", false},
                    WordCase{"ADigitBehind", "abc1", "abc", false},
                    WordCase{"NotThere", "abd", "abc", false},
                    WordCase{"LongerThanTheField", "ab", "abc", false},
                    WordCase{"AnEmptyField", "", "abc", false},
                    WordCase{"ATabIsNoDelimiter", "abc\tx", "abc", false},
                    WordCase{"AnAsteriskIsNoDelimiter", "abc*", "abc", false},
                    WordCase{"AnAccentIsNoDelimiter", "abc\xE9", "abc", false},
                    WordCase{"CaseCounts", "ABC", "abc", false},
                    WordCase{"CaseDoesNotCount", "the ABC", "abc", true, ComparisonMode::Text},
                    WordCase{"AccentsInEitherCase", "\xC9t\xE9", "\xE9T\xC9", true,
                             ComparisonMode::Text},
                    WordCase{"NotThereInEitherCase", "ABD", "abc", false, ComparisonMode::Text},
                    WordCase{"NotThereBeforeTheEnd", "ABD.", "abc", false, ComparisonMode::Text},
                    WordCase{"NoWord", "", "", true},
                    WordCase{"NoWordInEitherCase", "", "", true, ComparisonMode::Text}),
    CaseName());

class WordDelimiter : public testing::TestWithParam<char> {};

TEST_P(WordDelimiter, EndsAWordOnEitherSide) {
    const std::string delimiter(1, GetParam());
    EXPECT_TRUE(IsWholeWord("x" + delimiter + "abc", "abc", ComparisonMode::Binary));
    EXPECT_TRUE(IsWholeWord("abc" + delimiter + "x", "abc", ComparisonMode::Binary));
}

INSTANTIATE_TEST_SUITE_P(All, WordDelimiter,
                         testing::Values(' ', ',', ':', ';', '.', '/', '\\', '(', ')', '{', '}',
                                         '[', ']', '-', '_', '+', '!', '?', '\'', '"', '~', '@',
                                         '#', '$'));

TEST(WordDelimiters, AreTheseAndNoOthers) {
    int delimiters = 0;
    for (int byte = 1; byte < 256; ++byte) {
        const std::string field = std::string("abc") + static_cast<char>(byte);
        delimiters += IsWholeWord(field, "abc", ComparisonMode::Binary) ? 1 : 0;
    }
    EXPECT_EQ(delimiters, 24);
}

}  // namespace
}  // namespace brelex
