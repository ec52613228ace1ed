// SPDX-License-Identifier: MIT
// F1 in each window shows the page of the help that fits it.
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/named_case.h"
#include "tests/ui/ui_test_support.h"

namespace brelex {
namespace {

struct HelpCase {
    const char* name;
    Command command;
    const char* page;
};

class HelpKeyTest : public SideWindowTest {
  protected:
    void SetUp() override {
        SideWindowTest::SetUp();
        folder_.Write("Brelex.hlp", "a book");
        desktop_.hasViewer = true;
    }

    // Presses F1 and waits for a viewer to be started at a page.
    void ExpectHelpAt(const std::string& page) {
        desktop_.viewersStarted.clear();
        user_.Char(WXK_F1);
        ASSERT_TRUE(WaitFor([&] { return !desktop_.viewersStarted.empty(); }));
        ASSERT_TRUE(StaysFor(50, [&] { return desktop_.viewersStarted.size() == 1; }));
        EXPECT_EQ(desktop_.viewersStarted[0].at(2), page);
    }
};

class HelpKeyInSideWindow : public HelpKeyTest, public testing::WithParamInterface<HelpCase> {};

TEST_P(HelpKeyInSideWindow, ShowsItsPage) {
    InSideWindow(
        GetParam().name, [&] { window_->Run(GetParam().command); },
        [&] {
            ExpectHelpAt(GetParam().page);
            EXPECT_TRUE(Side().IsShown());
        });
}

INSTANTIATE_TEST_SUITE_P(
    Windows, HelpKeyInSideWindow,
    testing::Values(HelpCase{"frmSearch", Command::Search, "search.html"},
                    HelpCase{"frmAnagram", Command::Anagram, "anagrams.html"},
                    HelpCase{"frmDataInfo", Command::DatabaseInfo, "info.html"},
                    HelpCase{"frmSmiley", Command::Smileys, "smileys.html"},
                    HelpCase{"frmAbout", Command::About, "about.html"},
                    HelpCase{"frmCheckData", Command::CheckData, "check.html"},
                    HelpCase{"frmDonation", Command::Donate, "about.html#donate"}),
    CaseName());

TEST_F(HelpKeyTest, InTheMainWindowShowsTheContents) {
    ExpectHelpAt("");
}

TEST_F(HelpKeyTest, InTheEntryViewerShowsItsPage) {
    Type("abc", "ABC");
    InSideWindow(
        "frmViewEntry", [&] { user_.Char(WXK_RETURN); }, [&] { ExpectHelpAt("viewer.html"); });
}

TEST_F(HelpKeyTest, WhereARecordIsAskedForShowsThatPage) {
    InSideWindow(
        "TextQuestion", [&] { window_->GoToRecordNumber(kAskForRecord); },
        [&] { ExpectHelpAt("lookup.html#goto"); });
}

TEST_F(HelpKeyTest, HelpThatIsMissingIsToldOverTheSideWindow) {
    std::filesystem::remove(folder_.Text() + "Brelex.hlp");
    InSideWindow(
        "frmAbout", [&] { window_->Run(Command::About); },
        [&] {
            const MessageBoxes boxes;
            user_.Char(WXK_F1);
            EXPECT_TRUE(WaitFor([&] { return boxes.texts.size() == 1; }));
        });
}

}  // namespace
}  // namespace brelex
