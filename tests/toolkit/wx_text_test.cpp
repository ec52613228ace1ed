// SPDX-License-Identifier: MIT
#include "toolkit/wx_text.h"

#include <string>

#include <gtest/gtest.h>

#include "base/windows1252.h"

namespace brelex {
namespace {

// An edit control may leave one behind. As an empty text it would be in every entry.
TEST(Utf8Text, OfHalfACharacterMatchesNothingInsteadOfAll) {
    wxString half("a");
    half += static_cast<wchar_t>(0xD83D);
    EXPECT_NE(DecodeUtf8(Utf8Text(half)).find(char32_t{0xFFFD}), std::u32string::npos);
    EXPECT_EQ(Utf8Text("plain"), "plain");
    EXPECT_EQ(Utf8Text(""), "");
}

}  // namespace
}  // namespace brelex
