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

// AltGr counts as Ctrl and Alt. Some keyboards need it to type certain characters.
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
    // A menu request with the mouse needs nothing here: pressing the button already asked for the
    // menu.
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

void EntryListControl::Clicked(std::int32_t row) const {
    if (onClick) {
        onClick(row);
    }
}

void EntryListControl::Entered() const {
    if (SelectedRow() >= 0 && onEnter) {
        onEnter();
    }
}

void EntryListControl::GotFocus() const {
    if (onGotFocus) {
        onGotFocus();
    }
}

void EntryListControl::LostFocus() const {
    if (onLostFocus) {
        onLostFocus();
    }
}

void EntryListControl::WatchFocus() {
    Window().Bind(wxEVT_SET_FOCUS, [this](wxFocusEvent& event) {
        GotFocus();
        event.Skip();
    });
    Window().Bind(wxEVT_KILL_FOCUS, [this](wxFocusEvent& event) {
        LostFocus();
        event.Skip();
    });
}

void EntryListControl::SelectRow(std::int32_t row, Scrolling scrolling) {
    if (scrolling == Scrolling::SecondFromTop) {
        SetTopRow(std::max(row - 1, 0));
    }
    SelectQuietly(row);
    if (scrolling != Scrolling::Nowhere) {
        ScrollIntoSight(row);
    }
}

void EntryListControl::ScrollIntoSight(std::int32_t row) {
    if (row < TopRow()) {
        SetTopRow(row);
    } else if (row >= TopRow() + RowsPerPage()) {
        SetBottomRow(row);
    }
}

void EntryListControl::SendKey(NavigationKey key) {
    if (key == NavigationKey::Enter) {
        Entered();
        return;
    }
    const std::int32_t row = RowAfterKey(key, SelectedRow(), RowCount(), RowsPerPage());
    if (row >= 0) {
        SelectAsUser(row);
    }
}

void EntryListControl::SelectAsUser(std::int32_t row) {
    const bool changed = row != SelectedRow();
    SelectRow(row, Scrolling::IntoSight);
    if (changed) {
        Clicked(row);
    }
}

}  // namespace brelex
