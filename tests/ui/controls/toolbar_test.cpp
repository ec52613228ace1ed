// SPDX-License-Identifier: MIT
#include "ui/controls/toolbar.h"

#include <array>
#include <cstddef>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/image.h>
#include <wx/settings.h>
#include <wx/utils.h>

#include "tests/platform/screen.h"
#include "tests/support/named_case.h"
#include "tests/ui/ui_test_support.h"
#include "ui/controls/colours.h"
#include "ui/controls/modFlatButton.h"

namespace brelex {
namespace {

constexpr int kIcons = 7;

class ToolbarWindowTest : public MainWindowTest {
  protected:
    [[nodiscard]] Toolbar& Bar() const { return dynamic_cast<Toolbar&>(*Control("picToolbar")); }

    [[nodiscard]] wxPoint MiddleOf(int icon) const {
        const IconBounds& bounds = Bar().BoundsOf(icon);
        return Bar().ClientToScreen(wxPoint(static_cast<int>(bounds.left + bounds.width / 2),
                                            static_cast<int>(bounds.top + bounds.height / 2)));
    }

    void MoveTo(const wxPoint& place) {
        for (const wxPoint& step : {place - wxPoint(1, 0), place}) {
            user_.MouseMove(step);
            EXPECT_TRUE(WaitFor([&] { return wxGetMousePosition() == step; }));
        }
    }

    void Hover(int icon) {
        MoveTo(MiddleOf(icon));
        ASSERT_TRUE(WaitFor([&] { return Bar().EdgeOf(icon) == Edge::Raised; }));
    }

    void Press(int icon) {
        Hover(icon);
        user_.MouseDown();
        ASSERT_TRUE(WaitFor([&] { return Bar().EdgeOf(icon) == Edge::Sunken; }));
    }

    [[nodiscard]] wxPoint BelowTheToolbar() const {
        return window_->List().Window().ClientToScreen(wxPoint(200, 60));
    }

