// SPDX-License-Identifier: MIT
// The About box, its links and its way to the credits.
#include "ui/frmAbout.h"

#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <wx/stattext.h>

#include "presentation/moving_text.h"
#include "presentation/program_texts.h"
#include "tests/platform/keyboard.h"
#include "tests/platform/screen.h"
#include "tests/support/named_case.h"
#include "tests/ui/about_test.h"
#include "tests/ui/pictures.h"
#include "toolkit/wx_text.h"
#include "ui/controls/painted.h"

namespace brelex {
namespace {

using Strings = std::vector<std::string>;

TEST_F(AboutTest, TheVersionHasTheUsersDecimalSeparator) {
    ProgramValues values = startUp_->Values();
    values.decimalSeparator = ",";
    const std::function<void(const std::string&)> openNothing = [](const std::string&) {};
    const auto open = [&] {
        auto* const about = new frmAbout(window_, values, openNothing);
        about->ShowModal();
        about->Destroy();
    };
    InSideWindow("frmAbout", open, [&] { EXPECT_EQ(Label("lblVersion"), "version 1,0"); });
}

TEST_F(AboutTest, SaysWhatTheProgramIs) {
    InAbout([&] {
        const AppInfo& info = startUp_->Values().info;
        EXPECT_EQ(Side().GetTitle(), "About Brevilexicon");
        EXPECT_EQ(Label("lblDescription"), "The best offline database of computer acronyms");
        EXPECT_EQ(Label("lblVersion"), "version 1.0");
        EXPECT_EQ(Label("lblCopyRight"), info.copyright + ". All Rights Reserved.");
        EXPECT_EQ(Label("lblDBVersion"), "");
        EXPECT_EQ(Utf8Text(In<Link>("lblHyperLink0").Text()), info.homePage);
        EXPECT_EQ(Utf8Text(In<Link>("lblHyperLink1").Text()), info.supportAddress);
    });
}

TEST_F(AboutTest, TheEmptyTextLeavesNoGap) {
    InAbout([&] {
        const auto top = [&](const char* name) { return In(name).GetPosition().y; };
        EXPECT_EQ(top("lblCopyRight") - top("lblVersion"),
                  top("lblVersion") - top("lblDescription"));
    });
}

TEST_F(AboutTest, TheTextSlidesIn) {
    InAbout([&] {
        const auto& text = In<PaintedText>("picPayPal");
        EXPECT_TRUE(WaitFor([&] { return !text.Text().empty(); }));
        EXPECT_TRUE(WaitFor([&] { return text.Text() == kDonateText; }));
        // It rests for a while and begins again.
        EXPECT_TRUE(WaitFor([&] { return text.Text() == SpreadText(kDonateText, 50); }));
    });
}

struct LinkCase {
    const char* name;
    const char* link;
    std::string (*target)(const AppInfo& info);
};

class AboutLink : public AboutTest, public testing::WithParamInterface<LinkCase> {};

TEST_P(AboutLink, OpensItsAddressOnRelease) {
    InAbout([&] {
        PressLink(GetParam().link);
        EXPECT_TRUE(desktop_.opened.empty());
        user_.MouseUp();
        EXPECT_TRUE(WaitFor([&] { return !desktop_.opened.empty(); }));
        EXPECT_EQ(desktop_.opened, Strings{GetParam().target(startUp_->Values().info)});
        EXPECT_FALSE(In<Link>(GetParam().link).IsUnderlined());
    });
}

INSTANTIATE_TEST_SUITE_P(
    Table, AboutLink,
    testing::Values(LinkCase{"HomePage", "lblHyperLink0",
                             [](const AppInfo& app) { return app.homePage; }},
                    LinkCase{"Support", "lblHyperLink1",
                             [](const AppInfo& app) { return "mailto:" + app.supportAddress; }},
                    LinkCase{"Donation", "imgPayPalDonate",
                             [](const AppInfo& app) { return app.donationPage; }}),
    CaseName());

// Whether one row of pixels is drawn on nearly from end to end.
bool HasLine(const wxImage& image, const wxColour& background) {
    for (int y = 0; y < image.GetHeight(); ++y) {
        if (InkIn(image, background, {0, y, image.GetWidth(), 1}) > image.GetWidth() * 8 / 10) {
            return true;
        }
    }
    return false;
}

TEST_F(AboutTest, ALinkIsUnderlinedWhileTheMouseIsOverIt) {
    InAbout([&] {
        const auto& link = In<Link>("lblHyperLink0");
        MoveTo(MiddleOf("lblDescription"));
        const wxImage apart = PictureOf(link);
        EXPECT_GT(InkIn(apart, *wxGREEN, apart.GetSize()), 50);
        EXPECT_FALSE(HasLine(apart, *wxGREEN));
        MoveTo(MiddleOf("lblHyperLink0"));
        EXPECT_TRUE(WaitFor([&] { return link.IsUnderlined(); }));
        EXPECT_TRUE(HasLine(PictureOf(link), *wxGREEN));
        MoveTo(MiddleOf("lblDescription"));
        EXPECT_TRUE(WaitFor([&] { return !link.IsUnderlined(); }));
        EXPECT_FALSE(HasLine(PictureOf(link), *wxGREEN));
    });
}

TEST_F(AboutTest, TheSlidingTextAndTheDonationPictureAreSeen) {
    InAbout([&] {
        const auto& text = In<PaintedText>("picPayPal");
        EXPECT_TRUE(WaitFor([&] {
            const wxImage picture = PictureOf(text);
            return InkIn(picture, *wxGREEN, picture.GetSize()) > 50;
        }));
        const wxImage button = PictureOf(In<Link>("imgPayPalDonate"));
        EXPECT_GT(InkIn(button, *wxGREEN, button.GetSize()),
                  button.GetWidth() * button.GetHeight() / 2);
    });
}

TEST_F(AboutTest, AnAddressThatNothingOpensIsNoMatter) {
    desktop_.hasPrograms = false;
    const MessageBoxes boxes;
    InAbout([&] {
        Click("lblHyperLink0");
        EXPECT_TRUE(WaitFor([&] { return desktop_.opened.size() == 1; }));
        EXPECT_TRUE(StaysFor(100, [&] { return Side().IsShown(); }));
    });
    EXPECT_TRUE(boxes.texts.empty());
    EXPECT_TRUE(messages_.shown.empty());
}

TEST_F(AboutTest, ALinkThatIsLeftAndEnteredAgainOpensOnRelease) {
    InAbout([&] {
        PressLink("lblHyperLink0");
        MoveTo(MiddleOf("lblDescription"));
        EXPECT_TRUE(WaitFor([&] { return !In<Link>("lblHyperLink0").IsUnderlined(); }));
        MoveTo(MiddleOf("lblHyperLink0"));
        EXPECT_TRUE(WaitFor([&] { return In<Link>("lblHyperLink0").IsUnderlined(); }));
        user_.MouseUp();
        EXPECT_TRUE(WaitFor([&] { return desktop_.opened.size() == 1; }));
    });
}

TEST_F(AboutTest, AReleaseElsewhereOpensNothing) {
    InAbout([&] {
        PressLink("lblHyperLink0");
        MoveTo(MiddleOf("lblDescription"));
        user_.MouseUp();
        EXPECT_TRUE(StaysFor(150, [&] { return desktop_.opened.empty(); }));
    });
}

TEST_F(AboutTest, APressOnOneLinkReleasedOnAnotherOpensNothing) {
    InAbout([&] {
        PressLink("lblHyperLink0");
        MoveTo(MiddleOf("lblHyperLink1"));
        user_.MouseUp();
        EXPECT_TRUE(StaysFor(150, [&] { return desktop_.opened.empty(); }));
    });
}

TEST_F(AboutTest, ALinkOpensByKeyboard) {
    InAbout([&] {
        In("lblHyperLink0").SetFocus();
        ASSERT_TRUE(WaitFor([&] { return HasFocus("lblHyperLink0"); }));
        std::size_t opened = 0;
        for (const int key : {WXK_SPACE, WXK_RETURN}) {
            user_.Char(key);
            ++opened;
            EXPECT_TRUE(WaitFor([&] { return desktop_.opened.size() == opened; })) << key;
        }
        PressKeypadEnter();
        ++opened;
        EXPECT_TRUE(WaitFor([&] { return desktop_.opened.size() == opened; })) << "keypad";
        user_.Char(WXK_SPACE, wxMOD_CONTROL);
        EXPECT_TRUE(StaysFor(150, [&] { return desktop_.opened.size() == opened; }));
        EXPECT_TRUE(Side().IsShown());
    });
}

TEST_F(AboutTest, AKeyThatIsHeldOpensALinkOnce) {
    InAbout([&] {
        In("imgPayPalDonate").SetFocus();
        ASSERT_TRUE(WaitFor([&] { return HasFocus("imgPayPalDonate"); }));
        user_.KeyDown(WXK_SPACE);
        EXPECT_TRUE(WaitFor([&] { return desktop_.opened.size() == 1; }));
        // The keyboard begins to repeat it within that.
        const auto isOpenedOnce = [&] { return desktop_.opened.size() == 1; };
        EXPECT_TRUE(StaysFor(1200, isOpenedOnce));
        user_.KeyUp(WXK_SPACE);
        EXPECT_TRUE(StaysFor(50, isOpenedOnce));
        user_.Char(WXK_SPACE);
        EXPECT_TRUE(WaitFor([&] { return desktop_.opened.size() == 2; }));
    });
}

// At least two pixels of another color all round, and not only where the picture's own edge is.
bool DiffersAtItsSides(const wxImage& one, const wxImage& other) {
    const int middle = one.GetHeight() / 2;
    const auto differsAt = [&](int x) {
        return std::abs(ColourAt(one, x, middle).GetLuminance() -
                        ColourAt(other, x, middle).GetLuminance()) > 0.3;
    };
    const int right = one.GetWidth() - 1;
    return differsAt(0) && differsAt(1) && differsAt(right - 1) && differsAt(right);
}

TEST_F(AboutTest, TheFocusIsPlainToSeeOnALink) {
    InAbout([&] {
        for (const char* name : {"lblHyperLink0", "imgPayPalDonate"}) {
            const auto pictureOfLink = [&] { return PictureOfScreen(In(name).GetScreenRect()); };
            In("cmdOK").SetFocus();
            ASSERT_TRUE(WaitFor([&] { return HasFocus("cmdOK"); }));
            LetEventsArrive();
            const wxImage without = pictureOfLink();
            In(name).SetFocus();
            EXPECT_TRUE(WaitFor([&] { return DiffersAtItsSides(without, pictureOfLink()); }))
                << name;
        }
    });
}

TEST_F(AboutTest, OnlyCtrlWithAPressOnTheTitleShowsTheCredits) {
    InAbout([&] {
        EXPECT_EQ(PressOnTitle({}), "");
        EXPECT_EQ(PressOnTitle({WXK_CONTROL, WXK_SHIFT}), "");
        EXPECT_EQ(PressOnTitle({WXK_SHIFT}), "");
        EXPECT_EQ(PressOnTitle({WXK_CONTROL}, wxMOUSE_BTN_RIGHT), "");
        EXPECT_EQ(PressOnTitle({WXK_CONTROL}, wxMOUSE_BTN_LEFT, 10000), "frmCredit");
    });
}

TEST_F(AboutTest, OkAndEscapeCloseIt) {
    InAbout([&] {
        Click("cmdOK");
        EXPECT_TRUE(WaitFor([&] { return !Side().IsShown(); }));
    });
    InAbout([&] {
        user_.Char(WXK_ESCAPE);
        EXPECT_TRUE(WaitFor([&] { return !Side().IsShown(); }));
    });
    EXPECT_EQ(wxWindow::FindWindowByName("frmAbout"), nullptr);
}

}  // namespace
}  // namespace brelex
