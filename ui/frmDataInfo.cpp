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
constexpr double kValueWidth = 260;
constexpr int kIconSize = 48;

// The most lines that a fact takes, however long the entry is.
constexpr int kFewLines = 3;
constexpr int kManyLines = 12;

// After a long entry, a note in brackets gives its length and its place.
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

    CreateFigures(statistics);
    lblFootnote_ = Named(new wxStaticText(surface_, wxID_ANY, kStatisticsFootnote), "lblFootnote");
    cmdOK = Named(new wxButton(surface_, wxID_OK, "OK"), "cmdOK");
    cmdOK->SetDefault();
    SetEscapeId(wxID_OK);
}

void frmDataInfo::CreateFigures(const DatabaseStatistics& statistics) {
    int captionWidth = 0;
    for (const auto& group : statistics.groups) {
        for (const Statistic& statistic : group) {
            captionWidth = std::max(captionWidth, units_.TextWidth(statistic.caption));
        }
    }
    const int gap = units_.Pixels(kWindowMargin);
    figures_ = new wxBoxSizer(wxVERTICAL);
    for (const auto& group : statistics.groups) {
        if (!figures_->IsEmpty()) {
            figures_->Add(new wxStaticLine(surface_), 0, wxEXPAND);
        }
        auto* lines = new wxFlexGridSizer(2, wxSize(gap, units_.Pixels(4)));
        lines->AddGrowableCol(1);
        for (const Statistic& statistic : group) {
            auto* const caption = new wxStaticText(surface_, wxID_ANY, WxText(statistic.caption),
                                                   wxDefaultPosition, {captionWidth, -1});
            LeaveUnspoken(*caption);  // the value has it in its name
            lines->Add(caption);
            lines->Add(NewValue(statistic), 0, wxEXPAND);
        }
        figures_->Add(lines, 0, wxEXPAND | wxALL, gap);
    }
}

wxStaticText* frmDataInfo::NewValue(const Statistic& statistic) const {
    const wxString fact = WxText(statistic.text);
    // If the window cuts off a fact, a screen reader still says all of it.
    auto* value = Named(new wxStaticText(surface_, wxID_ANY, wxEmptyString), statistic.name,
                        WxText(statistic.caption) + " " + fact);
    const int width = units_.Pixels(kValueWidth);
    // With a large font on a small screen, there is room for fewer lines.
    const int lines = statistic.mayNeedLines
                          ? std::clamp(wxDisplay(this).GetClientArea().height / 4 / GetCharHeight(),
                                       1, kManyLines)
                          : kFewLines;
    value->SetLabelText(WrappedText(*value, fact, {width, lines}, LengthOfNote(fact)));
    value->SetMinSize({std::max(width, value->GetBestSize().x), -1});
    return value;
}

wxSizer* frmDataInfo::LayoutOfTitle() {
    auto* texts = new wxBoxSizer(wxVERTICAL);
    texts->Add(lblTitle, 0, wxEXPAND);
    texts->Add(lblVersion, 0, wxEXPAND | wxTOP, units_.Pixels(2));
    auto* title = new wxBoxSizer(wxHORIZONTAL);
    title->Add(imgAppIcon, 0, wxALIGN_CENTRE_VERTICAL | wxRIGHT, units_.Pixels(kWindowMargin));
    title->Add(texts, 1, wxALIGN_CENTRE_VERTICAL);
    return title;
}

void frmDataInfo::PlaceControls() {
    const int gap = units_.Pixels(kWindowMargin);
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
