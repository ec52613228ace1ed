// SPDX-License-Identifier: MIT
#include "ui/frmCheckData.h"

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <wx/button.h>
#include <wx/math.h>
#include <wx/msgdlg.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>

#include "database/szdd.h"
#include "tests/ui/ui_test_support.h"
#include "ui/controls/artwork.h"
#include "ui/controls/colours.h"
#include "ui/controls/progress_bar.h"

namespace brelex {
namespace {

const wxColour kBlue(0, 0, 255);
const wxColour kDarkRed(192, 0, 0);

class CheckWindowTest : public SideWindowTest {
  protected:
    void InCheckWindow(const std::function<void()>& work) {
        InSideWindow(
            "frmCheckData", [&] { window_->OpenModalForm(5); }, work);
    }

    [[nodiscard]] bool IsChecking() const { return !In("cmdCheck").IsEnabled(); }

    [[nodiscard]] int Percent() const { return In<ProgressBar>("picProgbar").Percent(); }

    // The check lets the test go on while it runs, and the end of what the test does is the end of
    // neither.
    void StartCheck(const std::function<void()>& meanwhile) {
        ModalDriver driver({[&] { return IsChecking() && Percent() > 0; },
                            [&] {
                                meanwhile();
                                return true;
                            }});
        Click("cmdCheck");
        EXPECT_TRUE(WaitFor([&] { return driver.Done() && !IsChecking(); }, 8000));
    }

    // A check goes on within the wait, which therefore sees no more than its end.
    void Check() {
        In<wxStaticText>("lblMessage").SetLabelText("before the check");
        Click("cmdCheck");
        ASSERT_TRUE(WaitFor(
            [&] { return !IsChecking() && Label("lblMessage") != "before the check"; }, 8000));
    }

    void ChangeALetter() {
        std::string expanded = ExpandedBytes(SampleEntries());
        expanded.back() = 'x';
        expanded[expanded.size() - 10] ^= 1;
        folder_.Write("Acronyms.dat", CompressSzdd(expanded));
    }

    void ExpectResult(const char* text, const wxColour& colour) {
        EXPECT_EQ(Label("lblResult"), text);
        EXPECT_EQ(In("lblResult").GetForegroundColour(), colour);
        EXPECT_EQ(Label("lblMessage"), "Completed");
        EXPECT_EQ(Percent(), 100);
        EXPECT_TRUE(In("imgResult").IsShown());
    }

    void ExpectNoResult() {
        EXPECT_EQ(Label("lblResult"), "");
        EXPECT_FALSE(In("imgResult").IsShown());
        EXPECT_EQ(Label("lblMessage"), "Progress");
        EXPECT_EQ(Percent(), -1);
    }

    bool blinked_ = false;  // while a check ran

