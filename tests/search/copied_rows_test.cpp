// SPDX-License-Identifier: MIT
#include "search/copied_rows.h"

#include <string>

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
    rows.Clear();
    EXPECT_EQ(rows.RowCount(), 0);
    rows.Add("");
    ASSERT_EQ(rows.RowCount(), 1);
    EXPECT_EQ(rows.RowText(0), "");
}

}  // namespace
}  // namespace brelex
