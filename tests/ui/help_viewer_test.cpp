// SPDX-License-Identifier: MIT
// The real help book in the real viewer on this desktop.
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "database/file_io.h"
#include "platform/modShowHelp.h"
#include "platform/program_folder.h"
#include "platform/system_desktop.h"
#include "tests/platform/help_registration.h"
#include "tests/support/fakes.h"
#include "tests/support/test_files.h"
#include "tests/ui/ui_test_support.h"

namespace brelex {
namespace {

class HelpViewerTest : public testing::Test {
  protected:
    void TearDown() override {
        CloseHelp(desktop_);
        EXPECT_TRUE(WaitFor([&] { return !desktop_.BringWindowForward(kHelpTitle); }, 5000));
    }

    void ShowHelp() {
        ShowHelpContents({ProgramFolder(), "brevilexicon"}, desktop_, messages_);
        EXPECT_TRUE(messages_.shown.empty());
    }

    HelpRegistration registration_;
    SystemDesktop desktop_;
    FakeMessageSink messages_;
};

TEST_F(HelpViewerTest, HelpOpensOnceAndClosesWhenItIsAskedTo) {
    ASSERT_FALSE(desktop_.BringWindowForward(kHelpTitle));
    ShowHelp();
    ASSERT_TRUE(WaitFor([&] { return desktop_.BringWindowForward(kHelpTitle); }, 20000));
    // Asked for twice it is still one: closing that one leaves none.
    ShowHelp();
    Settle(1500);
    // A window of another title is not meant.
    EXPECT_FALSE(desktop_.BringWindowForward("Brevilexicon Hel"));
    desktop_.AskWindowToClose("Brevilexicon Hel");
    Settle(300);
    EXPECT_TRUE(desktop_.BringWindowForward(kHelpTitle));
    CloseHelp(desktop_);
    EXPECT_TRUE(WaitFor([&] { return !desktop_.BringWindowForward(kHelpTitle); }, 5000));
    Settle(300);
    EXPECT_FALSE(desktop_.BringWindowForward(kHelpTitle));
}

// As users have it: somewhere else, under any name.
TEST_F(HelpViewerTest, TheBookOpensFromAFolderWithBlanksAndAccents) {
    const TestFolder folder;
    const auto program = folder.Path() / PathOfUtf8("d\u00e9j\u00e0 vu 100%");
    std::filesystem::create_directory(program);
    std::filesystem::copy_file(PathOfUtf8(ProgramFolder()) / kHelpFileName,
                               program / kHelpFileName);
    ShowHelpContents({Utf8OfPath(program) + "/", "brevilexicon"}, desktop_, messages_);
    EXPECT_TRUE(messages_.shown.empty());
    ASSERT_TRUE(WaitFor([&] { return desktop_.BringWindowForward(kHelpTitle); }, 20000));
}

TEST(SystemDesktop, SaysThatNoProgramOpensAFileOfAnUnknownKind) {
    const TestFolder folder;
    SystemDesktop desktop;
    EXPECT_FALSE(desktop.Open(folder.Write("Some.brelex-kind", {"\0\1\2\3", 4})));
}

TEST(SystemDesktop, SaysThatNoProgramOpensAnAddress) {
    SystemDesktop desktop;
    EXPECT_FALSE(desktop.Open("x-brelex-nothing-opens-this:there"));
}

}  // namespace
}  // namespace brelex
