// SPDX-License-Identifier: MIT
#include "ui/frmViewEntry.h"

#include <string>
#include <utility>

#include <wx/button.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "database/record_text.h"
#include "platform/list/text_columns.h"
#include "platform/window/accessible_name.h"
#include "platform/window/plain_text.h"
#include "toolkit/wx_text.h"
#include "ui/controls/access_keys.h"
#include "ui/controls/artwork.h"
#include "ui/controls/modGeneral.h"
#include "ui/controls/surface.h"

namespace brelex {

namespace {

// The layout, in layout units.
constexpr double kInnerWidth = 540;
constexpr double kWidthWithoutScrolling = 700;  // two and a half lines
constexpr int kExpansionLines = 3;

// In pixels at 96 dots per inch.
constexpr int kTextMargin = 5;
constexpr int kEdge = 2;

// Larger than usual, because the entry is what the window is about.
wxFont BoxFont(const wxWindow& window) {
    return window.GetFont().Larger();
}

// A text that the user can read and select but not change. Boxes of one line and of several look
// different on GTK, so both are of the second kind. On Windows the TAB key would otherwise skip
// them (seen with wxWidgets 3.2.2).
class ReadOnlyBox final : public wxTextCtrl {
  public:
    ReadOnlyBox(wxWindow* parent, long scrollStyle)
        : wxTextCtrl(parent, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                     wxTE_READONLY | wxTE_MULTILINE | scrollStyle) {
        SetFont(BoxFont(*parent));
        SetSideMargins(*this, FromDIP(kTextMargin));
        SetTopMargin(*this, FromDIP(kTextMargin));
    }

