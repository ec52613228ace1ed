// SPDX-License-Identifier: MIT
#include "ui/main/tray_behaviour.h"

#include "base/scope.h"
#include "ui/main/side_windows.h"

namespace brelex {

namespace {

// The items that do something, by their index.
constexpr int kSearch = 0;
constexpr int kAbout = 1;
constexpr int kMinimiseOrRestore = 2;
constexpr int kExit = 4;

}  // namespace

void TrayBehaviour::OnLeftRelease() {
    if (IsTrayBusy) {
        return;
    }
    const Busy busy(IsTrayBusy);
    if (!owner_.IsWindowVisible()) {
        owner_.RestoreWindow();
    }
    owner_.ActivateWindow();
}

void TrayBehaviour::OnRightRelease(TrayIcon& icon) {
    if (IsTrayBusy) {
        return;
    }
    const Busy busy(IsTrayBusy);
    if (owner_.IsWindowVisible()) {
        owner_.ActivateWindow();
    }
    if (!owner_.IsModalWindowOpen()) {
        icon.PopUpMenu();
    }
}

std::vector<TrayMenuItem> TrayBehaviour::Menu() const {
    const bool enabled = !owner_.IsModalWindowOpen();
    return {{"Search Database...", enabled},
            {"About...", enabled},
            {owner_.IsWindowMinimised() ? "&Restore Window" : "&Minimize Window", enabled},
            {"-", enabled},
            {"Exit", enabled}};
}

void TrayBehaviour::OnMenuItem(int index) {
    // A desktop may show a menu that it asked for before a modal window opened.
    if (owner_.IsModalWindowOpen()) {
        return;
    }
    switch (index) {
        case kSearch:
            owner_.OpenModalForm(kSearchWindow);
            break;
        case kAbout:
            owner_.OpenModalForm(kAboutWindow);
            break;
        case kMinimiseOrRestore:
            owner_.IsWindowMinimised() ? owner_.RestoreWindow() : owner_.MinimiseWindow();
            break;
        case kExit:
            owner_.Exit();
            break;
        default:
            break;
    }
}

}  // namespace brelex
