// SPDX-License-Identifier: MIT
#include "ui/frmDonation.h"

#include <vector>

#include <wx/button.h>
#include <wx/sizer.h>

#include "platform/window/accessible_name.h"
#include "presentation/program_texts.h"
#include "toolkit/wx_text.h"
#include "ui/controls/artwork.h"
#include "ui/controls/link.h"
#include "ui/controls/scroll_area.h"
#include "ui/controls/surface.h"

namespace brelex {

namespace {

// The layout, in layout units.
constexpr double kTextHeight = 170;

std::vector<ScrollLine> Lines(const wxFont& font) {
    std::vector<ScrollLine> lines;
    for (const std::string& line : DonationLines()) {
        lines.push_back({WxText(line), font, wxColour()});
    }
    return lines;
}

}  // namespace

frmDonation::frmDonation(wxTopLevelWindow* main, const AppInfo& info,
                         const std::function<void(const std::string&)>& openAddress)
    : SideWindow(*main, "frmDonation", "Donate via PayPal"),
      info_(info),
      openAddress_(openAddress) {
    CreateControls();
    PlaceControls();
    cmdDonate->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { OpenDonationPage(); });
    cmdDonate->SetFocus();
}

void frmDonation::CreateControls() {
    picCredit = Named(new ScrollArea(surface_, Lines(GetFont())), "picCredit");
    picCredit->DescribeAs("Behind the scenes");
    surface_->FrameChild(*picCredit);
    StopWithWindow(picCredit->tmrScrollText);
    imgPayPalDonate =
        Named(new Link(surface_, DonateButtonPicture(), [this] { OpenDonationPage(); }),
              "imgPayPalDonate");
    imgPayPalDonate->DescribeAs(kDonateText, WxText(info_.donationPage));
    cmdDonate = Named(new wxButton(surface_, wxID_ANY, "&Donate..."), "cmdDonate");
    cmdCancel = Named(new wxButton(surface_, wxID_CANCEL, "Cancel"), "cmdCancel");
    cmdDonate->SetDefault();
}

void frmDonation::PlaceControls() {
    const int gap = units_.Pixels(kWindowMargin);
    auto* end = new wxBoxSizer(wxHORIZONTAL);
    end->Add(imgPayPalDonate, 0, wxALIGN_CENTRE_VERTICAL);
    end->AddStretchSpacer();
    end->Add(cmdDonate, 0, wxALIGN_CENTRE_VERTICAL | wxRIGHT, gap);
    end->Add(cmdCancel, 0, wxALIGN_CENTRE_VERTICAL);
    picCredit->SetMinSize({picCredit->LinesWidth(), units_.Pixels(kTextHeight)});
    const int mark = FromDIP(Link::kFocusMargin);
    auto* inner = new wxBoxSizer(wxVERTICAL);
    inner->Add(picCredit, 1, wxEXPAND | wxLEFT | wxRIGHT | wxTOP, mark);
    inner->AddSpacer(gap - mark);
    inner->Add(end, 0, wxEXPAND | wxRIGHT, mark);
    auto* all = new wxBoxSizer(wxVERTICAL);
    all->Add(inner, 1, wxEXPAND | wxLEFT | wxTOP | wxRIGHT, gap - mark);
    all->AddSpacer(gap - imgPayPalDonate->ReachBelow(*cmdDonate));
    FillWindow(all);
}

void frmDonation::OpenDonationPage() {
    openAddress_(info_.donationPage);
}

}  // namespace brelex
