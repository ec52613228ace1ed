// SPDX-License-Identifier: MIT
#include "tools/nearest_word.h"

#include <gtest/gtest.h>

namespace brelex {
namespace {

const std::vector<std::string> kKnown = {"build", "info", "dump", "check", "lookup", "search"};

TEST(NearestWord, IsTheOneWithTheFewestChanges) {
    EXPECT_EQ(NearestWord("seach", kKnown), "search");
    EXPECT_EQ(NearestWord("biuld", kKnown), "build");
    EXPECT_EQ(NearestWord("look-up", kKnown), "lookup");
    EXPECT_EQ(NearestWord("dmup", kKnown), "dump");
    EXPECT_EQ(NearestWord("checks", kKnown), "check");
}

TEST(NearestWord, MayBeOneThatBeginsWithIt) {
    EXPECT_EQ(NearestWord("inf", kKnown), "info");
    EXPECT_EQ(NearestWord("--abbrev", {"--in", "--abbreviations"}), "--abbreviations");
}

TEST(NearestWord, IsNotAnyWordAtAll) {
    EXPECT_EQ(NearestWord("frobnicate", kKnown), "");
    EXPECT_EQ(NearestWord("", kKnown), "");
    EXPECT_EQ(NearestWord("-x", {"-d", "-h"}), "");
    EXPECT_EQ(NearestWord("seach", {}), "");
}

}  // namespace
}  // namespace brelex
