// SPDX-License-Identifier: MIT
#include "ui/frmDataInfo.h"

#include <functional>
#include <string>

#include <gtest/gtest.h>

#include <wx/display.h>
#include <wx/stattext.h>

#include "database/database_header.h"
#include "tests/support/named_case.h"
#include "tests/ui/ui_test_support.h"
#include "toolkit/wx_text.h"

namespace brelex {
namespace {

struct InfoCase {
    const char* name;
    const char* caption;
    const char* text;
};

class InfoWindowTest : public SideWindowTest {
  protected:
    void SetUp() override {
        Start({"AB\tAddress Bus", "AB\tAudio Bus", "BIOS\tBasic Input/Output System",
               "LONG ONE\tShort"});
    }

    void InInfoWindow(const std::function<void()>& work) {
        InSideWindow(
            "frmDataInfo", [&] { window_->OpenModalForm(2); }, work);
    }

    // What a label says, without the breaks of its lines.
    [[nodiscard]] std::string Unwrapped(const char* name) const {
        wxString text = In<wxStaticText>(name).GetLabelText();
        text.Replace("\n", " ");
        return Utf8Text(text);
    }

    // The label to the left of another, in the same line.
    [[nodiscard]] std::string CaptionOf(const char* name) const {
        const wxWindow& value = In(name);
        for (const wxWindow* sibling : value.GetParent()->GetChildren()) {
            const auto* label = dynamic_cast<const wxStaticText*>(sibling);
            if (label != nullptr && label != &value &&
                label->GetPosition().x < value.GetPosition().x &&
                label->GetPosition().y == value.GetPosition().y) {
                return Utf8Text(label->GetLabelText());
            }
        }
        return {};
    }
};

TEST_F(InfoWindowTest, ShowsTheFactsBesideTheirCaptions) {
    InInfoWindow([&] {
        EXPECT_EQ(Label("lblTitle"), "Database Info");
        EXPECT_EQ(Label("lblVersion"), "Application version 1.0");
        EXPECT_EQ(Label("lblFootnote"), "* The first such occurrence in the database");
        EXPECT_TRUE(In("imgAppIcon").IsShown());
        for (const InfoCase& info :
             {InfoCase{"lblDBVersion",
                       "Database version:", "1.5, released on 3 Feb 2005 (Updated)"},
              InfoCase{"lblAcronymCount", "Total number of entries:", "4"},
              InfoCase{"lblLoadingTime", "Loading time (current session):", "0 seconds"},
              InfoCase{"lblFirstLetterOfMostAcronyms",
                       "Most abbreviations start with:", "'A' (2 occurrences)"},
              InfoCase{"lblAcronymWithHighestExpn",
                       "Abbreviation with highest no. of expansions*:", "AB (2 expansions)"},
              InfoCase{"lblLongestAcronym", "Longest abbreviation*:", "LONG ONE (7 letters)"},
              InfoCase{"lblLongestExpansion", "Longest expansion including parenthetical note*:",
                       "Basic Input/Output System (23 letters, abbreviated as BIOS)"},
              InfoCase{"lblAvgLenOfAcronyms", "Average length of abbreviations:", "4 characters"},
              InfoCase{"lblAvgLenOfExpansions",
                       "Average length of expansions:", "13 characters"}}) {
            EXPECT_EQ(Unwrapped(info.name), info.text);
            EXPECT_EQ(CaptionOf(info.name), info.caption);
        }
    });
}

TEST_F(InfoWindowTest, AnAmpersandIsShownAsItIs) {
    Start({"R&D\tResearch & Development"});
    InInfoWindow([&] {
        EXPECT_EQ(Unwrapped("lblLongestAcronym"), "R&D (3 letters)");
        EXPECT_EQ(Unwrapped("lblLongestExpansion"),
                  "Research & Development (20 letters, abbreviated as R&D)");
    });
}

TEST_F(InfoWindowTest, NothingIsCutOff) {
    std::string words;
    for (int i = 0; i < 60; ++i) {
        words += "word ";
    }
    Start({"X\t" + words + "end"});
    InInfoWindow([&] {
        const wxRect inside = Side().GetClientRect();
        for (const char* name :
             {"lblDBVersion", "lblAcronymCount", "lblLoadingTime", "lblFirstLetterOfMostAcronyms",
              "lblAcronymWithHighestExpn", "lblLongestAcronym", "lblLongestExpansion",
              "lblAvgLenOfAcronyms", "lblAvgLenOfExpansions", "lblFootnote", "cmdOK"}) {
            EXPECT_TRUE(inside.Contains(In(name).GetRect())) << name;
            EXPECT_GE(In(name).GetSize().x, In(name).GetBestSize().x) << name;
            EXPECT_GE(In(name).GetSize().y, In(name).GetBestSize().y) << name;
        }
    });
}

struct LongCase {
    const char* name;
    std::string abbreviation;
    std::string expansion;
    const char* begin;  // of what the window shows
    const char* end;
};

std::string Repeated(const std::string& word, int times) {
    std::string text;
    for (int i = 0; i < times; ++i) {
        text += word;
    }
    return text;
}

class LongEntryTest : public InfoWindowTest, public testing::WithParamInterface<LongCase> {
  protected:
    // The size with nothing long in it.
    void SetUp() override {
        InfoWindowTest::SetUp();
        InInfoWindow([&] { usual_ = Side().GetSize(); });
    }

