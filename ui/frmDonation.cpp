// SPDX-License-Identifier: MIT
#include "ui/frmDonation.h"

#include <vector>

#include <wx/button.h>
#include <wx/sizer.h>

#include "platform/window/accessible_name.h"
#include "presentation/program_texts.h"
#include "toolkit/app_icon.h"
#include "toolkit/wx_text.h"
#include "ui/controls/artwork.h"
#include "ui/controls/link.h"
#include "ui/controls/scroll_area.h"
#include "ui/modGeneral.h"

namespace brelex {

namespace {

// The layout, in layout units.
constexpr double kMargin = 12;
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
    : wxDialog(main, wxID_ANY, "Donate via PayPal"),
      info_(info),
      openAddress_(openAddress),
      units_(*this) {
    SetName("frmDonation");
    SetIcons(AppIcons());
    CreateControls();
    PlaceControls();
    cmdDonate->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { OpenDonationPage(); });
    KeepCentered(*this, *main);
    cmdDonate->SetFocus();
}

void frmDonation::CreateControls() {
    picCredit = new ScrollArea(this, Lines(GetFont()));
    imgPayPalDonate = new Link(this, DonateButtonPicture(), [this] { OpenDonationPage(); });
    cmdDonate = new wxButton(this, wxID_ANY, "&Donate...");
    cmdCancel = new wxButton(this, wxID_CANCEL, "Cancel");
    SetNames(*picCredit, "picCredit", "Behind the scenes");
    SetNames(*imgPayPalDonate, "imgPayPalDonate", kDonateText);
    cmdDonate->SetName("cmdDonate");
    cmdCancel->SetName("cmdCancel");
    cmdDonate->SetDefault();
}

void frmDonation::PlaceControls() {
    const int gap = units_.Pixels(kMargin);
    auto* end = new wxBoxSizer(wxHORIZONTAL);
    end->Add(imgPayPalDonate, 0, wxALIGN_CENTRE_VERTICAL);
    end->AddStretchSpacer();
    end->Add(cmdDonate, 0, wxALIGN_CENTRE_VERTICAL | wxRIGHT, gap);
    end->Add(cmdCancel, 0, wxALIGN_CENTRE_VERTICAL);
    picCredit->SetMinSize({picCredit->LinesWidth(), units_.Pixels(kTextHeight)});
    auto* all = new wxBoxSizer(wxVERTICAL);
    all->Add(picCredit, 1, wxEXPAND | wxALL, gap);
    all->Add(end, 0, wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, gap);
    SetSizerAndFit(all);
}

void frmDonation::EndModal(int result) {
    picCredit->Stop();
    wxDialog::EndModal(result);
}

void frmDonation::OpenDonationPage() {
    openAddress_(info_.donationPage);
}

}  // namespace brelex
