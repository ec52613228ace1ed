// SPDX-License-Identifier: MIT
#include "platform/window/accessible_name.h"

#include <windows.h>

#include "platform/window/spoken_accessible_msw.h"

namespace brelex {

void SetSpokenName(wxWindow& window, const wxString& spokenName) {
    SpokenAccessible::Of(window).SetName(spokenName);
}

void SetSpokenDescription(wxWindow& window, const wxString& description) {
    SpokenAccessible::Of(window).SetDescription(description);
}

// The system's menus have no names of their own.
void SetSpokenName(wxMenuItem& /*item*/, const wxString& /*spokenName*/) {}

void LeaveUnspoken(wxWindow& window) {
    SpokenAccessible::Of(window).LeaveUnspoken();
}

void Announce(wxWindow& window) {
    constexpr DWORD kLiveRegionChanged = 0x8019;  // which not all headers have
    NotifyWinEvent(kLiveRegionChanged, window.GetHWND(), OBJID_CLIENT, CHILDID_SELF);
}

}  // namespace brelex
