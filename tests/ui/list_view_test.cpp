// SPDX-License-Identifier: MIT
// The list of entries on the screen: whole rows, scrolling, letters, and where its menu opens.
#include <string>

#include <gtest/gtest.h>

#include <wx/menu.h>
#include <wx/textctrl.h>

#include "tests/platform/screen.h"
#include "tests/ui/ui_test_support.h"

namespace brelex {
namespace {

class EntryList : public MainWindowTest {
  protected:
    [[nodiscard]] EntryListControl& List() const { return window_->List(); }

    [[nodiscard]] ListView View() const { return ViewOf(List()); }

    // The top edge of the list's rows, in pixels from that of the first of all.
    [[nodiscard]] int ScrolledTo() const { return -View().firstRowAt; }

    [[nodiscard]] int VisibleRows() const { return View().height / View().rowHeight; }

    void GiveListTheKeyboard() {
        List().Window().SetFocus();
        ASSERT_TRUE(WaitFor([&] { return IsFocusIn(List().Window()); }));
        LetEventsArrive();
    }

    void MoveToRow(std::int32_t row) {
        const ListView view = View();
        const int y = view.firstRowAt + row * view.rowHeight + view.rowHeight / 2;
        user_.MouseMove(List().Window().ClientToScreen(wxPoint(60, y)));
        LetEventsArrive();
    }

    // Scrolling may be animated.
    void AwaitFoundRowSecondFromTop() {
        ASSERT_TRUE(WaitFor([&] {
            return List().SelectedRow() > 0 &&
                   ScrolledTo() == (List().SelectedRow() - 1) * View().rowHeight;
        }));
    }

