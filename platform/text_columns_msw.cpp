// SPDX-License-Identifier: MIT
#include "platform/text_columns.h"

#include <wx/textctrl.h>

#include <windows.h>

namespace brelex {

namespace {

HWND WindowOf(const wxTextCtrl& box) {
    return static_cast<HWND>(box.GetHandle());
}

}  // namespace

void SetSideMargins(wxTextCtrl& box, int pixels) {
    const auto margin = static_cast<WORD>(pixels);
    SendMessageW(WindowOf(box), EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN,
                 MAKELPARAM(margin, margin));
}

int SetTabStop(wxTextCtrl& box, int dialogUnits) {
    UINT stop = static_cast<UINT>(dialogUnits);
    SendMessageW(WindowOf(box), EM_SETTABSTOPS, 1, reinterpret_cast<LPARAM>(&stop));
    return box.ConvertDialogToPixels(wxPoint(dialogUnits, 0)).x;
}

}  // namespace brelex
