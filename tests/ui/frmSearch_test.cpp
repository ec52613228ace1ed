// SPDX-License-Identifier: MIT
#include "ui/frmSearch.h"

#include <cstdlib>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <wx/app.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/combobox.h>
#include <wx/msgdlg.h>
#include <wx/radiobut.h>
#include <wx/settings.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/tooltip.h>

#include "database/database_header.h"
#include "search/wildcard_help.h"
#include "tests/platform/enlarge.h"
#include "tests/platform/keyboard.h"
#include "tests/platform/screen.h"
#include "tests/ui/pictures.h"
#include "tests/ui/ui_test_support.h"
#include "toolkit/wx_text.h"
#include "ui/controls/artwork.h"
#include "ui/controls/busy_animation.h"
#include "ui/controls/modGeneral.h"

namespace brelex {
namespace {

const wxColour kRed(255, 0, 0);
const wxColour kDarkRed(192, 0, 0);

class SearchWindowTest : public SideWindowTest {
  protected:
    // Opens the window as a user does, works in it, and closes it if it is still open.
    void InSearchWindow(const std::function<void()>& work) {
        InSideWindow(
            "frmSearch", [&] { window_->OpenModalForm(0); },
            [&] {
                search_ = &dynamic_cast<frmSearch&>(Side());
                work();
            });
    }

    [[nodiscard]] static frmSearch* FindSearchWindow() {
        return dynamic_cast<frmSearch*>(wxWindow::FindWindowByName("frmSearch"));
    }

    [[nodiscard]] std::string SearchText() const {
        return Utf8Text(In<wxComboBox>("cboSearchWhat").GetValue());
    }

    [[nodiscard]] std::string Result() const {
        return Utf8Text(In<wxTextCtrl>("txtSearchResult").GetValue());
    }

    [[nodiscard]] wxColour ResultColour() const {
        return In("txtSearchResult").GetForegroundColour();
    }

    [[nodiscard]] bool IsEnabled(const char* name) const { return In(name).IsEnabled(); }

    [[nodiscard]] std::vector<std::string> History() const {
        std::vector<std::string> items;
        for (const wxString& item : In<wxComboBox>("cboSearchWhat").GetStrings()) {
            items.push_back(Utf8Text(item));
        }
        return items;
    }

    // Replaces the search text by typing.
    void TypeSearchText(const std::string& text) {
        FocusSearchText();
        user_.Char(WXK_HOME);
        user_.Char(WXK_END, wxMOD_SHIFT);
        user_.Char(WXK_DELETE);
        ASSERT_TRUE(WaitFor([&] { return SearchText().empty(); }));
        for (const char c : text) {
            TypeCharacter(c);
        }
        ASSERT_TRUE(WaitFor([&] { return SearchText() == text; })) << SearchText();
    }

    void FocusSearchText() {
        In("cboSearchWhat").SetFocus();
        ASSERT_TRUE(WaitFor([&] { return HasFocus("cboSearchWhat"); }));
    }

    void TypeCharacter(char c) {
        if (c == '*') {
            user_.Char('8', wxMOD_SHIFT);
        } else if (c == '?') {
            user_.Char('/', wxMOD_SHIFT);
        } else if (c >= 'A' && c <= 'Z') {
            user_.Char(c, wxMOD_SHIFT);
        } else {
            user_.Char(c);
        }
    }

    // Whether a button shows a picture.
    [[nodiscard]] bool Shows(const char* button, const wxBitmapBundle& picture) const {
        return SamePictures(In<wxButton>(button).GetBitmap(), picture.GetBitmapFor(&In(button)));
    }

    void ExpectIdle() const {
        for (const char* name : {"cboSearchWhat", "cmdSearch", "cmdCancel", "cmdHelp",
                                 "cmdExpandShrink", "fraPosition", "optPosition0", "fraSearchIn",
                                 "optSearchIn1", "chkMatchCase", "chkWholeWord"}) {
            EXPECT_TRUE(IsEnabled(name)) << name;
        }
        EXPECT_TRUE(Shows("cmdCancel", CancelPicture()));
        EXPECT_FALSE(IsSearching());
    }

    // But for what a title bar is high.
    static void ExpectSameMiddle(const wxRect& inner, const wxRect& outer) {
        EXPECT_LE(std::abs(2 * (inner.x - outer.x) + inner.width - outer.width), 16);
        EXPECT_LE(std::abs(2 * (inner.y - outer.y) + inner.height - outer.height), 80);
    }

    bool IsSearching() const { return In("picAnim").IsShown(); }

