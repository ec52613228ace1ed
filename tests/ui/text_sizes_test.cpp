// SPDX-License-Identifier: MIT
// No window cuts its texts or lets controls overlap, whatever sizes and colors a user has chosen.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <wx/combobox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "tests/platform/screen.h"
#include "tests/ui/layout_faults.h"
#include "tests/ui/side_windows.h"
#include "tests/ui/ui_test_support.h"
#include "ui/controls/colours.h"

namespace brelex {
namespace {

// Of the program as it starts: ctest starts these tests anew with each of the settings.
class TextSizes : public SideWindowTest {
  protected:
    static void ExpectWhole(wxTopLevelWindow& window) {
        for (const std::string& fault : LayoutFaults(window)) {
            ADD_FAILURE() << window.GetName() << ": " << fault;
        }
    }
};

TEST_F(TextSizes, TheMainWindowCutsNoText) {
    // The longest hints.
    for (const char* hint :
         {"Number of entries in the database (double-click to view Database Info)",
          "Press Carriage Return or double-click an entry in the list to view it"}) {
        dynamic_cast<wxStaticText&>(*Control("lblDescription")).SetLabelText(hint);
        ExpectWhole(*window_);
    }
    const ListView list = ViewOf(window_->List());
    EXPECT_EQ(list.height % list.rowHeight, 0) << list.height << "/" << list.rowHeight;
}

TEST_F(TextSizes, NoSideWindowCutsAText) {
    for (const OpenedWindow& opened : kSideWindows) {
        InSideWindow(
            opened.name, [&] { window_->Run(opened.command); },
            [&] {
                ExpectWhole(Side());
                if (std::string(opened.name) == "frmSearch") {
                    // On the smallest screens the window has its largest height in both states.
                    Click("cmdExpandShrink");
                    LetEventsArrive();
                    ExpectWhole(Side());
                }
            });
    }
    Type("abc", "ABC");
    InSideWindow(
        "frmViewEntry", [&] { user_.Char(WXK_RETURN); }, [&] { ExpectWhole(Side()); });
}

// The colors as the controls have them. Pure red on white, which was chosen for it, has 4.0:1.
TEST_F(TextSizes, ResultsCanBeReadInTheUsersColors) {
    constexpr double kRedOnWhite = 3.9;
    const auto contrast = [](const wxWindow& control) {
        return ContrastRatio(RgbOf(control.GetForegroundColour()),
                             RgbOf(control.GetBackgroundColour()));
    };
    InSideWindow(
        "frmSearch", [&] { window_->Run(Command::Search); },
        [&] {
            In<wxComboBox>("cboSearchWhat").SetValue("zzzz");
            Click("cmdSearch");
            ASSERT_TRUE(WaitFor([&] { return !In<wxTextCtrl>("txtSearchResult").IsEmpty(); }));
            EXPECT_GE(contrast(In("txtSearchResult")), kRedOnWhite);
            EXPECT_GE(contrast(In("lblStatus")), kTextContrast);
        });
    InSideWindow(
        "frmCheckData", [&] { window_->Run(Command::CheckData); },
        [&] {
            Click("cmdCheck");
            ASSERT_TRUE(WaitFor([&] { return !Label("lblResult").empty(); }));
            EXPECT_GE(contrast(In("lblResult")), kTextContrast);
        });
}

}  // namespace
}  // namespace brelex
