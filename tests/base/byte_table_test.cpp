// SPDX-License-Identifier: MIT
#include "base/byte_table.h"

#include <gtest/gtest.h>

namespace brelex {
namespace {

TEST(TableOfBytes, HasAValueForEachByte) {
    constexpr auto kTable = TableOfBytes([](unsigned char byte) { return byte + 1000; });
    ASSERT_EQ(kTable.size(), 256U);
    EXPECT_EQ(kTable.front(), 1000);
    EXPECT_EQ(kTable['A'], 1065);
    EXPECT_EQ(kTable.back(), 1255);
}

}  // namespace
}  // namespace brelex