    // Presses Return in the search text and waits for the end of the search.
    void Search(const std::string& text) {
        TypeSearchText(text);
        In<wxStaticText>("lblStatus").SetLabelText("before the search");
        user_.Char(WXK_RETURN);
        ASSERT_TRUE(
            WaitFor([&] { return Label("lblStatus").starts_with("Number of Hits: "); }, 8000));
    }

    // Counts the searches from now on. Each goes on within a wait for anything else, which
    // therefore sees no more than its end.
    void CountSearches() {
        In("picAnim").Bind(wxEVT_SHOW, [this](wxShowEvent& event) {
            searches_ += event.IsShown() ? 1 : 0;
            event.Skip();
        });
    }

    // Presses a key as soon as a search runs, and waits for its end.
    void PressDuringSearch(const std::string& text, int key) {
        ModalDriver driver({[&] { return IsSearching(); },
                            [&] {
                                user_.Char(key);
                                return true;
                            }});
        TypeSearchText(text);
        user_.Char(WXK_RETURN);
        EXPECT_TRUE(WaitFor([&] { return driver.Done() && !IsSearching(); }, 8000));
    }

    frmSearch* search_ = nullptr;
    int searches_ = 0;
};

TEST_F(SearchWindowTest, OpensIdleWithTheResultAreaHidden) {
    InSearchWindow([&] {
        EXPECT_EQ(search_->GetTitle(), "Search Database");
        EXPECT_EQ(SearchText(), "");
        EXPECT_EQ(Label("lblStatus"), "Ready");
        EXPECT_EQ(Label("lblCount"), "");
        EXPECT_EQ(Result(), "");
        EXPECT_EQ(search_->GetClientSize().y, search_->ShrunkHeight);
        EXPECT_FALSE(In("txtSearchResult").IsShown());
        EXPECT_FALSE(IsSearching());
        for (const char* name : {"cboSearchWhat", "cmdCancel", "cmdHelp", "cmdExpandShrink",
                                 "fraPosition", "fraSearchIn", "chkMatchCase", "chkWholeWord"}) {
            EXPECT_TRUE(IsEnabled(name)) << name;
        }
        EXPECT_FALSE(IsEnabled("cmdSearch"));
        EXPECT_FALSE(IsEnabled("chkNextSearch"));
        EXPECT_TRUE(In<wxRadioButton>("optPosition0").GetValue());
        EXPECT_TRUE(In<wxRadioButton>("optSearchIn1").GetValue());
        EXPECT_FALSE(In<wxCheckBox>("chkMatchCase").GetValue());
        EXPECT_FALSE(In<wxCheckBox>("chkWholeWord").GetValue());
        EXPECT_FALSE(In<wxCheckBox>("chkNextSearch").GetValue());
        const std::vector<std::pair<const char*, const char*>> captions = {
            {"fraPosition", "Position"},
            {"optPosition0", "Any&where"},
            {"optPosition1", "&Beginning with"},
            {"optPosition2", "En&ding with"},
            {"fraSearchIn", "Search"},
            {"optSearchIn0", "&Abbreviations"},
            {"optSearchIn1", "&Expansions"},
            {"chkMatchCase", "&Match Case"},
            {"chkWholeWord", "Search Whole Word &Only"},
            {"chkNextSearch", "Search from &Next Position"},
            {"cmdCancel", "Cancel"},
            {"cmdHelp", "Help on wildcards"}};
        for (const auto& [name, caption] : captions) {
            EXPECT_EQ(In(name).GetLabel(), caption);
        }
    });
}

TEST_F(SearchWindowTest, F3OpensItWithTheSearchTextReadyToBeTyped) {
    ModalDriver driver({[&] {
                            search_ = FindSearchWindow();
                            return search_ != nullptr && search_->IsActive();
                        },
                        [&] {
                            user_.Char('x');
                            return WaitFor([&] { return SearchText() == "x"; }, 500);
                        },
                        [&] {
                            user_.Char(WXK_ESCAPE);
                            return !search_->IsShown();
                        }});
    user_.Char(WXK_F3);
    EXPECT_TRUE(WaitFor([&] { return driver.Done() && !window_->IsModalOpen(); }, 8000));
}

TEST_F(SearchWindowTest, ShowsTheHitsInTwoColumns) {
    InSearchWindow([&] {
        TypeSearchText("BUS");
        EXPECT_TRUE(WaitFor([&] { return IsEnabled("cmdSearch"); }));
        Click("cmdSearch");
        ASSERT_TRUE(WaitFor([&] { return Label("lblStatus") == "Number of Hits: 2"; }));
        EXPECT_EQ(Result(), "AB\tAddress Bus\nAB\tAudio Bus\n");
        EXPECT_EQ(ResultColour(), wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT));
        EXPECT_EQ(Label("lblCount"), "");
        EXPECT_EQ(search_->GetClientSize().y, search_->ExpandedHeight);
        EXPECT_TRUE(WaitFor([&] { return wxWindow::FindFocus() == &In("txtSearchResult"); }));
        ExpectIdle();
    });
}

TEST_F(SearchWindowTest, SaysInRedThatNothingIsFound) {
    InSearchWindow([&] {
        Search("zzz");
        EXPECT_EQ(Result(), "Search text is not found");
        EXPECT_EQ(ResultColour(), kRed);
        EXPECT_TRUE(WaitFor([&] { return HasFocus("cboSearchWhat"); }));
        Search("bus");
        EXPECT_EQ(ResultColour(), wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT));
    });
}

