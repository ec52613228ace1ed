// SPDX-License-Identifier: MIT
#include "ui/frmCredit.h"

#include <algorithm>
#include <vector>

#include "platform/window/accessible_name.h"
#include "presentation/program_texts.h"
#include "toolkit/app_icon.h"
#include "toolkit/wx_text.h"
#include "ui/controls/layout_units.h"
#include "ui/controls/scroll_area.h"
#include "ui/modGeneral.h"

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
        // The lowest byte is red in the toolkit's numbers, too.
        lines.push_back(
            {WxText(record.text), font,
             record.colour ? wxColour(static_cast<unsigned long>(*record.colour)) : wxColour()});
    }
    return lines;
}

}  // namespace

frmCredit::frmCredit(wxTopLevelWindow* about, const AppInfo& info)
    : wxDialog(about, wxID_ANY, "Credits") {
    SetName("frmCredit");
    SetIcons(AppIcons());
    const LayoutUnits units(*this);
    picAbout = new ScrollArea(this, LinesOf(Credits(info), GetFont()));
    SetNames(*picAbout, "picAbout", "Credits");
    SetClientSize(std::max(units.Pixels(kWidth), picAbout->LinesWidth()), units.Pixels(kHeight));
    picAbout->SetSize(GetClientSize());
    Bind(wxEVT_CHAR_HOOK, &frmCredit::OnKey, this);
    KeepCentered(*this, *about);
}

void frmCredit::EndModal(int result) {
    picAbout->Stop();
    wxDialog::EndModal(result);
}

// The toolkit's own answer to the key needs a button.
void frmCredit::OnKey(wxKeyEvent& event) {
    if (event.GetKeyCode() == WXK_ESCAPE) {
        Close();
    } else {
        event.Skip();
    }
}

}  // namespace brelex
