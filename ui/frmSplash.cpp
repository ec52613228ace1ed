// SPDX-License-Identifier: MIT
#include "ui/frmSplash.h"

#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>
#include <wx/time.h>

#include "platform/accessible_name.h"
#include "platform/paint_now.h"
#include "ui/app_icon.h"
#include "ui/wx_text.h"

namespace brelex {

frmSplash::frmSplash(const AppInfo& info)
    : wxFrame(nullptr, wxID_ANY, kAppTitle, wxDefaultPosition, wxDefaultSize,
              wxFRAME_NO_TASKBAR | wxBORDER_SIMPLE) {
    SetName("frmSplash");
    SetIcons(AppIcons());
    SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW));
    SetForegroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT));

    constexpr int kIconSize = 72;
    auto* icon = new wxStaticBitmap(this, wxID_ANY, AppIcon(kIconSize));
    auto* lblTitle = AddLabel("lblTitle", kAppTitle);
    lblTitle->SetFont(GetFont().Bold().Scaled(2.0F));
    auto* lblVersion = AddLabel(
        "lblVersion", wxString::Format("version %d.%d", info.majorVersion, info.minorVersion));
    auto* lblPunchLine = AddLabel("lblPunchLine", "The best offline database of computer acronyms");
    auto* lblCopyRight = AddLabel("lblCopyRight", WxText(info.copyright) + "\nAll Rights Reserved");
    auto* lblEmail = AddLabel("lblEmail", WxText(info.homePage));
    lblMessage = AddLabel("lblMessage", "Decoding database. Please, wait...");
    lblPercent = AddLabel("lblPercent", wxEmptyString);

    const int gap = FromDIP(6);
    auto* texts = new wxBoxSizer(wxVERTICAL);
    texts->Add(lblTitle);
    texts->Add(lblVersion);
    texts->AddSpacer(gap);
    texts->Add(lblPunchLine);
    texts->AddSpacer(3 * gap);
    texts->Add(lblCopyRight);
    texts->Add(lblEmail);
    auto* upper = new wxBoxSizer(wxHORIZONTAL);
    upper->Add(icon, 0, wxRIGHT, 4 * gap);
    upper->Add(texts);
    auto* all = new wxBoxSizer(wxVERTICAL);
    all->Add(upper, 0, wxALL, 4 * gap);
    // Room for the longest message and the percentage behind it, whatever is shown.
    all->Add(lblMessage, 0, wxLEFT | wxRIGHT | wxBOTTOM, 4 * gap);
    all->SetItemMinSize(lblMessage, FromDIP(420), -1);
    SetSizerAndFit(all);
    PlacePercent();
    CentreOnScreen();
}

wxStaticText* frmSplash::AddLabel(const wxString& name, const wxString& text) {
    auto* label = new wxStaticText(this, wxID_ANY, wxEmptyString);
    label->SetLabelText(text);
    label->SetName(name);
    return label;
}

void frmSplash::ShowAndPaint() {
    Show();
    PaintNow(*this);
    lastPaintMs_ = wxGetUTCTimeMillis();
}

void frmSplash::SetStatusText(std::string_view text) {
    lblMessage->SetLabelText(WxText(text));
    PlacePercent();
    RepaintIfDue(true);
}

void frmSplash::SetProgress(int percent) {
    lblPercent->SetLabelText(wxString::Format("%d%%", percent));
    RepaintIfDue(false);
}

void frmSplash::PlacePercent() {
    lblMessage->SetSize(lblMessage->GetBestSize());
    lblPercent->SetPosition(lblMessage->GetPosition() + wxPoint(lblMessage->GetSize().x, 0));
}

// Painting costs more than loading a hundredth of the entries does. More pictures a second than a
// screen shows would only make people wait.
void frmSplash::RepaintIfDue(bool force) {
    constexpr long kFrameMs = 40;
    const wxLongLong now = wxGetUTCTimeMillis();
    if (force || now - lastPaintMs_ >= kFrameMs) {
        PaintNow(*this);
        lastPaintMs_ = wxGetUTCTimeMillis();
    }
}

}  // namespace brelex
