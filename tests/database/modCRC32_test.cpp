// SPDX-License-Identifier: MIT
#include "database/modCRC32.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <random>
#include <string>
#include <vector>
#include <zlib.h>

#include <gtest/gtest.h>

#include "tests/support/fakes.h"
#include "tests/support/named_case.h"

namespace brelex {
namespace {

TEST(GetCRCFromByteArray, TheNineDigitsGiveTheStandardCheckValue) {
    EXPECT_EQ(std::bit_cast<std::uint32_t>(GetCRCFromByteArray("123456789")), 0xCBF43926U);
}

TEST(GetCRCFromByteArray, AgreesWithZlibOnRandomBlocks) {
    std::mt19937 random(1);
    for (int i = 0; i < 200; ++i) {
        std::string block(random() % 3000, '\0');
        for (char& byte : block) {
            byte = static_cast<char>(random());
        }
        const auto expected =
            crc32(0, reinterpret_cast<const Bytef*>(block.data()), static_cast<uInt>(block.size()));
        EXPECT_EQ(std::bit_cast<std::uint32_t>(GetCRCFromByteArray(block)), expected);
        RecordingWatcher watcher;
        EXPECT_EQ(std::bit_cast<std::uint32_t>(GetCRCFromByteArray(block, &watcher)), expected);
    }
}

struct ProgressCase {
    const char* name;
    std::size_t bytes;
    std::vector<int> percents;
};

class CrcProgress : public testing::TestWithParam<ProgressCase> {};

TEST_P(CrcProgress, IsDrawnAtEachStepAndAtTheEnd) {
    const std::string block(GetParam().bytes, 'x');
    RecordingWatcher watcher;
    EXPECT_EQ(GetCRCFromByteArray(block, &watcher), GetCRCFromByteArray(block));
    EXPECT_EQ(watcher.percents, GetParam().percents);
    EXPECT_EQ(watcher.pauses, static_cast<int>(watcher.percents.size()) - 1);
}

INSTANTIATE_TEST_SUITE_P(
    Table, CrcProgress,
    testing::Values(ProgressCase{"Nothing", 0, {100}}, ProgressCase{"OneByte", 1, {0, 100}},
                    ProgressCase{"TwoBytes", 2, {0, 100, 100}},
                    ProgressCase{"HalvesGoToEven", 9, {0, 12, 25, 38, 50, 62, 75, 88, 100, 100}}),
    CaseName());

TEST(CrcProgress, ComesAboutAHundredTimes) {
    for (const std::size_t bytes : {100U, 101U, 200U, 201U, 12345U, 100001U}) {
        RecordingWatcher watcher;
        (void)GetCRCFromByteArray(std::string(bytes, 'x'), &watcher);
        EXPECT_GE(watcher.percents.size(), 51U) << bytes;
        EXPECT_LE(watcher.percents.size(), 101U) << bytes;
        EXPECT_TRUE(std::is_sorted(watcher.percents.begin(), watcher.percents.end()));
        EXPECT_EQ(watcher.percents.front(), 0);
    }
}

TEST(CrcProgress, OfManyBytesComesOncePerStep) {
    RecordingWatcher watcher;
    (void)GetCRCFromByteArray(std::string(101, 'x'), &watcher);
    ASSERT_EQ(watcher.percents.size(), 52U);
    for (int i = 0; i <= 50; ++i) {
        EXPECT_EQ(watcher.percents.at(static_cast<std::size_t>(i)), 2 * i);
    }
    EXPECT_EQ(watcher.percents.back(), 100);
}

TEST(CrcProgress, EndsWhereTheWatcherEndsIt) {
    RecordingWatcher watcher;
    watcher.endsAtPause = 3;
    (void)GetCRCFromByteArray(std::string(5, 'x'), &watcher);
    EXPECT_EQ(watcher.percents, (std::vector<int>{0, 25, 50, 100}));
}

}  // namespace
}  // namespace brelex
