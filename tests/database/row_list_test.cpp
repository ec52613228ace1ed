// SPDX-License-Identifier: MIT
#include "database/row_list.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/fakes.h"

namespace brelex {
namespace {

TEST(RowList, TellsTheRowThatAByteBelongsTo) {
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < 50; ++i) {
        texts.emplace_back(i * 7 % 5, 'x');  // some are empty
    }
    const FakeRows rows(texts);
    for (std::int32_t row = 0; row < rows.RowCount(); ++row) {
        for (std::int32_t first = 0; first <= row; ++first) {
            const std::string_view text = rows.RowText(row);
            for (std::size_t i = 0; i <= text.size(); ++i) {  // the byte behind it, too
                ASSERT_EQ(rows.RowHolding(text.data() + i, first), row);
            }
        }
    }
}

// Guessing by the average length goes wrong where short rows follow long ones.
TEST(RowList, TellsTheRowOfAByteWhateverTheLengthsOfTheRows) {
    std::vector<std::string> texts;
    for (int i = 0; i < 6; ++i) {
        texts.insert(texts.end(), 300, std::string(i % 2 == 0 ? 0 : 40, 'x'));
        texts.insert(texts.end(), 3, std::string(5000, 'y'));
    }
    const FakeRows rows(texts);
    for (std::int32_t first = 0; first < rows.RowCount(); first += 41) {
        for (std::int32_t row = first; row < rows.RowCount(); ++row) {
            const std::string_view text = rows.RowText(row);
            for (const std::size_t i : {std::size_t{0}, text.size() / 2, text.size()}) {
                ASSERT_EQ(rows.RowHolding(text.data() + i, first), row) << first;
            }
        }
    }
}

TEST(RowList, GivesTheTextOfSeveralRows) {
    const FakeRows rows({"ab", "", "c"});
    EXPECT_EQ(rows.TextOfRows(0, 3), std::string_view("ab\0\0c\0", 6));
    EXPECT_EQ(rows.TextOfRows(1, 2), std::string_view("\0", 1));
    EXPECT_EQ(rows.TextOfRows(3, 3), "");
}

}  // namespace
}  // namespace brelex
