// SPDX-License-Identifier: MIT
// What each window is to a screen reader, compared with a list. NEW_TREES=1 in the environment
// writes the lists anew.
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <wx/combobox.h>
#include <wx/html/helpfrm.h>
#include <wx/html/htmlwin.h>
#include <wx/notebook.h>
#include <wx/stattext.h>
#include <wx/treectrl.h>

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

    // As it opens or, if there is `work`, after that.
    void ExpectSideWindow(Command command, const std::string& name, const std::string& state = "",
                          const std::function<void()>& work = nullptr) {
        InSideWindow(
            name.c_str(), [&] { window_->Run(command); },
            [&] {
                if (work) {
                    work();
                }
                ExpectTree(Side(), name + state);
            });
    }

    // Waits for the end of a search, which a label tells, and for the focus on its result.
    void SearchFor(const char* box, const char* text, const char* label, const char* end,
                   const char* result) {
        In<wxComboBox>(box).SetValue(text);
        EXPECT_TRUE(WaitFor([&] { return In("cmdSearch").IsEnabled(); }));
        Click("cmdSearch");
        EXPECT_TRUE(WaitFor([&] { return Label(label) == end && HasFocus(result); }))
            << Label(label);
        LetEventsArrive();
    }
};

// The objects with the focus.
std::vector<AccessibleObject> Focused(wxTopLevelWindow& window) {
    std::vector<AccessibleObject> focused = AccessibleObjectsOf(window);
    std::erase_if(focused, [](const AccessibleObject& object) {
        return std::find(object.states.begin(), object.states.end(), "focused") ==
               object.states.end();
    });
    return focused;
}

class AccessibleActions : public AccessibleTrees {
  protected:
    [[nodiscard]] std::string DescriptionAtFocus() const {
        const auto focused = Focused(*window_);
        return focused.empty() ? "" : focused.back().description;
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
    ExpectSideWindow(Command::Search, "frmSearch", "-result", [&] {
        SearchFor("cboSearchWhat", "bus", "lblStatus", "Number of Hits: 3", "txtSearchResult");
    });
}

TEST_F(AccessibleTrees, OfTheAnagramWindow) {
    ExpectSideWindow(Command::Anagram, "frmAnagram");
}

TEST_F(AccessibleTrees, OfTheAnagramWindowWithItsResult) {
    ExpectSideWindow(Command::Anagram, "frmAnagram", "-result", [&] {
        SearchFor("cboLetters", "AB", "lblPercentDone", "Found 3", "lstAnagrams");
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

TEST_F(AccessibleActions, ALinkOpensItsAddress) {
    const AppInfo& info = startUp_->Values().info;
    InSideWindow(
        "frmAbout", [&] { window_->Run(Command::About); },
        [&] {
            EXPECT_TRUE(DoAccessibleAction(Side(), "link", info.homePage));
            EXPECT_TRUE(WaitFor([&] { return !desktop_.opened.empty(); }));
            EXPECT_EQ(desktop_.opened.back(), info.homePage);
        });
}

TEST_F(AccessibleActions, AnIconOfTheToolbarOpensItsWindow) {
    bool isOpen = false;
    const auto open = [&] {
        EXPECT_TRUE(DoAccessibleAction(*window_, "push button", "Smiley Dictionary"));
        EXPECT_TRUE(WaitFor([&] { return isOpen; }));
    };
    EXPECT_EQ(NameOfOpened(open, [&] { isOpen = true; }), "frmSmiley");
}

// The only difference to hear among entries of one abbreviation.
TEST_F(AccessibleActions, TheBoxIsDescribedByTheEntryFound) {
    Type("a", "A");
    EXPECT_EQ(DescriptionAtFocus(), "AB: Address Bus, record 1");
    user_.Char(WXK_DOWN);
    EXPECT_TRUE(WaitFor([&] { return DescriptionAtFocus() == "AB: Audio Bus, record 2"; }))
        << DescriptionAtFocus();
}

// Where screen readers begin.
TEST_F(AccessibleActions, TheFocusIsSomewhere) {
    for (const Command command :
         {Command::DatabaseInfo, Command::CheckData, Command::Search, Command::Anagram,
          Command::GoToRow, Command::Smileys, Command::Donate, Command::About}) {
        int focused = 0;
        const std::string name = NameOfOpened(
            [&] { window_->Run(command); },
            [&] {
                EXPECT_TRUE(WaitFor([&] { return Focused(*OpenModalDialog()).size() == 1; }));
                ++focused;
            });
        EXPECT_EQ(focused, 1) << name;
    }
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
    wxHtmlHelpWindow& help = *viewer.GetHelpWindow();
    ASSERT_TRUE(WaitFor(
        [&] { return HasKeyboard(*viewer.GetFrame()) && help.GetHtmlWindow()->HasFocus(); }));
    LetEventsArrive();
    ExpectTree(*viewer.GetFrame(), "frmHelp");
    auto* const tabs = dynamic_cast<wxNotebook*>(help.GetTreeCtrl()->GetGrandParent());
    for (const char* const tab : {"Index", "Search"}) {
        tabs->AdvanceSelection();
        LetEventsArrive();
        ExpectTree(*viewer.GetFrame(), std::string("frmHelp-") + tab);
    }
    viewer.GetFrame()->Close();
    EXPECT_TRUE(WaitFor([&] { return viewer.GetHelpWindow() == nullptr; }));
}

}  // namespace
}  // namespace brelex
