// SPDX-License-Identifier: MIT
#include "ui/frmCredit.h"

#include <algorithm>
#include <vector>

#include <wx/sizer.h>

#include "platform/window/accessible_name.h"
#include "presentation/program_texts.h"
#include "toolkit/wx_text.h"
#include "ui/controls/scroll_area.h"
#include "ui/controls/surface.h"

namespace brelex {

namespace {

// The layout, in layout units.
constexpr double kWidth = 340;
constexpr double kHeight = 190;

std::vector<ScrollLine> LinesOf(const std::vector<CreditRecord>& records, const wxFont& usual) {
    std::vector<ScrollLine> lines;
    for (const CreditRecord& record : records) {
        wxFont font = usual;
        font.SetPointSize(record.pointSize);
        if (record.isBold) {
            font.MakeBold();
        }
        // The toolkit's color numbers also have red in their lowest byte.
        lines.push_back(
            {WxText(record.text), font,
             record.colour ? wxColour(static_cast<unsigned long>(*record.colour)) : wxColour()});
    }
    return lines;
}

}  // namespace

frmCredit::frmCredit(wxTopLevelWindow* about, const AppInfo& info)
    : SideWindow(*about, "frmCredit", "Credits") {
    picAbout = Named(new ScrollArea(surface_, LinesOf(Credits(info), GetFont())), "picAbout");
    picAbout->DescribeAs("Credits");
    surface_->FrameChild(*picAbout);
    StopWithWindow(picAbout->tmrScrollText);
    picAbout->SetMinSize(
        {std::max(units_.Pixels(kWidth), picAbout->LinesWidth()), units_.Pixels(kHeight)});
    auto* all = new wxBoxSizer(wxVERTICAL);
    all->Add(picAbout, 1, wxEXPAND | wxALL, units_.Pixels(kWindowMargin));
    FillWindow(all);
    Bind(wxEVT_CHAR_HOOK, &frmCredit::OnKey, this);
    picAbout->SetFocus();  // there is nothing else, and screen readers begin at the focus
}

// The toolkit's own handling of the key needs a button.
void frmCredit::OnKey(wxKeyEvent& event) {
    if (event.GetKeyCode() == WXK_ESCAPE) {
        Close();
    } else {
        event.Skip();
    }
}

}  // namespace brelex
