// SPDX-License-Identifier: MIT
#include "platform/list/entry_list_control.h"

#include <algorithm>
#include <chrono>

#include <wx/event.h>
#include <wx/utils.h>
#include <wx/window.h>

#include "base/windows1252.h"
#include "toolkit/wx_text.h"

namespace brelex {

namespace {

std::int64_t NowMs() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

// AltGr, with which keyboards reach some characters, counts as Ctrl and Alt.
bool IsTyped(const wxKeyEvent& event) {
    const int modifiers = event.GetModifiers();
    return modifiers == wxMOD_NONE || modifiers == wxMOD_SHIFT || modifiers == wxMOD_ALTGR;
}

}  // namespace

void EntryListControl::RightPressed() {
    const std::int32_t row = RowAt(Window().ScreenToClient(wxGetMousePosition()));
    if (row >= 0 && onRightPress) {
        onRightPress(row);
    }
}

void EntryListControl::OnContextMenu(wxContextMenuEvent& event) const {
    // With the mouse the pressed button has asked for it already.
    if (event.GetPosition() == wxDefaultPosition && SelectedRow() >= 0 && onMenuKey) {
        onMenuKey();
    }
}

bool EntryListControl::IsTyping() const {
    return typeAhead_.IsTyping(NowMs());
}

void EntryListControl::OnCharacter(wxKeyEvent& event) {
    const wxChar character = event.GetUnicodeKey();
    const bool typed = character >= WXK_SPACE && character != WXK_DELETE;
    if (!typed || !IsTyped(event) || Rows() == nullptr) {
        event.Skip();
        return;
    }
    const std::string bytes = BytesOfUtf8(Utf8Text(wxString(character))).bytes;
    if (bytes.size() != 1) {
        return;  // no entry has such a character
    }
    if (const auto row = typeAhead_.RowAfter(*Rows(), SelectedRow(), bytes[0], NowMs())) {
        SelectAsUser(*row);
    }
}

int EntryListControl::RowsIn(int height) const {
    return std::max(1, (height - HeightOfRows(0)) / RowHeight());
}

void EntryListControl::ScrollIntoView(std::int32_t row) {
    if (row < TopRow()) {
        SetTopRow(row);
    } else if (row >= TopRow() + RowsPerPage()) {
        SetBottomRow(row);
    }
}

void EntryListControl::SendKey(NavigationKey key) {
    if (key == NavigationKey::Enter) {
        if (SelectedRow() >= 0 && onEnter) {
            onEnter();
        }
        return;
    }
    const std::int32_t row = RowAfterKey(key, SelectedRow(), RowCount(), RowsPerPage());
    if (row >= 0) {
        SelectAsUser(row);
    }
}

void EntryListControl::SelectAsUser(std::int32_t row) {
    const bool changed = row != SelectedRow();
    SelectRow(row);
    ScrollIntoView(row);
    if (changed && onClick) {
        onClick();
    }
}

}  // namespace brelex
