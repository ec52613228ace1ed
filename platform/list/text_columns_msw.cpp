// SPDX-License-Identifier: MIT
#include "platform/list/text_columns.h"

#include <wx/textctrl.h>

#include <windows.h>

namespace brelex {

namespace {

HWND WindowOf(const wxTextCtrl& box) {
    return static_cast<HWND>(box.GetHandle());
}

RECT TextArea(const wxTextCtrl& box) {
    RECT area{};
    SendMessageW(WindowOf(box), EM_GETRECT, 0, reinterpret_cast<LPARAM>(&area));
    return area;
}

void SetTextArea(const wxTextCtrl& box, RECT area) {
    SendMessageW(WindowOf(box), EM_SETRECT, 0, reinterpret_cast<LPARAM>(&area));
}

void LowerText(const wxTextCtrl& box, int pixels) {
    RECT wanted = TextArea(box);
    wanted.top = pixels;  // the inside of the box begins at 0
    SetTextArea(box, wanted);
    // Wine subtracts the side margins and its own border from the area that it is given, but
    // reports the area without them (seen with 8.0).
    const RECT got = TextArea(box);
    SetTextArea(box, {2 * wanted.left - got.left, 2 * wanted.top - got.top,
                      2 * wanted.right - got.right, 2 * wanted.bottom - got.bottom});
}

}  // namespace

void SetSideMargins(wxTextCtrl& box, int pixels) {
    const auto margin = static_cast<WORD>(pixels);
    SendMessageW(WindowOf(box), EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN,
                 MAKELPARAM(margin, margin));
}

void SetTopMargin(wxTextCtrl& box, int pixels) {
    LowerText(box, pixels);
    // When its size changes, the box loses this area, but only after this event.
    box.Bind(wxEVT_SIZE, [&box, pixels](wxSizeEvent& event) {
        event.Skip();
        box.CallAfter([&box, pixels] { LowerText(box, pixels); });
    });
}

int LineDistance(wxTextCtrl& box) {
    return box.GetCharHeight();
}

int FrameWidth(wxTextCtrl& box) {
    return box.GetWindowBorderSize().x / 2;
}

int SetTabStop(wxTextCtrl& box, int dialogUnits) {
    UINT stop = static_cast<UINT>(dialogUnits);
    SendMessageW(WindowOf(box), EM_SETTABSTOPS, 1, reinterpret_cast<LPARAM>(&stop));
    return box.ConvertDialogToPixels(wxPoint(dialogUnits, 0)).x;
}

}  // namespace brelex
