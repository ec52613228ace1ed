// SPDX-License-Identifier: MIT
#include "ui/controls/menu_request.h"

#include <wx/event.h>
#include <wx/window.h>

namespace brelex {

namespace {

bool RequestsMenu(const wxKeyEvent& event) {
    // GTK and Windows use different codes for the same key.
    const bool isMenuKey = event.GetKeyCode() == WXK_MENU || event.GetKeyCode() == WXK_WINDOWS_MENU;
    return (isMenuKey && event.GetModifiers() == wxMOD_NONE) ||
           (event.GetKeyCode() == WXK_F10 && event.GetModifiers() == wxMOD_SHIFT);
}

}  // namespace

void OnMenuRequest(wxWindow& window, const std::function<void()>& act) {
    window.Bind(wxEVT_RIGHT_DOWN, [act](wxMouseEvent& /*event*/) { act(); });
    window.Bind(wxEVT_CONTEXT_MENU, [](wxContextMenuEvent& /*event*/) {});
    window.Bind(wxEVT_KEY_DOWN, [act](wxKeyEvent& event) {
        if (RequestsMenu(event)) {
            act();
        } else {
            event.Skip();
        }
    });
}

}  // namespace brelex
