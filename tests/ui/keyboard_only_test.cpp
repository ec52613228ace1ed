// SPDX-License-Identifier: MIT
// What each window is for, done without a mouse.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <wx/combobox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "tests/platform/keyboard.h"
#include "tests/ui/ui_test_support.h"
#include "toolkit/wx_text.h"

namespace brelex {
namespace {

class WithKeysAlone : public SideWindowTest {
  protected:
    void SetUp() override {
        SideWindowTest::SetUp();
        Start({"ABC\tAlphabet", "CPU\tCentral Processing Unit", "RAM\tRandom Access Memory",
               "ROM\tRead Only Memory"});
        user_.MouseMove(2, 1000);  // away from all windows
        window_->Bind(wxEVT_MENU_OPEN, [this](wxMenuEvent& event) {
            menuOpened_ = true;
            event.Skip();
        });
    }

    /// Chooses an item of a menu, `below` the first, by the menu's access key and arrow keys.
    void Choose(char menu, int below) {
        menuOpened_ = false;
        // An open menu keeps the test from going on.
        ModalDriver driver({[&] { return menuOpened_; },
                            [&] {
                                for (int i = 0; i < below; ++i) {
                                    user_.Char(WXK_DOWN);
                                }
                                user_.Char(WXK_RETURN);
                                return true;
                            }});
        user_.Char(menu, wxMOD_ALT);
        EXPECT_TRUE(WaitFor([&] { return driver.Done(); }));
    }

    /// Opens a window by its menu, works in it, and closes it with Escape.
    void InChosen(char menu, int below, const char* name, const std::function<void()>& work) {
        InSideWindow(
            name, [&] { OpenSoon(menu, below); },
            [&] {
                work();
                user_.Char(WXK_ESCAPE);
                EXPECT_TRUE(WaitFor([&] { return !Side().IsShown(); })) << name;
            });
    }

    void TypeKeys(const char* keys) {
        for (const char* key = keys; *key != '\0'; ++key) {
            user_.Char(*key);
        }
    }

  private:
    // The window is modal, so that it opens within the choice.
    void OpenSoon(char menu, int below) {
        window_->CallAfter([this, menu, below] { Choose(menu, below); });
    }

