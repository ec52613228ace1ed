// SPDX-License-Identifier: MIT
#include "search/copied_rows.h"

#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace brelex {
namespace {

TEST(CopiedRows, GiveBackWhatWasAdded) {
    CopiedRows rows;
    EXPECT_EQ(rows.RowCount(), 0);
    for (int i = 0; i < 200; ++i) {
        rows.Add("row " + std::to_string(i));
    }
    ASSERT_EQ(rows.RowCount(), 200);
    EXPECT_EQ(rows.RowText(0), "row 0");
    EXPECT_EQ(rows.RowText(199), "row 199");
    EXPECT_EQ(rows.TextOfRows(0, 2), std::string_view("row 0\0row 1\0", 12));
    EXPECT_EQ(rows.AscendingPrefixBytes(), 0U) << "they may be in any order";
    rows.Clear();
    EXPECT_EQ(rows.RowCount(), 0);
    rows.Add("");
    ASSERT_EQ(rows.RowCount(), 1);
    EXPECT_EQ(rows.RowText(0), "");
}

}  // namespace
}  // namespace brelex
