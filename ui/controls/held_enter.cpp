// SPDX-License-Identifier: MIT
#include "ui/controls/held_enter.h"

#include <wx/event.h>
#include <wx/toplevel.h>
#include <wx/utils.h>

#include "platform/window/enter_key.h"

namespace brelex {

namespace {

bool IsEnter(const wxKeyEvent& event) {
    return event.GetKeyCode() == WXK_RETURN || event.GetKeyCode() == WXK_NUMPAD_ENTER;
}

bool IsEnterDown() {
    return wxGetKeyState(WXK_RETURN) || wxGetKeyState(WXK_NUMPAD_ENTER);
}

}  // namespace

HeldEnter::HeldEnter(wxTopLevelWindow& window) {
    window.Bind(wxEVT_CHAR_HOOK, &HeldEnter::OnKey, this);
    // The user may have released the key over a message.
    window.Bind(wxEVT_ACTIVATE, [this](wxActivateEvent& event) {
        isHeld_ = isHeld_ && IsEnterDown();
        event.Skip();
    });
    WatchReleases(window);
}

void HeldEnter::WatchReleases(wxWindow& window) {
    window.Bind(wxEVT_KEY_UP, [this](wxKeyEvent& event) {
        isHeld_ = isHeld_ && !IsEnter(event);
        event.Skip();
    });
    for (wxWindow* const child : window.GetChildren()) {
        WatchReleases(*child);
    }
}

void HeldEnter::SearchBegins() {
    isSearching_ = true;
    isHeld_ = IsEnterDown();
    lastEnter_ = Clock::now();
}

void HeldEnter::SearchEnds() {
    isSearching_ = false;
    isHeld_ = isHeld_ && IsEnterDown();
}

bool HeldEnter::IsSoonAfter() const {
    constexpr std::chrono::milliseconds kImpatience(600);
    return Clock::now() - lastEnter_ < kImpatience;
}

bool HeldEnter::PressesButton() const {
    return isSearching_ && WasEnterDown() && (isHeld_ || IsSoonAfter());
}

void HeldEnter::OnKey(wxKeyEvent& event) {
    if (!IsEnter(event)) {
        event.Skip();
        return;
    }
    const bool isTooSoon = isSearching_ && IsSoonAfter();
    lastEnter_ = Clock::now();
    event.Skip(!isHeld_ && !isTooSoon);
}

}  // namespace brelex
