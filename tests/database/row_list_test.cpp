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

TEST(RowList, GivesTheTextOfSeveralRows) {
    const FakeRows rows({"ab", "", "c"});
    EXPECT_EQ(rows.TextOfRows(0, 3), std::string_view("ab\0\0c\0", 6));
    EXPECT_EQ(rows.TextOfRows(1, 2), std::string_view("\0", 1));
    EXPECT_EQ(rows.TextOfRows(3, 3), "");
}

}  // namespace
}  // namespace brelex
