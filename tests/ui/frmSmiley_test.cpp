// SPDX-License-Identifier: MIT
#include "ui/frmSmiley.h"

#include <functional>
#include <string>

#include <gtest/gtest.h>

#include <wx/button.h>
#include <wx/textctrl.h>

#include "presentation/program_texts.h"
#include "tests/platform/keyboard.h"
#include "tests/ui/pictures.h"
#include "tests/ui/ui_test_support.h"
#include "toolkit/wx_text.h"

namespace brelex {
namespace {

class SmileyWindowTest : public SideWindowTest {
  protected:
    void InSmileyWindow(const std::function<void()>& work) {
        InSideWindow(
            "frmSmiley", [&] { window_->OpenModalForm(3); }, work);
    }

    [[nodiscard]] wxTextCtrl& Text() const { return In<wxTextCtrl>("txtReadme"); }

    void SelectSome() {
        Text().SetFocus();
        Text().SetSelection(3, 9);
        ASSERT_TRUE(WaitFor(
            [&] { return HasFocus("txtReadme") && Text().GetStringSelection().length() == 6U; }));
    }
};

TEST_F(SmileyWindowTest, ShowsTheDictionary) {
    InSmileyWindow([&] {
        EXPECT_EQ(Side().GetTitle(), "The Smiley Dictionary");
        std::string text = SmileyDictionaryText();
        std::erase(text, '\r');  // the toolkit tells of LF on both systems
        EXPECT_EQ(Utf8Text(Text().GetValue()), text);
        EXPECT_FALSE(Text().IsEditable());
        EXPECT_EQ(Text().GetFont().GetFaceName(), "Verdana");
        EXPECT_EQ(Text().GetInsertionPoint(), 0);
        EXPECT_EQ(Text().GetStringSelection(), "");
    });
}

TEST_F(SmileyWindowTest, NoLineIsCutOff) {
    InSmileyWindow([&] {
        for (const char* const line :
             {"A smiley is a combination of two or more keyboard characters that can emulate a "
              "wide range of facial",
              "expressions. Written text carries no tone of voice, so a small face tells the "
              "reader how a line is"}) {
            ASSERT_TRUE(Text().GetValue().Contains(line));
            EXPECT_GE(Text().GetClientSize().x, Text().GetTextExtent(line).x + 2 * 8) << line;
        }
    });
}

TEST_F(SmileyWindowTest, TheMeaningsFormOneColumn) {
    InSmileyWindow([&] { EXPECT_EQ(ColumnsOfMeanings(Text()).size(), 1U); });
}

TEST_F(SmileyWindowTest, TheFirstLineKeepsItsDistanceToTheEdge) {
    InSmileyWindow([&] {
        constexpr int kMargin = 8;  // above the caret, which is as high as the line
        EXPECT_TRUE(WaitFor([&] { return RowsAboveText(Text()) >= kMargin; }))
            << RowsAboveText(Text());
    });
}

TEST_F(SmileyWindowTest, TheTextTakesKeysAtOnce) {
    const MessageBoxes boxes;
    InSmileyWindow([&] {
        EXPECT_TRUE(HasFocus("txtReadme"));
        EXPECT_EQ(Text().GetStringSelection(), "");
        user_.Char(WXK_F10, wxMOD_SHIFT);
        EXPECT_TRUE(WaitFor([&] { return boxes.texts.size() == 1; }));
        user_.Char(WXK_PAGEDOWN);
        EXPECT_TRUE(WaitFor([&] { return Text().GetInsertionPoint() > 0; }));
        user_.Char(WXK_TAB);
        EXPECT_TRUE(WaitFor([&] { return HasFocus("cmdClose"); }));
    });
}

TEST_F(SmileyWindowTest, EnterInTheTextClosesIt) {
    InSmileyWindow([&] {
        user_.Char(WXK_RETURN);
        EXPECT_TRUE(WaitFor([&] { return !Side().IsShown(); }));
    });
    InSmileyWindow([&] {
        PressKeypadEnter();
        EXPECT_TRUE(WaitFor([&] { return !Side().IsShown(); }));
    });
}

TEST_F(SmileyWindowTest, ARightClickTellsOfTheProgramAndLeavesNothingSelected) {
    const MessageBoxes boxes;
    InSmileyWindow([&] {
        SelectSome();
        user_.MouseMove(Text().ClientToScreen(wxPoint(60, 60)));
        LetEventsArrive();
        user_.MouseClick(wxMOUSE_BTN_RIGHT);
        ASSERT_TRUE(WaitFor([&] { return boxes.texts.size() == 1; }));
        const AppInfo& info = startUp_->Values().info;
        EXPECT_EQ(boxes.texts[0],
                  "Brevilexicon version 1.0\n\n" + info.copyright + "\n" + info.supportAddress);
        EXPECT_EQ(boxes.titles[0], "Brevilexicon");
        EXPECT_EQ(boxes.styles[0] & (wxICON_MASK | wxOK | wxYES_NO), wxICON_INFORMATION | wxOK);
        EXPECT_EQ(Text().GetStringSelection(), "");
    });
}

TEST_F(SmileyWindowTest, ShiftF10DoesTheSameAndCtrlF10Nothing) {
    const MessageBoxes boxes;
    InSmileyWindow([&] {
        SelectSome();
        user_.Char(WXK_F10, wxMOD_CONTROL);
        EXPECT_TRUE(StaysFor(100, [&] { return boxes.texts.empty(); }));
        EXPECT_EQ(Text().GetStringSelection().length(), 6U);
        user_.Char(WXK_F10, wxMOD_SHIFT);
        ASSERT_TRUE(WaitFor([&] { return boxes.texts.size() == 1; }));
        EXPECT_EQ(Text().GetStringSelection(), "");
    });
}

TEST_F(SmileyWindowTest, CloseAndEscapeCloseIt) {
    InSmileyWindow([&] {
        Click("cmdClose");
        EXPECT_TRUE(WaitFor([&] { return !Side().IsShown(); }));
    });
    InSmileyWindow([&] {
        user_.Char(WXK_ESCAPE);
        EXPECT_TRUE(WaitFor([&] { return !Side().IsShown(); }));
    });
    EXPECT_EQ(wxWindow::FindWindowByName("frmSmiley"), nullptr);
}

}  // namespace
}  // namespace brelex
