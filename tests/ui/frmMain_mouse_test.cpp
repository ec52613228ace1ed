// SPDX-License-Identifier: MIT
// What the mouse and the menu of the list do in the main window.
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <wx/menu.h>
#include <wx/textctrl.h>

#include "tests/platform/screen.h"
#include "tests/support/named_case.h"
#include "tests/ui/ui_test_support.h"
#include "ui/frmMain.h"
#include "ui/main/main_menus.h"

namespace brelex {
namespace {

class FrmMainMouse : public MainWindowTest {
  protected:
    void MoveTo(const wxWindow& control, const wxPoint& point) {
        user_.MouseMove(control.GetScreenPosition() + point);
        LetEventsArrive();
    }

    [[nodiscard]] const wxWindow& List() const { return window_->List().Window(); }

    // Presses the right button on a row and calls `check` when the menu is up.
    void PressRightOnRow(int row, const std::function<void()>& check) {
        bool opened = false;
        window_->Bind(wxEVT_MENU_OPEN, [&](wxMenuEvent& event) {
            opened = true;
            event.Skip();
        });
        ModalDriver driver({
            [&] {
                if (opened) {
                    check();
                }
                return opened;
            },
            [&] {
                user_.Char(WXK_ESCAPE);
                return true;
            },
        });
        const int height = window_->List().RowHeight();
        MoveTo(List(), {40, row * height + height / 2});
        user_.MouseClick(wxMOUSE_BTN_RIGHT);
        EXPECT_TRUE(WaitFor([&] { return driver.Done() && MenuOnScreen().IsEmpty(); }));
        LetEventsArrive();
    }
};

TEST_F(FrmMainMouse, EachControlHasItsHint) {
    struct Place {
        const char* control;
        const char* hint;
    };

    const std::string listHint =
        "Press Carriage Return or double-click an entry in the list to view it";
    const std::string titleHint = "Brevilexicon version 1.0, " + startUp_->Values().info.copyright;
    for (const Place& place : {
             Place{"txtAbbrv", "Type here the acronym/abbreviation you are looking for"},
             Place{"lstAcronyms", listHint.c_str()},
             Place{"lblRecCount",
                   "Number of entries in the database (double-click to view Database Info)"},
             Place{"picColHeader", listHint.c_str()},
             Place{"lblRecNumber",
                   "Current record number (double-click to go to specified record)"},
             Place{"imgAppTitle", titleHint.c_str()},
         }) {
        MoveTo(*Control(place.control), {6, 6});
        EXPECT_TRUE(WaitFor([&] { return LabelText("lblDescription") == place.hint; }))
            << place.control << ": " << LabelText("lblDescription");
    }
}

TEST_F(FrmMainMouse, TheBareSurfaceHasNoHint) {
    MoveTo(*Control("txtAbbrv"), {6, 6});
    ASSERT_TRUE(WaitFor([&] { return !LabelText("lblDescription").empty(); }));
    MoveTo(*Control("lblAppTitle")->GetParent(), {600, 2});
    EXPECT_TRUE(WaitFor([&] { return LabelText("lblDescription").empty(); }));
}

struct DoubleClickCase {
    const char* name;
    const char* control;
    const char* window;
};

class FrmMainDoubleClick : public FrmMainMouse,
                           public testing::WithParamInterface<DoubleClickCase> {};

TEST_F(FrmMainMouse, F1ShowsTheHelp) {
    folder_.Write("Brelex.hlp", "help");
    user_.Char(WXK_F1);
    EXPECT_TRUE(WaitFor([&] { return desktop_.opened.size() == 1; }));
    EXPECT_FALSE(window_->IsModalOpen());
}

TEST_F(FrmMainMouse, HelpAndReadMeThatAreMissingAreNamed) {
    const MessageBoxes boxes;
    window_->Run(Command::Help);
    window_->Run(Command::ReadMe);
    ASSERT_EQ(boxes.texts.size(), 2U);
    EXPECT_EQ(boxes.texts[0],
              "Cannot find the Help file Brelex.hlp. Ensure that the file exists on your disk. "
              "Otherwise you may need to reinstall brevilexicon.");
    EXPECT_EQ(boxes.texts[1], "Cannot find file \"ReadMe.txt\"");
}

TEST_F(FrmMainMouse, TheEndOfTheProgramClosesTheHelpViewer) {
    frmMain* const window = std::exchange(window_, nullptr);
    window->Close();
    EXPECT_TRUE(WaitFor([&] { return wxTopLevelWindows.Find(window) == nullptr; }));
    EXPECT_EQ(desktop_.askedToClose, std::vector<std::string>{"Brevilexicon Help"});
}

TEST_P(FrmMainDoubleClick, OpensTheWindow) {
    MoveTo(*Control(GetParam().control), {8, 8});
    EXPECT_EQ(NameOfOpened([&] { user_.MouseDblClick(); }), GetParam().window);
}

INSTANTIATE_TEST_SUITE_P(Controls, FrmMainDoubleClick,
                         testing::Values(DoubleClickCase{"TheCount", "lblRecCount", "frmDataInfo"},
                                         DoubleClickCase{"TheTitle", "imgAppTitle", "frmAbout"}),
                         CaseName());

TEST_F(FrmMainMouse, TheRightButtonSelectsTheRowAndWritesItsAbbreviationBeforeTheMenu) {
    PressRightOnRow(2, [&] {
        EXPECT_EQ(SelectedRecord(), "ABC\tAtanasoff-Berry Computer");
        EXPECT_EQ(BoxText(), "ABC");
        EXPECT_EQ(LabelText("lblRecNumber"), "3");
    });
    EXPECT_EQ(SelectedRecord(), "ABC\tAtanasoff-Berry Computer");
    EXPECT_EQ(BoxText(), "ABC");
    EXPECT_TRUE(WaitFor([&] { return window_->Lookup().IsNavigating; }));  // the list has the focus
}

TEST_F(FrmMainMouse, TheRightButtonDoesNotStopTheListFromFollowing) {
    Type("x", "X");
    PressRightOnRow(0, [] {});
    Box().SetFocus();
    ASSERT_TRUE(WaitFor([&] { return Box().GetStringSelection() == BoxText(); }));
    Type("xs", "XS");
    EXPECT_EQ(SelectedRecord(), "XSS\tCross-Site Scripting");
}

TEST_F(FrmMainMouse, BelowTheLastRowTheRightButtonDoesNothing) {
    Start({"AB\tx", "AC\ty"});
    bool opened = false;
    window_->Bind(wxEVT_MENU_OPEN, [&](wxMenuEvent&) { opened = true; });
    MoveTo(List(), {40, 10 * window_->List().RowHeight()});
    user_.MouseClick(wxMOUSE_BTN_RIGHT);
    EXPECT_TRUE(StaysFor(200, [&] { return !opened; }));
    EXPECT_EQ(window_->List().SelectedRow(), -1);
    EXPECT_EQ(BoxText(), "");
}

TEST_F(FrmMainMouse, AWindowThatClosesUnderTheRightButtonShowsNoMenu) {
    bool opened = false;
    window_->Bind(wxEVT_MENU_OPEN, [&](wxMenuEvent&) { opened = true; });
    frmMain* const window = std::exchange(window_, nullptr);
    window->List().onRightPress(0);  // the menu comes a moment later
    window->Close();
    EXPECT_TRUE(WaitFor([&] { return wxTopLevelWindows.Find(window) == nullptr; }));
    EXPECT_FALSE(opened);
}

TEST_F(FrmMainMouse, AModalWindowKeepsTheMainWindowFromClosing) {
    bool closed = true;
    EXPECT_EQ(
        NameOfOpened([&] { window_->Run(Command::About); }, [&] { closed = window_->Close(); }),
        "frmAbout");
    EXPECT_FALSE(closed);
    EXPECT_NE(wxTopLevelWindows.Find(window_), nullptr);
    EXPECT_TRUE(window_->IsShown());
}

TEST_F(FrmMainMouse, AHintStaysWhileItIsReadWithTheMouse) {
    MoveTo(*Control("txtAbbrv"), {6, 6});
    ASSERT_TRUE(WaitFor([&] { return !LabelText("lblDescription").empty(); }));
    MoveTo(*Control("lblDescription"), {6, 6});
    EXPECT_TRUE(StaysFor(150, [&] {
        return LabelText("lblDescription") ==
               "Type here the acronym/abbreviation you are looking for";
    })) << LabelText("lblDescription");
}

TEST_F(FrmMainMouse, TheListsMenuViewsAndCopies) {
    const auto menu = CreateListMenu();
    ASSERT_EQ(menu->GetMenuItemCount(), 3U);
    EXPECT_EQ(menu->FindItemByPosition(0)->GetItemLabel(), "&View");
    EXPECT_TRUE(menu->FindItemByPosition(1)->IsSeparator());
    EXPECT_EQ(menu->FindItemByPosition(2)->GetItemLabel(), "&Copy");
    Type("abc", "ABC");
    wxCommandEvent copy(wxEVT_MENU, IdOf(Command::CopyEntry));
    window_->ProcessWindowEvent(copy);
    EXPECT_EQ(ClipboardText(), "ABC = Atanasoff-Berry Computer");
    wxCommandEvent view(wxEVT_MENU, IdOf(Command::ViewEntry));
    EXPECT_EQ(NameOfOpened([&] { window_->ProcessWindowEvent(view); }), "frmViewEntry");
}

TEST_F(FrmMainMouse, TheMenuKeyShowsTheMenuOfTheSelectedRow) {
    Type("abc", "ABC");
    window_->List().Window().SetFocus();
    ASSERT_TRUE(WaitFor([&] { return window_->Lookup().IsNavigating; }));
    bool opened = false;
    window_->Bind(wxEVT_MENU_OPEN, [&](wxMenuEvent&) { opened = true; });
    ModalDriver driver({[&] { return opened; },
                        [&] {
                            user_.Char(WXK_ESCAPE);
                            return true;
                        }});
    user_.Char(WXK_F10, wxMOD_SHIFT);
    EXPECT_TRUE(WaitFor([&] { return driver.Done(); }));
    EXPECT_EQ(SelectedRecord(), "ABC\tAtanasoff-Berry Computer");
}

}  // namespace
}  // namespace brelex
