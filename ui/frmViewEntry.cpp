// SPDX-License-Identifier: MIT
#include "ui/frmViewEntry.h"

#include <string>
#include <utility>

#include <wx/bmpbuttn.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "database/record_text.h"
#include "platform/list/text_columns.h"
#include "platform/window/accessible_name.h"
#include "toolkit/wx_text.h"
#include "ui/controls/access_keys.h"
#include "ui/controls/artwork.h"
#include "ui/controls/modGeneral.h"
#include "ui/controls/surface.h"

namespace brelex {

namespace {

// The layout, in layout units.
constexpr double kInnerWidth = 540;
constexpr double kMargin = 10;
constexpr double kWidthWithoutScrolling = 700;  // two and a half lines
constexpr int kExpansionLines = 3;
constexpr int kTextMarginPixels = 4;

// A line of text that the user can read and select but not change. On Windows the TAB key would
// otherwise skip it (seen with wxWidgets 3.2.2).
class ReadOnlyLine final : public wxTextCtrl {
  public:
    explicit ReadOnlyLine(wxWindow* parent)
        : wxTextCtrl(parent, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                     wxTE_READONLY) {}

    [[nodiscard]] bool AcceptsFocusFromKeyboard() const override { return AcceptsFocus(); }
};

}  // namespace

frmViewEntry::frmViewEntry(wxTopLevelWindow* main, std::function<std::string_view()> selectedEntry,
                           const AppInfo& info)
    : SideWindow(*main, "frmViewEntry", "Current Selection (Read Only)"),
      selectedEntry_(std::move(selectedEntry)) {
    CreateControls();
    PlaceControls();
    BindEvents(info);
    ShowEntry();
    cmdOK->SetFocus();
}

// In the order in which the TAB key visits them.
void frmViewEntry::CreateControls() {
    lblAbbreviation_ = new wxStaticText(surface_, wxID_ANY, "&Abbreviation:");
    txtAbbrv = Named(new ReadOnlyLine(surface_), "txtAbbrv", "Abbreviation");
    lblExpansion_ = new wxStaticText(surface_, wxID_ANY, "&Expansion:");
    txtExpn = Named(new wxTextCtrl(surface_, wxID_ANY, wxEmptyString, wxDefaultPosition,
                                   wxDefaultSize, wxTE_READONLY | wxTE_MULTILINE | ScrollStyle()),
                    "txtExpn", "Expansion");
    lblAbbrLen = Named(NewCount(), "lblAbbrLen");
    lblExpnLen = Named(NewCount(), "lblExpnLen");
    cmdCopy = Named(new wxBitmapButton(surface_, wxID_ANY, CopyPicture()), "cmdCopy", "Copy");
    cmdCopy->SetToolTip("Shortcut Ctrl+C");
    cmdOK = Named(new wxButton(surface_, wxID_OK, "OK"), "cmdOK");
    cmdOK->SetDefault();
    SetEscapeId(wxID_OK);
}

wxStaticText* frmViewEntry::NewCount() const {
    auto* count = new wxStaticText(surface_, wxID_ANY, wxEmptyString, wxDefaultPosition,
                                   wxDefaultSize, wxALIGN_RIGHT | wxST_NO_AUTORESIZE);
    count->SetMinSize({GetTextExtent("99999").x, -1});
    return count;
}

// Windows shows a scroll bar whether it is needed or not.
long frmViewEntry::ScrollStyle() const {
    const int width = GetTextExtent(WxTextOfBytes(GetExpansion(selectedEntry_()))).x;
    return width < units_.Pixels(kWidthWithoutScrolling) ? wxTE_NO_VSCROLL : 0;
}

wxSizer* frmViewEntry::LayoutOfCount(wxStaticText* count) {
    auto* line = new wxBoxSizer(wxHORIZONTAL);
    line->Add(count, 0, wxRIGHT, units_.Pixels(4));
    line->Add(new wxStaticText(surface_, wxID_ANY, "letters"));
    return line;
}

void frmViewEntry::PlaceControls() {
    const int gap = units_.Pixels(kMargin);
    auto* entry = new wxFlexGridSizer(3, wxSize(gap, gap));
    entry->AddGrowableCol(1);
    entry->Add(lblAbbreviation_, 0, wxALIGN_CENTRE_VERTICAL);
    entry->Add(txtAbbrv, 0, wxEXPAND);
    entry->Add(LayoutOfCount(lblAbbrLen), 0, wxALIGN_CENTRE_VERTICAL);
    txtExpn->SetMinSize({-1, (kExpansionLines + 1) * txtExpn->GetCharHeight()});
    entry->Add(lblExpansion_, 0, wxTOP, units_.Pixels(4));
    entry->Add(txtExpn, 0, wxEXPAND);
    entry->Add(LayoutOfCount(lblExpnLen), 0, wxTOP, units_.Pixels(4));

    auto* buttons = new wxBoxSizer(wxHORIZONTAL);
    buttons->AddStretchSpacer();
    buttons->Add(cmdCopy, 0, wxEXPAND | wxRIGHT, gap);
    buttons->Add(cmdOK);

    auto* all = new wxBoxSizer(wxVERTICAL);
    all->Add(entry, 0, wxEXPAND | wxALL, gap);
    all->Add(buttons, 0, wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, gap);
    FillWindow(all, units_.Pixels(kInnerWidth));
}

void frmViewEntry::BindEvents(const AppInfo& info) {
    Bind(wxEVT_CHAR_HOOK, &frmViewEntry::OnKey, this);
    cmdCopy->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { CopyEntry(); });
    SetSideMargins(*txtExpn, kTextMarginPixels);
    SetTopMargin(*txtExpn, kTextMarginPixels);
    LeadAccessKeysTo(*this, {{lblAbbreviation_, txtAbbrv}, {lblExpansion_, txtExpn}});
    for (wxTextCtrl* box : {txtAbbrv, txtExpn}) {
        ShowAppInfoOnMenuRequest(*box, info);
    }
}

void frmViewEntry::ShowEntry() {
    const std::string_view entry = selectedEntry_();
    const auto show = [](std::string_view text, wxTextCtrl& box, wxStaticText& count) {
        box.ChangeValue(WxTextOfBytes(text));
        count.SetLabelText(std::to_string(LetterCount(text)));
    };
    show(GetAbbreviation(entry), *txtAbbrv, *lblAbbrLen);
    show(GetExpansion(entry), *txtExpn, *lblExpnLen);
}

void frmViewEntry::CopyEntry() {
    CopyEntryToClipboard(selectedEntry_(), messages_);
}

// This handler runs before the controls' own, so Ctrl+C copies the whole entry whichever control
// has the focus.
void frmViewEntry::OnKey(wxKeyEvent& event) {
    const int key = event.GetKeyCode();
    if (key == 'C' && event.GetModifiers() == wxMOD_CONTROL) {
        CopyEntry();
    } else if ((key == WXK_RETURN || key == WXK_NUMPAD_ENTER) && txtExpn->HasFocus()) {
        EndModal(wxID_OK);  // the box would swallow the key
    } else {
        event.Skip();
    }
}

}  // namespace brelex