TEST_F(SearchWindowTest, TakesTheOptionsThatAreSet) {
    InSearchWindow([&] {
        Click("optSearchIn0");
        Click("optPosition2");
        Click("chkMatchCase");
        Search("B");
        EXPECT_EQ(Result(), "AB\tAddress Bus\nAB\tAudio Bus\n");
        Click("optPosition1");
        Search("x");
        EXPECT_EQ(Result(), "Search text is not found");
        Click("chkMatchCase");
        EXPECT_TRUE(WaitFor([&] { return !In<wxCheckBox>("chkMatchCase").GetValue(); }));
        Search("x");
        EXPECT_EQ(Label("lblStatus"), "Number of Hits: 2");
        Click("optPosition0");
        Click("optSearchIn1");
        Click("chkWholeWord");
        Search("markup");
        EXPECT_EQ(Label("lblStatus"), "Number of Hits: 1");
        Search("mark");
        EXPECT_EQ(Label("lblStatus"), "Number of Hits: 0");
    });
}

TEST_F(SearchWindowTest, TheAccessKeysReachTheOptions) {
    InSearchWindow([&] {
        user_.Char('M', wxMOD_ALT);
        EXPECT_TRUE(WaitFor([&] { return In<wxCheckBox>("chkMatchCase").GetValue(); }));
        user_.Char('B', wxMOD_ALT);
        EXPECT_TRUE(WaitFor([&] { return In<wxRadioButton>("optPosition1").GetValue(); }));
        user_.Char('A', wxMOD_ALT);
        EXPECT_TRUE(WaitFor([&] { return In<wxRadioButton>("optSearchIn0").GetValue(); }));
        user_.Char('F', wxMOD_ALT);
        EXPECT_TRUE(WaitFor([&] { return HasFocus("cboSearchWhat"); }));
        user_.Char('x');
        EXPECT_TRUE(WaitFor([&] { return SearchText() == "x"; }));
    });
}

TEST_F(SearchWindowTest, KeepsAHistoryWithoutDuplicatesTheLatestOnTop) {
    InSearchWindow([&] {
        Search("bus");
        Search("markup");
        EXPECT_EQ(History(), (std::vector<std::string>{"markup", "bus", "network", "memory"}));
        Search("bus");
        EXPECT_EQ(History(), (std::vector<std::string>{"bus", "markup", "network", "memory"}));
        EXPECT_EQ(SearchText(), "bus");
        Search("Bus");
        EXPECT_EQ(History(),
                  (std::vector<std::string>{"Bus", "bus", "markup", "network", "memory"}));
        // It has no end.
        auto& combo = In<wxComboBox>("cboSearchWhat");
        for (int i = 0; i < 300; ++i) {
            combo.ChangeValue(wxString::Format("text %d", i));
            AddToComboHistory(combo);
        }
        EXPECT_EQ(combo.GetCount(), 305U);
        EXPECT_EQ(combo.GetString(0), "text 299");
        EXPECT_EQ(combo.GetString(299), "text 0");
    });
}

TEST_F(SearchWindowTest, SurvivesItsBeingHidden) {
    InSearchWindow([&] {
        Click("chkMatchCase");
        Search("Bus");
        user_.Char(WXK_ESCAPE);
        EXPECT_TRUE(WaitFor([&] { return !search_->IsShown(); }));
    });
    EXPECT_FALSE(window_->IsModalOpen());
    const frmSearch* const first = search_;
    InSearchWindow([&] {
        EXPECT_EQ(search_, first);
        EXPECT_EQ(SearchText(), "");
        EXPECT_EQ(Result(), "");
        EXPECT_EQ(Label("lblStatus"), "Ready");
        EXPECT_EQ(search_->GetClientSize().y, search_->ShrunkHeight);
        EXPECT_FALSE(IsEnabled("cmdSearch"));
        EXPECT_EQ(History(), (std::vector<std::string>{"Bus", "network", "memory"}));
        EXPECT_TRUE(In<wxCheckBox>("chkMatchCase").GetValue());
    });
}