    [[nodiscard]] bool AcceptsFocusFromKeyboard() const override { return AcceptsFocus(); }
};

void MakeRoomForLines(int count, wxTextCtrl& box) {
    box.SetMinSize({-1, count * box.GetCharHeight() + 2 * box.FromDIP(kTextMargin + kEdge)});
}

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

// In the order in which the TAB key visits them and a screen reader reads them.
void frmViewEntry::CreateControls() {
    lblAbbreviation_ = new wxStaticText(surface_, wxID_ANY, "&Abbreviation:");
    txtAbbrv = Named(new ReadOnlyBox(surface_, wxTE_NO_VSCROLL), "txtAbbrv", "Abbreviation");
    lblAbbrLen = Named(NewCount(), "lblAbbrLen");
    lblAbbrUnit_ = NewPlainText(surface_, "letters");
    lblExpansion_ = new wxStaticText(surface_, wxID_ANY, "&Expansion:");
    txtExpn = Named(new ReadOnlyBox(surface_, ScrollStyle()), "txtExpn", "Expansion");
    lblExpnLen = Named(NewCount(), "lblExpnLen");
    lblExpnUnit_ = NewPlainText(surface_, "letters");
    cmdCopy = Named(new wxButton(surface_, wxID_ANY, "Copy"), "cmdCopy");
    cmdCopy->SetBitmap(CopyPicture());
    cmdCopy->SetBitmapMargins(units_.Pixels(4), 0);
    cmdCopy->SetToolTip("Shortcut Ctrl+C");
    cmdOK = Named(new wxButton(surface_, wxID_OK, "OK"), "cmdOK");
    cmdOK->SetDefault();
    SetEscapeId(wxID_OK);
}

// As wide as any number of letters in the entry.
wxStaticText* frmViewEntry::NewCount() const {
    auto* count = NewPlainText(surface_, wxEmptyString, wxALIGN_RIGHT | wxST_NO_AUTORESIZE);
    const std::size_t digits = std::to_string(selectedEntry_().size()).size();
    count->SetMinSize({GetTextExtent(wxString('9', digits)).x, -1});
    return count;
}

// Windows shows a scroll bar whether it is needed or not.
long frmViewEntry::ScrollStyle() const {
    const wxFont font = BoxFont(*this);
    int width = 0;
    int height = 0;
    GetTextExtent(WxTextOfBytes(GetExpansion(selectedEntry_())), &width, &height, nullptr, nullptr,
                  &font);
    return width < units_.Pixels(kWidthWithoutScrolling) ? wxTE_NO_VSCROLL : 0;
}

wxSizer* frmViewEntry::LayoutOfCount(wxStaticText* count, wxStaticText* unit) {
    auto* line = new wxBoxSizer(wxHORIZONTAL);
    line->Add(count, 0, wxRIGHT, units_.Pixels(4));
    line->Add(unit);
    LeaveUnspoken(*unit);  // the count has it in its name
    return line;
}

void frmViewEntry::PlaceControls() {
    const int gap = units_.Pixels(kWindowMargin);
    auto* entry = new wxFlexGridSizer(3, wxSize(gap, gap));
    entry->AddGrowableCol(1);
    const int toFirstLine = units_.Pixels(8);
    MakeRoomForLines(1, *txtAbbrv);
    MakeRoomForLines(kExpansionLines, *txtExpn);
    entry->Add(lblAbbreviation_, 0, wxTOP, toFirstLine);
    entry->Add(txtAbbrv, 0, wxEXPAND);
    entry->Add(LayoutOfCount(lblAbbrLen, lblAbbrUnit_), 0, wxTOP, toFirstLine);
    entry->Add(lblExpansion_, 0, wxTOP, toFirstLine);
    entry->Add(txtExpn, 0, wxEXPAND);
    entry->Add(LayoutOfCount(lblExpnLen, lblExpnUnit_), 0, wxTOP, toFirstLine);

    wxSize size = cmdCopy->GetBestSize();
    size.IncTo(cmdOK->GetBestSize());
    auto* buttons = new wxBoxSizer(wxHORIZONTAL);
    buttons->AddStretchSpacer();
    for (wxButton* button : {cmdCopy, cmdOK}) {
        button->SetMinSize(size);
        buttons->Add(button, 0, wxLEFT, gap);
    }

    auto* all = new wxBoxSizer(wxVERTICAL);
    all->Add(entry, 0, wxEXPAND | wxALL, gap);
    all->Add(buttons, 0, wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, gap);
    FillWindow(all, units_.Pixels(kInnerWidth));
}

void frmViewEntry::BindEvents(const AppInfo& info) {
    Bind(wxEVT_CHAR_HOOK, &frmViewEntry::OnKey, this);
    cmdCopy->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { CopyEntry(); });
    LeadAccessKeysTo(*this, {{lblAbbreviation_, txtAbbrv}, {lblExpansion_, txtExpn}});
    for (wxTextCtrl* box : {txtAbbrv, txtExpn}) {
        ShowAppInfoOnMenuRequest(*box, info);
    }
}

void frmViewEntry::ShowEntry() {
    const std::string_view entry = selectedEntry_();
    const auto show = [](std::string_view text, wxTextCtrl& box, wxStaticText& count) {
        box.ChangeValue(WxTextOfBytes(text));
        const std::string letters = std::to_string(LetterCount(text));
        count.SetLabelText(letters);
        SetSpokenName(count, letters + " letters");
    };
    show(GetAbbreviation(entry), *txtAbbrv, *lblAbbrLen);
    show(GetExpansion(entry), *txtExpn, *lblExpnLen);
    // A screen reader says it when the window opens.
    SetSpokenDescription(
        *this, WxTextOfBytes(GetAbbreviation(entry)) + ": " + WxTextOfBytes(GetExpansion(entry)));
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
    } else if ((key == WXK_RETURN || key == WXK_NUMPAD_ENTER) &&
               (txtAbbrv->HasFocus() || txtExpn->HasFocus())) {
        EndModal(wxID_OK);  // a box would swallow the key
    } else {
        event.Skip();
    }
}

}  // namespace brelex
