// SPDX-License-Identifier: MIT
// The main window: its layout, its menus and its options.
#include "ui/frmMain.h"

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <wx/image.h>
#include <wx/menu.h>
#include <wx/modalhook.h>
#include <wx/stattext.h>

#include "tests/platform/screen.h"
#include "tests/ui/ui_test_support.h"
#include "toolkit/wx_text.h"
#include "ui/controls/colours.h"
#include "ui/main/main_menus.h"

namespace brelex {
namespace {

class FrmMainLayout : public MainWindowTest {};

TEST_F(FrmMainLayout, TheCaptionShowsTheHomePageWithoutItsScheme) {
    EXPECT_EQ(window_->GetTitle(), "Brevilexicon (www.brevilexicon.example)");
}

TEST_F(FrmMainLayout, TheStatusStripCountsTheEntriesAndIsElseEmpty) {
    EXPECT_EQ(LabelText("lblRecCount"), "1,506 entries");
    EXPECT_EQ(LabelText("lblRecNumber"), "");
    EXPECT_EQ(LabelText("lblDescription"), "");
}

TEST_F(FrmMainLayout, TheStatusPanelsStandSideBySideInOneRow) {
    const LayoutUnits units(*window_);
    const auto px = [&](double value) { return units.Pixels(value); };
    const wxSize inner = window_->GetClientSize();
    const int title = Control("lblAppTitle")->GetSize().x;
    const int labelTop = inner.y - px(18) - px(2) + px(2);
    const wxRect number = Control("lblRecNumber")->GetRect();
    EXPECT_EQ(number.x, px(1) + px(3));
    EXPECT_EQ(number.y, labelTop);
    EXPECT_EQ(number.width, title - px(6));
    const wxRect hint = Control("lblDescription")->GetRect();
    EXPECT_EQ(hint.x, px(1) + title + px(3) + px(3));
    EXPECT_EQ(hint.y, labelTop);
    const wxRect count = Control("lblRecCount")->GetRect();
    const int countFrame = px(1) + title + px(3) + px(450) + px(3);
    EXPECT_EQ(count.x, countFrame + px(3));
    EXPECT_EQ(count.y, labelTop);
    EXPECT_EQ(count.width, inner.x - countFrame - px(2) - px(6));
}

TEST_F(FrmMainLayout, TheColumnHeaderStandsOnTheListWithItsWidth) {
    const wxRect header = Control("lblColHeaderBack")->GetRect();
    const wxRect list = Control("lstAcronyms")->GetRect();
    EXPECT_EQ(header.x, list.x);
    EXPECT_EQ(header.width, list.width);
    EXPECT_EQ(header.y + header.height, list.y);
    EXPECT_EQ(Control("picColHeader")->GetParent(), Control("lblColHeaderBack"));
}

// As the screen has it: another control could cover an edge.
TEST_F(FrmMainLayout, TheTitleHasAFrameOnEachSide) {
    const wxRect label = Control("lblAppTitle")->GetScreenRect();
    const Rgb face = RgbOf(wxSYS_COLOUR_BTNFACE);
    const auto contrastAt = [&](int x, int y) {
        const wxImage dot = PictureOfScreen({x, y, 1, 1});
        return dot.IsOk() ? ContrastRatio(RgbOf(ColourAt(dot, 0, 0)), face) : 0;
    };
    const int middle = label.x + label.width / 2;
    const int halfway = label.y + label.height / 2;
    for (const wxPoint& edge :
         {wxPoint(middle, label.y - 1), wxPoint(middle, label.y + label.height),
          wxPoint(label.x - 1, halfway), wxPoint(label.x + label.width, halfway)}) {
        EXPECT_TRUE(WaitFor([&] { return contrastAt(edge.x, edge.y) >= kLineContrast; }))
            << edge.x << ", " << edge.y;
    }
}

TEST_F(FrmMainLayout, TheTitleImageIsCentredOnItsLabel) {
    const wxRect label = Control("lblAppTitle")->GetRect();
    const wxRect image = Control("imgAppTitle")->GetRect();
    EXPECT_EQ(Control("imgAppTitle")->GetParent(), Control("lblAppTitle"));
    EXPECT_EQ(image.x, (label.width - image.width) / 2 + 1);
    EXPECT_EQ(image.y, (label.height - image.height) / 2 + 1);
    EXPECT_LE(image.x + image.width, label.width);
    EXPECT_LE(image.y + image.height, label.height);
}

TEST_F(FrmMainLayout, NoTextIsCutOff) {
    for (const char* name : {"lblInstruction", "lblRecCount"}) {
        const auto* label = &dynamic_cast<wxStaticText&>(*Control(name));
        EXPECT_LE(label->GetBestSize().y, label->GetSize().y) << name;
        EXPECT_LE(label->GetTextExtent(label->GetLabelText()).x, label->GetSize().x) << name;
    }
}

TEST_F(FrmMainLayout, ALargeCountIsGrouped) {
    Start(NumberedRecords(12345));
    EXPECT_EQ(LabelText("lblRecCount"), "12,345 entries");
}

// The items of a menu as users see them: caption, a tab and the shortcut; "-" for a separator.
std::vector<std::string> ItemsOf(const wxMenu& menu) {
    std::vector<std::string> items;
    for (const wxMenuItem* item : menu.GetMenuItems()) {
        items.push_back(item->IsSeparator() ? "-" : Utf8Text(item->GetItemLabel()));
    }
    return items;
}

TEST_F(FrmMainLayout, TheMenuBarShowsTheCommands) {
    using Items = std::vector<std::string>;
    const wxMenuBar& bar = *window_->GetMenuBar();
    ASSERT_EQ(bar.GetMenuCount(), 4U);
    EXPECT_EQ(bar.GetMenuLabel(0), "&File");
    EXPECT_EQ(ItemsOf(*bar.GetMenu(0)), (Items{"Database Info...", "Check Data Integrity...", "-",
                                               "E&xit                Alt+F4"}));
    EXPECT_EQ(bar.GetMenuLabel(1), "&Search");
    EXPECT_EQ(ItemsOf(*bar.GetMenu(1)),
              (Items{"Search Database...\tF3", "Anagrammatic Search...", "-", "Go to Row...\tF5"}));
    EXPECT_EQ(bar.GetMenuLabel(2), "&Options");
    EXPECT_EQ(ItemsOf(*bar.GetMenu(2)), (Items{"Stay on Top", "-", "Run at Startup"}));
    EXPECT_EQ(bar.GetMenuLabel(3), "&Help");
    EXPECT_EQ(ItemsOf(*bar.GetMenu(3)),
              (Items{"Help Contents\tF1", "-", "ReadMe", "Smiley Dictionary", "-",
                     "Donate via PayPal...", "About..."}));
}

TEST_F(FrmMainLayout, TheMenusOpenTheirWindowsAndSoDoTheirNumbers) {
    struct Item {
        Command command;
        const char* window;
    };

    for (const Item& item :
         {Item{Command::Search, "frmSearch"}, Item{Command::Anagram, "frmAnagram"},
          Item{Command::DatabaseInfo, "frmDataInfo"}, Item{Command::Smileys, "frmSmiley"},
          Item{Command::About, "frmAbout"}, Item{Command::CheckData, "frmCheckData"},
          Item{Command::Donate, "frmDonation"}}) {
        wxCommandEvent chosen(wxEVT_MENU, IdOf(item.command));
        EXPECT_EQ(NameOfOpened([&] { window_->ProcessWindowEvent(chosen); }), item.window);
        EXPECT_EQ(NameOfOpened([&] { window_->OpenModalForm(DetailsOf(item.command).window); }),
                  item.window);
    }
}

TEST_F(FrmMainLayout, ExitClosesTheWindow) {
    frmMain* const window = window_;
    window_ = nullptr;
    wxCommandEvent command(wxEVT_MENU, IdOf(Command::Exit));
    window->ProcessWindowEvent(command);
    EXPECT_TRUE(WaitFor([&] { return wxTopLevelWindows.Find(window) == nullptr; }));
}

TEST_F(FrmMainLayout, ClosingUnloadsTheWindowsThatAreKept) {
    std::vector<wxWindow*> kept;
    for (const Command command : {Command::Search, Command::Anagram}) {
        const std::string name = NameOfOpened([&] { window_->Run(command); },
                                              [&] { kept.push_back(OpenModalDialog()); });
        ASSERT_NE(wxTopLevelWindows.Find(kept.back()), nullptr) << name << " is only hidden";
    }
    wxTopLevelWindowBase* const main = std::exchange(window_, nullptr);
    main->Close();
    EXPECT_TRUE(WaitFor([&] {
        return wxTopLevelWindows.Find(kept[0]) == nullptr &&
               wxTopLevelWindows.Find(kept[1]) == nullptr &&
               wxTopLevelWindows.Find(main) == nullptr;
    }));
}

// The window is destroyed a moment after it closes, and a key or a click may arrive in between.
TEST_F(FrmMainLayout, AClosedWindowOpensNothing) {
    for (const Command command :
         {Command::Search, Command::Anagram, Command::About, Command::GoToRow}) {
        frmMain* const window = std::exchange(window_, nullptr);
        window->Close();
        window->Run(command);
        EXPECT_EQ(OpenModalDialog(), nullptr);
        EXPECT_TRUE(WaitFor([&] { return wxTopLevelWindows.Find(window) == nullptr; }));
        Start(SampleEntries());
    }
}

class FrmMainOptions : public MainWindowTest {
  protected:
    void Choose(Command command) {
        const int item = IdOf(command);
        const bool checked = window_->GetMenuBar()->IsChecked(item);
        window_->GetMenuBar()->Check(item, !checked);  // as the toolkit does before it tells
        wxCommandEvent event(wxEVT_MENU, item);
        event.SetInt(checked ? 0 : 1);
        window_->ProcessWindowEvent(event);
    }