TEST_F(SearchWindowTest, ARefusedTextIsReadyToBeMended) {
    InSearchWindow([&] {
        const MessageBoxes boxes;
        TypeSearchText("a*b");
        Click("cmdSearch");
        ASSERT_TRUE(WaitFor([&] { return boxes.texts.size() == 1; }));
        EXPECT_EQ(boxes.styles[0] & wxICON_MASK, wxICON_NONE);
        EXPECT_EQ(boxes.titles[0], "Bad Pattern");
        EXPECT_TRUE(WaitFor([&] { return HasFocus("cboSearchWhat"); }));
        EXPECT_EQ(SearchText(), "a*b");
        EXPECT_EQ(search_->GetClientSize().y, search_->ShrunkHeight);
        EXPECT_EQ(History(), (std::vector<std::string>{"network", "memory"}));
    });
}

// The last key tells when all have arrived.
TEST_F(SearchWindowTest, TheFieldLimitsWhatIsTyped) {
    InSearchWindow([&] {
        FocusSearchText();
        const auto typeMany = [&](char c) {
            for (int i = 0; i < 40; ++i) {
                user_.Char(c);
            }
            user_.Char(WXK_HOME);
            EXPECT_TRUE(WaitFor([&] {
                return In<wxComboBox>("cboSearchWhat").GetInsertionPoint() == 0 &&
                       !SearchText().empty();
            }));
        };
        typeMany('x');
        // The longest expansion, "Extensible Markup Language", has 26 characters.
        EXPECT_EQ(SearchText(), std::string(26, 'x'));
        Click("optSearchIn0");
        EXPECT_TRUE(WaitFor([&] { return In<wxRadioButton>("optSearchIn0").GetValue(); }));
        EXPECT_EQ(SearchText(), std::string(26, 'x'));  // what is there is not cut
        FocusSearchText();
        user_.Char(WXK_HOME);
        user_.Char(WXK_END, wxMOD_SHIFT);
        typeMany('y');
        EXPECT_EQ(SearchText(), "yyyyyy");  // M10000 has 6
        Click("optSearchIn1");
        FocusSearchText();
        user_.Char(WXK_END);
        user_.Char('z');
        EXPECT_TRUE(WaitFor([&] { return SearchText() == "yyyyyyz"; })) << SearchText();
    });
}

// Records that take some seconds to search, each with its number in its expansion.
std::vector<std::string> ManyRecords() {
    return NumberedRecords(90000);
}

class LongSearch : public SearchWindowTest {
  protected:
    void SetUp() override { Start(ManyRecords()); }
};

TEST_F(LongSearch, ShowsThatItIsBusyAndTakesNoInputButStop) {
    InSearchWindow([&] {
        const MessageBoxes boxes;
        ModalDriver driver(
            {[&] { return IsSearching() && In<BusyAnimation>("picAnim").ShownFrame() > 0; },
             [&] {
                 for (const char* name :
                      {"cboSearchWhat", "cmdSearch", "cmdHelp", "cmdExpandShrink", "fraPosition",
                       "optPosition0", "optPosition2", "fraSearchIn", "optSearchIn0",
                       "chkMatchCase", "chkWholeWord", "chkNextSearch"}) {
                     EXPECT_FALSE(IsEnabled(name)) << name;
                 }
                 EXPECT_TRUE(IsEnabled("cmdCancel"));
                 EXPECT_TRUE(Shows("cmdCancel", StopPicture()));
                 EXPECT_EQ(In<BusyAnimation>("picAnim").tmrAnimation.GetInterval(), 120);
                 EXPECT_EQ(wxWindow::FindFocus(), &In("cmdCancel"));
                 EXPECT_EQ(Label("lblStatus"), "Searching through database. Please, wait...");
                 EXPECT_TRUE(Label("lblCount").starts_with("Found ")) << Label("lblCount");
                 EXPECT_EQ(search_->GetClientSize().y, search_->ExpandedHeight);
                 EXPECT_EQ(History(), (std::vector<std::string>{"zz", "network", "memory"}));
                 Click("cmdCancel");
                 return true;
             }});
        TypeSearchText("zz");
        user_.Char(WXK_RETURN);
        EXPECT_TRUE(WaitFor([&] { return driver.Done() && !IsSearching(); }, 8000));
        EXPECT_EQ(boxes.texts, std::vector<std::string>{"Search was aborted by user"});
        ExpectIdle();
    });
}

