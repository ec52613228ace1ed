// SPDX-License-Identifier: MIT
#include "ui/controls/surface.h"

#include <gtest/gtest.h>

#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/frame.h>
#include <wx/image.h>
#include <wx/settings.h>

#include "tests/ui/ui_test_support.h"
#include "ui/controls/colours.h"

namespace brelex {
namespace {

// A surface of 200 by 120 pixels with a child of 40 by 10 at (30, 20), in a window that is not
// shown.
class SurfaceTest : public testing::Test {
  protected:
    SurfaceTest() { surface_.FillWindow({200, 120}); }

    void TearDown() override { frame_.Destroy(); }

    // The color that the surface draws at a place; green where it draws nothing.
    [[nodiscard]] wxColour Drawn(int x, int y) {
        wxBitmap bitmap(200, 120, 24);
        wxMemoryDC dc(bitmap);
        dc.SetBackground(*wxGREEN_BRUSH);
        dc.Clear();
        surface_.OnDraw(dc);
        dc.SelectObject(wxNullBitmap);
        return ColourAt(bitmap.ConvertToImage(), x, y);
    }

    const wxColour shadow_ = EdgesOnFace().shadow;
    const wxColour highlight_ = EdgesOnFace().light;
    wxFrame& frame_ = *new wxFrame(nullptr, wxID_ANY, "A window with a surface");
    Surface& surface_ = *new Surface(&frame_);
    wxWindow& child_ = *new wxWindow(&surface_, wxID_ANY, wxPoint(30, 20), wxSize(40, 10));
};

TEST_F(SurfaceTest, DrawsNothingBesideItsControls) {
    EXPECT_EQ(Drawn(29, 25), *wxGREEN);
}

TEST_F(SurfaceTest, FramesAChildOnePixelOutsideIt) {
    surface_.FrameChild(child_);
    EXPECT_EQ(Drawn(29, 25), shadow_);
    EXPECT_EQ(Drawn(50, 19), shadow_);
    EXPECT_EQ(Drawn(70, 25), highlight_);
    EXPECT_EQ(Drawn(50, 30), highlight_);
    EXPECT_EQ(Drawn(28, 25), *wxGREEN);
    EXPECT_EQ(Drawn(30, 25), *wxGREEN);
}

TEST_F(SurfaceTest, AFrameIsSeenOnEachOfItsSides) {
    surface_.FrameChild(child_);
    const Rgb face = RgbOf(wxSYS_COLOUR_BTNFACE);
    for (const wxPoint& side :
         {wxPoint(29, 25), wxPoint(50, 19), wxPoint(70, 25), wxPoint(50, 30)}) {
        EXPECT_GE(ContrastRatio(RgbOf(Drawn(side.x, side.y)), face), 1.3) << side.x;
    }
}

TEST_F(SurfaceTest, FramesAChildHigherAtTheTopIfAsked) {
    surface_.FrameChild(child_, 3);
    EXPECT_EQ(Drawn(50, 17), shadow_);
    EXPECT_EQ(Drawn(50, 19), *wxGREEN);
    EXPECT_EQ(Drawn(50, 30), highlight_);
}

TEST_F(SurfaceTest, AFrameFollowsItsChild) {
    surface_.FrameChild(child_);
    child_.SetSize(60, 40, 20, 20);
    EXPECT_EQ(Drawn(29, 25), *wxGREEN);
    EXPECT_EQ(Drawn(59, 50), shadow_);
    child_.Hide();
    EXPECT_EQ(Drawn(59, 50), *wxGREEN);
}

TEST_F(SurfaceTest, FramesAnAreaOnItsBoundary) {
    surface_.FrameArea({10, 60, 50, 30});
    EXPECT_EQ(Drawn(10, 70), shadow_);
    EXPECT_EQ(Drawn(30, 60), shadow_);
    EXPECT_EQ(Drawn(60, 70), highlight_);
    EXPECT_EQ(Drawn(30, 90), highlight_);
    EXPECT_EQ(Drawn(30, 70), *wxGREEN);
}

// A window too large for the screen scrolls, and its frames with it.
TEST_F(SurfaceTest, AFrameStaysRoundItsChildWhereTheSurfaceScrolls) {
    surface_.FrameChild(child_);
    surface_.FillWindow({200, 20000});
    frame_.Show();  // on Windows a hidden window does not move its children
    ASSERT_TRUE(WaitFor([&] { return child_.IsShownOnScreen(); }));
    surface_.Scroll(0, 1);
    wxBitmap bitmap(200, 120, 24);
    wxMemoryDC dc(bitmap);
    dc.SetBackground(*wxGREEN_BRUSH);
    dc.Clear();
    surface_.DoPrepareDC(dc);
    surface_.OnDraw(dc);
    dc.SelectObject(wxNullBitmap);
    const wxPoint corner = child_.GetPosition();
    ASSERT_LT(corner.y, 20);
    EXPECT_EQ(ColourAt(bitmap.ConvertToImage(), corner.x + 20, corner.y - 1), shadow_);
}

}  // namespace
}  // namespace brelex