    bool menuOpened_ = false;
};

TEST_F(WithKeysAlone, AnEntryIsFoundOpenedAndCopied) {
    PutOnClipboard("before");
    Type("ra", "RA");
    InSideWindow(
        "frmViewEntry", [&] { user_.Char(WXK_RETURN); },
        [&] {
            EXPECT_EQ(Utf8Text(In<wxTextCtrl>("txtAbbrv").GetValue()), "RAM");
            user_.Char('C', wxMOD_CONTROL);
            EXPECT_TRUE(WaitFor([&] { return ClipboardText() == "RAM = Random Access Memory"; }));
            user_.Char(WXK_ESCAPE);
            EXPECT_TRUE(WaitFor([&] { return OpenModalDialog() == nullptr; }));
        });
}

TEST_F(WithKeysAlone, TheListIsReachedAndItsEntryOpened) {
    user_.Char(WXK_TAB);
    user_.Char(WXK_END);
    EXPECT_TRUE(WaitFor([&] { return SelectedRecord() == "ROM\tRead Only Memory"; }));
    InSideWindow(
        "frmViewEntry", [&] { user_.Char(WXK_RETURN); },
        [&] { EXPECT_EQ(Utf8Text(In<wxTextCtrl>("txtAbbrv").GetValue()), "ROM"); });
}

TEST_F(WithKeysAlone, TheDatabaseIsSearchedAndTheHitsRead) {
    InSideWindow(
        "frmSearch", [&] { user_.Char(WXK_F3); },
        [&] {
            TypeKeys("memory");
            ASSERT_TRUE(
                WaitFor([&] { return In<wxComboBox>("cboSearchWhat").GetValue() == "memory"; }));
            user_.Char('N', wxMOD_ALT);  // disabled, so that nothing happens
            user_.Char('D', wxMOD_ALT);
            user_.Char('F', wxMOD_ALT);
            user_.Char(WXK_RETURN);
            EXPECT_TRUE(WaitFor([&] { return Label("lblStatus") == "Number of Hits: 2"; }))
                << Label("lblStatus");
            EXPECT_TRUE(WaitFor([&] { return HasFocus("txtSearchResult"); }));
            user_.Char(WXK_ESCAPE);
            EXPECT_TRUE(WaitFor([&] { return !Side().IsShown(); }));
        });
}

TEST_F(WithKeysAlone, LettersArePutInOrderAndTheHitChosen) {
    InSideWindow(
        "frmAnagram", [&] { window_->CallAfter([&] { Choose('S', 1); }); },
        [&] {
            TypeKeys("mar");
            ASSERT_TRUE(WaitFor([&] { return In<wxComboBox>("cboLetters").GetValue() == "MAR"; }));
            user_.Char('S', wxMOD_ALT);
            EXPECT_TRUE(WaitFor([&] { return Label("lblPercentDone") == "Found 1"; }));
            EXPECT_TRUE(WaitFor([&] { return HasFocus("lstAnagrams"); }));
            user_.Char(WXK_RETURN);
            EXPECT_TRUE(WaitFor([&] { return !Side().IsShown(); }));
        });
    EXPECT_TRUE(WaitFor([&] { return SelectedRecord() == "RAM\tRandom Access Memory"; }));
}

TEST_F(WithKeysAlone, AnEntryIsReachedByItsNumber) {
    InSideWindow(
        "TextQuestion", [&] { user_.Char(WXK_F5); },
        [&] {
            TypeKeys("4");
            EXPECT_TRUE(WaitFor([&] { return In<wxTextCtrl>("txtAnswer").GetValue() == "4"; }));
            user_.Char(WXK_RETURN);
            EXPECT_TRUE(WaitFor([&] { return OpenModalDialog() == nullptr; }));
        });
    EXPECT_TRUE(WaitFor([&] { return SelectedRecord() == "ROM\tRead Only Memory"; }));
}

TEST_F(WithKeysAlone, TheDataIsCheckedAndItsFiguresRead) {
    InChosen('F', 1, "frmCheckData", [&] {
        user_.Char('C', wxMOD_ALT);
        EXPECT_TRUE(WaitFor([&] { return !Label("lblResult").empty(); }));
    });
    InChosen('F', 0, "frmDataInfo",
             [&] { EXPECT_TRUE(WaitFor([&] { return HasFocus("cmdOK"); })); });
}

TEST_F(WithKeysAlone, TheLinksOfTheAboutBoxAreOpened) {
    InChosen('H', 4, "frmAbout", [&] {
        for (int i = 0; i < 3; ++i) {
            user_.Char(WXK_TAB);
            EXPECT_TRUE(WaitFor([&] { return !HasFocus("cmdOK"); }));
            const std::size_t opened = desktop_.opened.size();
            user_.Char(WXK_RETURN);
            EXPECT_TRUE(WaitFor([&] { return desktop_.opened.size() == opened + 1; })) << i;
        }
    });
    EXPECT_EQ(desktop_.opened.size(), 3U);
}

TEST_F(WithKeysAlone, TheDonationPageIsOpenedAndTheSmileysAreRead) {
    InChosen('H', 3, "frmDonation", [&] {
        user_.Char('D', wxMOD_ALT);
        EXPECT_TRUE(WaitFor([&] { return desktop_.opened.size() == 1; }));
    });
    InChosen('H', 2, "frmSmiley", [&] {
        auto& text = In<wxTextCtrl>("txtReadme");
        user_.Char(WXK_END, wxMOD_CONTROL);
        EXPECT_TRUE(WaitFor([&] { return text.GetInsertionPoint() == text.GetLastPosition(); }));
    });
}

TEST_F(WithKeysAlone, TheHelpAndTheReadMeAreOpened) {
    folder_.Write("Brelex.hlp", "a book");
    folder_.Write("ReadMe.txt", "a text");
    desktop_.hasViewer = true;
    user_.Char(WXK_F1);
    EXPECT_TRUE(WaitFor([&] { return !desktop_.viewersStarted.empty(); }));
    Choose('H', 1);
    EXPECT_TRUE(WaitFor([&] { return !desktop_.openedToRead.empty(); }));
}

TEST_F(WithKeysAlone, TheProgramIsEnded) {
    Choose('F', 2);
    EXPECT_TRUE(WaitFor([&] { return wxWindow::FindWindowByName("frmMain") == nullptr; }));
    window_ = nullptr;
}

}  // namespace
}  // namespace brelex
