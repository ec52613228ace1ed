// SPDX-License-Identifier: MIT
#include "base/byte_buffer.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace brelex {
namespace {

TEST(ByteBuffer, BeginsWithoutBytes) {
    const ByteBuffer none;
    EXPECT_TRUE(none.IsNull());
    EXPECT_EQ(none.Size(), 0U);
    EXPECT_EQ(none.View(), "");
}

TEST(ByteBuffer, KeepsAsManyBytesAsWanted) {
    ByteBuffer buffer(3);
    ASSERT_FALSE(buffer.IsNull());
    EXPECT_EQ(buffer.Size(), 3U);
    std::fill_n(buffer.Data(), 3, 'x');
    EXPECT_EQ(buffer.View(), "xxx");
}

TEST(ByteBuffer, OfNoBytesIsNotNull) {
    const ByteBuffer empty(0);
    EXPECT_FALSE(empty.IsNull());
    EXPECT_EQ(empty.Size(), 0U);
}

}  // namespace
}  // namespace brelex
