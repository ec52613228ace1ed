// SPDX-License-Identifier: MIT
#include "lookup/type_ahead.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/fakes.h"

namespace brelex {
namespace {

class TypeAheadTest : public testing::Test {
  protected:
    // Types letters with `gapMs` between them; the selection follows.
    void Type(const std::string& letters, std::int64_t gapMs = 100) {
        for (const char letter : letters) {
            now_ += gapMs;
            selected_ = typed_.RowAfter(rows_, selected_, letter, now_).value_or(selected_);
        }
    }

    FakeRows rows_{{"AA\tx", "AB\tx", "HTML\tx", "HTTP\tx", "HTTPS\tx", "R D\tx", "RAM\tx",
                    "ROM\tx", "\xDCML\tx"}};
    TypeAhead typed_;
    std::int32_t selected_ = -1;
    std::int64_t now_ = 1000000;
};

TEST_F(TypeAheadTest, LettersTypedQuicklyAreOneText) {
    Type("h");
    EXPECT_EQ(selected_, 2);
    Type("tt");
    EXPECT_EQ(selected_, 3);
    Type("ps");
    EXPECT_EQ(selected_, 4);
}

TEST_F(TypeAheadTest, AfterAPauseALetterBeginsAnew) {
    Type("h");
    Type("r", TypeAhead::kPauseMs);
    EXPECT_EQ(selected_, 5);
}

TEST_F(TypeAheadTest, OneLetterAgainAndAgainGoesFromRowToRow) {
    Type("rr");
    EXPECT_EQ(selected_, 6);
    Type("r");
    EXPECT_EQ(selected_, 7);
    Type("r");
    EXPECT_EQ(selected_, 5) << "and from the last to the first";
}

TEST_F(TypeAheadTest, FromTheFirstRowOfTheListItGoesToTheSecondAndBack) {
    const FakeRows rows({"RAM\tx", "ROM\tx"});
    EXPECT_EQ(typed_.RowAfter(rows, 0, 'r', now_), 1);
    EXPECT_EQ(typed_.RowAfter(rows, 1, 'r', now_), 0);
}

TEST_F(TypeAheadTest, TheSameLetterAfterAPauseGoesOnToo) {
    Type("hhh", TypeAhead::kPauseMs);
    EXPECT_EQ(selected_, 4);
}

TEST_F(TypeAheadTest, FromARowWithAnotherLetterTheFirstIsMeant) {
    selected_ = 7;
    Type("a");
    EXPECT_EQ(selected_, 0);
}

TEST_F(TypeAheadTest, CaseDoesNotMatter) {
    Type("Ra");
    EXPECT_EQ(selected_, 6);
    Type("\xFC", TypeAhead::kPauseMs);
    EXPECT_EQ(selected_, 8);
}

TEST_F(TypeAheadTest, WithNoSuchRowTheSelectionStays) {
    Type("hx");
    EXPECT_EQ(selected_, 2);
    Type("t");
    EXPECT_EQ(selected_, 2) << "the text typed is still another";
    Type("q", TypeAhead::kPauseMs);
    EXPECT_EQ(selected_, 2);
}

TEST_F(TypeAheadTest, ABlankBelongsToATextThatHasBegunAndBeginsNone) {
    Type(" ");
    EXPECT_EQ(selected_, -1);
    EXPECT_FALSE(typed_.IsTyping(now_));
    Type("r d");
    EXPECT_EQ(selected_, 5);
    EXPECT_TRUE(typed_.IsTyping(now_));
    EXPECT_FALSE(typed_.IsTyping(now_ + TypeAhead::kPauseMs));
}

TEST_F(TypeAheadTest, AnEmptyListHasNoRow) {
    const FakeRows none(std::vector<std::string>{});
    EXPECT_FALSE(typed_.RowAfter(none, -1, 'a', 1).has_value());
}

}  // namespace
}  // namespace brelex