// Enter and the access key start it at once: what is typed behind them comes too late.
TEST_F(LongSearch, WhatIsTypedAfterItsStartIsNotSearchedFor) {
    InSearchWindow([&] {
        const auto searchThenType = [&](const std::string& text,
                                        const std::function<void()>& start) {
            const std::string before = search_->LastSearchText();
            TypeSearchText(text);
            start();
            user_.Char('h');
            user_.Char('i');
            EXPECT_TRUE(WaitFor([&] { return search_->LastSearchText() != before; }));
            EXPECT_EQ(search_->LastSearchText(), text);
            EXPECT_EQ(History().front(), text);
            EXPECT_TRUE(WaitFor([&] { return !IsSearching(); }, 8000));
        };
        searchThenType("zz", [&] { user_.Char(WXK_RETURN); });
        searchThenType("yy", [&] { user_.Char('S', wxMOD_ALT); });
    });
}

TEST_F(LongSearch, EnterPressedAgainDoesNotStopIt) {
    InSearchWindow([&] {
        const MessageBoxes boxes;
        // Released at once: a key that a busy machine holds would begin to repeat.
        ModalDriver driver({[&] {
            if (!IsSearching()) {
                return false;
            }
            user_.Char(WXK_RETURN);
            return true;
        }});
        TypeSearchText("zz");
        user_.Char(WXK_RETURN);
        EXPECT_TRUE(WaitFor([&] { return driver.Done() && !IsSearching(); }));
        EXPECT_EQ(boxes.texts, std::vector<std::string>{});
        EXPECT_EQ(Result(), "Search text is not found");
        EXPECT_TRUE(WaitFor([&] { return HasFocus("cboSearchWhat"); }));
        CountSearches();
        user_.Char(WXK_RETURN);
        EXPECT_TRUE(WaitFor([&] { return searches_ == 1 && !IsSearching(); }, 8000))
            << "now it starts the next one";
    });
}

// The keyboard repeats it, beyond the end of the search.
TEST_F(SearchWindowTest, EnterThatIsHeldStartsOneSearch) {
    InSearchWindow([&] {
        const MessageBoxes boxes;
        CountSearches();
        TypeSearchText("zz");
        user_.KeyDown(WXK_RETURN);
        Settle(1500);  // the keyboard begins to repeat it within that
        user_.KeyUp(WXK_RETURN);
        EXPECT_TRUE(WaitFor([] { return !wxGetKeyState(WXK_RETURN); }));
        EXPECT_EQ(searches_, 1);
        EXPECT_EQ(boxes.texts, std::vector<std::string>{});
        user_.Char(WXK_RETURN);
        EXPECT_TRUE(WaitFor([&] { return searches_ == 2; })) << "and the next press another";
    });
}

TEST_F(LongSearch, SpaceAndEscapeStopIt) {
    for (const int key : {WXK_SPACE, WXK_ESCAPE}) {
        InSearchWindow([&] {
            const MessageBoxes boxes;
            PressDuringSearch("zz", key);
            ASSERT_EQ(boxes.texts, std::vector<std::string>{"Search was aborted by user"}) << key;
            EXPECT_EQ(boxes.styles[0] & wxICON_MASK, wxICON_INFORMATION);
            EXPECT_EQ(Label("lblCount"), "Search was aborted by user");
            EXPECT_EQ(In("lblCount").GetForegroundColour(), kDarkRed);
            ExpectIdle();
        });
    }
}

// A letter that no longer fits and Ctrl+A are no changes of the text.
TEST_F(SearchWindowTest, SelectingAllLeavesTheNextPositionToGoOnFrom) {
    Start(NumberedRecords(1200));
    InSearchWindow([&] {
        const MessageBoxes boxes;
        Search("e");
        ASSERT_TRUE(IsEnabled("chkNextSearch"));
        FocusSearchText();
        user_.Char(WXK_END);
        PressSelectAll();
        EXPECT_TRUE(WaitFor([&] {
            return In<wxComboBox>("cboSearchWhat").wxTextEntry::GetStringSelection() == "e";
        }));
        EXPECT_TRUE(IsEnabled("chkNextSearch"));
        user_.Char('x');
        EXPECT_TRUE(WaitFor([&] { return !IsEnabled("chkNextSearch"); }));
    });
}

