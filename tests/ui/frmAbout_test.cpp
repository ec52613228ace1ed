// SPDX-License-Identifier: MIT
// The About box, the credits and the window that asks for a donation.
#include "ui/frmAbout.h"

#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <wx/button.h>
#include <wx/stattext.h>
#include <wx/utils.h>

#include "presentation/moving_text.h"
#include "presentation/program_texts.h"
#include "tests/platform/keyboard.h"
#include "tests/platform/screen.h"
#include "tests/support/named_case.h"
#include "tests/ui/ui_test_support.h"
#include "toolkit/wx_text.h"
#include "ui/controls/link.h"
#include "ui/controls/painted.h"
#include "ui/controls/scroll_area.h"

namespace brelex {
namespace {

using Strings = std::vector<std::string>;

class AboutTest : public SideWindowTest {
  protected:
    void InAbout(const std::function<void()>& work) {
        InSideWindow(
            "frmAbout", [&] { window_->OpenModalForm(4); }, work);
    }

    void InDonation(const std::function<void()>& work) {
        InSideWindow(
            "frmDonation", [&] { window_->OpenModalForm(6); }, work);
    }

    [[nodiscard]] wxPoint MiddleOf(const char* name) const {
        const wxRect area = In(name).GetScreenRect();
        return {area.x + area.width / 2, area.y + area.height / 2};
    }

    void MoveTo(const wxPoint& place) {
        user_.MouseMove(place);
        EXPECT_TRUE(WaitFor([&] { return wxGetMousePosition() == place; }));
    }

    // Puts the mouse on a link and holds the left button on it.
    void PressLink(const char* name) {
        MoveTo(MiddleOf(name));
        EXPECT_TRUE(WaitFor([&] { return In<Link>(name).IsUnderlined(); }));
        user_.MouseDown();
        EXPECT_TRUE(WaitFor([&] { return In(name).HasCapture(); }));
    }

