// SPDX-License-Identifier: MIT
// The lines that scroll: the credits and the window that asks for a donation.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "presentation/program_texts.h"
#include "tests/ui/about_test.h"
#include "tests/ui/pictures.h"
#include "toolkit/wx_text.h"
#include "ui/controls/scroll_area.h"
#include "ui/frmAbout.h"

namespace brelex {
namespace {

using Strings = std::vector<std::string>;

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
