// SPDX-License-Identifier: MIT
#include "ui/frmAbout.h"

#include <wx/button.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include "base/number_text.h"
#include "platform/window/accessible_name.h"
#include "presentation/program_texts.h"
#include "toolkit/wx_text.h"
#include "ui/controls/artwork.h"
#include "ui/controls/link.h"
#include "ui/controls/painted.h"
#include "ui/controls/surface.h"
#include "ui/controls/title_image.h"
#include "ui/frmCredit.h"

namespace brelex {

namespace {

// The layout, in layout units.
constexpr double kTitleWidth = 300;
constexpr double kTitleHeight = 48;

constexpr int kFirstTickMs = 500;

}  // namespace

frmAbout::frmAbout(wxTopLevelWindow* main, const ProgramValues& values,
                   const std::function<void(const std::string&)>& openAddress)
    : SideWindow(*main, "frmAbout", wxString("About ") + kAppTitle),
      values_(values),
      openAddress_(openAddress),
      slidingText_(kDonateText),
      tmrAnimateText(this) {
    CreateControls();
    PlaceControls();
    picAppTitle->Bind(wxEVT_LEFT_DOWN, &frmAbout::OnTitlePressed, this);
    Bind(wxEVT_TIMER, [this](wxTimerEvent&) { AnimateText(); });
    StopWithWindow(tmrAnimateText);
    tmrAnimateText.StartOnce(kFirstTickMs);
    cmdOK->SetFocus();
}

void frmAbout::CreateControls() {
    picAppTitle = Named(new TitleImage(surface_), "picAppTitle");
    picAppTitle->FitInto({units_.Pixels(kTitleWidth), units_.Pixels(kTitleHeight)});
    lblDescription = NewLabel("lblDescription", "The best offline database of computer acronyms");
    lblVersion = NewLabel(
        "lblVersion",
        WxText("version " + FormatOneDecimal(values_.AppVersion, values_.decimalSeparator)));
    lblCopyRight =
        NewLabel("lblCopyRight", WxText(values_.info.copyright + ". All Rights Reserved."));
    lblDBVersion = NewLabel("lblDBVersion", wxEmptyString);
    lblDBVersion->Hide();  // even an empty label takes up a line
    lblHyperLink[0] = Named(new Link(surface_, WxText(values_.info.homePage),
                                     [this] { openAddress_(Utf8Text(lblHyperLink[0]->Text())); }),
                            "lblHyperLink0");
    lblHyperLink[0]->DescribeAs("Home page", lblHyperLink[0]->Text());
    lblHyperLink[1] =
        Named(new Link(surface_, WxText(values_.info.supportAddress),
                       [this] { openAddress_("mailto:" + Utf8Text(lblHyperLink[1]->Text())); }),
              "lblHyperLink1");
    lblHyperLink[1]->DescribeAs("Support by e-mail", "mailto:" + lblHyperLink[1]->Text());
    picPayPal = Named(new PaintedText(surface_), "picPayPal");
    imgPayPalDonate = Named(new Link(surface_, DonateButtonPicture(),
                                     [this] { openAddress_(values_.info.donationPage); }),
                            "imgPayPalDonate");
    imgPayPalDonate->DescribeAs(kDonateText, WxText(values_.info.donationPage));
    cmdOK = Named(new wxButton(surface_, wxID_OK, "OK"), "cmdOK");
    cmdOK->SetDefault();
    SetEscapeId(wxID_OK);
}

wxStaticText* frmAbout::NewLabel(const char* name, const wxString& text) const {
    auto* label = Named(new wxStaticText(surface_, wxID_ANY, wxEmptyString), name);
    label->SetLabelText(text);
    return label;
}

wxSizer* frmAbout::LayoutOfTexts() {
    const int gap = units_.Pixels(kWindowMargin);
    auto* labels = new wxBoxSizer(wxVERTICAL);
    labels->Add(picAppTitle, 0, wxBOTTOM, gap);
    for (wxStaticText* label : {lblDescription, lblVersion, lblDBVersion, lblCopyRight}) {
        labels->Add(label, 0, wxEXPAND | wxBOTTOM, gap / 3);
    }
    auto* texts = new wxBoxSizer(wxVERTICAL);
    texts->Add(labels, 0, wxEXPAND | wxALL, FromDIP(Link::kFocusMargin));
    for (Link* link : lblHyperLink) {
        texts->Add(link, 0, wxBOTTOM, gap / 4);
    }
    return texts;
}

void frmAbout::PlaceControls() {
    const int gap = units_.Pixels(kWindowMargin);
    picPayPal->SetMinSize(
        {units_.TextWidth(kDonateText), GetTextExtent(kDonateText).y + units_.Pixels(2)});
    auto* end = new wxBoxSizer(wxHORIZONTAL);
    end->Add(imgPayPalDonate, 0, wxALIGN_CENTRE_VERTICAL | wxRIGHT, gap);
    end->Add(picPayPal, 1, wxALIGN_CENTRE_VERTICAL | wxRIGHT, gap);
    end->Add(cmdOK, 0, wxALIGN_CENTRE_VERTICAL);

    auto* all = new wxBoxSizer(wxVERTICAL);
    auto* inner = new wxBoxSizer(wxVERTICAL);
    inner->Add(LayoutOfTexts(), 0, wxEXPAND | wxBOTTOM, gap);
    inner->Add(end, 0, wxEXPAND | wxRIGHT, FromDIP(Link::kFocusMargin));
    all->Add(inner, 0, wxEXPAND | wxLEFT | wxTOP | wxRIGHT, gap - FromDIP(Link::kFocusMargin));
    all->AddSpacer(gap - imgPayPalDonate->ReachBelow(*cmdOK));
    FillWindow(all);
}

void frmAbout::AnimateText() {
    picPayPal->SetText(slidingText_.Next());
    tmrAnimateText.StartOnce(slidingText_.IntervalMs());
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
