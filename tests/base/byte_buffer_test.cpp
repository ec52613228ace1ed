// SPDX-License-Identifier: MIT
#include "base/byte_buffer.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace brelex {
namespace {

TEST(ByteBuffer, BeginsWithoutBytes) {
    const ByteBuffer none;
    EXPECT_EQ(none.Size(), 0U);
    EXPECT_EQ(none.View(), "");
}

TEST(ByteBuffer, KeepsAsManyBytesAsWanted) {
    ByteBuffer buffer(3);
    EXPECT_EQ(buffer.Size(), 3U);
    std::fill_n(buffer.Data(), 3, 'x');
    EXPECT_EQ(buffer.View(), "xxx");
}

}  // namespace
}  // namespace brelex
