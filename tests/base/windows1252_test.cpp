// SPDX-License-Identifier: MIT
#include "base/windows1252.h"

#include <gtest/gtest.h>

#include "tests/support/named_case.h"

namespace brelex {
namespace {

TEST(Windows1252, EveryByteSurvivesTheWayToUtf8AndBack) {
    for (int i = 1; i < 256; ++i) {
        const std::string byte(1, static_cast<char>(i));
        const EncodedText back = BytesOfUtf8(Utf8OfBytes(byte));
        EXPECT_EQ(back.bytes, byte) << i;
        EXPECT_TRUE(back.complete) << i;
    }
}

TEST(Windows1252, KnownCharactersHaveTheirBytes) {
    EXPECT_EQ(Utf8OfBytes("\x80\x92\xD7\xFF"), "€’×ÿ");
    EXPECT_EQ(Utf8OfBytes(std::string("\0\x7F\xA0", 3)), std::string("\0\x7F\xC2\xA0", 4));
    EXPECT_EQ(ByteOfCharacter(U'€'), 0x80);
    EXPECT_EQ(ByteOfCharacter(U'ž'), 0x9E);
    for (const int same : {0x00, 0x7F, 0x81, 0x9D, 0xA0, 0xFF}) {
        EXPECT_EQ(CharacterOfByte(static_cast<unsigned char>(same)), static_cast<char32_t>(same));
        EXPECT_EQ(ByteOfCharacter(static_cast<char32_t>(same)), same);
    }
    EXPECT_EQ(ByteOfCharacter(0x80), std::nullopt);
    EXPECT_EQ(ByteOfCharacter(0x9F), std::nullopt);
    EXPECT_EQ(ByteOfCharacter(0x100), std::nullopt);
}

TEST(Windows1252, TextIsCutAtTheFirstCharacterOutsideTheCodePage) {
    const EncodedText encoded = BytesOfUtf8("AB日C");
    EXPECT_EQ(encoded.bytes, "AB");
    EXPECT_FALSE(encoded.complete);
}

TEST(Windows1252, ALetterThatOnlyResemblesAnotherIsOutside) {
    EXPECT_EQ(ByteOfCharacter(U'Ａ'), std::nullopt);  // full width
    EXPECT_EQ(ByteOfCharacter(U'Ł'), std::nullopt);
}

struct BadUtf8 {
    const char* name;
    std::string bytes;
};

class DecodeUtf8Test : public testing::TestWithParam<BadUtf8> {};

TEST_P(DecodeUtf8Test, InvalidBytesBecomeReplacementCharacters) {
    const std::string& bytes = GetParam().bytes;
    const std::u32string replaced(bytes.size(), U'\uFFFD');
    EXPECT_EQ(DecodeUtf8(bytes), replaced);
    EXPECT_EQ(DecodeUtf8(bytes + "x"), replaced + U"x");
}

INSTANTIATE_TEST_SUITE_P(
    Forms, DecodeUtf8Test,
    testing::Values(
        BadUtf8{"LoneContinuation", "\x80"}, BadUtf8{"LastContinuation", "\xBF"},
        BadUtf8{"CutOffAfterOne", "\xC3"}, BadUtf8{"CutOffAfterTwo", "\xE2\x82"},
        BadUtf8{"CutOffAfterThree", "\xF0\x9F\x98"}, BadUtf8{"LeadForContinuation", "\xE2\xC3\xC3"},
        BadUtf8{"OverlongTwo", "\xC0\xAF"}, BadUtf8{"LastOverlongTwo", "\xC1\xBF"},
        BadUtf8{"LastOverlongThree", "\xE0\x9F\xBF"},
        BadUtf8{"LastOverlongFour", "\xF0\x8F\xBF\xBF"}, BadUtf8{"FirstSurrogate", "\xED\xA0\x80"},
        BadUtf8{"LastSurrogate", "\xED\xBF\xBF"}, BadUtf8{"AboveUnicode", "\xF4\x90\x80\x80"},
        BadUtf8{"FiveBytes", "\xF8\x88\x80\x80\x80"}, BadUtf8{"InvalidLead", "\xFF"}),
    CaseName());

struct GoodUtf8 {
    const char* name;
    std::string bytes;
    char32_t character;
};

class GoodUtf8Test : public testing::TestWithParam<GoodUtf8> {};

TEST_P(GoodUtf8Test, IsOneCharacter) {
    EXPECT_EQ(DecodeUtf8(GetParam().bytes), std::u32string(1, GetParam().character));
}

INSTANTIATE_TEST_SUITE_P(Limits, GoodUtf8Test,
                         testing::Values(GoodUtf8{"Nul", std::string(1, '\0'), 0},
                                         GoodUtf8{"LastOneByte", "\x7F", 0x7F},
                                         GoodUtf8{"FirstTwo", "\xC2\x80", 0x80},
                                         GoodUtf8{"LastTwo", "\xDF\xBF", 0x7FF},
                                         GoodUtf8{"FirstThree", "\xE0\xA0\x80", 0x800},
                                         GoodUtf8{"BeforeSurrogates", "\xED\x9F\xBF", 0xD7FF},
                                         GoodUtf8{"BehindSurrogates", "\xEE\x80\x80", 0xE000},
                                         GoodUtf8{"LastThree", "\xEF\xBF\xBF", 0xFFFF},
                                         GoodUtf8{"FirstFour", "\xF0\x90\x80\x80", 0x10000},
                                         GoodUtf8{"Face", "\xF0\x9F\x98\x80", 0x1F600},
                                         GoodUtf8{"Unassigned", "\xF1\x80\x80\x80", 0x40000},
                                         GoodUtf8{"Last", "\xF4\x8F\xBF\xBF", 0x10FFFF}),
                         CaseName());

}  // namespace
}  // namespace brelex
