// SPDX-License-Identifier: MIT
#include "ui/frmMain.h"

#include <gtest/gtest.h>

#include <wx/menu.h>
#include <wx/modalhook.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/textdlg.h>

#include "tests/platform/screen.h"
#include "tests/support/named_case.h"
#include "tests/ui/ui_test_support.h"
#include "toolkit/wx_text.h"
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
        EXPECT_EQ(NameOfOpened([&] { window_->OpenModalForm(SpecOf(item.command).window); }),
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
    window->CallAfter([window] { window->Close(); });
    window->List().onRightPress(0);
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