    void ExpectFlat() const {
        for (int i = 0; i < kIcons; ++i) {
            EXPECT_EQ(Bar().EdgeOf(i), Edge::Flat) << i;
        }
    }
};

// That of the donation says what its neighbor says.
TEST_F(ToolbarWindowTest, EachIconRisesAndSaysWhatItIsFor) {
    int icon = 0;
    for (const char* const description :
         {"Search Database", "Anagrammatic Search", "Smiley Dictionary", "Help Contents", "About",
          "Exit", "Exit"}) {
        Hover(icon++);
        EXPECT_EQ(LabelText("lblDescription"), description);
    }
}

// The mouse jumps from icon to icon, while the tool tip of the one before is still shown.
TEST_F(ToolbarWindowTest, EachIconHasItsToolTipAtItself) {
    int index = 0;
    for (const char* const text :
         {"Searches the database based on criteria",
          "Searches the database anagrammatically for acronyms", "Displays a dictionary of smileys",
          "Opens the Help Contents window", "Displays information about the program",
          "Donate any amount you wish via PayPal", "Quits the application"}) {
        Hover(index);
        const wxPoint icon = MiddleOf(index++);
        ToolTipView tip;
        const auto isThere = [&] {
            tip = ToolTipOnScreen();
            return tip.text == text && tip.place.x < icon.x + 40 &&
                   tip.place.x + tip.place.width > icon.x - 40 &&
                   std::abs(tip.place.y - icon.y) < 70;
        };
        // Wine may take the first icon for one of a window before: the mouse leaves and comes
        // again.
        EXPECT_TRUE(WaitFor([&] {
            if (WaitFor(isThere, 2500)) {
                return true;
            }
            MoveTo(BelowTheToolbar());
            MoveTo(icon);
            return false;
        })) << text
            << ": \"" << tip.text << "\" at " << tip.place.x << ", " << tip.place.y << ", icon at "
            << icon.x << ", " << icon.y;
    }
}

TEST_F(ToolbarWindowTest, LeavingFlattensTheIconAndEmptiesTheDescription) {
    Hover(0);
    MoveTo(BelowTheToolbar());
    EXPECT_TRUE(WaitFor([&] { return Bar().EdgeOf(0) == Edge::Flat; }));
    EXPECT_NE(LabelText("lblDescription"), "Search Database");
    EXPECT_FALSE(Bar().HasCapture());
}

TEST_F(ToolbarWindowTest, BetweenIconsNothingIsRaisedOrDescribed) {
    Hover(0);
    const IconBounds& icon = Bar().BoundsOf(0);
    const double behind = icon.left + icon.width;
    const double gap = Bar().BoundsOf(1).left - behind;
    MoveTo(Bar().ClientToScreen(
        wxPoint(static_cast<int>(behind + gap / 2), static_cast<int>(icon.top + icon.height / 2))));
    EXPECT_TRUE(WaitFor([&] { return Bar().EdgeOf(0) == Edge::Flat; }));
    ExpectFlat();
    EXPECT_EQ(LabelText("lblDescription"), "");
    EXPECT_EQ(Bar().GetToolTipText(), "");
}

// A touch moves the mouse, presses and releases at once.
TEST_F(ToolbarWindowTest, ATapOpensTheWindow) {
    MoveTo(BelowTheToolbar());
    EXPECT_EQ(NameOfOpened([&] {
                  user_.MouseMove(MiddleOf(2));
                  user_.MouseDown();
                  user_.MouseUp();
              }),
              "frmSmiley");
    ExpectFlat();
    EXPECT_FALSE(Bar().HasCapture());
}

TEST_F(ToolbarWindowTest, AMouseThatOnlyCrossesAnIconLeavesItFlat) {
    MoveTo(BelowTheToolbar());
    user_.MouseMove(MiddleOf(2));
    user_.MouseMove(BelowTheToolbar());
    LetEventsArrive();
    EXPECT_TRUE(StaysFor(100, [&] {
        return Bar().EdgeOf(2) == Edge::Flat && LabelText("lblDescription") != "Smiley Dictionary";
    }));
    ExpectFlat();
}

struct ActionCase {
    const char* name;
    int icon;
    const char* window;
};

class ToolbarAction : public ToolbarWindowTest, public testing::WithParamInterface<ActionCase> {};

TEST_P(ToolbarAction, OpensItsWindowOnRelease) {
    Press(GetParam().icon);
    EXPECT_FALSE(window_->IsModalOpen());
    EXPECT_EQ(NameOfOpened([&] { user_.MouseUp(); }, [&] { ExpectFlat(); }), GetParam().window);
}

INSTANTIATE_TEST_SUITE_P(Table, ToolbarAction,
                         testing::Values(ActionCase{"Search", 0, "frmSearch"},
                                         ActionCase{"Anagrams", 1, "frmAnagram"},
                                         ActionCase{"Smileys", 2, "frmSmiley"},
                                         ActionCase{"About", 4, "frmAbout"},
                                         ActionCase{"DonationThatSaysExit", 5, "frmDonation"}),
                         CaseName());

TEST_F(ToolbarWindowTest, TheFourthShowsTheHelp) {
    folder_.Write("Brelex.hlp", "help");
    Press(3);
    user_.MouseUp();
    EXPECT_TRUE(WaitFor([&] { return desktop_.opened.size() == 1; }));
}

TEST_F(ToolbarWindowTest, TheLastEndsTheProgram) {
    Press(6);
    frmMain* const window = std::exchange(window_, nullptr);
    user_.MouseUp();
    EXPECT_TRUE(WaitFor([&] { return wxTopLevelWindows.Find(window) == nullptr; }));
}

TEST_F(ToolbarWindowTest, APressThatIsDraggedOutOpensNothing) {
    Press(0);
    EXPECT_TRUE(Bar().HasCapture());
    MoveTo(BelowTheToolbar());
    EXPECT_FALSE(Bar().HasCapture());
    user_.MouseUp();
    EXPECT_TRUE(StaysFor(150, [&] { return !window_->IsModalOpen(); }));
    ExpectFlat();
}

TEST_F(ToolbarWindowTest, APressThatSlidesToAnotherIconRunsThatOne) {
    Press(0);
    MoveTo(MiddleOf(2));
    EXPECT_TRUE(WaitFor([&] { return Bar().EdgeOf(2) == Edge::Sunken; }));
    EXPECT_EQ(Bar().EdgeOf(0), Edge::Flat);
    EXPECT_EQ(NameOfOpened([&] { user_.MouseUp(); }), "frmSmiley");
}

TEST_F(ToolbarWindowTest, TheRightButtonDoesNothing) {
    Hover(0);
    user_.MouseDown(wxMOUSE_BTN_RIGHT);
    EXPECT_TRUE(StaysFor(60, [&] { return Bar().EdgeOf(0) == Edge::Raised; }));
    MoveTo(MiddleOf(0) + wxPoint(3, 0));
    EXPECT_EQ(Bar().EdgeOf(0), Edge::Raised);
    user_.MouseUp(wxMOUSE_BTN_RIGHT);
    EXPECT_TRUE(StaysFor(60, [&] { return !Bar().HasCapture() && !window_->IsModalOpen(); }));
}

TEST_F(ToolbarWindowTest, TheEdgeIsDrawnRoundTheHotIconOnly) {
    const EdgeRectangle edge = EdgeRectangleOf(Bar().BoundsOf(2));
    const int middle = (edge.top + edge.bottom) / 2;
    const auto edgeColour = [&] { return ColourAt(PictureOf(Bar()), edge.right, middle); };
    MoveTo(BelowTheToolbar());
    EXPECT_EQ(edgeColour(), *wxGREEN);
    Hover(1);
    EXPECT_EQ(edgeColour(), *wxGREEN);
    Hover(2);
    EXPECT_EQ(edgeColour(), EdgesOnFace().shadow);
    user_.MouseDown();
    EXPECT_TRUE(WaitFor([&] { return edgeColour() == EdgesOnFace().light; }));
    MoveTo(BelowTheToolbar());
    user_.MouseUp();
    EXPECT_EQ(edgeColour(), *wxGREEN);
}

// As somebody who sees no colors tells them apart: the plate beside the picture and both edges.
TEST_F(ToolbarWindowTest, AnIconThatIsFlatHotOrPressedLooksDifferentWithoutColors) {
    const EdgeRectangle edge = EdgeRectangleOf(Bar().BoundsOf(2));
    const auto colours = [&] {
        const wxImage picture = PictureOf(Bar());
        const int middle = (edge.top + edge.bottom) / 2;
        return std::array{RgbOf(ColourAt(picture, edge.left, middle)),
                          RgbOf(ColourAt(picture, edge.right, middle)),
                          RgbOf(ColourAt(picture, edge.left + 1, edge.top + 1))};
    };
    const Rgb face = RgbOf(wxSYS_COLOUR_BTNFACE);
    Hover(2);
    const auto hot = colours();
    user_.MouseDown();
    ASSERT_TRUE(WaitFor([&] { return Bar().EdgeOf(2) == Edge::Sunken; }));
    const auto pressed = colours();
    for (std::size_t i = 0; i < 2; ++i) {
        EXPECT_GE(ContrastRatio(hot.at(i), face), 1.3);
        EXPECT_GE(ContrastRatio(pressed.at(i), face), 1.3);
        EXPECT_GE(ContrastRatio(hot.at(i), pressed.at(i)), 1.3);
    }
    EXPECT_GT(ContrastRatio(hot[2], face), 1.08);
    EXPECT_GE(ContrastRatio(pressed[2], face), 1.3);
    MoveTo(BelowTheToolbar());
    user_.MouseUp();
}

TEST_F(ToolbarWindowTest, LinesPartTheGroupsOfIcons) {
    const wxImage bar = PictureOf(Bar());
    for (int i = 0; i + 1 < kIcons; ++i) {
        const IconBounds& icon = Bar().BoundsOf(i);
        const int middle = static_cast<int>(icon.top + icon.height / 2);
        int lines = 0;
        for (int x = static_cast<int>(icon.left + icon.width) + 1; x < Bar().BoundsOf(i + 1).left;
             ++x) {
            lines += ColourAt(bar, x, middle) == EdgesOnFace().shadow ? 1 : 0;
        }
        const bool ends = std::set<int>{1, 2, 4, 5}.contains(i);
        EXPECT_EQ(lines, ends ? 1 : 0) << i;
    }
}

TEST_F(ToolbarWindowTest, EachIconHasAPictureOfItsOwn) {
    const wxImage bar = PictureOf(Bar());
    std::set<std::string> pictures;
    for (int i = 0; i < kIcons; ++i) {
        const IconBounds& icon = Bar().BoundsOf(i);
        const wxImage picture =
            bar.GetSubImage({static_cast<int>(icon.left), static_cast<int>(icon.top),
                             static_cast<int>(icon.width), static_cast<int>(icon.height)});
        const auto* const bytes = reinterpret_cast<const char*>(picture.GetData());
        pictures.emplace(bytes,
                         static_cast<std::size_t>(3 * picture.GetWidth() * picture.GetHeight()));
    }
    EXPECT_EQ(pictures.size(), std::size_t{kIcons});
}

TEST_F(ToolbarWindowTest, KeysWorkWhileAnIconIsRaised) {
    Hover(0);
    user_.Char('R');
    EXPECT_TRUE(WaitFor([&] { return BoxText() == "R"; }));
    EXPECT_EQ(Bar().EdgeOf(0), Edge::Raised);
    MoveTo(BelowTheToolbar());
    EXPECT_TRUE(WaitFor([&] { return Bar().EdgeOf(0) == Edge::Flat; }));
}

TEST_F(ToolbarWindowTest, AWindowOpenedByKeyUnderAHotIconGetsTheMouse) {
    Hover(0);
    const auto look = [&] {
        ExpectFlat();
        EXPECT_FALSE(Bar().HasCapture());
    };
    EXPECT_EQ(NameOfOpened([&] { user_.Char(WXK_F3); }, look), "frmSearch");
}

TEST(DrawFlatButton, DrawsTheEdgeOnTheIconsBoundary) {
    struct EdgeCase {
        const char* name;
        Edge edge;
        wxColour leftAndTop;
        wxColour rightAndBottom;
    };

    const SystemEdges edges = EdgesOnFace();
    const wxColour face = SystemColour(wxSYS_COLOUR_BTNFACE);

    for (const EdgeCase& edge : {EdgeCase{"flat", Edge::Flat, face, face},
                                 EdgeCase{"raised", Edge::Raised, edges.light, edges.shadow},
                                 EdgeCase{"sunken", Edge::Sunken, edges.shadow, edges.light}}) {
        wxBitmap bitmap(60, 60, 24);
        wxMemoryDC dc(bitmap);
        dc.SetBackground(*wxGREEN_BRUSH);
        dc.Clear();
        DrawFlatButton({10, 10, 32, 32}, dc, edge.edge);
        dc.SelectObject(wxNullBitmap);
        const wxImage image = bitmap.ConvertToImage();
        EXPECT_EQ(ColourAt(image, 10, 20), edge.leftAndTop) << edge.name;
        EXPECT_EQ(ColourAt(image, 20, 10), edge.leftAndTop) << edge.name;
        EXPECT_EQ(ColourAt(image, 42, 20), edge.rightAndBottom) << edge.name;
        EXPECT_EQ(ColourAt(image, 20, 42), edge.rightAndBottom) << edge.name;
        for (const wxPoint& outside : {wxPoint(9, 20), wxPoint(11, 20), wxPoint(43, 20)}) {
            EXPECT_EQ(ColourAt(image, outside.x, outside.y), *wxGREEN) << edge.name;
        }
    }
}

}  // namespace
}  // namespace brelex
