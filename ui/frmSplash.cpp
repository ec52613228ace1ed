// SPDX-License-Identifier: MIT
#include "ui/frmSplash.h"

#include <wx/dcclient.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>

#include "platform/window/accessible_name.h"
#include "platform/window/paint_now.h"
#include "toolkit/app_icon.h"
#include "toolkit/wx_text.h"
#include "ui/controls/colours.h"

namespace brelex {

frmSplash::frmSplash(const AppInfo& info)
    : wxFrame(nullptr, wxID_ANY, kAppTitle, wxDefaultPosition, wxDefaultSize,
              wxFRAME_NO_TASKBAR | wxBORDER_NONE) {
    SetName("frmSplash");
    SetExtraStyle(GetExtraStyle() | wxWS_EX_TRANSIENT);  // too short-lived to own message boxes
    SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW));
    SetForegroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT));

    constexpr int kIconSize = 72;
    auto* icon =
        Named(new wxStaticBitmap(this, wxID_ANY, AppIcon(kIconSize)), "imgAppIcon", kAppTitle);
    auto* lblTitle = NewLabel("lblTitle", kAppTitle);
    lblTitle->SetFont(GetFont().Bold().Scaled(2.0F));
    auto* lblVersion = NewLabel(
        "lblVersion", wxString::Format("version %d.%d", info.majorVersion, info.minorVersion));
    auto* lblPunchLine = NewLabel("lblPunchLine", "The best offline database of computer acronyms");
    auto* lblCopyRight = NewLabel("lblCopyRight", WxText(info.copyright) + "\nAll Rights Reserved");
    auto* lblEmail = NewLabel("lblEmail", WxText(info.homePage));
    lblMessage = NewLabel("lblMessage", "Decoding database. Please, wait...");
    lblPercent = NewLabel("lblPercent", wxEmptyString);

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
    all->Add(lblMessage, 0, wxLEFT | wxRIGHT | wxBOTTOM, 4 * gap);
    // Room for the longest message with the percentage after it, whatever is shown.
    all->SetMinSize(
        GetTextExtent("Loading database (9,999,999 records). Please, wait...100%").x + 10 * gap,
        -1);
    SetSizerAndFit(all);
    PlacePercent();
    CentreOnScreen();
    Bind(wxEVT_PAINT, &frmSplash::OnPaint, this);
    // The loading code still needs the window, and destroys it when it is done.
    Bind(wxEVT_CLOSE_WINDOW, [](wxCloseEvent& event) { event.Veto(); });
}

wxStaticText* frmSplash::NewLabel(const wxString& name, const wxString& text) {
    return Named(new wxStaticText(this, wxID_ANY, wxControl::EscapeMnemonics(text)), name);
}

// Without a title bar, only an outline separates the window from its background.
void frmSplash::OnPaint(wxPaintEvent& /*event*/) {
    wxPaintDC dc(this);
    dc.SetPen(wxPen(EdgesOnFace().shadow));
    dc.SetBrush(*wxTRANSPARENT_BRUSH);
    dc.DrawRectangle(GetClientRect());
}

void frmSplash::WaitUntilSeen() {
    PaintFirst(*this);
    lastPaint_ = std::chrono::steady_clock::now();
}

void frmSplash::PaintAtOnce() {
    PaintNow(*this);
    lastPaint_ = std::chrono::steady_clock::now();
}

void frmSplash::SetStatusText(std::string_view text) {
    lblMessage->SetLabelText(WxText(text));
    PlacePercent();
    PaintAtOnce();
}

// Setting a label and painting it takes longer than loading a hundredth of the entries. Painting
// more often than the screen refreshes would only make people wait.
void frmSplash::SetProgress(int percent) {
    constexpr std::chrono::milliseconds kFrame(16);
    constexpr int kDone = 100;
    if (percent == kDone || std::chrono::steady_clock::now() - lastPaint_ >= kFrame) {
        lblPercent->SetLabelText(wxString::Format("%d%%", percent));
        PaintAtOnce();
    }
}

void frmSplash::PlacePercent() {
    lblMessage->SetSize(lblMessage->GetBestSize());
    lblPercent->SetPosition(lblMessage->GetPosition() + wxPoint(lblMessage->GetSize().x, 0));
}

}  // namespace brelex
