// SPDX-License-Identifier: MIT
#include "ui/frmViewEntry.h"

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <wx/button.h>
#include <wx/clipbrd.h>
#include <wx/dataobj.h>
#include <wx/menuitem.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "database/database_header.h"
#include "tests/platform/keyboard.h"
#include "tests/support/named_case.h"
#include "tests/ui/pictures.h"
#include "tests/ui/ui_test_support.h"
#include "toolkit/wx_text.h"
#include "ui/main/main_menus.h"

namespace brelex {
namespace {

const char* const kBefore = "on the clipboard before";

class EntryViewerTest : public SideWindowTest {
  protected:
    void SetUp() override {
        Start({"A B C\tCaf\xE9 (two tables)", "NOTAB and more", "RAM\tRandom Access Memory",
               "ROM\tRead Only Memory", "TWO\tOne\tTwo"});
    }

    // Selects an entry as typing does and presses Return.
    void InViewer(const char* record, const std::function<void()>& work) {
        for (std::int32_t number = 1; SelectedRecord() != record; ++number) {
            ASSERT_LE(number, 5);
            window_->GoToRecordNumber(RecordNumber{number});
        }
        GiveBoxTheKeyboard();
        InSideWindow(
            "frmViewEntry", [&] { user_.Char(WXK_RETURN); }, work);
    }