    // What the desktop does is a moment behind what it was asked for.
    [[nodiscard]] bool Becomes(bool topMost) const {
        return WaitFor([&] { return IsKeptAbove(*window_) == topMost; });
    }
};

TEST_F(FrmMainOptions, EveryStartBeginsWithoutStayOnTop) {
    EXPECT_FALSE(window_->GetMenuBar()->IsChecked(IdOf(Command::StayOnTop)));
    EXPECT_FALSE(window_->IsStayOnTop);
    EXPECT_TRUE(Becomes(false));
}

TEST_F(FrmMainOptions, StayOnTopFollowsItsCheckMark) {
    Choose(Command::StayOnTop);
    EXPECT_TRUE(window_->IsStayOnTop);
    EXPECT_TRUE(Becomes(true));
    Choose(Command::StayOnTop);
    EXPECT_FALSE(window_->IsStayOnTop);
    EXPECT_TRUE(Becomes(false));
}

TEST_F(FrmMainOptions, AModalWindowStandsAboveAWindowThatStaysOnTop) {
    Choose(Command::StayOnTop);
    bool wasTopMost = true;
    ModalDriver driver({
        [&] {
            if (window_->IsModalOpen()) {
                wasTopMost = !Becomes(false);
                return true;
            }
            return false;
        },
        [&] {
            user_.Char(WXK_RETURN);
            return !window_->IsModalOpen();
        },
    });
    window_->Run(Command::About);
    EXPECT_FALSE(wasTopMost);
    EXPECT_TRUE(Becomes(true));
    EXPECT_TRUE(window_->IsStayOnTop);
}

TEST_F(FrmMainOptions, RunAtStartupIsCheckedAtEveryStart) {
    EXPECT_TRUE(window_->GetMenuBar()->IsChecked(IdOf(Command::RunAtStartup)));
    EXPECT_EQ(runAtStartup_, std::vector<bool>{true});
    Choose(Command::RunAtStartup);
    EXPECT_EQ(runAtStartup_, (std::vector<bool>{true, false}));
    Start(SampleEntries());
    EXPECT_TRUE(window_->GetMenuBar()->IsChecked(IdOf(Command::RunAtStartup)));
    EXPECT_EQ(runAtStartup_, (std::vector<bool>{true, false, true}));
}

TEST_F(FrmMainOptions, TheCheckMarkStaysEvenIfNothingCouldBeWritten) {
    runAtStartupWorks_ = false;
    Choose(Command::RunAtStartup);
    EXPECT_FALSE(window_->GetMenuBar()->IsChecked(IdOf(Command::RunAtStartup)));
    Choose(Command::RunAtStartup);
    EXPECT_TRUE(window_->GetMenuBar()->IsChecked(IdOf(Command::RunAtStartup)));
    EXPECT_EQ(runAtStartup_, (std::vector<bool>{true, false, true}));
}

TEST_F(FrmMainOptions, TheKeyboardReachesTheOptions) {
    bool opened = false;
    window_->Bind(wxEVT_MENU_OPEN, [&](wxMenuEvent& event) {
        opened = true;
        event.Skip();
    });
    // An open menu keeps the test from going on.
    ModalDriver driver({[&] { return opened; },
                        [&] {
                            user_.Char(WXK_RETURN);  // the first item
                            return true;
                        }});
    user_.Char('O', wxMOD_ALT);
    EXPECT_TRUE(WaitFor([&] { return window_->IsStayOnTop; }));
    EXPECT_TRUE(window_->GetMenuBar()->IsChecked(IdOf(Command::StayOnTop)));
}

// Refuses modal windows, and fails the test if there is one to refuse.
class NoModalWindows final : public wxModalDialogHook {
  public:
    NoModalWindows() { Register(); }

  protected:
    int Enter(wxDialog* dialog) override {
        ADD_FAILURE() << Utf8Text(dialog->GetName()) << " was opened";
        return wxID_CANCEL;
    }
};

TEST_F(FrmMainOptions, NumbersWithoutAWindowOpenNone) {
    const NoModalWindows none;
    window_->OpenModalForm(-1);
    window_->OpenModalForm(7);
    EXPECT_FALSE(window_->IsModalOpen());
}

TEST_F(FrmMainOptions, AWindowOpenedByNumberIsModalUntilItCloses) {
    bool wasModal = false;
    ModalDriver driver({
        [&] {
            wasModal = window_->IsModalOpen();
            return wasModal;
        },
        [&] {
            user_.Char(WXK_ESCAPE);
            return !window_->IsModalOpen();
        },
    });
    user_.Char(WXK_F3);
    EXPECT_TRUE(WaitFor([&] { return driver.Done() && !window_->IsModalOpen(); }));
    EXPECT_TRUE(wasModal);
}

}  // namespace
}  // namespace brelex
