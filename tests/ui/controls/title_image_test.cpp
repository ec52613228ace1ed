// SPDX-License-Identifier: MIT
// The program's icon and name on the screen, at whatever resolution the tests are started with.
#include "ui/controls/title_image.h"

#include <algorithm>
#include <cstdlib>

#include <gtest/gtest.h>

#include "tests/platform/screen.h"
#include "tests/ui/ui_test_support.h"

namespace brelex {
namespace {

class TitleImageTest : public SideWindowTest {
  protected:
    static bool Differs(const wxColour& one, const wxColour& other) {
        return std::abs(one.GetLuminance() - other.GetLuminance()) > 0.1;
    }

    // The part of a picture that is not background; the corner shows what that is.
    static wxRect PartDrawn(const wxImage& picture) {
        const wxColour background = ColourAt(picture, picture.GetWidth() - 1, 0);
        wxRect drawn;
        for (int y = 0; y < picture.GetHeight(); ++y) {
            for (int x = 0; x < picture.GetWidth(); ++x) {
                if (Differs(ColourAt(picture, x, y), background)) {
                    drawn.Union(wxRect(x, y, 1, 1));
                }
            }
        }
        return drawn;
    }

    // A picture of fewer pixels that was made larger has squares of equal ones.
    static bool IsMadeOfLargerPixels(const wxImage& picture) {
        for (int y = 0; y + 1 < picture.GetHeight(); y += 2) {
            for (int x = 0; x + 1 < picture.GetWidth(); x += 2) {
                const wxColour corner = ColourAt(picture, x, y);
                if (corner != ColourAt(picture, x + 1, y) ||
                    corner != ColourAt(picture, x, y + 1) ||
                    corner != ColourAt(picture, x + 1, y + 1)) {
                    return false;
                }
            }
        }
        return true;
    }

    static void ExpectWholeAndSharp(wxWindow& title) {
        wxImage picture;
        wxRect drawn;
        EXPECT_TRUE(WaitFor([&] {
            picture = PictureOfScreen(title.GetScreenRect());
            drawn = PartDrawn(picture);
            return !drawn.IsEmpty();
        }));
        // The name ends before its window does, and the icon fills the height.
        EXPECT_LT(drawn.GetRight(), picture.GetWidth() - 1);
        EXPECT_GT(drawn.GetRight(), picture.GetWidth() * 3 / 4);
        EXPECT_LT(drawn.x, picture.GetHeight() / 3);
        EXPECT_GT(drawn.height, picture.GetHeight() * 3 / 4);
        // The name stands in the middle of the height, with room above and below.
        wxRect right(picture.GetHeight() * 3 / 2, 0, 0, picture.GetHeight());
        right.width = picture.GetWidth() - right.x;
        const wxRect name = PartDrawn(picture.GetSubImage(right));
        const int above = name.y;
        const int below = picture.GetHeight() - name.GetBottom() - 1;
        EXPECT_GT(above, 0);
        EXPECT_GT(below, 0);
        EXPECT_LT(std::abs(above - below), std::max(4, picture.GetHeight() / 3));
        EXPECT_FALSE(IsMadeOfLargerPixels(picture));
    }
};

TEST_F(TitleImageTest, IsWholeAndSharpInTheMainWindow) {
    ExpectWholeAndSharp(*Control("imgAppTitle"));
}

TEST_F(TitleImageTest, IsWholeAndSharpInTheAboutBox) {
    InSideWindow(
        "frmAbout", [&] { window_->Run(Command::About); },
        [&] { ExpectWholeAndSharp(In("picAppTitle")); });
}

}  // namespace
}  // namespace brelex
