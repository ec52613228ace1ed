// SPDX-License-Identifier: MIT
#include "tools/gzip_content.h"

#include <string>

#include <gtest/gtest.h>

namespace brelex {
namespace {

// 1000 times the letter a, compressed by gzip.
std::string ManyLetters() {
    return {
        "\x1f\x8b\x08\x00\x00\x00\x00\x00\x02\x03\x4b\x4c\x1c\x05\xa3\x60\x14\x0c\x77\x00\x00"
        "\x03\xda\x38\x9a\xe8\x03\x00\x00",
        29};
}

constexpr std::size_t kMany = 1000;

TEST(ExpandGzip, ExpandsUpToTheLimit) {
    const GzipContent content = ExpandGzip(ManyLetters(), kMany);
    EXPECT_EQ(content.fault, "");
    EXPECT_EQ(content.bytes, std::string(kMany, 'a'));
}

TEST(ExpandGzip, RefusesWhatExpandsToMore) {
    const GzipContent content = ExpandGzip(ManyLetters(), kMany - 1);
    EXPECT_EQ(content.fault, "expands to more than the 1 GiB that the program can read");
    EXPECT_EQ(content.bytes, "");
}

TEST(ExpandGzip, RefusesWhatIsCut) {
    for (std::size_t size = 2; size < ManyLetters().size(); ++size) {
        EXPECT_EQ(ExpandGzip(ManyLetters().substr(0, size), kMany).fault, "is damaged") << size;
    }
}

TEST(ExpandGzip, LeavesOtherContentUnchanged) {
    EXPECT_EQ(ExpandGzip("plain", kMany).bytes, "plain");
    EXPECT_EQ(ExpandGzip("", kMany).bytes, "");
}

}  // namespace
}  // namespace brelex