TEST_F(LongSearch, ClosingTheWindowEndsItWithoutABox) {
    const MessageBoxes boxes;
    InSearchWindow([&] {
        ModalDriver driver({[&] { return IsSearching() && Label("lblCount") != "Found 0"; },
                            [&] {
                                search_->Close();
                                return true;
                            }});
        TypeSearchText("9999");
        user_.Char(WXK_RETURN);
        EXPECT_TRUE(
            WaitFor([&] { return driver.Done() && !search_->IsShown() && !IsSearching(); }, 8000));
    });
    EXPECT_TRUE(boxes.texts.empty());
    EXPECT_FALSE(window_->IsModalOpen());
    EXPECT_TRUE(WaitFor([&] { return window_->IsActive() && wxWindow::FindFocus() == &Box(); }));
    InSearchWindow([&] {
        EXPECT_EQ(SearchText(), "");
        EXPECT_EQ(Result(), "");
        EXPECT_EQ(Label("lblStatus"), "Ready");
        EXPECT_EQ(Label("lblCount"), "");
        EXPECT_EQ(search_->GetClientSize().y, search_->ShrunkHeight);
        EXPECT_FALSE(IsEnabled("cmdSearch"));
        Search("99999");
        EXPECT_EQ(In("lblCount").GetForegroundColour(),
                  wxSystemSettings::GetColour(wxSYS_COLOUR_BTNTEXT));
        ExpectIdle();
    });
}

TEST_F(LongSearch, CannotBeStartedAgainBeforeItHasEnded) {
    InSearchWindow([&] {
        bool closed = false;
        wxTimer close;
        close.Bind(wxEVT_TIMER, [&](wxTimerEvent&) {
            if (!closed && IsSearching()) {
                closed = true;
                search_->Close();
                window_->OpenModalForm(0);  // as a key pressed at once would
                EXPECT_FALSE(search_->IsShown());
            }
        });
        close.Start(50);
        TypeSearchText("9999");
        user_.Char(WXK_RETURN);
        EXPECT_TRUE(WaitFor([&] { return closed && !IsSearching(); }, 8000));
    });
}

TEST_F(LongSearch, EndsWithTheProgram) {
    frmMain* const window = window_;
    bool closed = false;
    wxTimer close;
    close.Bind(wxEVT_TIMER, [&](wxTimerEvent&) {
        if (!closed && IsSearching()) {
            closed = true;
            window->Close(true);
        }
    });
    InSearchWindow([&] {
        close.Start(50);
        TypeSearchText("9999");
        user_.Char(WXK_RETURN);
        EXPECT_TRUE(WaitFor([&] { return closed && !search_->IsShown(); }, 8000));
    });
    window_ = nullptr;
    EXPECT_TRUE(WaitFor([&] { return wxTopLevelWindows.Find(window) == nullptr; }));
}

TEST_F(SearchWindowTest, DoesNotHoldUpALogOff) {
    InSearchWindow([&] {
        wxCloseEvent question(wxEVT_QUERY_END_SESSION);
        question.SetCanVeto(true);
        EXPECT_TRUE(wxTheApp->ProcessEvent(question));
        EXPECT_FALSE(question.GetVeto());
        EXPECT_TRUE(search_->IsShown());
    });
}

TEST_F(SearchWindowTest, OffersToGoOnBehindThe500thHit) {
    Start(NumberedRecords(1100));
    InSearchWindow([&] {
        const MessageBoxes boxes;
        Search("?");
        ASSERT_EQ(boxes.titles, std::vector<std::string>{"Search Aborted"});
        EXPECT_EQ(boxes.styles[0] & wxICON_MASK, wxICON_INFORMATION);
        EXPECT_EQ(Label("lblStatus"), "Number of Hits: 500");
        EXPECT_EQ(In<wxTextCtrl>("txtSearchResult").GetNumberOfLines(), 501);
        ASSERT_TRUE(IsEnabled("chkNextSearch"));

        Click("chkNextSearch");
        ASSERT_TRUE(WaitFor([&] { return In<wxCheckBox>("chkNextSearch").GetValue(); }));
        Click("cmdSearch");
        ASSERT_TRUE(WaitFor([&] { return boxes.texts.size() == 2 && !IsSearching(); }));
        EXPECT_EQ(Utf8Text(In<wxTextCtrl>("txtSearchResult").GetLineText(0)),
                  startUp_->Values().AcronymList->RowText(500));

        FocusSearchText();
        user_.Char(WXK_END);
        user_.Char('a');
        EXPECT_TRUE(WaitFor([&] { return !IsEnabled("chkNextSearch"); }));
    });
}

TEST_F(SearchWindowTest, TheButtonShowsAndHidesTheResultArea) {
    InSearchWindow([&] {
        const auto hasHeight = [&](const int& height) {
            return WaitFor([&] { return search_->GetClientSize().y == height; });
        };
        EXPECT_EQ(In("cmdExpandShrink").GetToolTipText(), "Show search result");
        Click("cmdExpandShrink");
        EXPECT_TRUE(hasHeight(search_->ExpandedHeight));
        EXPECT_EQ(In("cmdExpandShrink").GetToolTipText(), "Hide search result");
        EXPECT_TRUE(In("txtSearchResult").IsShown());
        Click("cmdExpandShrink");
        EXPECT_TRUE(hasHeight(search_->ShrunkHeight));
    });
}