    wxSize usual_;
};

TEST_P(LongEntryTest, LeavesTheWindowOnTheScreen) {
    Start({GetParam().abbreviation + "\t" + GetParam().expansion});
    InInfoWindow([&] {
        const wxRect screen = wxDisplay(&Side()).GetGeometry();
        EXPECT_TRUE(screen.Contains(Side().GetScreenRect()));
        EXPECT_TRUE(screen.Contains(In("cmdOK").GetScreenRect()));
        EXPECT_LE(Side().GetSize().x, usual_.x + 10);
        const auto& label = In<wxStaticText>("lblLongestExpansion");
        EXPECT_GE(label.GetSize().x, label.GetBestSize().x);
        EXPECT_GE(label.GetSize().y, label.GetBestSize().y);
        EXPECT_NE(label.GetLabelText().Find(L'\u2026'), wxNOT_FOUND);
        const std::string shown = Unwrapped("lblLongestExpansion");
        EXPECT_TRUE(shown.starts_with(GetParam().begin)) << shown;
        EXPECT_TRUE(shown.ends_with(GetParam().end)) << shown;
    });
}

INSTANTIATE_TEST_SUITE_P(
    Entries, LongEntryTest,
    testing::Values(LongCase{"Words", "X", Repeated("word ", 2400) + "end", "word word word ",
                             " (9603 letters, abbreviated as X)"},
                    LongCase{"OneWord", "X", Repeated("Wolkenkratzer", 1000),
                             "WolkenkratzerWolkenkratzer", " (13000 letters, abbreviated as X)"},
                    LongCase{"BothLong", Repeated("ABBREVIATION", 500),
                             Repeated("Ex pan sion", 500), "Ex pan sionEx ", "\xE2\x80\xA6"},
                    LongCase{"LinesOfItsOwn", "X", Repeated("a\nb\tc\r", 600) + "end",
                             "a b c a b c ", " (3603 letters, abbreviated as X)"}),
    CaseName());

// Three hundred letters find their place whole.
TEST_F(InfoWindowTest, AWordThatIsLongerThanALineIsBroken) {
    const std::string word = Repeated("abcdefghij", 30);
    Start({"X\t" + word});
    InInfoWindow([&] {
        wxString shown = In<wxStaticText>("lblLongestExpansion").GetLabelText();
        EXPECT_GT(shown.Freq('\n'), 3);
        shown.Replace("\n", "");
        EXPECT_EQ(Utf8Text(shown).substr(0, word.size()), word);
        EXPECT_TRUE(wxDisplay(&Side()).GetGeometry().Contains(In("cmdOK").GetScreenRect()));
    });
}

TEST_F(InfoWindowTest, AHeaderThatNamesEntriesOutsideIsShownWithoutThem) {
    StartWith(DatabaseBytes({"AB\tAddress Bus"},
                            [](DatabaseHeader& header) {
                                header.LongestAbbrvIndex = 30000;
                                header.LongestExpansionIndex = -7;
                                header.MostExpansionsIndex = 65535;
                                header.Version = -1.0F / 0.0F;
                                header.ReleaseDate = -1e30;
                            }),
              "");
    InInfoWindow([&] {
        EXPECT_EQ(Unwrapped("lblLongestAcronym"), " (0 letters)");
        EXPECT_EQ(Unwrapped("lblLongestExpansion"), " (0 letters, abbreviated as )");
        EXPECT_EQ(Unwrapped("lblAcronymWithHighestExpn"), " (1 expansions)");
        EXPECT_EQ(Unwrapped("lblDBVersion"), "unknown, released on an unknown day");
    });
}

TEST_F(InfoWindowTest, OkReturnAndEscapeCloseIt) {
    const auto closes = [&](const std::function<void()>& close) {
        InInfoWindow([&] {
            close();
            EXPECT_TRUE(WaitFor([&] { return !Side().IsShown(); }));
        });
        EXPECT_EQ(wxWindow::FindWindowByName("frmDataInfo"), nullptr);
    };
    closes([&] { Click("cmdOK"); });
    closes([&] { user_.Char(WXK_RETURN); });
    closes([&] { user_.Char(WXK_ESCAPE); });
    closes([&] { Side().Close(); });
}

}  // namespace
}  // namespace brelex
