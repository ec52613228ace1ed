// SPDX-License-Identifier: MIT
#include "ui/frmSmiley.h"

#include <algorithm>

#include <wx/arrstr.h>
#include <wx/button.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/textctrl.h>

#include "platform/accessible_name.h"
#include "platform/text_columns.h"
#include "presentation/program_texts.h"
#include "ui/app_icon.h"
#include "ui/modGeneral.h"
#include "ui/surface.h"
#include "ui/wx_text.h"

namespace brelex {

namespace {

// The layout, in layout units.
constexpr double kHeight = 420;
constexpr double kMargin = 10;

constexpr int kTextMarginPixels = 8;
constexpr int kTabStopDialogUnits = 32;

// The rows with tabs are all shorter than the introduction.
int WidestLine(const wxWindow& window, const wxString& text) {
    int widest = 0;
    for (const wxString& line : wxSplit(text, '\n', '\0')) {
        widest = std::max(widest, window.GetTextExtent(line).x);
    }
    return widest;
}

}  // namespace

frmSmiley::frmSmiley(wxTopLevelWindow* main, const AppInfo& info)
    : wxDialog(main, wxID_ANY, "The Smiley Dictionary"),
      units_(*this) {
    SetName("frmSmiley");
    SetIcons(AppIcons());
    txtReadme = new wxTextCtrl(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                               wxTE_MULTILINE | wxTE_READONLY);
    // Where there is no Verdana the system takes what comes near it.
    txtReadme->SetFont(wxFontInfo(GetFont().GetFractionalPointSize()).FaceName("Verdana"));
    cmdClose = new wxButton(this, wxID_CLOSE, "Close");
    SetNames(*txtReadme, "txtReadme", "Smileys and their meanings");
    cmdClose->SetName("cmdClose");
    cmdClose->SetDefault();
    SetEscapeId(wxID_CLOSE);
    const wxString text = WxLines(WxText(SmileyDictionaryText()));
    PlaceControls(WidestLine(*txtReadme, text));
    SetSideMargins(*txtReadme, kTextMarginPixels);
    SetTabStop(*txtReadme, kTabStopDialogUnits);
    txtReadme->ChangeValue(text);
    txtReadme->SetInsertionPoint(0);
    ShowAppInfoOnMenuRequest(*txtReadme, info);
    cmdClose->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { EndModal(wxID_CLOSE); });
    KeepCentered(*this, *main);
    cmdClose->SetFocus();
}

void frmSmiley::PlaceControls(int textWidth) {
    const int gap = units_.Pixels(kMargin);
    // The rows are made for a box in which the widest line fits.
    const int boxWidth = textWidth + 2 * (kTextMarginPixels + gap) +
                         wxSystemSettings::GetMetric(wxSYS_VSCROLL_X, txtReadme);
    auto* all = new wxBoxSizer(wxVERTICAL);
    all->Add(txtReadme, 1, wxEXPAND | wxALL, gap);
    all->Add(cmdClose, 0, wxALIGN_RIGHT | wxLEFT | wxRIGHT | wxBOTTOM, gap);
    SetSizer(all);
    wxSize inside(boxWidth + 2 * gap, units_.Pixels(kHeight));
    inside.DecTo(LargestInside(*this));  // the text scrolls, and wraps
    SetClientSize(inside);
    Layout();
}

}  // namespace brelex
