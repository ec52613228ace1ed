// SPDX-License-Identifier: MIT
#include "platform/acronym_list.h"

namespace brelex {

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
