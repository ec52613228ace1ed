// SPDX-License-Identifier: MIT
#include "search/loose_text.h"

#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace brelex {
namespace {

TEST(LooseText, HasABlankForEachRunOfSeparators) {
    EXPECT_EQ(LooseText("end-to-end"), "end to end");
    EXPECT_EQ(LooseText("a, - b\x92s'"), "a b s ");
    EXPECT_EQ(LooseText("-a"), " a");
    EXPECT_EQ(LooseText("a/b.c_d"), "a/b.c_d");
    EXPECT_EQ(LooseText(" - "), " ");
    EXPECT_EQ(LooseText(""), "");
}

TEST(LengthBeforeLoosening, CountsARunAsAWhole) {
    constexpr std::string_view kText = "a, -b-";  // "a b " when loosened
    EXPECT_EQ(LengthBeforeLoosening(kText, 0), 0U);
    EXPECT_EQ(LengthBeforeLoosening(kText, 1), 1U);
    EXPECT_EQ(LengthBeforeLoosening(kText, 2), 4U);
    EXPECT_EQ(LengthBeforeLoosening(kText, 3), 5U);
    EXPECT_EQ(LengthBeforeLoosening(kText, 4), 6U);
}

bool Matches(std::u32string_view pattern, std::string_view text) {
    return LoosePattern(*WildcardPattern::Compile(pattern, true)).Matches(LooseText(text));
}

TEST(LoosePattern, TakesAnyRunOfSeparatorsForAnyOther) {
    EXPECT_TRUE(Matches(U"a - b", "a,b"));
    EXPECT_TRUE(Matches(U"a[-,][ ]b", "a' b"));
    EXPECT_TRUE(Matches(U"a[-x]b", "a  b"));
    EXPECT_TRUE(Matches(U"a[-x]b", "axb"));
    EXPECT_TRUE(Matches(U"a*-b", "a-x, b"));
    EXPECT_FALSE(Matches(U"a-b", "ab"));
    EXPECT_FALSE(Matches(U"ab", "a-b"));
    EXPECT_FALSE(Matches(U"a[x-z]b", "a-b"));
}

// An element that no byte matches is none of the separators.
TEST(LoosePattern, WhatMatchesNothingStaysSo) {
    EXPECT_FALSE(Matches(U"a-\u4E2Db", "a-b"));
    EXPECT_FALSE(Matches(U"a\u4E2Db", "a-b"));
}

}  // namespace
}  // namespace brelex
