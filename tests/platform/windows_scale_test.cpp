// SPDX-License-Identifier: MIT
// A window that moves to a screen of another scale. Wine has one scale for all screens, and its
// programs never ask for the scale of each, so that the toolkit ignores the message by which
// Windows tells of it. These tests call what the toolkit calls for that message.
#include <map>
#include <string>

#include <gtest/gtest.h>

#include <windows.h>

#include "tests/ui/layout_faults.h"
#include "tests/ui/ui_test_support.h"

namespace brelex {
namespace {

class OnAnotherScreen : public SideWindowTest {
  protected:
    // The toolkit's handler of the message. It then gives the window the size that Windows
    // suggests.
    static void MoveToScreen(int from, int to, wxTopLevelWindow& window) {
        const wxSize size = window.GetSize();
        window.MSWUpdateOnDPIChange(wxSize(from, from), wxSize(to, to));
        window.SetSize(size * to / from);
        LetEventsArrive();
    }

    /// Where the controls of a window stand on it.
    static void AddPlaces(const wxWindow& window, const wxPoint& origin,
                          std::map<std::string, wxRect>& places) {
        for (const wxWindow* const child : window.GetChildren()) {
            if (!child->IsTopLevel()) {
                const wxRect area(child->GetScreenPosition() - origin, child->GetSize());
                places[(child->GetName() + "/" + child->GetLabel()).utf8_string()] = area;
                AddPlaces(*child, origin, places);
            }
        }
    }

    static std::map<std::string, wxRect> PlacesIn(const wxTopLevelWindow& window) {
        std::map<std::string, wxRect> places;
        AddPlaces(window, window.ClientToScreen(wxPoint(0, 0)), places);
        return places;
    }

    static void ExpectLaidOutOnEachScreen(wxTopLevelWindow& window) {
        const auto before = PlacesIn(window);
        const wxSize size = window.GetClientSize();
        MoveToScreen(96, 120, window);
        EXPECT_NEAR(window.GetClientSize().x, size.x * 1.25, 30);
        EXPECT_NEAR(window.GetClientSize().y, size.y * 1.25, 30);
        for (const std::string& fault : LayoutFaults(window)) {
            ADD_FAILURE() << window.GetName() << ": " << fault;
        }
        MoveToScreen(120, 96, window);
        EXPECT_EQ(window.GetClientSize(), size);
        for (const auto& [name, area] : PlacesIn(window)) {
            const wxRect& was = before.at(name);
            for (const int difference : {area.x - was.x, area.y - was.y, area.width - was.width,
                                         area.height - was.height}) {
                EXPECT_NEAR(difference, 0, 2) << name;
            }
        }
    }
};

TEST_F(OnAnotherScreen, TheMainWindowIsLaidOutAgain) {
    ExpectLaidOutOnEachScreen(*window_);
    Type("ab", "AB");
}

TEST_F(OnAnotherScreen, TheWindowsWithResultsAreLaidOutAgain) {
    InSideWindow(
        "frmSearch", [&] { window_->Run(Command::Search); },
        [&] {
            ExpectLaidOutOnEachScreen(Side());
            Click("cmdExpandShrink");
            ASSERT_TRUE(WaitFor([&] { return In("txtSearchResult").IsShown(); }));
            ExpectLaidOutOnEachScreen(Side());
        });
    InSideWindow(
        "frmAnagram", [&] { window_->Run(Command::Anagram); },
        [&] { ExpectLaidOutOnEachScreen(Side()); });
}

TEST_F(OnAnotherScreen, TheOtherWindowsAreLaidOutAgain) {
    for (const auto& [name, command] :
         std::map<const char*, Command>{{"frmAbout", Command::About},
                                        {"frmCheckData", Command::CheckData},
                                        {"frmDataInfo", Command::DatabaseInfo},
                                        {"frmDonation", Command::Donate},
                                        {"frmSmiley", Command::Smileys}}) {
        InSideWindow(
            name, [&, command = command] { window_->Run(command); },
            [&] { ExpectLaidOutOnEachScreen(Side()); });
    }
}

}  // namespace
}  // namespace brelex
