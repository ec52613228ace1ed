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
    EXPECT_EQ(ByteOfCharacter(U'€'), 0x80);
    EXPECT_EQ(ByteOfCharacter(U'ž'), 0x9E);
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
    const std::u32string text = DecodeUtf8(GetParam().bytes + "x");
    EXPECT_NE(text.find(U'\uFFFD'), std::u32string::npos);
    EXPECT_EQ(text.back(), U'x');
}

INSTANTIATE_TEST_SUITE_P(
    Forms, DecodeUtf8Test,
    testing::Values(BadUtf8{"LoneContinuation", "\x80"}, BadUtf8{"CutOff", "\xE2\x82"},
                    BadUtf8{"Overlong", "\xC0\xAF"}, BadUtf8{"Surrogate", "\xED\xA0\x80"},
                    BadUtf8{"AboveUnicode", "\xF4\x90\x80\x80"}, BadUtf8{"InvalidLead", "\xFF"}),
    CaseName());

TEST(DecodeUtf8Test, ReadsFourByteCharacters) {
    EXPECT_EQ(DecodeUtf8("\xF0\x9F\x98\x80"), U"\U0001F600");
}

}  // namespace
}  // namespace brelex
