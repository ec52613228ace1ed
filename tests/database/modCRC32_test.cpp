// SPDX-License-Identifier: MIT
#include "database/modCRC32.h"

#include <bit>
#include <random>
#include <string>
#include <zlib.h>

#include <gtest/gtest.h>

namespace brelex {
namespace {

TEST(GetCRCFromBytes, TheNineDigitsGiveTheStandardCheckValue) {
    EXPECT_EQ(std::bit_cast<std::uint32_t>(GetCRCFromBytes("123456789")), 0xCBF43926U);
}

TEST(GetCRCFromBytes, AgreesWithZlibOnRandomBlocks) {
    std::mt19937 random(1);
    for (int i = 0; i < 200; ++i) {
        std::string block(random() % 3000, '\0');
        for (char& byte : block) {
            byte = static_cast<char>(random());
        }
        const auto expected =
            crc32(0, reinterpret_cast<const Bytef*>(block.data()), static_cast<uInt>(block.size()));
        EXPECT_EQ(std::bit_cast<std::uint32_t>(GetCRCFromBytes(block)), expected);
    }
}

}  // namespace
}  // namespace brelex
