// SPDX-License-Identifier: MIT
// The look-up with the keyboard and the mouse: the box, the list and the record number.
#include <gtest/gtest.h>

#include <wx/modalhook.h>
#include <wx/textctrl.h>
#include <wx/textdlg.h>

#include "tests/support/named_case.h"
#include "tests/ui/ui_test_support.h"
#include "toolkit/wx_text.h"
#include "ui/frmMain.h"
#include "ui/main/main_menus.h"

namespace brelex {
namespace {

class FrmMainLookup : public MainWindowTest {};

TEST_F(FrmMainLookup, TypingTwoLettersShowsThemAsCapitalsAndSelectsTheFirstEntry) {
    Type("ab", "AB");
    EXPECT_EQ(SelectedRecord(), "AB\tAddress Bus");
    EXPECT_EQ(LabelText("lblRecNumber"), "1");
}

TEST_F(FrmMainLookup, TheFoundRowIsSecondFromTheTop) {
    Type("m1", "M1");
    const std::int32_t row = window_->List().SelectedRow();
    EXPECT_EQ(SelectedRecord(), "M10000\tMiddle entry");
    EXPECT_EQ(window_->List().TopRow(), row - 1);
    Type("0500", "M10500");
    EXPECT_EQ(SelectedRecord(), "M10500\tMiddle entry");
    EXPECT_EQ(window_->List().TopRow(), window_->List().SelectedRow() - 1);
}

TEST_F(FrmMainLookup, TheListFollowsEachKey) {
    Type("a", "A");
    EXPECT_EQ(SelectedRecord(), "AB\tAddress Bus");
    Type("bc", "ABC");
    EXPECT_EQ(SelectedRecord(), "ABC\tAtanasoff-Berry Computer");
    user_.Char(WXK_BACK);
    ASSERT_TRUE(WaitFor([&] { return BoxText() == "AB"; }));
    EXPECT_TRUE(WaitFor([&] { return SelectedRecord() == "AB\tAddress Bus"; }));
}

TEST_F(FrmMainLookup, AnAmpersandIsShownAsItIs) {
    Type("r", "R");
    user_.Char('7', wxMOD_SHIFT);
    ASSERT_TRUE(WaitFor([&] { return BoxText() == "R&"; })) << BoxText();
    EXPECT_EQ(SelectedRecord(), "R&D\tResearch and Development");
    user_.Char(WXK_UP);
    user_.Char(WXK_DOWN);
    EXPECT_TRUE(WaitFor([&] { return BoxText() == "R&D"; })) << BoxText();
}

TEST_F(FrmMainLookup, OvertypingASelectionIsOneChange) {
    Type("xss", "XSS");
    SelectAllInBox();
    Type("a", "A");
    EXPECT_EQ(SelectedRecord(), "AB\tAddress Bus");
    SelectAllInBox();
    Type("x", "X");
    EXPECT_EQ(SelectedRecord(), "XML\tExtensible Markup Language");
    EXPECT_FALSE(window_->Lookup().IsLookupBusy);
    Type("s", "XS");
    EXPECT_EQ(SelectedRecord(), "XSS\tCross-Site Scripting");
}

TEST_F(FrmMainLookup, FastTypingAndErasingIsNotOneChange) {
    Type("a", "A");
    user_.Char('b');
    user_.Char(WXK_BACK);
    LetEventsArrive();
    EXPECT_TRUE(StaysFor(200, [&] { return BoxText() == "A"; })) << BoxText();
    EXPECT_FALSE(window_->Lookup().IsLookupBusy);
}

TEST_F(FrmMainLookup, DownMovesTheSelectionAndWritesItsAbbreviationIntoTheBox) {
    Type("ab", "AB");
    user_.Char(WXK_DOWN);
    ASSERT_TRUE(WaitFor([&] { return SelectedRecord() == "AB\tAudio Bus"; }));
    user_.Char(WXK_DOWN);
    ASSERT_TRUE(WaitFor([&] { return BoxText() == "ABC"; }));
    EXPECT_EQ(LabelText("lblRecNumber"), "3");
    EXPECT_EQ(Box().GetInsertionPoint(), 3);
    EXPECT_EQ(wxWindow::FindFocus(), &Box());
    user_.Char(WXK_UP);
    EXPECT_TRUE(WaitFor([&] { return BoxText() == "AB"; }));
}

TEST_F(FrmMainLookup, PageKeysMoveByThePageOfTheList) {
    Type("m1", "M1");
    const std::int32_t start = window_->List().SelectedRow();
    const std::int32_t page = window_->List().RowsPerPage() - 1;
    user_.Char(WXK_PAGEDOWN);
    EXPECT_TRUE(WaitFor([&] { return window_->List().SelectedRow() == start + page; }));
    user_.Char(WXK_PAGEUP);
    EXPECT_TRUE(WaitFor([&] { return window_->List().SelectedRow() == start; }));
}

TEST_F(FrmMainLookup, AMovedSelectionStaysInSight) {
    Type("m1", "M1");
    for (int i = 0; i < 40; ++i) {
        user_.Char(WXK_DOWN);
    }
    const std::int32_t target = window_->Lookup().FoundRow + 40;
    ASSERT_TRUE(WaitFor([&] { return window_->List().SelectedRow() == target; }));
    EXPECT_LE(window_->List().TopRow(), target);
    EXPECT_GT(window_->List().TopRow() + window_->List().RowsPerPage(), target);
}

TEST_F(FrmMainLookup, HomeEndLeftAndRightStayWithTheBox) {
    Type("abc", "ABC");
    const std::int32_t row = window_->List().SelectedRow();
    user_.Char(WXK_HOME);
    ASSERT_TRUE(WaitFor([&] { return Box().GetInsertionPoint() == 0; }));
    user_.Char(WXK_RIGHT);
    ASSERT_TRUE(WaitFor([&] { return Box().GetInsertionPoint() == 1; }));
    user_.Char(WXK_END);
    ASSERT_TRUE(WaitFor([&] { return Box().GetInsertionPoint() == 3; }));
    user_.Char(WXK_LEFT);
    ASSERT_TRUE(WaitFor([&] { return Box().GetInsertionPoint() == 2; }));
    EXPECT_EQ(window_->List().SelectedRow(), row);
}

TEST_F(FrmMainLookup, EnterInTheBoxGoesToTheList) {
    Type("abc", "ABC");
    int opened = 0;
    window_->List().onEnter = [&] { ++opened; };
    user_.Char(WXK_RETURN);
    EXPECT_TRUE(WaitFor([&] { return opened == 1; }));
    EXPECT_EQ(BoxText(), "ABC");
}

TEST_F(FrmMainLookup, EnterInTheListOpensTheEntryAndShiftEnterDoesNot) {
    Type("abc", "ABC");
    int opened = 0;
    window_->List().onEnter = [&] { ++opened; };
    window_->List().Window().SetFocus();
    ASSERT_TRUE(WaitFor([&] { return window_->Lookup().IsNavigating; }));
    user_.Char(WXK_RETURN, wxMOD_SHIFT);
    user_.Char(WXK_RETURN, wxMOD_CONTROL);
    EXPECT_TRUE(StaysFor(150, [&] { return opened == 0; }));
    user_.Char(WXK_RETURN);
    EXPECT_TRUE(WaitFor([&] { return opened == 1; }));
}

TEST_F(FrmMainLookup, ShiftEnterInTheBoxOpensNothing) {
    Type("abc", "ABC");
    int opened = 0;
    window_->List().onEnter = [&] { ++opened; };
    user_.Char(WXK_RETURN, wxMOD_SHIFT);
    user_.Char(WXK_RETURN, wxMOD_CONTROL);
    EXPECT_TRUE(StaysFor(150, [&] { return opened == 0; }));
    EXPECT_EQ(BoxText(), "ABC");
}

TEST_F(FrmMainLookup, ABlankInTheListOpensNothing) {
    Type("abc", "ABC");
    int opened = 0;
    window_->List().onEnter = [&] { ++opened; };
    window_->List().Window().SetFocus();
    ASSERT_TRUE(WaitFor([&] { return window_->Lookup().IsNavigating; }));
    user_.Char(WXK_SPACE);
    EXPECT_TRUE(StaysFor(150, [&] { return opened == 0; }));
}

TEST_F(FrmMainLookup, ADoubleClickOnARowOpensTheEntry) {
    int opened = 0;
    EntryListControl& list = window_->List();
    list.onEnter = [&] { ++opened; };
    const wxPoint point(40, 2 * list.RowHeight() + list.RowHeight() / 2);
    user_.MouseMove(list.Window().ClientToScreen(point));
    LetEventsArrive();
    user_.MouseDblClick();
    EXPECT_TRUE(WaitFor([&] { return opened == 1; }));
    EXPECT_EQ(SelectedRecord(), "ABC\tAtanasoff-Berry Computer");
}

TEST_F(FrmMainLookup, AClickWithCtrlKeepsTheRowSelected) {
    Type("ab", "AB");
    EntryListControl& list = window_->List();
    user_.MouseMove(list.Window().ClientToScreen(wxPoint(40, list.RowHeight() / 2)));
    LetEventsArrive();
    user_.MouseClick();
    ASSERT_TRUE(WaitFor([&] { return window_->Lookup().IsNavigating; }));
    // The next click is not to be taken for the second of two.
    EXPECT_TRUE(StaysFor(600, [&] { return list.SelectedRow() == 0; }));
    user_.KeyDown(WXK_CONTROL);
    user_.MouseClick();
    user_.KeyUp(WXK_CONTROL);
    LetEventsArrive();
    EXPECT_TRUE(StaysFor(150, [&] { return list.SelectedRow() == 0 && list.IsHighlighted(0); }));
}

TEST_F(FrmMainLookup, GettingTheFocusSelectsNoRow) {
    user_.Char(WXK_TAB);
    ASSERT_TRUE(WaitFor([&] { return window_->Lookup().IsNavigating; }));
    EXPECT_TRUE(StaysFor(100, [&] { return window_->List().SelectedRow() == -1; }));
    EXPECT_EQ(BoxText(), "");
    user_.Char(WXK_DOWN);
    EXPECT_TRUE(WaitFor([&] { return BoxText() == "AB"; })) << BoxText();
}

TEST_F(FrmMainLookup, AClickOnTheHeaderGivesTheListTheFocusAndSelectsNothing) {
    user_.MouseMove(Control("picColHeader")->ClientToScreen(wxPoint(200, 8)));
    LetEventsArrive();
    user_.MouseClick();
    ASSERT_TRUE(WaitFor([&] { return window_->Lookup().IsNavigating; }));
    EXPECT_TRUE(StaysFor(100, [&] { return window_->List().SelectedRow() == -1; }));
    EXPECT_EQ(BoxText(), "");
}

TEST_F(FrmMainLookup, ASmallLetterTypedWithShiftIsRaisedToo) {
    wxKeyEvent event(wxEVT_CHAR);
    event.m_uniChar = 'x';  // as with caps lock and Shift
    event.m_keyCode = 'x';
    event.SetShiftDown(true);
    Box().ProcessWindowEvent(event);
    EXPECT_TRUE(WaitFor([&] { return BoxText() == "X"; })) << BoxText();
}

class PastedText : public FrmMainLookup {
  protected:
    void Paste(const wxString& text) {
        PutOnClipboard(text);
        user_.Char('V', wxMOD_CONTROL);
    }
};

TEST_F(PastedText, IsLookedUpAsItIs) {
    Paste("xss");
    EXPECT_TRUE(WaitFor([&] { return BoxText() == "xss"; })) << BoxText();
    EXPECT_TRUE(WaitFor([&] { return SelectedRecord() == "XSS\tCross-Site Scripting"; }));
}

TEST_F(PastedText, IsCutToTheRoomThereIs) {
    Type("ab", "AB");
    SelectAllInBox();
    Paste("xss and much more");
    EXPECT_TRUE(WaitFor([&] { return BoxText() == "xss an"; })) << BoxText();
}

TEST_F(FrmMainLookup, AnAbbreviationBeyondTheHeadersMaximumIsShown) {
    StartWith(DatabaseBytes({"AB\tx", "ABCDE\ty"},
                            [](DatabaseHeader& header) { header.MaxAbbrvLength = 2; }),
              "");
    window_->GoToRecordNumber(RecordNumber{2});
    EXPECT_EQ(BoxText(), "ABCDE");
}

TEST_F(FrmMainLookup, TheBoxTakesNoMoreThanTheLongestAbbreviation) {
    Type("abcdefghij", "ABCDEF");
}

TEST_F(FrmMainLookup, GettingTheFocusSelectsTheWholeText) {
    Type("abc", "ABC");
    user_.Char(WXK_TAB);
    ASSERT_TRUE(WaitFor([&] { return wxWindow::FindFocus() != &Box(); }));
    user_.Char(WXK_TAB);
    ASSERT_TRUE(WaitFor([&] { return wxWindow::FindFocus() == &Box(); }));
    EXPECT_TRUE(WaitFor([&] { return Box().GetStringSelection() == "ABC"; }));
    Type("x", "X");
}

TEST_F(FrmMainLookup, TheAccessKeyOfTheInstructionLeadsToTheBox) {
    window_->List().Window().SetFocus();
    ASSERT_TRUE(WaitFor([&] { return window_->Lookup().IsNavigating; }));
    user_.Char('T', wxMOD_ALT);
    EXPECT_TRUE(WaitFor([&] { return wxWindow::FindFocus() == &Box(); }));
}

TEST_F(FrmMainLookup, ClickingARowSelectsItAndWritesTheBox) {
    Type("m1", "M1");
    EntryListControl& list = window_->List();
    const std::int32_t row = list.TopRow() + 4;
    const wxPoint point(40, 4 * list.RowHeight() + list.RowHeight() / 2);
    ASSERT_EQ(list.RowAt(point), row);
    user_.MouseMove(list.Window().ClientToScreen(point));
    LetEventsArrive();
    user_.MouseClick();
    EXPECT_TRUE(WaitFor([&] { return list.SelectedRow() == row; }));
    EXPECT_TRUE(WaitFor([&] { return BoxText() == "M10003"; })) << BoxText();
    EXPECT_TRUE(window_->Lookup().IsNavigating);
}

TEST_F(FrmMainLookup, KeysInTheListAreFollowedByTheBox) {
    Type("ab", "AB");
    window_->List().Window().SetFocus();
    ASSERT_TRUE(WaitFor([&] { return window_->Lookup().IsNavigating; }));
    user_.Char(WXK_DOWN);
    user_.Char(WXK_DOWN);
    EXPECT_TRUE(WaitFor([&] { return BoxText() == "ABC"; })) << BoxText();
    EXPECT_EQ(LabelText("lblRecNumber"), "3");
}

TEST_F(FrmMainLookup, SelectingByLookupRaisesNoClick) {
    int clicks = 0;
    window_->List().onClick = [&](std::int32_t) { ++clicks; };
    Type("xss", "XSS");
    window_->List().SelectRow(3);
    window_->GoToRecordNumber(RecordNumber{5});
    EXPECT_TRUE(StaysFor(80, [&] { return clicks == 0; }));
}

TEST_F(FrmMainLookup, BelowTheLastRowThereIsNone) {
    Start({"AB\tx", "AC\ty"});
    EntryListControl& list = window_->List();
    EXPECT_EQ(list.RowAt(wxPoint(10, list.RowHeight() / 2)), 0);
    EXPECT_EQ(list.RowAt(wxPoint(10, 5 * list.RowHeight())), -1);
}

TEST_F(FrmMainLookup, ARecordWithoutTabIsShownAsItStands) {
    Start({"AB\tx", "no tab"});
    window_->GoToRecordNumber(RecordNumber{2});
    EXPECT_EQ(BoxText(), "");
    EXPECT_EQ(SelectedRecord(), "no tab");
}

struct GoToCase {
    const char* name;
    const char* answer;
    const char* number;
    bool refused = false;
};

// Answers the question for a record number.
class AnswerRecordNumber final : public wxExpectModalBase<wxTextEntryDialog, AnswerRecordNumber> {
  public:
    explicit AnswerRecordNumber(const char* answer) : answer_(answer) {}

