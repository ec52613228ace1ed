// SPDX-License-Identifier: MIT
#include "database/record_text.h"

#include <gtest/gtest.h>

namespace brelex {
namespace {

TEST(RecordText, ATabPartsAbbreviationAndExpansion) {
    EXPECT_EQ(GetAbbreviation("ABC\tAlpha Beta Charlie"), "ABC");
    EXPECT_EQ(GetExpansion("ABC\tAlpha Beta Charlie"), "Alpha Beta Charlie");
}

TEST(RecordText, OnlyTheFirstTabParts) {
    EXPECT_EQ(GetAbbreviation("ABC\tOne\tTwo"), "ABC");
    EXPECT_EQ(GetExpansion("ABC\tOne\tTwo"), "One\tTwo");
}

TEST(RecordText, ARecordWithoutTabIsAllExpansion) {
    EXPECT_EQ(GetAbbreviation("no tab"), "");
    EXPECT_EQ(GetExpansion("no tab"), "no tab");
    EXPECT_EQ(GetExpansion(""), "");
}

TEST(RecordText, ARecordWithoutTabStandsInTheFirstColumn) {
    EXPECT_EQ(ColumnText("no tab", 0), "no tab");
    EXPECT_EQ(ColumnText("no tab", 1), "");
    EXPECT_EQ(ColumnText("ABC\tOne\tTwo", 0), "ABC");
    EXPECT_EQ(ColumnText("ABC\tOne\tTwo", 1), "One\tTwo");
}

TEST(CopiedText, HasAnEqualsSignBetweenTheParts) {
    EXPECT_EQ(CopiedText("RAM\tRandom Access Memory"), "RAM = Random Access Memory");
    EXPECT_EQ(CopiedText("A\tB\tC"), "A = B\tC");
    EXPECT_EQ(CopiedText("No TAB"), " = No TAB");
    EXPECT_EQ(CopiedText(""), " = ");
}

TEST(LetterCount, CountsAllButBlanks) {
    EXPECT_EQ(LetterCount("Read Only Memory"), 14U);
    EXPECT_EQ(LetterCount("Basic Input/Output System"), 23U);
    EXPECT_EQ(LetterCount("A B C"), 3U);
    EXPECT_EQ(LetterCount("Caf\xE9 (1\t2)"), 9U);
    EXPECT_EQ(LetterCount("   "), 0U);
    EXPECT_EQ(LetterCount(""), 0U);
}

}  // namespace
}  // namespace brelex
