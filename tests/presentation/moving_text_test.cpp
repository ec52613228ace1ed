// SPDX-License-Identifier: MIT
#include "presentation/moving_text.h"

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

namespace brelex {
namespace {

TEST(SpreadText, PutsOneBlankLessBeforeEachCharacter) {
    EXPECT_EQ(SpreadText("abc", 0), "abc");
    EXPECT_EQ(SpreadText("abc", 1), " abc");
    EXPECT_EQ(SpreadText("abc", 2), "  a bc");
    EXPECT_EQ(SpreadText("abc", 3), "   a  b c");
    EXPECT_EQ(SpreadText("abc", 5), "     a    b   c");
}

TEST(SlidingText, SlidesInFromTwiceItsLengthRestsAndStartsAgain) {
    const std::string text = "Click to donate via PayPal";
    ASSERT_EQ(text.size(), 26U);
    SlidingText sliding(text);
    for (int round = 0; round < 2; ++round) {
        for (int spread = 52; spread > 0; --spread) {
            EXPECT_EQ(sliding.Next(), SpreadText(text, spread));
            EXPECT_EQ(sliding.IntervalMs(), 30);
        }
        EXPECT_EQ(sliding.Next(), text);
        EXPECT_EQ(sliding.IntervalMs(), 1500);
    }
}

TEST(ScrollPosition, GoesFromBelowTheAreaToAboveItAndStartsAgain) {
    constexpr int kArea = 100;
    constexpr int kLines = 30;
    int position = FirstScrollPosition(kArea);
    EXPECT_EQ(position, 100);
    int lowest = position;
    int steps = 0;
    do {
        position = NextScrollPosition(position, 1, kLines, kArea);
        lowest = std::min(lowest, position);
        ++steps;
    } while (position != 100);
    EXPECT_EQ(lowest, -29);
    EXPECT_EQ(steps, 130);
}

}  // namespace
}  // namespace brelex