TEST_F(SearchWindowTest, OnlyTheResultAreaCanBeMadeLarger) {
    InSearchWindow([&] {
        const auto canResize = [&] { return CanBeResized(SystemWindowOf(*search_)); };
        const wxSize shrunk = search_->GetClientSize();
        EXPECT_FALSE(canResize());
        Click("cmdExpandShrink");
        ASSERT_TRUE(WaitFor(canResize) && ComesToRest(*search_));
        const wxSize designed = search_->GetClientSize();
        const wxSize box = In("txtSearchResult").GetSize();
        const int above = In("txtSearchResult").GetPosition().y;

        const wxSize more(80, 60);
        EnlargeAsUser(*search_, more);
        ASSERT_TRUE(WaitFor([&] { return search_->GetClientSize() == designed + more; }))
            << search_->GetClientSize().x << " x " << search_->GetClientSize().y;
        EXPECT_TRUE(WaitFor([&] {
            const wxSize grown = In("txtSearchResult").GetSize() - box;
            return grown.x == more.x && std::abs(grown.y - more.y) <= 1;
        }));
        EXPECT_EQ(In("txtSearchResult").GetPosition().y, above);
        EXPECT_EQ(In("lblColHeaderBack").GetSize().x, In("txtSearchResult").GetSize().x);
        EXPECT_EQ(In("picColHeader").GetSize().x, In("lblColHeaderBack").GetClientSize().x);

        ASSERT_TRUE(ComesToRest(*search_));
        Click("cmdExpandShrink");
        EXPECT_TRUE(WaitFor([&] { return search_->GetClientSize() == shrunk && !canResize(); }));
        ASSERT_TRUE(ComesToRest(*search_));
        Click("cmdExpandShrink");
        EXPECT_TRUE(WaitFor([&] { return search_->GetClientSize() == designed + more; }))
            << search_->GetClientSize().x << " x " << search_->GetClientSize().y;
        EnlargeAsUser(*search_, {-300, -300});
        EXPECT_TRUE(WaitFor([&] { return search_->GetClientSize() == designed; }))
            << search_->GetClientSize().x << " x " << search_->GetClientSize().y;
    });
}

// On Windows the box always has scroll bars.
TEST_F(SearchWindowTest, TheHeaderStandsOverTheExpansions) {
    InSearchWindow([&] {
        Search("bus");
        ASSERT_TRUE(ComesToRest(*search_));
        const auto& box = In<wxTextCtrl>("txtSearchResult");
        const long expansion = box.GetLineText(0).Find('\t') + 1;
        const wxWindow& header = In("picColHeader");
        const int left =
            box.GetScreenRect().x + LeftOfCharacter(box, 0, expansion) - header.GetScreenRect().x;
        constexpr int kLetter = 4;
        const int height = header.GetSize().y / 2;
        const wxImage picture = PictureOfScreen(header.GetScreenRect());
        const wxColour face = SystemColour(wxSYS_COLOUR_BTNFACE);
        EXPECT_GT(InkIn(picture, face, {left, 2, kLetter, height}), 0);
        EXPECT_EQ(InkIn(picture, face, {left - kLetter - 1, 2, kLetter, height}), 0);
    });
}

TEST_F(SearchWindowTest, AClickOnTheHeaderGivesTheResultTheFocus) {
    InSearchWindow([&] {
        Click("cmdExpandShrink");
        ASSERT_TRUE(WaitFor([&] { return search_->GetClientSize().y == search_->ExpandedHeight; }));
        ASSERT_TRUE(StaysFor(100, [&] { return In("picColHeader").IsShownOnScreen(); }));
        Click("picColHeader");
        EXPECT_TRUE(WaitFor([&] { return wxWindow::FindFocus() == &In("txtSearchResult"); }));
    });
}