    [[nodiscard]] std::string Text(const char* name) const {
        return Utf8Text(In<wxTextCtrl>(name).GetValue());
    }
};

TEST_F(EntryViewerTest, ShowsTheSelectedEntryAndItsLetters) {
    InViewer("ROM\tRead Only Memory", [&] {
        EXPECT_EQ(Side().GetTitle(), "Current Selection (Read Only)");
        EXPECT_EQ(Text("txtAbbrv"), "ROM");
        EXPECT_EQ(Text("txtExpn"), "Read Only Memory");
        EXPECT_EQ(Label("lblAbbrLen"), "3");
        EXPECT_EQ(Label("lblExpnLen"), "14");
        EXPECT_FALSE(In<wxTextCtrl>("txtAbbrv").IsEditable());
        EXPECT_FALSE(In<wxTextCtrl>("txtExpn").IsEditable());
        EXPECT_EQ(In("cmdCopy").GetToolTipText(), "Shortcut Ctrl+C");
        EXPECT_TRUE(In<wxButton>("cmdCopy").GetBitmap().IsOk());
        EXPECT_EQ(In("cmdCopy").GetLabel(), "Copy");
        std::vector<std::string> labels;
        for (const wxWindow* child : In("cmdOK").GetParent()->GetChildren()) {
            if (dynamic_cast<const wxStaticText*>(child) != nullptr) {
                labels.push_back(Utf8Text(wxControl::RemoveMnemonics(child->GetLabel())));
            }
        }
        std::sort(labels.begin(), labels.end());
        EXPECT_EQ(labels, (std::vector<std::string>{
                              "14", "3", "Abbreviation:", "Expansion:", "letters", "letters"}));
    });
}

TEST_F(EntryViewerTest, TheExpansionKeepsItsDistanceToTheEdge) {
    InViewer("ROM\tRead Only Memory", [&] {
        constexpr int kMargin = 4;
        EXPECT_TRUE(WaitFor([&] { return RowsAboveText(In("txtExpn")) >= kMargin + 2; }))
            << RowsAboveText(In("txtExpn"));
    });
}

TEST_F(EntryViewerTest, BlanksAreNoLettersInAbbreviationsEither) {
    InViewer("A B C\tCaf\xE9 (two tables)", [&] {
        EXPECT_EQ(Label("lblAbbrLen"), "3");
        EXPECT_EQ(Text("txtExpn"), "Caf\u00E9 (two tables)");
        EXPECT_EQ(Label("lblExpnLen"), "15");
    });
}

TEST_F(EntryViewerTest, ARecordWithoutTabIsAllExpansion) {
    InViewer("NOTAB and more", [&] {
        EXPECT_EQ(Text("txtAbbrv"), "");
        EXPECT_EQ(Text("txtExpn"), "NOTAB and more");
        EXPECT_EQ(Label("lblAbbrLen"), "0");
        EXPECT_EQ(Label("lblExpnLen"), "12");
        PutOnClipboard(kBefore);
        Click("cmdCopy");
        EXPECT_TRUE(WaitFor([&] { return ClipboardText() == " = NOTAB and more"; }));
    });
}

TEST_F(EntryViewerTest, OnlyTheFirstTabParts) {
    InViewer("TWO\tOne\tTwo", [&] {
        EXPECT_EQ(Text("txtExpn"), "One\tTwo");
        EXPECT_EQ(Label("lblExpnLen"), "7");
    });
}

TEST_F(EntryViewerTest, LongTextsAreCountedWithoutSeparators) {
    Start({"RAM\t" + std::string(1234, 'x')});
    InViewer(("RAM\t" + std::string(1234, 'x')).c_str(),
             [&] { EXPECT_EQ(Label("lblExpnLen"), "1234"); });
}

TEST_F(EntryViewerTest, TheButtonCopiesTheEntry) {
    InViewer("RAM\tRandom Access Memory", [&] {
        PutOnClipboard(kBefore);
        Click("cmdCopy");
        EXPECT_TRUE(WaitFor([&] { return ClipboardText() == "RAM = Random Access Memory"; }))
            << ClipboardText();
    });
}

TEST_F(EntryViewerTest, NothingElseStaysOnTheClipboard) {
    const wxDataFormat other("application/x-brelex-test");
    InViewer("RAM\tRandom Access Memory", [&] {
        {
            auto* const data = new wxCustomDataObject(other);
            data->SetData(4, "data");
            const wxClipboardLocker clipboard;
            ASSERT_TRUE(wxTheClipboard->SetData(data));
            ASSERT_TRUE(wxTheClipboard->IsSupported(other));
        }
        Click("cmdCopy");
        EXPECT_TRUE(WaitFor([&] { return ClipboardText() == "RAM = Random Access Memory"; }));
        const wxClipboardLocker clipboard;
        EXPECT_FALSE(wxTheClipboard->IsSupported(other));
    });
}

TEST_F(EntryViewerTest, CtrlCCopiesTheEntryWhateverHasTheFocus) {
    InViewer("RAM\tRandom Access Memory", [&] {
        for (const char* name : {"cmdOK", "cmdCopy", "txtAbbrv", "txtExpn"}) {
            PutOnClipboard(kBefore);
            In(name).SetFocus();
            ASSERT_TRUE(WaitFor([&] { return HasFocus(name); }));
            user_.Char('C', wxMOD_CONTROL);
            EXPECT_TRUE(WaitFor([&] { return ClipboardText() == "RAM = Random Access Memory"; }))
                << name << ": " << ClipboardText();
        }
    });
}

TEST_F(EntryViewerTest, CtrlCCopiesTheWholeEntryAlsoOverASelection) {
    InViewer("RAM\tRandom Access Memory", [&] {
        PutOnClipboard(kBefore);
        In("txtExpn").SetFocus();
        ASSERT_TRUE(WaitFor([&] { return HasFocus("txtExpn"); }));
        In<wxTextCtrl>("txtExpn").SetSelection(0, 6);
        user_.Char('C', wxMOD_CONTROL);
        EXPECT_TRUE(WaitFor([&] { return ClipboardText() == "RAM = Random Access Memory"; }))
            << ClipboardText();
    });
}

struct OtherKeysCase {
    const char* name;
    int modifiers;
};

class OtherKeys : public EntryViewerTest, public testing::WithParamInterface<OtherKeysCase> {};

TEST_P(OtherKeys, DoNotCopy) {
    InViewer("RAM\tRandom Access Memory", [&] {
        PutOnClipboard(kBefore);
        user_.Char('C', GetParam().modifiers);
        EXPECT_TRUE(StaysFor(150, [&] { return Side().IsShown(); }));
        EXPECT_EQ(ClipboardText(), kBefore);
    });
}

INSTANTIATE_TEST_SUITE_P(Table, OtherKeys,
                         testing::Values(OtherKeysCase{"CtrlShift", wxMOD_CONTROL | wxMOD_SHIFT},
                                         OtherKeysCase{"CtrlAlt", wxMOD_CONTROL | wxMOD_ALT},
                                         OtherKeysCase{"Plain", wxMOD_NONE}),
                         CaseName());

TEST_F(EntryViewerTest, CopiesWhatTheListHasSelectedNow) {
    InViewer("RAM\tRandom Access Memory", [&] {
        window_->GoToRecordNumber(RecordNumber{4});
        user_.Char('C', wxMOD_CONTROL);
        EXPECT_TRUE(WaitFor([&] { return ClipboardText() == "ROM = Read Only Memory"; }))
            << ClipboardText();
    });
}

TEST_F(EntryViewerTest, OkReturnAndEscapeCloseItAndTheNextShowsTheSelectionAfresh) {
    const auto closes = [&](const std::function<void()>& close) {
        InViewer("RAM\tRandom Access Memory", [&] {
            close();
            EXPECT_TRUE(WaitFor([&] { return !Side().IsShown(); }));
        });
        EXPECT_TRUE(WaitFor([] { return wxWindow::FindWindowByName("frmViewEntry") == nullptr; }));
        EXPECT_FALSE(window_->IsModalOpen());
    };
    closes([&] { Click("cmdOK"); });
    closes([&] { user_.Char(WXK_RETURN); });
    closes([&] {
        In("txtExpn").SetFocus();
        ASSERT_TRUE(WaitFor([&] { return HasFocus("txtExpn"); }));
        user_.Char(WXK_RETURN);
    });
    closes([&] {
        In("txtExpn").SetFocus();
        ASSERT_TRUE(WaitFor([&] { return HasFocus("txtExpn"); }));
        PressKeypadEnter();
    });
    closes([&] { user_.Char(WXK_ESCAPE); });
    closes([&] { Side().Close(); });
    InViewer("ROM\tRead Only Memory", [&] { EXPECT_EQ(Text("txtAbbrv"), "ROM"); });
}

TEST_F(EntryViewerTest, TheAccessKeysLeadToTheBoxes) {
    InViewer("RAM\tRandom Access Memory", [&] {
        user_.Char('E', wxMOD_ALT);
        EXPECT_TRUE(WaitFor([&] { return HasFocus("txtExpn"); }));
        user_.Char('A', wxMOD_ALT);
        EXPECT_TRUE(WaitFor([&] { return HasFocus("txtAbbrv"); }));
    });
}

TEST_F(EntryViewerTest, TabVisitsTheControlsInTheirOrder) {
    InViewer("RAM\tRandom Access Memory", [&] {
        EXPECT_TRUE(HasFocus("cmdOK"));
        for (const char* name : {"txtAbbrv", "txtExpn", "cmdCopy", "cmdOK"}) {
            user_.Char(WXK_TAB);
            EXPECT_TRUE(WaitFor([&] { return HasFocus(name); })) << name;
        }
    });
}

TEST_F(EntryViewerTest, TheBoxesTellWhatProgramThisIsInsteadOfAMenu) {
    InViewer("RAM\tRandom Access Memory", [&] {
        const MessageBoxes boxes;
        In("txtAbbrv").SetFocus();
        ASSERT_TRUE(WaitFor([&] { return HasFocus("txtAbbrv"); }));
        user_.Char(WXK_F10, wxMOD_SHIFT);
        ASSERT_TRUE(WaitFor([&] { return boxes.texts.size() == 1; }));
        EXPECT_TRUE(boxes.texts[0].starts_with("Brevilexicon version ")) << boxes.texts[0];
    });
}

TEST_F(EntryViewerTest, ADoubleClickOpensIt) {
    const wxPoint row(40, window_->List().RowHeight() * 5 / 2);
    EXPECT_EQ(NameOfOpened([&] {
                  user_.MouseMove(window_->List().Window().ClientToScreen(row));
                  LetEventsArrive();
                  user_.MouseDblClick();
              }),
              "frmViewEntry");
    EXPECT_EQ(SelectedRecord(), "RAM\tRandom Access Memory");
}

TEST_F(EntryViewerTest, WithoutAnEntryThereIsNothingToView) {
    StartWith(
        DatabaseBytes({"AB\tAddress Bus"}, [](DatabaseHeader& header) { header.RecordCount = 0; }),
        "");
    wxCommandEvent view(wxEVT_MENU, IdOf(Command::ViewEntry));
    window_->ProcessWindowEvent(view);
    EXPECT_EQ(wxWindow::FindWindowByName("frmViewEntry"), nullptr);
    user_.Char(WXK_RETURN);
    EXPECT_TRUE(StaysFor(100, [&] { return !window_->IsModalOpen(); }));
}

TEST_F(EntryViewerTest, TheEndOfTheProgramClosesItFirst) {
    frmMain* const window = window_;
    InViewer("RAM\tRandom Access Memory", [&] {
        window->Close(true);
        EXPECT_TRUE(WaitFor([&] { return !Side().IsShown(); }));
        window_ = nullptr;
    });
    EXPECT_TRUE(WaitFor([&] { return wxTopLevelWindows.Find(window) == nullptr; }));
}

}  // namespace
}  // namespace brelex