    void TypeInList(const char* letters) {
        for (const char* letter = letters; *letter != '\0'; ++letter) {
            user_.Char(*letter);
        }
    }
};

TEST_F(EntryList, ShowsWholeRowsOnly) {
    EXPECT_EQ(View().height % View().rowHeight, 0) << View().height << "/" << View().rowHeight;
    EXPECT_GE(VisibleRows(), 6);
}

TEST_F(EntryList, ThePageOfThePageKeysIsWhatIsVisible) {
    Type("m1", "M1");
    const std::int32_t start = List().SelectedRow();
    user_.Char(WXK_PAGEDOWN);
    EXPECT_TRUE(WaitFor([&] { return List().SelectedRow() == start + VisibleRows() - 1; }))
        << List().SelectedRow() - start << " of " << VisibleRows();
}

TEST_F(EntryList, AtItsEndTheFirstVisibleRowIsWhole) {
    Type("xss", "XSS");
    EXPECT_EQ(ScrolledTo() % View().rowHeight, 0);
    const int before = ScrolledTo();
    MoveToRow(1505);
    user_.MouseClick();
    ASSERT_TRUE(WaitFor([&] { return List().SelectedRow() == 1505; }));
    EXPECT_TRUE(StaysFor(300, [&] { return ScrolledTo() == before; })) << ScrolledTo();
}

TEST_F(EntryList, ARightClickOnTheLastVisibleRowScrollsNothing) {
    Type("m1", "M1");
    AwaitFoundRowSecondFromTop();
    const int before = ScrolledTo();
    const std::int32_t row = before / View().rowHeight + VisibleRows() - 1;
    bool opened = false;
    window_->Bind(wxEVT_MENU_OPEN, [&](wxMenuEvent&) { opened = true; });
    MoveToRow(row);
    ModalDriver driver({[&] { return opened; },
                        [&] {
                            user_.Char(WXK_ESCAPE);
                            return true;
                        }});
    user_.MouseClick(wxMOUSE_BTN_RIGHT);
    EXPECT_TRUE(WaitFor([&] { return driver.Done(); }));
    EXPECT_EQ(List().SelectedRow(), row);
    EXPECT_TRUE(StaysFor(300, [&] { return ScrolledTo() == before; })) << ScrolledTo();
}

TEST_F(EntryList, GoingToTheLastVisibleRowScrollsNothing) {
    Type("m1", "M1");
    AwaitFoundRowSecondFromTop();
    const int before = ScrolledTo();
    const std::int32_t row = before / View().rowHeight + VisibleRows() - 1;
    window_->GoToRecordNumber(RecordNumberOf(row));
    EXPECT_EQ(List().SelectedRow(), row);
    EXPECT_TRUE(StaysFor(300, [&] { return ScrolledTo() == before; })) << ScrolledTo();
    window_->GoToRecordNumber(RecordNumberOf(row + 1));
    const auto isOneRowOn = [&] { return ScrolledTo() == before + View().rowHeight; };
    EXPECT_TRUE(WaitFor(isOneRowOn)) << "and to the next one by one row";
    EXPECT_TRUE(StaysFor(300, isOneRowOn));
}

TEST_F(EntryList, LettersTypedIntoItSelectTheEntryThatBeginsWithThem) {
    GiveListTheKeyboard();
    TypeInList("xss");
    EXPECT_TRUE(WaitFor([&] { return BoxText() == "XSS"; })) << BoxText();
    EXPECT_EQ(SelectedRecord(), "XSS\tCross-Site Scripting");
    EXPECT_EQ(LabelText("lblRecNumber"), "1,506");
    // After a while a letter begins a new word.
    EXPECT_TRUE(StaysFor(1100, [&] { return BoxText() == "XSS"; }));
    TypeInList("R");
    EXPECT_TRUE(WaitFor([&] { return BoxText() == "R&D"; })) << BoxText();
    const std::int32_t row = List().SelectedRow();
    const ListView view = View();
    EXPECT_GE(view.firstRowAt + row * view.rowHeight, 0) << "the row is in sight";
    EXPECT_LE(view.firstRowAt + (row + 1) * view.rowHeight, view.height);
}

TEST_F(EntryList, ALetterThatNoEntryBeginsWithMovesNothing) {
    Type("abc", "ABC");
    GiveListTheKeyboard();
    TypeInList("q7");
    EXPECT_TRUE(StaysFor(200, [&] { return SelectedRecord() == "ABC\tAtanasoff-Berry Computer"; }))
        << SelectedRecord();
}

TEST_F(EntryList, NoKeyOpensAWindowOfTheToolkitsOverIt) {
    Type("abc", "ABC");
    GiveListTheKeyboard();
    user_.Char('F', wxMOD_CONTROL);
    EXPECT_TRUE(StaysFor(100, [&] { return IsFocusIn(List().Window()); }));
    TypeInList("xml");
    EXPECT_TRUE(WaitFor([&] { return BoxText() == "XML"; })) << BoxText();
}

// The mouse is far away meanwhile.
TEST_F(EntryList, TheMenuThatAKeyAsksForOpensAtTheRow) {
    Type("abc", "ABC");
    GiveListTheKeyboard();
    const wxSize display = wxGetDisplaySize();
    user_.MouseMove(display.x - 5, display.y - 5);
    bool opened = false;
    window_->Bind(wxEVT_MENU_OPEN, [&](wxMenuEvent&) { opened = true; });
    wxRect menu;
    ModalDriver driver({[&] { return opened; },
                        [&] {
                            menu = MenuOnScreen();
                            return !menu.IsEmpty();
                        },
                        [&] {
                            user_.Char(WXK_ESCAPE);
                            return true;
                        }});
    user_.Char(WXK_F10, wxMOD_SHIFT);
    EXPECT_TRUE(WaitFor([&] { return driver.Done(); }));
    const ListView view = View();
    const int bottom = view.firstRowAt + (List().SelectedRow() + 1) * view.rowHeight;
    const wxPoint row = List().Window().ClientToScreen(wxPoint(0, bottom));
    EXPECT_NEAR(menu.y, row.y, view.rowHeight);
    EXPECT_GE(menu.x, row.x - 8);
    EXPECT_LT(menu.x, row.x + 100);
}

}  // namespace
}  // namespace brelex
