// SPDX-License-Identifier: MIT
#include "ui/frmAnagram.h"

#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <wx/combobox.h>
#include <wx/msgdlg.h>
#include <wx/stattext.h>
#include <wx/utils.h>

#include "base/windows1252.h"
#include "tests/platform/enlarge.h"
#include "tests/platform/keyboard.h"
#include "tests/platform/screen.h"
#include "tests/ui/ui_test_support.h"
#include "toolkit/wx_text.h"
#include "ui/controls/busy_animation.h"

namespace brelex {
namespace {

std::vector<std::string> AnagramEntries() {
    std::vector<std::string> records = {
        "C-PU\tHyphenated", "CP U\tWith a blank", "CPU\tCentral Processing Unit",
        "UCP\tUniform Cp",  "ram\tSmall",         "Zz\tLast"};
    for (int i = 0; i < 244; ++i) {
        records.push_back("M" + std::to_string(10000 + i) + "\tMiddle entry");
    }
    return records;
}

class AnagramWindowTest : public SideWindowTest {
  protected:
    void SetUp() override { Start(AnagramEntries()); }

    // Opens the window as the menu does, works in it, and closes it if it is still open.
    void InAnagramWindow(const std::function<void()>& work) {
        InSideWindow(
            "frmAnagram", [&] { window_->OpenModalForm(1); },
            [&] {
                anagram_ = &dynamic_cast<frmAnagram&>(Side());
                work();
            });
    }

    [[nodiscard]] static frmAnagram* FindAnagramWindow() {
        return dynamic_cast<frmAnagram*>(wxWindow::FindWindowByName("frmAnagram"));
    }

    [[nodiscard]] std::string Letters() const {
        return Utf8Text(In<wxComboBox>("cboLetters").GetValue());
    }

    [[nodiscard]] std::vector<std::string> Rows() const {
        std::vector<std::string> rows;
        rows.reserve(static_cast<std::size_t>(anagram_->HitRows().RowCount()));
        for (std::int32_t row = 0; row < anagram_->HitRows().RowCount(); ++row) {
            rows.emplace_back(anagram_->HitRows().RowText(row));
        }
        return rows;
    }

    void FocusLetters() {
        In("cboLetters").SetFocus();
        ASSERT_TRUE(WaitFor([&] { return HasFocus("cboLetters"); }));
    }

    void EmptyLetters() {
        FocusLetters();
        user_.Char(WXK_HOME);
        user_.Char(WXK_END, wxMOD_SHIFT);
        user_.Char(WXK_DELETE);
        ASSERT_TRUE(WaitFor([&] { return Letters().empty(); }));
    }

    // Replaces the letters by typing.
    void TypeLetters(const std::string& keys, const std::string& shown) {
        EmptyLetters();
        for (const char key : keys) {
            user_.Char(key);
        }
        ASSERT_TRUE(WaitFor([&] { return Letters() == shown; })) << Letters();
    }

    void Search(const std::string& keys, const std::string& shown) {
        TypeLetters(keys, shown);
        user_.Char(WXK_RETURN);
        ASSERT_TRUE(WaitFor([&] { return Label("lblPercentDone").starts_with("Found"); }));
    }

    void Paste(const wxString& text) {
        PutOnClipboard(text);
        user_.Char('V', wxMOD_CONTROL);
    }

    void DoubleClickRow(std::int32_t row) {
        wxWindow& list = anagram_->Hits().Window();
        const int height = anagram_->Hits().RowHeight();
        const wxPoint point = list.ClientToScreen(wxPoint(40, row * height + height / 2));
        user_.MouseMove(point);
        EXPECT_TRUE(WaitFor([&] { return wxGetMousePosition() == point; }));
        user_.MouseDblClick();
    }

