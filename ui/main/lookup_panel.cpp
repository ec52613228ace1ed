// SPDX-License-Identifier: MIT
#include "ui/main/lookup_panel.h"

#include <algorithm>
#include <optional>
#include <utility>

#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/toplevel.h>
#include <wx/utils.h>

#include "database/record_text.h"
#include "platform/window/accessible_name.h"
#include "platform/window/before_painting.h"
#include "toolkit/wx_text.h"
#include "ui/controls/access_keys.h"
#include "ui/controls/backdrop.h"
#include "ui/controls/column_header.h"
#include "ui/controls/text_entry.h"
#include "ui/main/text_question.h"

namespace brelex {

namespace {

constexpr int kFewestRows = 6;

std::optional<NavigationKey> NavigationKeyOf(int keyCode) {
    switch (keyCode) {
        case WXK_RETURN:
        case WXK_NUMPAD_ENTER:
            return NavigationKey::Enter;
        case WXK_DOWN:
        case WXK_NUMPAD_DOWN:
            return NavigationKey::Down;
        case WXK_UP:
        case WXK_NUMPAD_UP:
            return NavigationKey::Up;
        case WXK_PAGEUP:
        case WXK_NUMPAD_PAGEUP:
            return NavigationKey::PageUp;
        case WXK_PAGEDOWN:
        case WXK_NUMPAD_PAGEDOWN:
            return NavigationKey::PageDown;
        default:
            return std::nullopt;
    }
}

}  // namespace

// The box must come directly after the instruction, whose access key leads to it.
LookupPanel::LookupPanel(wxWindow& surface, const LayoutUnits& units, const ProgramValues& values,
                         LookupPanelEvents events)
    : window_(dynamic_cast<wxTopLevelWindow&>(*wxGetTopLevelParent(&surface))),
      units_(units),
      values_(values),
      events_(std::move(events)),
      messages_(&window_),
      lookup_(values, *this, messages_),
      lblInstruction(
          Named(new wxStaticText(
                    &surface, wxID_ANY,
                    "&Type the first few letters of the acronym/abbreviation you are looking for:"),
                "lblInstruction")),
      txtAbbrv(Named(new wxTextCtrl(&surface, wxID_ANY, wxEmptyString, wxDefaultPosition,
                                    wxDefaultSize, wxTE_PROCESS_ENTER),
                     "txtAbbrv", "First letters of the abbreviation")),
      lblColHeaderBack(Named(new Backdrop(&surface), "lblColHeaderBack")),
      picColHeader(new ColumnHeader(lblColHeaderBack, units)),
      lstAcronyms(&CreateEntryListControl(surface, units.Pixels(kExpansionTextAt))) {
    // In this order: a list that has a name already reports each row to screen readers.
    lstAcronyms->SetRows(*values.AcronymList);
    Named(&lstAcronyms->Window(), "lstAcronyms", "Entries");
    SetMaxBoxLength(static_cast<std::size_t>(std::max(values.Header.MaxAbbrvLength, 0)));
    LeadAccessKeysTo(window_, {{lblInstruction, txtAbbrv}});
    BindBox();
    BindList();
}

void LookupPanel::BindBox() {
    txtAbbrv->Bind(wxEVT_TEXT, &LookupPanel::OnBoxText, this);
    txtAbbrv->Bind(wxEVT_KEY_DOWN, &LookupPanel::OnBoxKeyDown, this);
    TypeInCapitals(*txtAbbrv, *txtAbbrv);
    SelectAllOnCtrlA(*txtAbbrv, *txtAbbrv);
    txtAbbrv->Bind(wxEVT_SET_FOCUS, &LookupPanel::OnBoxFocus, this);
    txtAbbrv->Bind(wxEVT_TEXT_PASTE, &LookupPanel::OnBoxPaste, this);
}

void LookupPanel::BindList() {
    lstAcronyms->onClick = [this](std::int32_t row) { lookup_.OnListClick(row); };
    lstAcronyms->onEnter = [this] { events_.onEntryChosen(); };
    lstAcronyms->onRightPress = [this](std::int32_t row) { ShowMenuAtMouse(row); };
    lstAcronyms->onMenuKey = [this] { ShowMenuAtRow(); };
    menuTimer_.Bind(wxEVT_TIMER, &LookupPanel::OnMenuTimer, this);
    lstAcronyms->onGotFocus = [this] { lookup_.OnListGotFocus(); };
    lstAcronyms->onLostFocus = [this] { lookup_.OnListLostFocus(); };
    picColHeader->Bind(wxEVT_LEFT_DOWN,
                       [this](wxMouseEvent&) { lstAcronyms->Window().SetFocus(); });
}

int LookupPanel::InstructionWidth() const {
    return lblInstruction->GetBestSize().x;
}

int LookupPanel::PlaceBox(int left, int top, int width) {
    if (InstructionWidth() > width) {
        lblInstruction->Wrap(width);
    }
    const int instructionHeight = lblInstruction->GetBestSize().y;
    lblInstruction->SetSize(left, top, width, instructionHeight);
    const int boxTop = top + instructionHeight + units_.Pixels(3);
    // The toolkit's best height does not always follow a large font (seen with GTK 3.24).
    const int boxHeight =
        std::max(txtAbbrv->GetBestSize().y, txtAbbrv->GetCharHeight() + units_.Pixels(11));
    txtAbbrv->SetSize(left, boxTop, width, boxHeight);
    return boxTop + boxHeight;
}

int LookupPanel::PlaceList(int left, int top, int width, int bottom) {
    const int listTop = top + units_.Pixels(kColumnHeaderHeight);
    const int rows = std::max(lstAcronyms->RowsIn(bottom - listTop), kFewestRows);
    const int height = lstAcronyms->HeightOfRows(rows);
    lstAcronyms->Window().SetSize(left, listTop, width, height);
    DrawColumnHeader();
    return listTop + height;
}

void LookupPanel::DrawColumnHeader() {
    const wxRect list = lstAcronyms->Window().GetRect();
    const int height = units_.Pixels(kColumnHeaderHeight);
    lblColHeaderBack->SetSize(list.x, list.y - height, list.width, height);
    picColHeader->SetSize(0, 0, list.width, height);
}

void LookupPanel::GiveBoxTheFocus() {
    txtAbbrv->SetFocus();
}

void LookupPanel::GoToRecordNumber(RecordNumber nRecordNumber) {
    FlushBoxChange();
    lookup_.GoToRecordNumber(nRecordNumber);
}

void LookupPanel::ShowChosen(const std::string& id) {
    FlushBoxChange();
    lookup_.ShowChosen(id);
    GiveBoxTheFocus();
}

std::vector<ControlHint> LookupPanel::Hints() const {
    const char* const listHint =
        "Press Carriage Return or double-click an entry in the list to view it";
    return {{*txtAbbrv, "Type here the acronym/abbreviation you are looking for"},
            {lstAcronyms->Window(), listHint},
            {*picColHeader, listHint}};
}

// One edit must be one change. Typing over a selection deletes and inserts, and GTK reports both.
// So a change waits until the toolkit has finished the edit, but never beyond the next key.
void LookupPanel::OnBoxText(wxCommandEvent& /*event*/) {
    if (!std::exchange(boxChangePending_, true)) {
        CallBeforePainting(*txtAbbrv, [this] { FlushBoxChange(); });
    }
}

void LookupPanel::FlushBoxChange() {
    if (std::exchange(boxChangePending_, false)) {
        lookup_.OnBoxChanged(Utf8Text(txtAbbrv->GetValue()));
    }
}

void LookupPanel::OnBoxKeyDown(wxKeyEvent& event) {
    FlushBoxChange();
    const auto key = NavigationKeyOf(event.GetKeyCode());
    if (!key) {
        event.Skip();
    } else if (*key == NavigationKey::Enter && event.HasAnyModifiers()) {
        MoveCaretToEnd();  // in this case the list opens no entry
    } else {
        lookup_.OnBoxKeyDown(*key);
    }
}

void LookupPanel::OnBoxFocus(wxFocusEvent& event) {
    if (!std::exchange(caretStays_, false)) {
        // This must come after the toolkit has placed the caret at the mouse.
        txtAbbrv->CallAfter([this] { txtAbbrv->SelectAll(); });
    }
    event.Skip();
}

void LookupPanel::SetMaxBoxLength(std::size_t length) {
    maxBoxLength_ = length;
    txtAbbrv->SetMaxLength(static_cast<unsigned long>(length));
}

void LookupPanel::OnBoxPaste(wxClipboardTextEvent& event) {
    event.Skip(!PasteWhatFits(*txtAbbrv, maxBoxLength_));
}

// A row under the mouse is visible and must stay under the mouse.
void LookupPanel::ShowMenuAtMouse(std::int32_t row) {
    lstAcronyms->SelectRow(row);
    ShowMenuAt(wxDefaultPosition);
}

void LookupPanel::ShowMenuAtRow() {
    const std::int32_t row = SelectedRow();
    lstAcronyms->SelectRow(row, Scrolling::IntoSight);
    const wxWindow& list = lstAcronyms->Window();
    const wxPoint place = lstAcronyms->RowRect(row).GetBottomLeft() + wxPoint(list.FromDIP(16), 0);
    ShowMenuAt(list.ClientToScreen(place));
}

// When all that waits is done, and the list has the focus; once, however often it was asked for
// until then. On Windows the keys that asked for it must have come up before, or else they close
// the menu.
void LookupPanel::ShowMenuAt(const wxPoint& place) {
    lstAcronyms->Window().SetFocus();
    menuPlace_ = place;
    menuTimer_.StartOnce(1);
}

void LookupPanel::OnMenuTimer(wxTimerEvent& /*event*/) {
    lookup_.OnListMenu(SelectedRow());
    events_.onMenuWanted(menuPlace_);
}

std::int32_t LookupPanel::SelectedRow() const {
    return lstAcronyms->SelectedRow();
}

void LookupPanel::SelectRow(std::int32_t row, Scrolling scrolling) {
    lstAcronyms->SelectRow(row, scrolling);
}

void LookupPanel::SendKeyToList(NavigationKey key) {
    lstAcronyms->SendKey(key);
}

void LookupPanel::SetBoxText(const std::string& text) {
    const wxString shown = WxText(text);
    if (shown.length() > maxBoxLength_) {
        // A damaged header may state less than the length of its abbreviations. GTK would then show
        // nothing.
        SetMaxBoxLength(shown.length());
    }
    txtAbbrv->ChangeValue(shown);
}

void LookupPanel::MoveCaretToEnd() {
    txtAbbrv->SetInsertionPointEnd();
}

void LookupPanel::SetRecordNumberText(const std::string& text) {
    events_.onNumberChanged(WxText(text));
    DescribeEntry(WxText(text));
}

// A screen reader says it at once while the box has the focus. Among entries of one abbreviation,
// nothing else changes there.
void LookupPanel::DescribeEntry(const wxString& recordNumber) {
    const std::int32_t row = SelectedRow();
    if (row < 0) {
        SetSpokenDescription(*txtAbbrv, wxEmptyString);
        return;
    }
    const std::string_view entry = values_.AcronymList->RowText(row);
    SetSpokenDescription(*txtAbbrv, WxTextOfBytes(GetAbbreviation(entry)) + ": " +
                                        WxTextOfBytes(GetExpansion(entry)) + ", record " +
                                        recordNumber);
}

std::string LookupPanel::AskText(const std::string& title, const std::string& prompt,
                                 const std::string& defaultText) {
    // The box gets the focus back, and its caret stays where it is put in the meantime.
    caretStays_ = txtAbbrv->HasFocus();
    TextQuestion dialog(&window_, WxText(title), WxText(prompt), WxText(defaultText));
    return dialog.ShowModal() == wxID_OK ? Utf8Text(dialog.GetValue()) : std::string();
}

}  // namespace brelex
