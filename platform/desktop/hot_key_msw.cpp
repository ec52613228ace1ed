// SPDX-License-Identifier: MIT
#include "platform/desktop/hot_key.h"

#include <wx/frame.h>

#include <windows.h>

namespace brelex {

// The system drops the key when the window is destroyed, so there is nothing to undo.
class ActivationHotKey::Binding {};

ActivationHotKey::ActivationHotKey(
    wxFrame& window, const std::function<void(const std::string& token)>& /*bringForward*/) {
    constexpr WPARAM kShiftControlG = 839;  // 'G' in the low byte, Shift (1) + Control (2) above
    SendMessageW(window.GetHWND(), WM_SETHOTKEY, kShiftControlG, 0);
}

ActivationHotKey::~ActivationHotKey() = default;

}  // namespace brelex
