// SPDX-License-Identifier: MIT
#include "ui/frmAnagram.h"

#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <wx/combobox.h>
#include <wx/eventfilter.h>
#include <wx/msgdlg.h>
#include <wx/stattext.h>

#include "search/anagram.h"
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

    void EmptyLetters() {
        In("cboLetters").SetFocus();
        Settle(30);
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
        Settle(50);
    }

    void Paste(const wxString& text) {
        PutOnClipboard(text);
        user_.Char('V', wxMOD_CONTROL);
    }

    void DoubleClickRow(std::int32_t row) {
        wxWindow& list = anagram_->Hits().Window();
        const int height = anagram_->Hits().RowHeight();
        user_.MouseMove(list.ClientToScreen(wxPoint(40, row * height + height / 2)));
        Settle(50);
        user_.MouseDblClick();
    }

    frmAnagram* anagram_ = nullptr;
};

const std::vector<std::string> kCpuHits = {"C-PU\tHyphenated", "CPU\tCentral Processing Unit",
                                           "UCP\tUniform Cp"};

TEST_F(AnagramWindowTest, WhatIsTypedAfterItsStartIsNotSearchedFor) {
    InAnagramWindow([&] {
        for (const bool byAccessKey : {false, true}) {
            TypeLetters("cpu", "CPU");
            anagram_->LastSearchedLetters.clear();
            byAccessKey ? user_.Char('S', wxMOD_ALT) : user_.Char(WXK_RETURN);
            user_.Char('x');
            EXPECT_TRUE(WaitFor([&] { return !anagram_->LastSearchedLetters.empty(); }));
            EXPECT_EQ(anagram_->LastSearchedLetters, U"CPU");
            EXPECT_EQ(Utf8Text(In<wxComboBox>("cboLetters").GetString(0)), "CPU");
        }
    });
}

// With hits the list gets the keyboard, and Enter there would go to the first and hide the window.
TEST_F(AnagramWindowTest, EnterThatIsHeldSearchesOnlyOnce) {
    InAnagramWindow([&] {
        TypeLetters("cpu", "CPU");
        user_.KeyDown(WXK_RETURN);
        Settle(1500);
        user_.KeyUp(WXK_RETURN);
        Settle(100);
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
        In("cboLetters").SetFocus();
        Settle(50);
        PressSelectAll();
        Settle(100);
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
        EXPECT_EQ(Label("lblPossiblePerms"), "1");
        EXPECT_FALSE(In("cmdSearch").IsEnabled());
        user_.Char('p');
        EXPECT_TRUE(WaitFor([&] { return In("cmdSearch").IsEnabled(); }));
        EXPECT_EQ(Label("lblPossiblePerms"), "2");
        user_.Char('u');
        EXPECT_TRUE(WaitFor([&] { return Label("lblPossiblePerms") == "6"; }));
        EXPECT_EQ(Label("lblWordLen"), "3");
        TypeLetters("aab", "AAB");
        EXPECT_EQ(Label("lblPossiblePerms"), "3");
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
        Settle(100);
        EXPECT_EQ(Letters(), "ABCDEF");
        EXPECT_EQ(Label("lblPossiblePerms"), "720");
    });
}

TEST_F(AnagramWindowTest, LessThanTwoDistinctLettersAreRefused) {
    InAnagramWindow([&] {
        const MessageBoxes boxes;
        TypeLetters("cc", "CC");
        EXPECT_EQ(Label("lblPossiblePerms"), "1");
        In("cmdSearch").SetFocus();
        Settle(50);
        user_.Char(WXK_SPACE);
        ASSERT_TRUE(WaitFor([&] { return boxes.texts.size() == 1; }));
        EXPECT_EQ(boxes.styles[0] & wxICON_MASK, wxICON_EXCLAMATION);
        Settle(50);
        user_.Char(WXK_END);
        user_.Char('d');  // the letters have the focus again
        EXPECT_TRUE(WaitFor([&] { return Letters() == "CCD" || Letters() == "D"; })) << Letters();
        EXPECT_EQ(boxes.texts[0], "Type at least 2 distinct letters");
        EXPECT_EQ(boxes.titles[0], "Brevilexicon");
        EXPECT_EQ(Label("lblPercentDone"), "");
        EXPECT_EQ(In<wxComboBox>("cboLetters").GetCount(), 0U);
        TypeLetters("a1", "A1");
        user_.Char(WXK_RETURN);
        EXPECT_TRUE(WaitFor([&] { return boxes.texts.size() == 2; }));
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
        EXPECT_EQ(anagram_->LastSearchedLetters, U"PUC");
        EXPECT_TRUE(In("cboLetters").IsEnabled());
        EXPECT_TRUE(In("cmdCancel").IsEnabled());
        EXPECT_FALSE(In("picAnim").IsShown());
    });
}

