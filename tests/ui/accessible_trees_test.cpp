// SPDX-License-Identifier: MIT
// What each window is to a screen reader, compared with a list. NEW_TREES=1 in the environment
// writes the lists anew.
#include <cstdlib>
#include <fstream>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <wx/combobox.h>
#include <wx/html/helpfrm.h>
#include <wx/stattext.h>

#include "help/help_viewer.h"
#include "platform/system/modShowHelp.h"
#include "platform/system/program_folder.h"
#include "tests/platform/accessible_tree.h"
#include "tests/platform/keyboard.h"
#include "tests/ui/ui_test_support.h"
#include "toolkit/wx_text.h"
#include "ui/frmAbout.h"
#include "ui/frmCredit.h"
#include "ui/frmSplash.h"

namespace brelex {
namespace {

std::vector<std::string> FewEntries() {
    return {"AB\tAddress Bus", "AB\tAudio Bus", "ABC\tAtanasoff-Berry Computer", "BA\tBus Arbiter",
            "R&D\tResearch and Development"};
}

// TREES_FOLDER is the folder with the lists of this system.
void ExpectTree(wxTopLevelWindow& window, const std::string& name) {
    const std::string tree = AccessibleTreeOf(window);
    const std::string list = std::string(TREES_FOLDER) + "/" + name + ".txt";
    if (std::getenv("NEW_TREES") != nullptr) {
        std::ofstream(list, std::ios::binary) << tree;
    }
    EXPECT_EQ(tree, ReadText(list)) << name;
}

class AccessibleTrees : public SideWindowTest {
  protected:
    void SetUp() override {
        MainWindowTest::SetUp();
        Start(FewEntries());  // the end of the first window has moved the mouse away
    }

    void ExpectSideWindow(Command command, const char* name) {
        InSideWindow(
            name, [&] { window_->Run(command); }, [&] { ExpectTree(Side(), name); });
    }

    // Waits for the end of a search, which a label tells.
    void SearchFor(const char* box, const char* text, const char* label, const char* end) {
        In<wxComboBox>(box).SetValue(text);
        EXPECT_TRUE(WaitFor([&] { return In("cmdSearch").IsEnabled(); }));
        Click("cmdSearch");
        EXPECT_TRUE(WaitFor([&] { return Label(label) == end; })) << Label(label);
    }
};

TEST_F(AccessibleTrees, OfTheMainWindow) {
    Type("ab", "AB");
    ExpectTree(*window_, "frmMain");
}

TEST_F(AccessibleTrees, OfTheSearchWindow) {
    ExpectSideWindow(Command::Search, "frmSearch");
}

TEST_F(AccessibleTrees, OfTheSearchWindowWithItsResult) {
    InSideWindow(
        "frmSearch", [&] { window_->Run(Command::Search); },
        [&] {
            SearchFor("cboSearchWhat", "bus", "lblStatus", "Number of Hits: 3");
            ExpectTree(Side(), "frmSearch-result");
        });
}

TEST_F(AccessibleTrees, OfTheAnagramWindow) {
    ExpectSideWindow(Command::Anagram, "frmAnagram");
}

TEST_F(AccessibleTrees, OfTheAnagramWindowWithItsResult) {
    InSideWindow(
        "frmAnagram", [&] { window_->Run(Command::Anagram); },
        [&] {
            SearchFor("cboLetters", "AB", "lblPercentDone", "Found 3");
            ExpectTree(Side(), "frmAnagram-result");
        });
}

TEST_F(AccessibleTrees, OfTheDatabaseCheck) {
    ExpectSideWindow(Command::CheckData, "frmCheckData");
}

TEST_F(AccessibleTrees, OfTheDatabaseInfo) {
    ExpectSideWindow(Command::DatabaseInfo, "frmDataInfo");
}

TEST_F(AccessibleTrees, OfTheAboutBox) {
    ExpectSideWindow(Command::About, "frmAbout");
}

TEST_F(AccessibleTrees, OfTheCredits) {
    InSideWindow(
        "frmCredit",
        [&] {
            auto* const credit = new frmCredit(window_, startUp_->Values().info);
            credit->ShowModal();
            credit->Destroy();
        },
        [&] { ExpectTree(Side(), "frmCredit"); });
}

TEST_F(AccessibleTrees, OfTheDonationWindow) {
    ExpectSideWindow(Command::Donate, "frmDonation");
}

TEST_F(AccessibleTrees, OfTheSmileyDictionary) {
    ExpectSideWindow(Command::Smileys, "frmSmiley");
}

TEST_F(AccessibleTrees, OfTheEntryViewer) {
    Type("ab", "AB");
    ExpectSideWindow(Command::ViewEntry, "frmViewEntry");
}

TEST_F(AccessibleTrees, OfTheQuestionForARecord) {
    ExpectSideWindow(Command::GoToRow, "TextQuestion");
}

TEST_F(AccessibleTrees, OfTheSplashWindow) {
    auto* const splash = new frmSplash(startUp_->Values().info);
    splash->Show();
    splash->WaitUntilSeen();
    splash->SetProgress(100);
    ExpectTree(*splash, "frmSplash");
    splash->Destroy();
}

TEST(AccessibleTreesOfHelp, OfTheViewer) {
    HelpViewer viewer;
    ASSERT_TRUE(viewer.Show(WxText(ProgramFolder() + kHelpFileName), "keys.html"));
    ASSERT_TRUE(WaitFor([&] { return HasKeyboard(*viewer.GetFrame()); }));
    ExpectTree(*viewer.GetFrame(), "frmHelp");
    viewer.GetFrame()->Close();
    EXPECT_TRUE(WaitFor([&] { return viewer.GetHelpWindow() == nullptr; }));
}

}  // namespace
}  // namespace brelex
