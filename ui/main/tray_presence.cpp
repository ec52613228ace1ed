// SPDX-License-Identifier: MIT
#include "ui/main/tray_presence.h"

#include <utility>

#include <wx/frame.h>

#include "base/app_info.h"
#include "platform/window/activation_token.h"
#include "platform/window/bring_forward.h"

namespace brelex {

TrayPresence::TrayPresence(wxFrame& window, const wxIconBundle& pictures, TrayPresenceEvents events)
    : window_(window),
      events_(std::move(events)),
      behaviour_(*this),
      hotKey_(window,
              [this](const std::string& token) {
                  UseActivationToken(token);
                  ActivateWindow();
              }),
      icon_(AddTrayIcon(pictures, kAppTitle, EventsOfIcon())) {
    window_.Bind(wxEVT_ICONIZE, &TrayPresence::OnIconize, this);
    window_.Bind(wxEVT_SHOW, &TrayPresence::OnShow, this);
    window_.Bind(wxEVT_ACTIVATE, &TrayPresence::OnActivate, this);
    OnMinimizeButton(window_, [this] {
        window_.CallAfter([this] {
            if (HasIcon()) {
                window_.Hide();
            }
        });
    });
}

// The window still sends many events while it is destroyed.
TrayPresence::~TrayPresence() {
    window_.Unbind(wxEVT_ICONIZE, &TrayPresence::OnIconize, this);
    window_.Unbind(wxEVT_SHOW, &TrayPresence::OnShow, this);
    window_.Unbind(wxEVT_ACTIVATE, &TrayPresence::OnActivate, this);
}

TrayEvents TrayPresence::EventsOfIcon() {
    TrayEvents events;
    events.onToken = &UseActivationToken;
    events.onLeftRelease = [this] { behaviour_.OnLeftRelease(); };
    events.onRightRelease = [this] { behaviour_.OnRightRelease(); };
    events.menu = [this] { return behaviour_.Menu(); };
    // Waits until the menu, and the desktop that may have sent this, are done with it. The command
    // can end the program.
    events.onMenuItem = [this](Command command) {
        window_.CallAfter([this, command] {
            // While the command runs: it opens its window and waits until the user closes it.
            window_.CallAfter([this] { BringOpenedForward(window_); });
            behaviour_.OnMenuItem(command);
        });
    };
    // A program that starts with the session is often running before the panel is.
    events.onShown = [this] {
        if (window_.IsShown() && window_.IsIconized()) {
            window_.Hide();
        }
    };
    events.onGone = [this] {
        // A window must not stay hidden if nothing could bring it back.
        if (!window_.IsShown()) {
            window_.Iconize();
            window_.Show();
        }
    };
    return events;
}

void TrayPresence::MinimizeWindow() {
    window_.Iconize();
    // Wayland does not report that a window is minimized.
    if (HasIcon()) {
        window_.Hide();
    }
}

void TrayPresence::MenuChanged() {
    if (icon_ != nullptr) {
        icon_->MenuChanged();
    }
}

void TrayPresence::Remove() {
    RemoveTrayIcon(icon_);
}

bool TrayPresence::HasIcon() const {
    return icon_ != nullptr && icon_->IsShown();
}

// Minimizing hides the window, and its icon brings it back. Without an icon on the screen nothing
// could, so the window is only minimized.
void TrayPresence::OnIconize(wxIconizeEvent& event) {
    if (event.IsIconized() && HasIcon()) {
        window_.Hide();
    }
    MenuChanged();
    event.Skip();
}

// Windows itself restores the window for the hot key. The toolkit does not notice and would no
// longer report when the window is minimized.
void TrayPresence::OnShow(wxShowEvent& event) {
    if (event.IsShown()) {
        CatchUpWithSystem();
    }
    MenuChanged();
    event.Skip();
}

void TrayPresence::OnActivate(wxActivateEvent& event) {
    if (event.GetActive()) {
        CatchUpWithSystem();
    }
    MenuChanged();
    event.Skip();
}

void TrayPresence::CatchUpWithSystem() {
    window_.CallAfter([this] {
        if (!window_.IsShown() && SystemShows(window_)) {
            RestoreWindow();
        }
    });
}

bool TrayPresence::IsWindowVisible() const {
    return window_.IsShown();
}

bool TrayPresence::IsWindowMinimized() const {
    return !window_.IsShown() || MayBeMinimized(window_);
}

bool TrayPresence::IsModalWindowOpen() const {
    return events_.isModalOpen();
}

void TrayPresence::RestoreWindow() {
    BringForward(window_);
}

void TrayPresence::ActivateWindow() {
    BringForward(window_);
    events_.raiseModal();
}

void TrayPresence::PopUpMenu() {
    icon_->PopUpMenu();
}

void TrayPresence::Run(Command command) {
    events_.onCommand(command);
}

}  // namespace brelex