    [[nodiscard]] bool ResultHasPictureOf(const char* name) const {
        return SamePictures(In<wxStaticBitmap>("imgResult").GetBitmap(),
                            In<wxStaticBitmap>(name).GetBitmap());
    }
};

// With the real message, which takes the keyboard and gives it back.
TEST_F(CheckWindowTest, AfterAnAbortedCheckTheFocusIsOnCheck) {
    Start(NumberedRecords(60000));
    InCheckWindow([&] {
        int looks = 0;
        wxTimer press;
        press.Bind(wxEVT_TIMER, [&](wxTimerEvent&) {
            ++looks;
            if (IsChecking() && looks < 5) {
                user_.Char(WXK_ESCAPE);
                looks = 5;
            } else if (looks > 15) {
                press.Stop();
                user_.Char(WXK_RETURN);
            }
        });
        press.Start(40);
        Click("cmdCheck");
        ASSERT_TRUE(WaitFor([&] { return !IsChecking() && !press.IsRunning(); }, 8000));
        EXPECT_TRUE(Side().IsShown());
        EXPECT_TRUE(WaitFor([&] { return HasFocus("cmdCheck"); }));
    });
}

TEST_F(CheckWindowTest, OpensIdle) {
    InCheckWindow([&] {
        EXPECT_EQ(Side().GetTitle(), "Check Data Integrity");
        wxString explanation = In<wxStaticText>("lblExplanation").GetLabelText();
        explanation.Replace("\n", " ");
        EXPECT_EQ(explanation,
                  "Checks data integrity of the database. The integrity check will fail even if a "
                  "single letter in the database has changed. It may be due to a corrupt "
                  "installation file or a bad sector on your disk.");
        ExpectNoResult();
        EXPECT_TRUE(HasFocus("cmdCheck"));
    });
}

TEST_F(CheckWindowTest, AnUnchangedFilePassesInBlue) {
    InCheckWindow([&] {
        Check();
        ExpectResult("Data integrity check PASSED", kBlue);
        EXPECT_TRUE(ResultHasPictureOf("imgPassed"));
        EXPECT_FALSE(ResultHasPictureOf("imgFailed"));
    });
}

TEST_F(CheckWindowTest, AChangedFileFailsInDarkRedAndPassesWhenItIsMended) {
    ChangeALetter();
    InCheckWindow([&] {
        Check();
        ExpectResult("Data integrity check FAILED", kDarkRed);
        EXPECT_TRUE(ResultHasPictureOf("imgFailed"));
        folder_.Write("Acronyms.dat", DatabaseBytes(SampleEntries()));
        Check();
        ExpectResult("Data integrity check PASSED", kBlue);
    });
}

TEST_F(CheckWindowTest, ShowsHowFarItIsAndLetsTheWindowWork) {
    InCheckWindow([&] {
        int first = 0;
        ModalDriver driver({[&] {
                                first = Percent();
                                return IsChecking() && first > 0;
                            },
                            [&] {
                                EXPECT_EQ(Label("lblMessage"), "Checking data integrity...");
                                return Percent() > first;
                            }});
        Check();
        EXPECT_TRUE(driver.Done());
    });
}

// The first and last column behind `from` with the color of a text, away from the edges.
std::pair<int, int> ColumnsOfText(const wxImage& image, int from, const wxColour& text) {
    constexpr int kNear = 60;
    const auto near = [](int one, int other) { return std::abs(one - other) < kNear; };
    int first = image.GetWidth();
    int last = 0;
    for (int x = from; x < image.GetWidth() - 1; ++x) {
        for (int y = 2; y < image.GetHeight() - 2; ++y) {
            const bool ink = near(image.GetRed(x, y), text.Red()) &&
                             near(image.GetGreen(x, y), text.Green()) &&
                             near(image.GetBlue(x, y), text.Blue());
            first = ink ? std::min(first, x) : first;
            last = ink ? x : last;
        }
    }
    return {first, last};
}

void ExpectBarUpTo(const wxImage& image, int right) {
    const int height = image.GetHeight();
    EXPECT_EQ(ColourAt(image, 0, height / 2), EdgesOnFace().light);
    EXPECT_EQ(ColourAt(image, right / 2, 0), EdgesOnFace().light);
    EXPECT_EQ(ColourAt(image, right, 4), EdgesOnFace().shadow);
    EXPECT_EQ(ColourAt(image, right / 2, height - 1), EdgesOnFace().shadow);
}

TEST_F(CheckWindowTest, TheBarEndsAtThePercentageWrittenOnIt) {
    InCheckWindow([&] {
        auto& bar = In<ProgressBar>("picProgbar");
        const wxColour background = SystemColour(wxSYS_COLOUR_WINDOW);
        const int width = bar.GetClientSize().x;
        EXPECT_EQ(ColourAt(PictureOf(bar), width / 4, 4), background);
        for (const int percent : {25, 100}) {
            bar.SetPercent(percent);
            const wxImage picture = PictureOf(bar);
            const int right = wxRound(width / 100.0 * percent - 1);
            ExpectBarUpTo(picture, right);
            EXPECT_TRUE(percent == 100 || ColourAt(picture, right + 2, 4) == background);
            // The text stands in the middle, over the bar or beside it.
            EXPECT_EQ(ColourAt(picture, right / 4, 4), SystemColour(wxSYS_COLOUR_HIGHLIGHT));
            const auto [first, last] =
                percent < 100
                    ? ColumnsOfText(picture, right + 1, SystemColour(wxSYS_COLOUR_WINDOWTEXT))
                    : ColumnsOfText(picture, 1, SystemColour(wxSYS_COLOUR_HIGHLIGHTTEXT));
            EXPECT_GT(last, first);
            EXPECT_NEAR((first + last) / 2.0, width / 2.0, 3.0);
        }
    });
}

TEST_F(CheckWindowTest, AFailureNobodyExpectsEndsTheCheckAndNotTheWindow) {
    const ExpectedExceptions expected;
    const MessageBoxes boxes;
    InCheckWindow([&] {
        files_.memoryIsFull = true;
        Click("cmdCheck");
        EXPECT_TRUE(WaitFor([&] { return boxes.texts.size() == 1; }));
        EXPECT_EQ(boxes.texts[0], "There is not enough memory for that.");
        ExpectNoResult();
        files_.memoryIsFull = false;
        Check();
        ExpectResult("Data integrity check PASSED", kBlue);
    });
}

TEST_F(CheckWindowTest, TheResultBlinks) {
    InCheckWindow([&] {
        Check();
        for (int i = 0; i < 2; ++i) {
            EXPECT_TRUE(WaitFor([&] { return !In("lblResult").IsShown(); }));
            EXPECT_TRUE(In("imgResult").IsShown());
            EXPECT_TRUE(WaitFor([&] { return In("lblResult").IsShown(); }));
        }
    });
}

TEST_F(CheckWindowTest, TheNextCheckClearsTheResultAndStopsItsBlinking) {
    InCheckWindow([&] {
        Check();
        ASSERT_TRUE(WaitFor([&] { return !In("lblResult").IsShown(); }));
        std::string result = "none";
        bool shown = false;
        bool picture = true;
        In("lblResult").Bind(wxEVT_SHOW, [this](wxShowEvent& event) {
            blinked_ |= IsChecking() && !event.IsShown();
            event.Skip();
        });
        StartCheck([&] {
            result = Label("lblResult");
            shown = In("lblResult").IsShown();
            picture = In("imgResult").IsShown();
        });
        EXPECT_EQ(result, "");
        EXPECT_TRUE(shown);
        EXPECT_FALSE(picture);
        EXPECT_FALSE(blinked_);
        ExpectResult("Data integrity check PASSED", kBlue);
    });
}

TEST_F(CheckWindowTest, CancelAndEscapeEndARunningCheck) {
    InCheckWindow([&] {
        const MessageBoxes boxes;
        const std::vector<std::function<void()>> ways = {[&] { Click("cmdCancel"); },
                                                         [&] { user_.Char(WXK_ESCAPE); }};
        for (const auto& cancel : ways) {
            StartCheck(cancel);
            EXPECT_TRUE(Side().IsShown());
            ExpectNoResult();
        }
        EXPECT_EQ(boxes.texts, std::vector<std::string>(2, "Check was aborted by user"));
        EXPECT_EQ(boxes.styles[0] & wxICON_MASK, wxICON_INFORMATION);
    });
}

TEST_F(CheckWindowTest, CancelAndEscapeCloseTheIdleWindow) {
    const MessageBoxes boxes;
    InCheckWindow([&] {
        Click("cmdCancel");
        EXPECT_TRUE(WaitFor([&] { return !Side().IsShown(); }));
    });
    InCheckWindow([&] {
        user_.Char(WXK_ESCAPE);
        EXPECT_TRUE(WaitFor([&] { return !Side().IsShown(); }));
    });
    EXPECT_TRUE(boxes.texts.empty());
    EXPECT_EQ(wxWindow::FindWindowByName("frmCheckData"), nullptr);
}

TEST_F(CheckWindowTest, ClosingTheWindowEndsTheCheck) {
    const MessageBoxes boxes;
    InCheckWindow([&] {
        bool ended = false;
        StartCheck([&] {
            Side().Close();
            ended = !Side().IsShown();
        });
        EXPECT_TRUE(ended);
    });
    EXPECT_TRUE(boxes.texts.empty());
    EXPECT_FALSE(window_->IsModalOpen());
}

TEST_F(CheckWindowTest, TheEndOfTheProgramEndsTheCheck) {
    frmMain* const window = window_;
    InCheckWindow([&] {
        StartCheck([&] { window->Close(true); });
        EXPECT_FALSE(Side().IsShown());
        window_ = nullptr;
    });
    EXPECT_TRUE(WaitFor([&] { return wxTopLevelWindows.Find(window) == nullptr; }));
}

TEST_F(CheckWindowTest, TheAccessKeyAndReturnCheck) {
    InCheckWindow([&] {
        user_.Char('C', wxMOD_ALT);
        ASSERT_TRUE(WaitFor([&] { return Label("lblMessage") == "Completed"; }, 8000));
        In("cmdCheck").SetFocus();
        In<wxStaticText>("lblMessage").SetLabelText("before");
        user_.Char(WXK_RETURN);
        ASSERT_TRUE(WaitFor([&] { return Label("lblMessage") == "Completed"; }, 8000));
    });
}

}  // namespace
}  // namespace brelex
