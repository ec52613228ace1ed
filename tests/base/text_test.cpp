// SPDX-License-Identifier: MIT
#include "base/text.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace brelex {
namespace {

TEST(TrimBlanks, RemovesBlanksAtTheEndsOnly) {
    EXPECT_EQ(TrimBlanks("  two words "), "two words");
    EXPECT_EQ(TrimBlanks("\t x\n"), "\t x\n");
    EXPECT_EQ(TrimBlanks("   "), "");
    EXPECT_EQ(TrimBlanks(""), "");
}

TEST(TrimWhitespace, RemovesTabsAndLineEndsToo) {
    EXPECT_EQ(TrimWhitespace("\t two\twords \r\n"), "two\twords");
    EXPECT_EQ(TrimWhitespace(" \t\r\n"), "");
}

TEST(TakePart, TakesATextApartAtItsSeparators) {
    std::string_view rest = "a,,bc,";
    std::vector<std::string> parts;
    while (!rest.empty()) {
        parts.emplace_back(TakePart(rest, ','));
    }
    EXPECT_EQ(parts, (std::vector<std::string>{"a", "", "bc"}));
}

TEST(NumberOf, IsTheNumberThatAllOfATextIs) {
    EXPECT_EQ(NumberOf<int>("42"), 42);
    EXPECT_EQ(NumberOf<int>("-7"), -7);
    EXPECT_EQ(NumberOf<unsigned>("007"), 7U);
    EXPECT_EQ(NumberOf<int>(std::string_view("123").substr(0, 2)), 12);
    for (const char* const text : {"", "-", " 4", "4 ", "4x", "x", "99999999999"}) {
        EXPECT_FALSE(NumberOf<int>(text).has_value()) << text;
    }
    EXPECT_FALSE(NumberOf<unsigned>("-7").has_value());
}

TEST(AsciiCapital, LeavesAllButSmallAsciiLettersAlone) {
    EXPECT_EQ(AsciiCapital('a'), 'A');
    EXPECT_EQ(AsciiCapital('z'), 'Z');
    for (const char c : {'A', '`', '{', '1', '\xE9'}) {
        EXPECT_EQ(AsciiCapital(c), c);
    }
}

}  // namespace
}  // namespace brelex
