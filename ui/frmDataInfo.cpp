// SPDX-License-Identifier: MIT
#include "ui/frmDataInfo.h"

#include <algorithm>

#include <wx/button.h>
#include <wx/display.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/statline.h>
#include <wx/stattext.h>

#include "database/database_statistics.h"
#include "platform/window/accessible_name.h"
#include "toolkit/app_icon.h"
#include "toolkit/wx_text.h"
#include "ui/controls/surface.h"
#include "ui/controls/wrapped_text.h"

namespace brelex {

namespace {

// The layout, in layout units.
constexpr double kMargin = 10;
constexpr double kValueWidth = 260;
constexpr int kIconSize = 48;

// How many lines a fact takes at most, however long an entry is.
constexpr int kFewLines = 3;
constexpr int kManyLines = 12;

// Behind a long entry the note in brackets tells how long it is, and where to find it.
std::size_t LengthOfNote(const wxString& fact) {
    const std::size_t begin = fact.rfind(" (");
    return begin == wxString::npos ? 0 : fact.length() - begin;
}

}  // namespace

frmDataInfo::frmDataInfo(wxTopLevelWindow* main, const ProgramValues& values)
    : SideWindow(*main, "frmDataInfo", "Database Info") {
    CreateControls(StatisticsOf(values));
    PlaceControls();
    cmdOK->SetFocus();
}

void frmDataInfo::CreateControls(const DatabaseStatistics& statistics) {
    imgAppIcon =
        Named(new wxStaticBitmap(surface_, wxID_ANY, AppIcon(kIconSize)), "imgAppIcon", kAppTitle);
    lblTitle = Named(new wxStaticText(surface_, wxID_ANY, "Database Info"), "lblTitle");
    lblTitle->SetFont(GetFont().Bold().Scaled(1.5F));
    lblVersion =
        Named(new wxStaticText(surface_, wxID_ANY, WxText(statistics.version)), "lblVersion");

    for (const Statistic* statistic :
         {&statistics.dbVersion, &statistics.acronymCount, &statistics.loadingTime,
          &statistics.firstLetterOfMostAcronyms, &statistics.acronymWithHighestExpn,
          &statistics.longestAcronym, &statistics.longestExpansion, &statistics.avgLenOfAcronyms,
          &statistics.avgLenOfExpansions}) {
        captionWidth_ = std::max(captionWidth_, GetTextExtent(statistic->caption).x);
    }
    captionWidth_ += units_.Pixels(4);  // measured text is a little wider when drawn (with Wine)

    // With a large font on a small screen fewer.
    const int linesOfExpansion =
        std::clamp(wxDisplay(this).GetClientArea().height / 4 / GetCharHeight(), 1, kManyLines);
    const int gap = units_.Pixels(kMargin);
    figures_ = new wxBoxSizer(wxVERTICAL);
    const auto addGroup = [&](wxFlexGridSizer* group, bool last) {
        figures_->Add(group, 0, wxEXPAND | wxALL, gap);
        if (!last) {
            figures_->Add(new wxStaticLine(surface_), 0, wxEXPAND);
        }
    };
    wxFlexGridSizer* group = NewGroup();
    lblDBVersion = AddStatistic(*group, "lblDBVersion", statistics.dbVersion, kFewLines);
    lblAcronymCount = AddStatistic(*group, "lblAcronymCount", statistics.acronymCount, kFewLines);
    lblLoadingTime = AddStatistic(*group, "lblLoadingTime", statistics.loadingTime, kFewLines);
    addGroup(group, false);
    group = NewGroup();
    lblFirstLetterOfMostAcronyms = AddStatistic(*group, "lblFirstLetterOfMostAcronyms",
                                                statistics.firstLetterOfMostAcronyms, kFewLines);
    lblAcronymWithHighestExpn = AddStatistic(*group, "lblAcronymWithHighestExpn",
                                             statistics.acronymWithHighestExpn, kFewLines);
    addGroup(group, false);
    group = NewGroup();
    lblLongestAcronym =
        AddStatistic(*group, "lblLongestAcronym", statistics.longestAcronym, kFewLines);
    lblLongestExpansion =
        AddStatistic(*group, "lblLongestExpansion", statistics.longestExpansion, linesOfExpansion);
    addGroup(group, false);
    group = NewGroup();
    lblAvgLenOfAcronyms =
        AddStatistic(*group, "lblAvgLenOfAcronyms", statistics.avgLenOfAcronyms, kFewLines);
    lblAvgLenOfExpansions =
        AddStatistic(*group, "lblAvgLenOfExpansions", statistics.avgLenOfExpansions, kFewLines);
    addGroup(group, true);

    lblFootnote_ = Named(new wxStaticText(surface_, wxID_ANY, kStatisticsFootnote), "lblFootnote");
    cmdOK = Named(new wxButton(surface_, wxID_OK, "OK"), "cmdOK");
    cmdOK->SetDefault();
    SetEscapeId(wxID_OK);
}

wxFlexGridSizer* frmDataInfo::NewGroup() const {
    auto* group = new wxFlexGridSizer(2, wxSize(units_.Pixels(kMargin), units_.Pixels(4)));
    group->AddGrowableCol(1);
    return group;
}

wxStaticText* frmDataInfo::AddStatistic(wxFlexGridSizer& group, const char* name,
                                        const Statistic& statistic, int mostLines) {
    auto* caption = new wxStaticText(surface_, wxID_ANY, WxText(statistic.caption),
                                     wxDefaultPosition, {captionWidth_, -1});
    const wxString fact = WxText(statistic.text);
    // Spoken is also what may be left out in the window.
    auto* value = Named(new wxStaticText(surface_, wxID_ANY, wxEmptyString), name, fact);
    const int width = units_.Pixels(kValueWidth);
    value->SetLabelText(WrappedText(*value, fact, {width, mostLines}, LengthOfNote(fact)));
    // Measured text is a little wider when drawn.
    value->SetMinSize({std::max(width, value->GetBestSize().x), -1});
    group.Add(caption);
    group.Add(value, 0, wxEXPAND);
    return value;
}

wxSizer* frmDataInfo::LayoutOfTitle() {
    auto* texts = new wxBoxSizer(wxVERTICAL);
    texts->Add(lblTitle, 0, wxEXPAND);
    texts->Add(lblVersion, 0, wxEXPAND | wxTOP, units_.Pixels(2));
    auto* title = new wxBoxSizer(wxHORIZONTAL);
    title->Add(imgAppIcon, 0, wxALIGN_CENTRE_VERTICAL | wxRIGHT, units_.Pixels(kMargin));
    title->Add(texts, 1, wxALIGN_CENTRE_VERTICAL);
    return title;
}

void frmDataInfo::PlaceControls() {
    const int gap = units_.Pixels(kMargin);
    auto* end = new wxBoxSizer(wxHORIZONTAL);
    end->Add(lblFootnote_, 1, wxALIGN_CENTRE_VERTICAL | wxRIGHT, gap);
    end->Add(cmdOK);
    auto* all = new wxBoxSizer(wxVERTICAL);
    all->Add(LayoutOfTitle(), 0, wxEXPAND | wxALL, gap);
    all->Add(figures_, 0, wxEXPAND | wxLEFT | wxRIGHT, gap);
    all->Add(end, 0, wxEXPAND | wxALL, gap);
    FillWindow(all);
    surface_->FrameArea(
        {figures_->GetPosition() - wxPoint(1, 1), figures_->GetSize() + wxSize(1, 1)});
}

}  // namespace brelex