  protected:
    int OnInvoked(wxTextEntryDialog* dialog) const override {
        EXPECT_EQ(dialog->GetTitle(), "Go to Record");
        EXPECT_EQ(dialog->GetValue(), "4");  // the current one
        dialog->SetValue(answer_);
        return wxID_OK;
    }

  private:
    const char* answer_;
};

class GoToRow : public FrmMainLookup, public testing::WithParamInterface<GoToCase> {};

TEST_P(GoToRow, SelectsTheRecord) {
    window_->GoToRecordNumber(RecordNumber{4});
    wxCommandEvent command(wxEVT_MENU, IdOf(Command::GoToRow));
    if (GetParam().refused) {
        wxTEST_DIALOG(window_->ProcessWindowEvent(command), AnswerRecordNumber(GetParam().answer),
                      wxExpectModal<wxMessageDialog>(wxOK));
    } else {
        wxTEST_DIALOG(window_->ProcessWindowEvent(command), AnswerRecordNumber(GetParam().answer));
    }
    EXPECT_EQ(LabelText("lblRecNumber"), GetParam().number);
}

INSTANTIATE_TEST_SUITE_P(Answers, GoToRow,
                         testing::Values(GoToCase{"ANumber", "1234", "1,234"},
                                         GoToCase{"Letters", "abc", "4", true}),
                         CaseName());

TEST_F(FrmMainLookup, F5AsksForTheRecordWithTheKeyboard) {
    wxTextEntryDialog* dialog = nullptr;
    const auto typed = [&] {
        for (wxWindow* child : dialog->GetChildren()) {
            if (const auto* box = dynamic_cast<wxTextCtrl*>(child)) {
                return Utf8Text(box->GetValue());
            }
        }
        return std::string();
    };
    ModalDriver driver({
        [&] {
            for (wxWindow* window : wxTopLevelWindows) {
                dialog = dynamic_cast<wxTextEntryDialog*>(window);
                if (dialog != nullptr) {
                    return dialog->IsActive();
                }
            }
            return false;
        },
        [&] {
            EXPECT_EQ(dialog->GetTitle(), "Go to Record");
            bool prompted = false;
            for (wxWindow* child : dialog->GetChildren()) {
                prompted |= child->GetLabel() == "Go to record (1 - 1506):";
            }
            EXPECT_TRUE(prompted);
            user_.Char('A', wxMOD_CONTROL);
            user_.Char('7');
            return true;
        },
        [&] { return typed() == "7"; },
        [&] {
            user_.Char(WXK_RETURN);
            return true;
        },
    });
    user_.Char(WXK_F5);
    EXPECT_TRUE(WaitFor([&] { return driver.Done() && LabelText("lblRecNumber") == "7"; }));
    EXPECT_EQ(BoxText(), "M10003");
    // The caret stands behind the text, also when the box has its focus back.
    ASSERT_TRUE(WaitFor([&] { return wxWindow::FindFocus() == &Box(); }));
    const auto isBehind = [&] {
        return Box().GetInsertionPoint() == 6 && Box().GetStringSelection().empty();
    };
    EXPECT_TRUE(WaitFor(isBehind));
    EXPECT_TRUE(StaysFor(150, isBehind));
}

TEST_F(FrmMainLookup, ADoubleClickOnTheRecordNumberAsksForTheRecord) {
    Type("x", "X");
    const wxWindow* label = Control("lblRecNumber");
    user_.MouseMove(label->GetParent()->ClientToScreen(label->GetPosition() + wxPoint(5, 5)));
    LetEventsArrive();
    std::string title;
    EXPECT_NE(NameOfOpened([&] { user_.MouseDblClick(); },
                           [&] { title = Utf8Text(OpenModalDialog()->GetTitle()); }),
              "");
    EXPECT_EQ(title, "Go to Record");
    EXPECT_EQ(LabelText("lblRecNumber"), "1,505");
}

}  // namespace
}  // namespace brelex