TEST_F(AnagramWindowTest, AnEntryInSmallLettersIsFoundAndSoIsTheOneTyped) {
    InAnagramWindow([&] {
        Search("mar", "MAR");
        EXPECT_EQ(Rows(), std::vector<std::string>{"ram\tSmall"});
        Search("cpu", "CPU");
        EXPECT_EQ(Rows(), kCpuHits);
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

TEST_F(AnagramWindowTest, AnotherLetterClearsTheResult) {
    InAnagramWindow([&] {
        Search("puc", "PUC");
        In("cboLetters").SetFocus();
        Settle(30);
        user_.Char(WXK_END);
        user_.Char(WXK_BACK);
        ASSERT_TRUE(WaitFor([&] { return Letters() == "PU"; })) << Letters();
        EXPECT_TRUE(Rows().empty());
        EXPECT_EQ(Label("lblPercentDone"), "");
    });
}

TEST_F(AnagramWindowTest, KeepsAHistoryWithoutDuplicates) {
    InAnagramWindow([&] {
        const auto& combo = In<wxComboBox>("cboLetters");
        Search("puc", "PUC");
        Search("xyz", "XYZ");
        Search("puc", "PUC");
        ASSERT_EQ(combo.GetCount(), 2U);
        EXPECT_EQ(combo.GetString(0), "PUC");
        EXPECT_EQ(combo.GetString(1), "XYZ");
        EXPECT_EQ(Letters(), "PUC");
    });
}

TEST_F(AnagramWindowTest, AnItemOfTheHistoryBringsItsCounts) {
    InAnagramWindow([&] {
        Search("puc", "PUC");
        Search("zz1m", "ZZ1M");
        EXPECT_EQ(Label("lblPossiblePerms"), "12");
        In("cboLetters").SetFocus();
        Settle(30);
        user_.Char(WXK_DOWN, wxMOD_ALT);
        Settle(200);
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
        EXPECT_EQ(Label("lblWordLen"), "3");
        const auto& combo = In<wxComboBox>("cboLetters");
        ASSERT_EQ(combo.GetCount(), 2U);
        EXPECT_EQ(combo.GetString(0), "PUC");
    });
}

TEST_F(AnagramWindowTest, ADoubleClickGoesToTheRecordAndKeepsTheLetters) {
    InAnagramWindow([&] {
        Search("puc", "PUC");
        DoubleClickRow(1);
        EXPECT_TRUE(WaitFor([&] { return !anagram_->IsShown(); }));
    });
    EXPECT_FALSE(window_->IsModalOpen);
    EXPECT_EQ(SelectedRecord(), "CPU\tCentral Processing Unit");
    InAnagramWindow([&] {
        EXPECT_EQ(Letters(), "PUC");
        EXPECT_EQ(Rows(), kCpuHits);
    });
}

TEST_F(AnagramWindowTest, ADoubleClickOnNoneFoundGoesToRecord0) {
    InAnagramWindow([&] {
        Search("xyz", "XYZ");
        DoubleClickRow(0);
        EXPECT_TRUE(WaitFor([&] { return !anagram_->IsShown(); }));
    });
    // There is no such record: the main window answers as it does to any such number.
    EXPECT_EQ(window_->List().SelectedRow(), 0);
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
    });
}

TEST_F(AnagramWindowTest, ReopenedAfterCancelItCanBeTypedInto) {
    InAnagramWindow([&] {
        Search("puc", "PUC");
        In("cmdCancel").SetFocus();
        Settle(50);
        user_.Char(WXK_SPACE);
        EXPECT_TRUE(WaitFor([&] { return !anagram_->IsShown(); }));
    });
    InAnagramWindow([&] {
        user_.Char('x');
        EXPECT_TRUE(WaitFor([&] { return Letters() == "X"; })) << Letters();
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

// Looks at each event, of which every pause of a search lets some run.
class EveryEvent final : public wxEventFilter {
  public:
    explicit EveryEvent(std::function<void()> look) : look_(std::move(look)) {
        wxEvtHandler::AddFilter(this);
    }

    EveryEvent(const EveryEvent&) = delete;
    EveryEvent& operator=(const EveryEvent&) = delete;

    ~EveryEvent() override { wxEvtHandler::RemoveFilter(this); }

    int FilterEvent(wxEvent& /*event*/) override {
        look_();
        return Event_Skip;
    }

  private:
    std::function<void()> look_;
};

TEST_F(AnagramWindowTest, ShowsProgressAtEvery100thEntry) {
    InAnagramWindow([&] {
        TypeLetters("puc", "PUC");
        std::vector<std::string> shown;
        const EveryEvent look([&] {
            const std::string text = Label("lblPercentDone");
            if (!text.empty() && (shown.empty() || shown.back() != text)) {
                shown.push_back(text);
            }
        });
        user_.Char(WXK_RETURN);
        ASSERT_TRUE(WaitFor([&] { return !shown.empty() && shown.back() == "Found 3"; }));
        EXPECT_EQ(shown, (std::vector<std::string>{"Done 0%", "Done 40%", "Done 80%", "Found 3"}));
    });
}

TEST_F(AnagramWindowTest, TheAccessKeyLeadsToTheLetters) {
    InAnagramWindow([&] {
        In("cmdCancel").SetFocus();
        Settle(50);
        user_.Char('T', wxMOD_ALT);
        Settle(50);
        user_.Char('x');
        EXPECT_TRUE(WaitFor([&] { return Letters() == "X"; })) << Letters();
    });
}

TEST_F(AnagramWindowTest, AClickOnTheHeaderGivesTheListTheFocus) {
    InAnagramWindow([&] {
        const wxRect header = In("picColHeader").GetScreenRect();
        user_.MouseMove(header.x + 200, header.y + header.height / 2);
        Settle(50);
        user_.MouseClick();
        wxWindow& list = anagram_->Hits().Window();
        EXPECT_TRUE(WaitFor([&] { return IsFocusIn(list); }));
    });
}

TEST_F(AnagramWindowTest, ItsAnimationHas15Frames) {
    auto* animation = new BusyAnimation(window_, AnagramFilmStrip(), 5);
    animation->Run(true);
    for (const int frame : {1, 14, 0}) {
        EXPECT_TRUE(WaitFor([&] { return animation->ShownFrame() == frame; })) << frame;
        EXPECT_EQ(animation->AnimationFrame, (frame + 1) % 15);
    }
    animation->Destroy();
}

}  // namespace
}  // namespace brelex
