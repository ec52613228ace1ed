// SPDX-License-Identifier: MIT
#include "ui/frmAbout.h"

#include <wx/button.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include "base/number_text.h"
#include "platform/window/accessible_name.h"
#include "presentation/program_texts.h"
#include "toolkit/app_icon.h"
#include "toolkit/wx_text.h"
#include "ui/controls/artwork.h"
#include "ui/controls/link.h"
#include "ui/controls/painted.h"
#include "ui/controls/surface.h"
#include "ui/controls/title_image.h"
#include "ui/frmCredit.h"
#include "ui/modGeneral.h"

namespace brelex {

namespace {

// The layout, in layout units.
constexpr double kMargin = 14;
constexpr double kTitleWidth = 300;
constexpr double kTitleHeight = 48;

constexpr int kFirstTickMs = 500;

}  // namespace

frmAbout::frmAbout(wxTopLevelWindow* main, const ProgramValues& values,
                   const std::function<void(const std::string&)>& openAddress)
    : wxDialog(main, wxID_ANY, wxString("About ") + kAppTitle),
      values_(values),
      openAddress_(openAddress),
      units_(*this),
      slidingText_(kDonateText),
      tmrAnimateText(this) {
    SetName("frmAbout");
    SetIcons(AppIcons());
    CreateControls();
    NameControls();
    PlaceControls();
    picAppTitle->Bind(wxEVT_LEFT_DOWN, &frmAbout::OnTitlePressed, this);
    Bind(wxEVT_TIMER, [this](wxTimerEvent&) { AnimateText(); });
    tmrAnimateText.StartOnce(kFirstTickMs);
    KeepCentered(*this, *main);
    cmdOK->SetFocus();
}

void frmAbout::CreateControls() {
    surface_ = new Surface(this);
    auto* const title = new TitleImage(surface_);
    title->FitInto({units_.Pixels(kTitleWidth), units_.Pixels(kTitleHeight)});
    picAppTitle = title;
    lblDescription =
        new wxStaticText(surface_, wxID_ANY, "The best offline database of computer acronyms");
    lblVersion = new wxStaticText(
        surface_, wxID_ANY,
        WxText("version " + FormatOneDecimal(values_.AppVersion, values_.decimalSeparator)));
    lblCopyRight = new wxStaticText(surface_, wxID_ANY, wxEmptyString);
    lblCopyRight->SetLabelText(WxText(values_.info.copyright + ". All Rights Reserved."));
    lblDBVersion = new wxStaticText(surface_, wxID_ANY, wxEmptyString);
    lblDBVersion->Hide();  // or it would take the room of a line, as empty as it is
    lblHyperLink[0] = new Link(surface_, WxText(values_.info.homePage),
                               [this] { openAddress_(Utf8Text(lblHyperLink[0]->Text())); });
    lblHyperLink[1] = new Link(surface_, WxText(values_.info.supportAddress), [this] {
        openAddress_("mailto:" + Utf8Text(lblHyperLink[1]->Text()));
    });
    picPayPal = new PaintedText(surface_);
    imgPayPalDonate = new Link(surface_, DonateButtonPicture(),
                               [this] { openAddress_(values_.info.donationPage); });
    cmdOK = new wxButton(surface_, wxID_OK, "OK");
    cmdOK->SetDefault();
    SetEscapeId(wxID_OK);
}

void frmAbout::NameControls() {
    SetNames(*picAppTitle, "picAppTitle", kAppTitle);
    lblDescription->SetName("lblDescription");
    lblVersion->SetName("lblVersion");
    lblCopyRight->SetName("lblCopyRight");
    lblDBVersion->SetName("lblDBVersion");
    SetNames(*lblHyperLink[0], "lblHyperLink0", "Home page");
    SetNames(*lblHyperLink[1], "lblHyperLink1", "Support by e-mail");
    picPayPal->SetName("picPayPal");
    SetNames(*imgPayPalDonate, "imgPayPalDonate", kDonateText);
    cmdOK->SetName("cmdOK");
}

wxSizer* frmAbout::LayoutOfTexts() {
    const int gap = units_.Pixels(kMargin);
    auto* texts = new wxBoxSizer(wxVERTICAL);
    texts->Add(picAppTitle, 0, wxBOTTOM, gap);
    for (wxStaticText* label : {lblDescription, lblVersion, lblDBVersion, lblCopyRight}) {
        texts->Add(label, 0, wxEXPAND | wxBOTTOM, gap / 3);
    }
    texts->AddSpacer(gap / 2);
    for (Link* link : lblHyperLink) {
        texts->Add(link, 0, wxBOTTOM, gap / 4);
    }
    return texts;
}

void frmAbout::PlaceControls() {
    const int gap = units_.Pixels(kMargin);
    const wxSize text = GetTextExtent(kDonateText);
    picPayPal->SetMinSize({text.x + units_.Pixels(4), text.y + units_.Pixels(2)});
    auto* end = new wxBoxSizer(wxHORIZONTAL);
    end->Add(imgPayPalDonate, 0, wxALIGN_CENTRE_VERTICAL | wxRIGHT, gap);
    end->Add(picPayPal, 1, wxALIGN_CENTRE_VERTICAL | wxRIGHT, gap);
    end->Add(cmdOK, 0, wxALIGN_CENTRE_VERTICAL);

    auto* all = new wxBoxSizer(wxVERTICAL);
    all->Add(LayoutOfTexts(), 0, wxEXPAND | wxALL, gap);
    all->Add(end, 0, wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, gap);
    FillWindow(*surface_, all);
}

void frmAbout::AnimateText() {
    picPayPal->SetText(slidingText_.Next());
    tmrAnimateText.StartOnce(slidingText_.IntervalMs());
}

void frmAbout::EndModal(int result) {
    tmrAnimateText.Stop();
    wxDialog::EndModal(result);
}

void frmAbout::OnTitlePressed(wxMouseEvent& event) {
    if (event.GetModifiers() != wxMOD_CONTROL) {
        event.Skip();
        return;
    }
    auto* const credit = new frmCredit(this, values_.info);
    credit->ShowModal();
    credit->Destroy();
}

}  // namespace brelex
