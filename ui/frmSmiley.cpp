// SPDX-License-Identifier: MIT
#include "ui/frmSmiley.h"

#include <algorithm>

#include <wx/arrstr.h>
#include <wx/button.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/textctrl.h>

#include "platform/list/text_columns.h"
#include "platform/window/accessible_name.h"
#include "presentation/program_texts.h"
#include "toolkit/wx_text.h"
#include "ui/controls/surface.h"

namespace brelex {

namespace {

// The layout, in layout units.
constexpr double kHeight = 420;

constexpr int kTextMarginPixels = 8;

// The rows with tabs are all shorter than the introduction, so measuring their tabs wrongly does no
// harm.
int WidestLine(const wxWindow& window, const wxString& text) {
    int widest = 0;
    for (const wxString& line : wxSplit(text, '\n', '\0')) {
        widest = std::max(widest, window.GetTextExtent(line).x);
    }
    return widest;
}

// A smiley comes after one tab. Its meaning comes after two more tabs, or after one more if the
// smiley is long. The meanings form a column if the tab stops are farther apart than the short
// smileys are wide, but not farther apart than the long ones are wide. That distance depends on the
// font. Returns it in dialog units.
int TabStopFor(const wxWindow& window, const wxString& text) {
    int widestShort = 0;
    int narrowestLong = 0;
    for (const wxString& line : wxSplit(text, '\n', '\0')) {
        const wxArrayString parts = wxSplit(line, '\t', '\0');
        if (parts.size() < 3) {
            continue;
        }
        const int width = window.GetTextExtent(parts[1]).x;
        if (parts[2].empty()) {
            widestShort = std::max(widestShort, width);
        } else if (narrowestLong == 0 || width < narrowestLong) {
            narrowestLong = width;
        }
    }
    // In an unusual font, a long smiley may be narrower than a short one. Then only its row is out
    // of line.
    const int stop = (widestShort + std::max(widestShort, narrowestLong)) / 2 + 1;
    return window.ConvertPixelsToDialog(wxPoint(stop, 0)).x;
}

}  // namespace

frmSmiley::frmSmiley(wxTopLevelWindow* main, const AppInfo& info)
    : SideWindow(*main, "frmSmiley", "The Smiley Dictionary") {
    txtReadme = Named(new wxTextCtrl(surface_, wxID_ANY, wxEmptyString, wxDefaultPosition,
                                     wxDefaultSize, wxTE_MULTILINE | wxTE_READONLY),
                      "txtReadme", "Smileys and their meanings");
    // Without Verdana the system takes a similar font.
    txtReadme->SetFont(wxFontInfo(GetFont().GetFractionalPointSize()).FaceName("Verdana"));
    cmdClose = Named(new wxButton(surface_, wxID_CLOSE, "Close"), "cmdClose");
    cmdClose->SetDefault();
    SetEscapeId(wxID_CLOSE);
    const wxString text = WxText(SmileyDictionaryText());
    PlaceControls(WidestLine(*txtReadme, text));
    SetSideMargins(*txtReadme, kTextMarginPixels);
    SetTopMargin(*txtReadme, kTextMarginPixels);
    SetTabStop(*txtReadme, TabStopFor(*txtReadme, text));
    txtReadme->ChangeValue(text);
    txtReadme->SetInsertionPoint(0);
    ShowAppInfoOnMenuRequest(*txtReadme, info);
    Bind(wxEVT_CHAR_HOOK, &frmSmiley::OnKey, this);
    cmdClose->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { EndModal(wxID_CLOSE); });
    txtReadme->SetFocus();  // so that the scroll keys and Shift+F10 work at once
}

void frmSmiley::PlaceControls(int textWidth) {
    const int gap = units_.Pixels(kWindowMargin);
    // The rows fit a box that is as wide as the widest line.
    const int boxWidth = textWidth + 2 * (kTextMarginPixels + gap) +
                         wxSystemSettings::GetMetric(wxSYS_VSCROLL_X, txtReadme);
    auto* all = new wxBoxSizer(wxVERTICAL);
    all->Add(txtReadme, 1, wxEXPAND | wxALL, gap);
    all->Add(cmdClose, 0, wxALIGN_RIGHT | wxLEFT | wxRIGHT | wxBOTTOM, gap);
    surface_->SetSizer(all);
    wxSize inside(boxWidth + 2 * gap, units_.Pixels(kHeight));
    inside.DecTo(LargestInside(*this));  // the text scrolls and wraps
    surface_->FillWindow(inside);
}

void frmSmiley::OnKey(wxKeyEvent& event) {
    const int key = event.GetKeyCode();
    if ((key == WXK_RETURN || key == WXK_NUMPAD_ENTER) && txtReadme->HasFocus()) {
        EndModal(wxID_CLOSE);  // the box would swallow the key
    } else {
        event.Skip();
    }
}

}  // namespace brelex
