// SPDX-License-Identifier: MIT
// Side windows open over the middle of the main window, wherever that is.
#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

#include <wx/button.h>
#include <wx/combobox.h>

#include "tests/platform/screen.h"
#include "tests/support/named_case.h"
#include "tests/ui/ui_test_support.h"

namespace brelex {
namespace {

class Placing : public SideWindowTest {
  protected:
    // How far the middle of the side window is from that of the main window, in pixels. The middle
    // of an odd number lies half a pixel off.
    [[nodiscard]] wxPoint Offset() const {
        const wxRect main = FrameOnScreen(*window_);
        const wxRect side = FrameOnScreen(Side());
        return {side.x + side.width / 2 - (main.x + main.width / 2),
                side.y + side.height / 2 - (main.y + main.height / 2)};
    }

    [[nodiscard]] bool IsCentered() const {
        return WaitFor([&] { return std::abs(Offset().x) <= 1 && std::abs(Offset().y) <= 1; });
    }

    void ExpectCentered(const std::string& when) const {
        EXPECT_TRUE(IsCentered()) << when << ": off by " << Offset().x << ", " << Offset().y;
    }

    void MoveMain(int x, int y) {
        window_->Move(x, y);
        ASSERT_TRUE(WaitFor([&] {
            const wxRect frame = FrameOnScreen(*window_);
            return std::abs(frame.x - x) <= 1 && std::abs(frame.y - y) <= 1;
        }));
        LetEventsArrive();
    }

    void Open(Command command, const char* name, const std::function<void()>& work) {
        InSideWindow(
            name, [&] { window_->Run(command); }, work);
    }
};

struct SideWindowCase {
    const char* name;
    Command command;
};

class PlacingOfAll : public Placing, public testing::WithParamInterface<SideWindowCase> {};

TEST_P(PlacingOfAll, OpensOverTheMiddleOfTheMainWindow) {
    MoveMain(60, 80);
    Open(GetParam().command, GetParam().name, [&] { ExpectCentered("first time"); });
    MoveMain(300, 200);
    Open(GetParam().command, GetParam().name,
         [&] { ExpectCentered("after the main window moved"); });
}

INSTANTIATE_TEST_SUITE_P(Windows, PlacingOfAll,
                         testing::Values(SideWindowCase{"frmSearch", Command::Search},
                                         SideWindowCase{"frmAnagram", Command::Anagram},
                                         SideWindowCase{"frmDataInfo", Command::DatabaseInfo},
                                         SideWindowCase{"frmSmiley", Command::Smileys},
                                         SideWindowCase{"frmAbout", Command::About},
                                         SideWindowCase{"frmCheckData", Command::CheckData},
                                         SideWindowCase{"frmDonation", Command::Donate}),
                         CaseName());

// A suite of its own, because not every window manager lets a program move its window there.
class MainWindowOutOfSight : public Placing {};

// A window out of sight would keep the main window from being used.
TEST_F(MainWindowOutOfSight, OpensItsWindowsInSight) {
    const wxSize size = window_->GetSize();
    window_->Move(60 - size.x, 100);
    ASSERT_TRUE(WaitFor([&] {
        const wxRect main = FrameOnScreen(*window_);
        return main.x + main.width / 2 < 0;
    }));
    LetEventsArrive();
    Open(Command::Search, "frmSearch", [&] {
        const wxRect screen(ScreenSize());
        EXPECT_TRUE(WaitFor([&] { return screen.Contains(FrameOnScreen(Side())); }))
            << FrameOnScreen(Side()).x << ", " << FrameOnScreen(Side()).y;
    });
}

TEST_F(Placing, TheSearchWindowIsCenteredExpandedAndShrunk) {
    MoveMain(200, 100);
    Open(Command::Search, "frmSearch", [&] {
        ExpectCentered("shrunk");
        Click("cmdExpandShrink");
        ExpectCentered("expanded");
    });
    const int expandedWindowsHeight = FrameOnScreen(*window_).height;
    MoveMain(120, 160);
    Open(Command::Search, "frmSearch", [&] {
        Click("cmdExpandShrink");
        ExpectCentered("the other size");
        Click("cmdCancel");
    });
    Open(Command::Search, "frmSearch", [&] { ExpectCentered("reopened"); });
    EXPECT_EQ(FrameOnScreen(*window_).height, expandedWindowsHeight);
}

}  // namespace
}  // namespace brelex
