// SPDX-License-Identifier: MIT
#include "presentation/help_pages.h"

#include <gtest/gtest.h>

namespace brelex {
namespace {

TEST(HelpPageOf, EachWindowHasItsPage) {
    EXPECT_EQ(HelpPageOf("frmMain"), "mainwindow.html");
    EXPECT_EQ(HelpPageOf("frmSearch"), "search.html");
    EXPECT_EQ(HelpPageOf("TextQuestion"), "lookup.html#goto");
}

TEST(HelpPageOf, AnUnknownWindowHasNone) {
    EXPECT_EQ(HelpPageOf("frmUnknown"), "");
    EXPECT_EQ(HelpPageOf("frm"), "");
    EXPECT_EQ(HelpPageOf(""), "");
}

}  // namespace
}  // namespace brelex
