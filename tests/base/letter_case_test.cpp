// SPDX-License-Identifier: MIT
#include "base/letter_case.h"

#include <gtest/gtest.h>

namespace brelex {
namespace {

TEST(SmallLetterOf, EveryLetterInBothCasesHasOne) {
    const std::u32string capitals = U"AMZÀÉÖØÞŒŠŽŸ";
    EXPECT_EQ(SmallLetters(capitals), U"amzàéöøþœšžÿ");
    EXPECT_EQ(SmallLetters(U"amzàéöøþœšžÿ"), U"amzàéöøþœšžÿ");
}

TEST(SmallLetterOf, WhatIsNoCapitalStaysAsItIs) {
    const std::u32string others = U"@[`{09 ¿×ß÷ƒŁ日";
    EXPECT_EQ(SmallLetters(others), others);
}

TEST(SmallLetterOfByte, AgreesWithTheLetters) {
    EXPECT_EQ(SmallLetterOfByte('Z'), 'z');
    EXPECT_EQ(SmallLetterOfByte(0xC0), 0xE0);
    EXPECT_EQ(SmallLetterOfByte(0x8A), 0x9A);
    EXPECT_EQ(SmallLetterOfByte(0x9F), 0xFF);
    EXPECT_EQ(SmallLetterOfByte(0x81), 0x81);
}

}  // namespace
}  // namespace brelex