    frmAnagram* anagram_ = nullptr;
};

const std::vector<std::string> kCpuHits = {"C-PU\tHyphenated", "CPU\tCentral Processing Unit",
                                           "UCP\tUniform Cp"};

TEST_F(AnagramWindowTest, TheListGrowsWithTheWindow) {
    const wxSize more(60, 80);
    wxSize designed;
    InAnagramWindow([&] {
        designed = anagram_->GetClientSize();
        const wxSize list = In("lstAnagrams").GetSize();
        ASSERT_TRUE(WaitFor([&] { return CanBeResized(SystemWindowOf(*anagram_)); }));
        EnlargeAsUser(*anagram_, more);
        ASSERT_TRUE(WaitFor([&] { return anagram_->GetClientSize() == designed + more; }));
        EXPECT_TRUE(WaitFor([&] { return In("lstAnagrams").GetSize() == list + more; }));
        EXPECT_EQ(In("picColHeader").GetSize().x, In("lblColHeaderBack").GetClientSize().x);
    });
    InAnagramWindow([&] {
        EXPECT_TRUE(WaitFor([&] { return anagram_->GetClientSize() == designed; }))
            << "It should open in its own size again.";
    });
}

TEST_F(AnagramWindowTest, WhatIsTypedAfterItsStartIsNotSearchedFor) {
    InAnagramWindow([&] {
        const auto searchThenType = [&](const std::string& keys, const std::string& letters,
                                        const std::function<void()>& start) {
            TypeLetters(keys, letters);
            start();
            user_.Char('x');
            const auto& combo = In<wxComboBox>("cboLetters");
            EXPECT_TRUE(WaitFor([&] {
                return !combo.IsListEmpty() && combo.GetString(0) == letters;
            })) << letters;
            EXPECT_EQ(anagram_->LastSearchedLetters(), DecodeUtf8(letters));
        };
        searchThenType("cpu", "CPU", [&] { user_.Char(WXK_RETURN); });
        searchThenType("puc", "PUC", [&] { user_.Char('S', wxMOD_ALT); });
    });
}

// With hits the list gets the keyboard, and Enter there would go to the first and hide the window.
TEST_F(AnagramWindowTest, EnterThatIsHeldSearchesOnlyOnce) {
    InAnagramWindow([&] {
        TypeLetters("cpu", "CPU");
        user_.KeyDown(WXK_RETURN);
        Settle(1500);  // the keyboard begins to repeat it within that
        user_.KeyUp(WXK_RETURN);
        EXPECT_TRUE(WaitFor([] { return !wxGetKeyState(WXK_RETURN); }));
        EXPECT_TRUE(anagram_->IsShown());
        EXPECT_EQ(Label("lblPercentDone"), "Found 3");
        EXPECT_EQ(Rows(), kCpuHits);
        user_.Char(WXK_RETURN);
        EXPECT_TRUE(WaitFor([&] { return !anagram_->IsShown(); }))
            << "another press goes to the hit";
    });
}

TEST_F(AnagramWindowTest, SelectingAllLettersKeepsTheHits) {
    InAnagramWindow([&] {
        Search("cpu", "CPU");
        FocusLetters();
        user_.Char(WXK_END);
        PressSelectAll();
        EXPECT_TRUE(WaitFor([&] {
            return In<wxComboBox>("cboLetters").wxTextEntry::GetStringSelection() == "CPU";
        }));
        EXPECT_EQ(Label("lblPercentDone"), "Found 3");
        EXPECT_EQ(Rows(), kCpuHits);
        user_.Char('r');
        EXPECT_TRUE(WaitFor([&] { return Rows().empty(); }));
    });
}

TEST_F(AnagramWindowTest, ItsListShowsWholeRowsOnly) {
    InAnagramWindow([&] {
        Search("cpu", "CPU");
        const ListView view = ViewOf(anagram_->Hits());
        ASSERT_GT(view.rowHeight, 0);
        EXPECT_EQ(view.height % view.rowHeight, 0) << view.height << "/" << view.rowHeight;
    });
}

TEST_F(AnagramWindowTest, OpensEmpty) {
    InAnagramWindow([&] {
        EXPECT_EQ(anagram_->GetTitle(), "Anagrammatic Search");
        wxString overview = In<wxStaticText>("lblOverview").GetLabelText();
        overview.Replace("\n", " ");
        EXPECT_EQ(overview,
                  "An anagram is a word or phrase derived by rearranging the letters of another "
                  "word or phrase. Type a few letters and Brevilexicon will search the database "
                  "for matching acronyms/abbreviations after reshuffling the letters. This can be "
                  "useful when you have forgotten the exact sequence of the letters of an "
                  "acronym/abbreviation.");
        EXPECT_EQ(In("lblPrompt").GetLabel(), "&Type the letters (minimum 2 - maximum 6):");
        EXPECT_EQ(Letters(), "");
        EXPECT_EQ(Label("lblWordLen"), "0");
        EXPECT_EQ(Label("lblPossiblePerms"), "0");
        EXPECT_EQ(Label("lblPercentDone"), "");
        EXPECT_FALSE(In("cmdSearch").IsEnabled());
        EXPECT_FALSE(In("picAnim").IsShown());
        EXPECT_TRUE(Rows().empty());
    });
}

TEST_F(AnagramWindowTest, TypedLettersBecomeCapitalsAndAllElseStays) {
    InAnagramWindow([&] {
        TypeLetters("cpu", "CPU");
        TypeLetters("a-1 b", "A-1 B");
    });
}

TEST_F(AnagramWindowTest, PastedTextStaysAsItIs) {
    InAnagramWindow([&] {
        EmptyLetters();
        Paste("AaB");
        EXPECT_TRUE(WaitFor([&] { return Letters() == "AaB"; })) << Letters();
        EXPECT_EQ(Label("lblWordLen"), "3");
        EXPECT_EQ(Label("lblPossiblePerms"), "3");
        EXPECT_TRUE(In("cmdSearch").IsEnabled());
    });
}

TEST_F(AnagramWindowTest, OfPastedTextWhatFitsIsTaken) {
    InAnagramWindow([&] {
        TypeLetters("xy", "XY");
        user_.Char(WXK_HOME);
        user_.Char(WXK_END, wxMOD_SHIFT);
        Paste("abcdefghij");
        EXPECT_TRUE(WaitFor([&] { return Letters() == "abcdef"; })) << Letters();
    });
}

TEST_F(AnagramWindowTest, TheCountsFollowTheLetters) {
    InAnagramWindow([&] {
        TypeLetters("c", "C");
        EXPECT_EQ(Label("lblWordLen"), "1");
        EXPECT_FALSE(In("cmdSearch").IsEnabled());
        user_.Char('p');
        EXPECT_TRUE(WaitFor([&] { return In("cmdSearch").IsEnabled(); }));
        EXPECT_EQ(Label("lblPossiblePerms"), "2");
        EmptyLetters();
        EXPECT_EQ(Label("lblPossiblePerms"), "0");
        EXPECT_FALSE(In("cmdSearch").IsEnabled());
    });
}

TEST_F(AnagramWindowTest, NoMoreLettersAreTakenThanAnAbbreviationHas) {
    InAnagramWindow([&] {
        EmptyLetters();
        for (const char key : std::string("abcdefghij")) {
            user_.Char(key);
        }
        user_.Char(WXK_HOME);  // behind all of them
        EXPECT_TRUE(WaitFor([&] {
            return !Letters().empty() && In<wxComboBox>("cboLetters").GetInsertionPoint() == 0;
        }));
        EXPECT_EQ(Letters(), "ABCDEF");
    });
}

TEST_F(AnagramWindowTest, RefusedLettersAreReadyToBeMended) {
    InAnagramWindow([&] {
        const MessageBoxes boxes;
        TypeLetters("cc", "CC");
        In("cmdSearch").SetFocus();
        ASSERT_TRUE(WaitFor([&] { return HasFocus("cmdSearch"); }));
        user_.Char(WXK_SPACE);
        ASSERT_TRUE(WaitFor([&] { return boxes.texts.size() == 1; }));
        EXPECT_EQ(boxes.styles[0] & wxICON_MASK, wxICON_EXCLAMATION);
        EXPECT_EQ(boxes.texts[0], "Type at least 2 distinct letters");
        ASSERT_TRUE(WaitFor([&] { return HasFocus("cboLetters"); }));
        user_.Char(WXK_END);
        user_.Char('d');
        EXPECT_TRUE(WaitFor([&] { return Letters() == "CCD"; })) << Letters();
        EXPECT_EQ(In<wxComboBox>("cboLetters").GetCount(), 0U);
    });
}

TEST_F(AnagramWindowTest, ShowsTheHitsInTheOrderOfTheMainList) {
    InAnagramWindow([&] {
        Search("puc", "PUC");
        EXPECT_EQ(Rows(), kCpuHits);
        EXPECT_EQ(Label("lblPercentDone"), "Found 3");
        EXPECT_EQ(anagram_->Hits().SelectedRow(), 0);
        wxWindow& list = anagram_->Hits().Window();
        EXPECT_TRUE(WaitFor([&] { return IsFocusIn(list); }));
        EXPECT_EQ(list.GetToolTipText(), "Double-click an entry to go to the record");
        EXPECT_TRUE(In("cboLetters").IsEnabled());
        EXPECT_TRUE(In("cmdCancel").IsEnabled());
        EXPECT_FALSE(In("picAnim").IsShown());
    });
}

TEST_F(AnagramWindowTest, SaysInTheListThatThereAreNone) {
    InAnagramWindow([&] {
        Search("puc", "PUC");
        Search("xyz", "XYZ");
        EXPECT_EQ(Rows(), std::vector<std::string>{" None Found!"});
        EXPECT_EQ(Label("lblPercentDone"), "Found 0");
        EXPECT_EQ(anagram_->Hits().TextColour(), wxColour(255, 0, 0));
        EXPECT_EQ(anagram_->Hits().Window().GetToolTipText(), "");
        EXPECT_EQ(In<wxComboBox>("cboLetters").wxTextEntry::GetStringSelection(), "XYZ");
        user_.Char('m');  // overtypes them
        user_.Char('a');
        user_.Char('r');
        ASSERT_TRUE(WaitFor([&] { return Letters() == "MAR"; })) << Letters();
        EXPECT_TRUE(Rows().empty());
        user_.Char(WXK_RETURN);
        ASSERT_TRUE(WaitFor([&] { return Label("lblPercentDone") == "Found 1"; }));
        EXPECT_NE(anagram_->Hits().TextColour(), wxColour(255, 0, 0));
    });
}

TEST_F(AnagramWindowTest, AnItemOfTheHistoryBringsItsCounts) {
    InAnagramWindow([&] {
        Search("puc", "PUC");
        Search("zz1m", "ZZ1M");
        EXPECT_EQ(Label("lblPossiblePerms"), "12");
        FocusLetters();
        user_.Char(WXK_DOWN, wxMOD_ALT);
        Settle(200);  // nothing tells of the open list on both systems
        user_.Char(WXK_DOWN);
        Settle(100);
        user_.Char(WXK_RETURN);
        EXPECT_TRUE(WaitFor([&] { return Letters() == "PUC"; })) << Letters();
        EXPECT_TRUE(WaitFor([&] { return Label("lblPercentDone").empty(); }));
        EXPECT_TRUE(Rows().empty());
        EXPECT_EQ(Label("lblWordLen"), "3");
        EXPECT_EQ(Label("lblPossiblePerms"), "6");
        user_.Char(WXK_RETURN);
        ASSERT_TRUE(WaitFor([&] { return Label("lblPercentDone") == "Found 3"; }));
        EXPECT_EQ(Letters(), "PUC");
        const auto& combo = In<wxComboBox>("cboLetters");
        ASSERT_EQ(combo.GetCount(), 2U) << "without duplicates";
        EXPECT_EQ(combo.GetString(0), "PUC");
        EXPECT_EQ(combo.GetString(1), "ZZ1M");
    });
}

TEST_F(AnagramWindowTest, ADoubleClickGoesToTheRecordAndKeepsTheLetters) {
    InAnagramWindow([&] {
        Search("puc", "PUC");
        DoubleClickRow(1);
        EXPECT_TRUE(WaitFor([&] { return !anagram_->IsShown(); }));
    });
    EXPECT_FALSE(window_->IsModalOpen());
    EXPECT_EQ(SelectedRecord(), "CPU\tCentral Processing Unit");
    InAnagramWindow([&] {
        EXPECT_EQ(Letters(), "PUC");
        EXPECT_EQ(Rows(), kCpuHits);
    });
}

TEST_F(AnagramWindowTest, EscapeHidesItAndEmptiesTheLetters) {
    InAnagramWindow([&] {
        Search("puc", "PUC");
        user_.Char(WXK_ESCAPE);
        EXPECT_TRUE(WaitFor([&] { return !anagram_->IsShown(); }));
    });
    const frmAnagram* const first = anagram_;
    InAnagramWindow([&] {
        EXPECT_EQ(anagram_, first);
        EXPECT_EQ(Letters(), "");
        EXPECT_TRUE(Rows().empty());
        EXPECT_EQ(In<wxComboBox>("cboLetters").GetCount(), 1U);
        user_.Char('x');  // they have the keyboard again
        EXPECT_TRUE(WaitFor([&] { return Letters() == "X"; })) << Letters();
        In("cmdCancel").SetFocus();
        ASSERT_TRUE(WaitFor([&] { return HasFocus("cmdCancel"); }));
        user_.Char(WXK_SPACE);
        EXPECT_TRUE(WaitFor([&] { return !anagram_->IsShown(); }));
    });
}

TEST_F(AnagramWindowTest, EndsWithTheProgram) {
    Start(NumberedRecords(60000));
    frmMain* const window = window_;
    bool closed = false;
    wxTimer close;
    close.Bind(wxEVT_TIMER, [&](wxTimerEvent&) {
        if (!closed && In("picAnim").IsShown()) {
            closed = true;
            window->Close(true);
        }
    });
    InAnagramWindow([&] {
        TypeLetters("zy", "ZY");
        close.Start(1);
        user_.Char(WXK_RETURN);
        EXPECT_TRUE(WaitFor([&] { return closed && !anagram_->IsShown(); }));
    });
    window_ = nullptr;
    EXPECT_TRUE(WaitFor([&] { return wxTopLevelWindows.Find(window) == nullptr; }));
}

TEST_F(AnagramWindowTest, TheCloseBoxHidesItToo) {
    InAnagramWindow([&] {
        TypeLetters("puc", "PUC");
        EXPECT_FALSE(anagram_->Close());
        EXPECT_TRUE(WaitFor([&] { return !anagram_->IsShown(); }));
    });
    EXPECT_EQ(FindAnagramWindow(), anagram_);
    EXPECT_EQ(Letters(), "");
}

TEST_F(AnagramWindowTest, WhileItSearchesItTakesNoInput) {
    Start(NumberedRecords(60000));
    InAnagramWindow([&] {
        bool looked = false;
        wxTimer look;
        look.Bind(wxEVT_TIMER, [&](wxTimerEvent&) {
            if (looked || !In("picAnim").IsShown()) {
                return;
            }
            looked = true;
            for (const char* name : {"cboLetters", "cmdSearch", "cmdCancel", "lstAnagrams"}) {
                EXPECT_FALSE(In(name).IsEnabled()) << name;
            }
            EXPECT_EQ(Label("lblPercentDone").rfind("Done ", 0), 0U);
            EXPECT_TRUE(In<BusyAnimation>("picAnim").tmrAnimation.IsRunning());
            EXPECT_EQ(In<BusyAnimation>("picAnim").tmrAnimation.GetInterval(), 135);
            EXPECT_FALSE(anagram_->Close());
            EXPECT_TRUE(anagram_->IsShown());
        });
        look.Start(1);
        Search("zy", "ZY");
        EXPECT_TRUE(looked);
        EXPECT_EQ(Label("lblPercentDone"), "Found 0");
        EXPECT_TRUE(anagram_->IsShown());
        EXPECT_EQ(Letters(), "ZY");
        EXPECT_FALSE(In<BusyAnimation>("picAnim").tmrAnimation.IsRunning());
        for (const char* name : {"cboLetters", "cmdSearch", "cmdCancel", "lstAnagrams"}) {
            EXPECT_TRUE(In(name).IsEnabled()) << name;
        }
    });
}

TEST_F(AnagramWindowTest, TheAccessKeyLeadsToTheLetters) {
    InAnagramWindow([&] {
        In("cmdCancel").SetFocus();
        ASSERT_TRUE(WaitFor([&] { return HasFocus("cmdCancel"); }));
        user_.Char('T', wxMOD_ALT);
        EXPECT_TRUE(WaitFor([&] { return HasFocus("cboLetters"); }));
        user_.Char('x');
        EXPECT_TRUE(WaitFor([&] { return Letters() == "X"; })) << Letters();
    });
}

TEST_F(AnagramWindowTest, AClickOnTheHeaderGivesTheListTheFocus) {
    InAnagramWindow([&] {
        Click("picColHeader");
        wxWindow& list = anagram_->Hits().Window();
        EXPECT_TRUE(WaitFor([&] { return IsFocusIn(list); }));
    });
}

TEST_F(AnagramWindowTest, ItsAnimationHas15Frames) {
    auto* animation = new BusyAnimation(window_, AnagramFilmStrip(), 40);
    animation->Run(true);
    for (const int frame : {1, 14, 0}) {
        EXPECT_TRUE(WaitFor([&] { return animation->ShownFrame() == frame; })) << frame;
        EXPECT_EQ(animation->AnimationFrame, (frame + 1) % 15);
    }
    animation->Destroy();
}

}  // namespace
}  // namespace brelex
