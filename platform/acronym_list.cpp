// SPDX-License-Identifier: MIT
#include "platform/acronym_list.h"

#include <wx/event.h>
#include <wx/utils.h>
#include <wx/window.h>

namespace brelex {

void AcronymList::RightPressed() {
    const std::int32_t row = RowAt(Window().ScreenToClient(wxGetMousePosition()));
    if (row >= 0 && onRightPress) {
        onRightPress(row);
    }
}

void AcronymList::OnContextMenu(wxContextMenuEvent& event) const {
    // With the mouse the pressed button has asked for it already.
    if (event.GetPosition() == wxDefaultPosition && SelectedRow() >= 0 && onMenuKey) {
        onMenuKey();
    }
}

void AcronymList::SendKey(NavigationKey key) {
    if (key == NavigationKey::Enter) {
        if (SelectedRow() >= 0 && onEnter) {
            onEnter();
        }
        return;
    }
    const std::int32_t row = RowAfterKey(key, SelectedRow(), RowCount(), RowsPerPage());
    if (row < 0) {
        return;
    }
    const bool changed = row != SelectedRow();
    Select(row);
    if (row < TopRow()) {
        SetTopRow(row);
    } else if (row >= TopRow() + RowsPerPage()) {
        SetTopRow(row - RowsPerPage() + 1);
    }
    if (changed && onClick) {
        onClick();
    }
}

}  // namespace brelex
