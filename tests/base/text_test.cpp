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

TEST(AsciiCapital, LeavesAllButSmallAsciiLettersAlone) {
    EXPECT_EQ(AsciiCapital('a'), 'A');
    EXPECT_EQ(AsciiCapital('z'), 'Z');
    for (const char c : {'A', '`', '{', '1', '\xE9'}) {
        EXPECT_EQ(AsciiCapital(c), c);
    }
}

}  // namespace
}  // namespace brelex
