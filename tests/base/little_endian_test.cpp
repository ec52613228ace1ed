// SPDX-License-Identifier: MIT
#include "base/little_endian.h"

#include <cstdint>

#include <gtest/gtest.h>

namespace brelex {
namespace {

TEST(ReadLittleEndian, TakesTheLowestByteFirstAndNoneBehindTheNumber) {
    constexpr std::string_view kBytes = "\x01\x82\x03\x84\x05\x86\x07\x88\x09";
    EXPECT_EQ(ReadLittleEndian<std::uint8_t>(kBytes), 0x01U);
    EXPECT_EQ(ReadLittleEndian<std::uint16_t>(kBytes), 0x8201U);
    EXPECT_EQ(ReadLittleEndian<std::uint32_t>(kBytes), 0x84038201U);
    EXPECT_EQ(ReadLittleEndian<std::uint64_t>(kBytes), 0x8807860584038201U);
}

TEST(AppendLittleEndian, PutsTheLowestByteFirstBehindWhatIsThere) {
    std::string bytes = "A";
    AppendLittleEndian(bytes, std::uint8_t{0x01});
    AppendLittleEndian(bytes, std::uint16_t{0x8203});
    AppendLittleEndian(bytes, std::uint32_t{0x07860584});
    AppendLittleEndian(bytes, std::uint64_t{0x0F8E0D8C0B8A0988});
    EXPECT_EQ(bytes, "A\x01\x03\x82\x84\x05\x86\x07\x88\x09\x8A\x0B\x8C\x0D\x8E\x0F");
}

}  // namespace
}  // namespace brelex