TEST_F(SearchWindowTest, TheResultTellsWhatProgramThisIsInsteadOfAMenu) {
    InSearchWindow([&] {
        const MessageBoxes boxes;
        Search("bus");
        auto& result = In<wxTextCtrl>("txtSearchResult");
        const auto asked = [&](std::size_t times) {
            EXPECT_TRUE(WaitFor([&] { return boxes.texts.size() == times; })) << times;
            long from = 0;
            long to = 0;
            result.GetSelection(&from, &to);
            EXPECT_EQ(from, to);
        };
        result.SetSelection(0, 5);
        user_.Char(WXK_F10, wxMOD_SHIFT);
        asked(1);
        result.SetSelection(0, 5);
        user_.Char(WXK_WINDOWS_MENU);
        if (!WaitFor([&] { return boxes.texts.size() == 2; }, 500)) {
            user_.Char(WXK_MENU);  // its code with GTK
        }
        asked(2);
        result.SetSelection(0, 5);
        user_.MouseMove(result.GetScreenPosition() + wxPoint(100, 40));
        EXPECT_TRUE(WaitFor([&] { return result.GetScreenRect().Contains(wxGetMousePosition()); }));
        user_.MouseClick(wxMOUSE_BTN_RIGHT);
        asked(3);
        Settle();  // once for each
        EXPECT_EQ(boxes.texts.size(), 3U);
        const AppInfo& info = startUp_->Values().info;
        EXPECT_EQ(boxes.texts[0], "Brevilexicon version " + std::to_string(info.majorVersion) +
                                      "." + std::to_string(info.minorVersion) + "\n\n" +
                                      info.copyright + "\n" + info.supportAddress);
        EXPECT_EQ(boxes.titles[0], "Brevilexicon");
    });
}

TEST_F(SearchWindowTest, HelpsOnWildcards) {
    InSearchWindow([&] {
        const MessageBoxes boxes;
        Click("cmdHelp");
        ASSERT_TRUE(WaitFor([&] { return boxes.texts.size() == 1; }));
        EXPECT_EQ(boxes.titles[0], WildcardHelp().title);
        EXPECT_EQ(boxes.texts[0], WildcardHelp().text);
        EXPECT_EQ(boxes.styles[0] & wxICON_MASK, wxICON_NONE);
    });
}

TEST_F(SearchWindowTest, AnItemPickedFromTheHistoryIsReadyToBeSearched) {
    StartWith(DatabaseBytes(
                  {"AB\tx", "ABCDE\ta longer expansion"},
                  [](DatabaseHeader& header) { header.SearchListText = "  network1storage  "; }),
              "");
    InSearchWindow([&] {
        EXPECT_EQ(History(), (std::vector<std::string>{"network", "storage"}));
        Click("optSearchIn0");  // 5 characters at most may be typed now
        FocusSearchText();
        user_.Char(WXK_DOWN, wxMOD_ALT);
        Settle(200);  // nothing tells of the open list on both systems
        user_.Char(WXK_DOWN);
        Settle(100);
        user_.Char(WXK_RETURN);
        // The key goes to the first item on Windows, beyond it with GTK.
        EXPECT_TRUE(WaitFor([&] { return SearchText() == "network" || SearchText() == "storage"; }))
            << SearchText();
        EXPECT_TRUE(WaitFor([&] { return IsEnabled("cmdSearch"); }));
    });
}

TEST_F(SearchWindowTest, StandsInTheMiddleOfTheMainWindow) {
    InSearchWindow([&] { ExpectSameMiddle(search_->GetScreenRect(), window_->GetScreenRect()); });
}

TEST_F(SearchWindowTest, OverAHiddenMainWindowItStandsInTheMiddleOfTheScreen) {
    window_->Hide();
    InSearchWindow([&] {
        ExpectSameMiddle(search_->GetScreenRect(), wxRect(wxGetDisplaySize()));
        Search("bus");
        EXPECT_EQ(Label("lblStatus"), "Number of Hits: 2");
    });
    window_->Show();
}

TEST_F(SearchWindowTest, OverAMinimisedMainWindowItStandsInTheMiddleOfTheScreen) {
    window_->Iconize();
    ASSERT_TRUE(WaitFor([&] { return IsMinimised(); }));
    wxFrame other(nullptr, wxID_ANY, "Another window", {5, 5}, {300, 200});
    CenterWindow(other, *window_);
    ExpectSameMiddle(other.GetScreenRect(), wxRect(wxGetDisplaySize()));
    window_->Restore();
}

TEST_F(SearchWindowTest, TheAnimationGoesRoundItsFrames) {
    auto* animation = new BusyAnimation(window_, SearchFilmStrip(), 40);
    EXPECT_FALSE(animation->IsShown());
    animation->Run(true);
    EXPECT_TRUE(animation->IsShown());
    EXPECT_EQ(animation->ShownFrame(), 0);
    EXPECT_EQ(animation->AnimationFrame, 1);
    for (const int frame : {1, 2, 10, 0, 1}) {
        EXPECT_TRUE(WaitFor([&] { return animation->ShownFrame() == frame; })) << frame;
        EXPECT_EQ(animation->AnimationFrame, (frame + 1) % 11);
    }
    animation->Run(false);
    EXPECT_FALSE(animation->IsShown());
    EXPECT_FALSE(animation->tmrAnimation.IsRunning());
    animation->Run(true);
    EXPECT_EQ(animation->ShownFrame(), 0);
    animation->Destroy();
}

}  // namespace
}  // namespace brelex
