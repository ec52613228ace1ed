// SPDX-License-Identifier: MIT
#include "tools/visible_text.h"

#include <sstream>
#include <string_view>

#include <gtest/gtest.h>

#include "tests/support/named_case.h"

namespace brelex {
namespace {

struct VisibleCase {
    const char* name;
    std::string_view text;
    const char* visible;
    std::string_view kept = {};
};

class VisibleTextTest : public testing::TestWithParam<VisibleCase> {};

TEST_P(VisibleTextTest, ShowsControlCharactersAsSigns) {
    EXPECT_EQ(VisibleText(GetParam().text, GetParam().kept), GetParam().visible);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, VisibleTextTest,
    testing::Values(VisibleCase{"PlainTextStays", "a~ b", "a~ b"}, VisibleCase{"Empty", "", ""},
                    VisibleCase{"Escape", "a\x1B[31mb", "a\xE2\x90\x9B[31mb"},
                    VisibleCase{"Nul", std::string_view("\0", 1), "\xE2\x90\x80"},
                    VisibleCase{"Tab", "a\tb",
                                "a\xE2\x90\x89"
                                "b"},
                    VisibleCase{"TheLastBeforeTheBlank", "\x1F", "\xE2\x90\x9F"},
                    VisibleCase{"Delete", "\x7F", "\xE2\x90\xA1"},
                    VisibleCase{"ControlSequenceIntroducer",
                                "a\xC2\x9B"
                                "b",
                                "a\xEF\xBF\xBD"
                                "b"},
                    VisibleCase{"TheFirstAboveDelete", "\xC2\x80", "\xEF\xBF\xBD"},
                    VisibleCase{"TheLastAboveDelete", "\xC2\x9F", "\xEF\xBF\xBD"},
                    VisibleCase{"OtherCharactersStay", "\xC2\xA0\xC3\xA9\xE2\x82\xAC",
                                "\xC2\xA0\xC3\xA9\xE2\x82\xAC"},
                    VisibleCase{"KeptOnesStay", "a\tb\r\n", "a\tb\xE2\x90\x8D\n", "\t\n"},
                    VisibleCase{"ACharacterCutOff", "\xC2", "\uFFFD"}),
    CaseName());

TEST(VisibleText, BytesThatAreNotUtf8BecomeReplacementCharacters) {
    // The first is a control character in Latin-1.
    EXPECT_EQ(VisibleText("\x9B"
                          "31m l\xE9 \xC3"),
              "\uFFFD31m l\uFFFD \uFFFD");
    EXPECT_EQ(VisibleText("\uFFFD \u00E9 \u5B57 \U0001F600"), "\uFFFD \u00E9 \u5B57 \U0001F600");
}

TEST(VisibleOutput, WritesWholeLinesWithoutControlCharacters) {
    std::ostringstream stream;
    std::streambuf* const before = stream.rdbuf();
    {
        const VisibleOutput visible(stream);
        stream << "cannot read \x1B]0;x\a" << std::flush << '\t' << "\nthe \xC2";
        stream << "\x9B rest" << std::flush;
        EXPECT_EQ(static_cast<std::stringbuf*>(before)->str(),
                  "cannot read \u241B]0;x\u2407\u2409\n");
    }
    EXPECT_EQ(stream.rdbuf(), before);
    EXPECT_EQ(static_cast<std::stringbuf*>(before)->str(),
              "cannot read \u241B]0;x\u2407\u2409\nthe \uFFFD rest");
}

}  // namespace
}  // namespace brelex