    // Presses a button on the title with modifier keys held; the name of the window that
    // opens, if one does.
    std::string PressOnTitle(const std::vector<int>& keys, int button = wxMOUSE_BTN_LEFT) {
        MoveTo(MiddleOf("picAppTitle"));
        for (const int key : keys) {
            user_.KeyDown(key);
        }
        std::string opened;
        ModalDriver driver({[&] {
            if (auto* const credit =
                    dynamic_cast<wxDialog*>(wxWindow::FindWindowByName("frmCredit"))) {
                if (!credit->IsModal() || !credit->IsShown()) {
                    return false;
                }
                opened = "frmCredit";
                credit->EndModal(wxID_CANCEL);
            }
            return !opened.empty();
        }});
        user_.MouseDown(button);
        WaitFor([&] { return !opened.empty(); }, 400);
        user_.MouseUp(button);
        for (const int key : keys) {
            user_.KeyUp(key);
        }
        EXPECT_TRUE(WaitFor([] { return wxWindow::FindWindowByName("frmCredit") == nullptr; }));
        return opened;
    }
};

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

// The pixels of a picture that are not of its background.
int InkIn(const wxImage& image, const wxColour& background, const wxRect& area) {
    int ink = 0;
    for (int y = area.GetTop(); y <= area.GetBottom(); ++y) {
        for (int x = area.GetLeft(); x <= area.GetRight(); ++x) {
            ink += ColourAt(image, x, y) == background ? 0 : 1;
        }
    }
    return ink;
}

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
TEST_F(AboutTest, TheFocusIsPlainToSeeOnALink) {
    InAbout([&] {
        for (const char* name : {"lblHyperLink0", "imgPayPalDonate"}) {
            const auto pictureOfLink = [&] { return PictureOfScreen(In(name).GetScreenRect()); };
            In("cmdOK").SetFocus();
            ASSERT_TRUE(WaitFor([&] { return HasFocus("cmdOK"); }));
            LetEventsArrive();
            const wxImage without = pictureOfLink();
            In(name).SetFocus();
            const int middle = without.GetHeight() / 2;
            for (const int x : {0, 1, without.GetWidth() - 2, without.GetWidth() - 1}) {
                const double before = ColourAt(without, x, middle).GetLuminance();
                EXPECT_TRUE(WaitFor([&] {
                    const wxColour after = ColourAt(pictureOfLink(), x, middle);
                    return std::abs(before - after.GetLuminance()) > 0.3;
                })) << name
                    << " at " << x;
            }
        }
    });
}

TEST_F(AboutTest, OnlyCtrlWithAPressOnTheTitleShowsTheCredits) {
    InAbout([&] {
        EXPECT_EQ(PressOnTitle({}), "");
        EXPECT_EQ(PressOnTitle({WXK_CONTROL, WXK_SHIFT}), "");
        EXPECT_EQ(PressOnTitle({WXK_SHIFT}), "");
        EXPECT_EQ(PressOnTitle({WXK_CONTROL}, wxMOUSE_BTN_RIGHT), "");
        EXPECT_EQ(PressOnTitle({WXK_CONTROL}), "frmCredit");
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

void ExpectLines(const std::vector<ScrollLine>& lines, const std::vector<CreditRecord>& records) {
    ASSERT_EQ(lines.size(), records.size());
    for (std::size_t i = 0; i < lines.size(); ++i) {
        EXPECT_EQ(Utf8Text(lines[i].text), records[i].text);
        EXPECT_EQ(lines[i].font.GetPointSize(), records[i].pointSize) << records[i].text;
        EXPECT_EQ(lines[i].font.GetWeight() >= wxFONTWEIGHT_BOLD, records[i].isBold)
            << records[i].text;
        EXPECT_EQ(lines[i].colour.IsOk(), records[i].colour.has_value()) << records[i].text;
    }
    EXPECT_EQ(lines[1].colour, wxColour(255, 0, 0));
}

TEST_F(AboutTest, TheCreditsScrollAndEscapeClosesThem) {
    InAbout([&] {
        MoveTo(MiddleOf("picAppTitle"));
        int first = 0;
        bool scrolled = false;
        const auto credit = [] {
            return dynamic_cast<wxDialog*>(wxWindow::FindWindowByName("frmCredit"));
        };
        const auto position = [] {
            const auto* area = dynamic_cast<ScrollArea*>(wxWindow::FindWindowByName("picAbout"));
            return area == nullptr ? 0 : area->Position();
        };
        const auto lines = [] {
            const auto* area = dynamic_cast<ScrollArea*>(wxWindow::FindWindowByName("picAbout"));
            return area == nullptr ? std::vector<ScrollLine>() : area->Lines();
        };
        ModalDriver driver({[&] {
                                if (credit() == nullptr || !credit()->IsActive() ||
                                    position() == 0) {
                                    return false;
                                }
                                first = position();
                                ExpectLines(lines(), Credits(startUp_->Values().info));
                                return true;
                            },
                            [&] {
                                scrolled = position() < first;
                                return scrolled;
                            },
                            [&] {
                                user_.KeyUp(WXK_CONTROL);
                                user_.Char(WXK_ESCAPE);
                                return true;
                            },
                            [&] { return credit() == nullptr || !credit()->IsShown(); }});
        user_.KeyDown(WXK_CONTROL);
        user_.MouseClick();
        EXPECT_TRUE(WaitFor([&] { return driver.Done(); }));
        user_.KeyUp(WXK_CONTROL);
        EXPECT_TRUE(scrolled);
        EXPECT_TRUE(Side().IsShown());
    });
}

TEST_F(AboutTest, TheDonationLinesScrollUpFromBelow) {
    InDonation([&] {
        auto& area = In<ScrollArea>("picCredit");
        const int height = area.GetClientSize().y;
        Strings lines;
        for (const ScrollLine& line : area.Lines()) {
            lines.push_back(Utf8Text(line.text));
        }
        EXPECT_EQ(lines, DonationLines());
        EXPECT_TRUE(WaitFor([&] { return area.Position() > 0; }));
        EXPECT_EQ(area.tmrScrollText.GetInterval(), 70);
        const int first = area.Position();
        EXPECT_LE(first, height);
        EXPECT_TRUE(WaitFor([&] { return area.Position() <= first - 3; }));
        EXPECT_GE(area.GetClientSize().x, area.LinesWidth());
    });
}

TEST_F(AboutTest, ScrollingBeginsAfterHalfASecond) {
    auto* const area = new ScrollArea(window_, {{"A line", window_->GetFont(), *wxRED}});
    area->SetSize(200, 100);
    EXPECT_EQ(area->tmrScrollText.GetInterval(), 500);
    EXPECT_TRUE(area->tmrScrollText.IsOneShot());
    EXPECT_EQ(InkIn(PictureOf(*area), SystemColour(wxSYS_COLOUR_WINDOW), wxSize(200, 100)), 0);
    area->Destroy();
}

TEST_F(AboutTest, TheLinesAreDrawnWhereTheyAre) {
    InDonation([&] {
        auto& area = In<ScrollArea>("picCredit");
        const wxColour background = SystemColour(wxSYS_COLOUR_WINDOW);
        const wxSize size = area.GetClientSize();
        // Far enough up for the title and its rule.
        EXPECT_TRUE(WaitFor([&] { return area.Position() > 0 && area.Position() < size.y - 40; }));
        area.tmrScrollText.Stop();
        const wxImage picture = PictureOf(area);
        const int top = area.Position();
        EXPECT_EQ(InkIn(picture, background, {0, 0, size.x, top}), 0);
        EXPECT_GT(InkIn(picture, background, {0, top, size.x, 40}), 100);
        // A little is allowed for how letters stand in their cells.
        const int left = area.FromDIP(10);
        EXPECT_EQ(InkIn(picture, background, {0, 0, left - 1, size.y}), 0);
        EXPECT_GT(InkIn(picture, background, {left - 1, top, 4, 40}), 0);
    });
}

TEST_F(AboutTest, TheDonationButtonsOpenTheDonationPage) {
    InDonation([&] {
        EXPECT_EQ(Side().GetTitle(), "Donate via PayPal");
        const std::string page = startUp_->Values().info.donationPage;
        Click("cmdDonate");
        EXPECT_TRUE(WaitFor([&] { return desktop_.opened == Strings{page}; }));
        Click("imgPayPalDonate");
        EXPECT_TRUE(WaitFor([&] { return desktop_.opened == Strings({page, page}); }));
    });
}

TEST_F(AboutTest, EscapeClosesTheDonationWindow) {
    InDonation([&] {
        user_.Char(WXK_ESCAPE);
        EXPECT_TRUE(WaitFor([&] { return !Side().IsShown(); }));
    });
}

TEST_F(AboutTest, ClosingTheDonationWindowEndsItsScrollingAtOnce) {
    for (const bool byButton : {true, false}) {
        InDonation([&] {
            auto& area = In<ScrollArea>("picCredit");
            ASSERT_TRUE(WaitFor([&] { return area.Position() > 0; }));
            if (byButton) {
                Click("cmdCancel");
            } else {
                Side().Close();
            }
            EXPECT_TRUE(WaitFor([&] { return !Side().IsShown(); }, 500));
        });
        EXPECT_EQ(wxWindow::FindWindowByName("frmDonation"), nullptr);
    }
}

}  // namespace
}  // namespace brelex
