// SPDX-License-Identifier: MIT
#include "presentation/tray_behaviour.h"

#include "base/scope.h"

namespace brelex {

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

void TrayBehaviour::OnRightRelease() {
    if (IsTrayBusy) {
        return;
    }
    const Busy busy(IsTrayBusy);
    if (owner_.IsWindowVisible()) {
        owner_.ActivateWindow();
    }
    if (!owner_.IsModalWindowOpen()) {
        owner_.PopUpMenu();
    }
}

std::vector<TrayMenuItem> TrayBehaviour::Menu() const {
    const bool enabled = !owner_.IsModalWindowOpen();
    const auto item = [enabled](Command command, const char* caption) {
        return TrayMenuItem{command, caption, enabled};
    };
    return {item(Command::Search, DetailsOf(Command::Search).caption),
            item(Command::About, DetailsOf(Command::About).caption),
            item(Command::MinimizeOrRestore, owner_.IsWindowMinimized()
                                                 ? "&Restore Window"
                                                 : DetailsOf(Command::MinimizeOrRestore).caption),
            {std::nullopt, "", enabled},
            item(Command::Exit, "Exit")};
}

void TrayBehaviour::OnMenuItem(Command command) {
    // A desktop may show a menu that it requested before a modal window opened.
    if (owner_.IsModalWindowOpen()) {
        return;
    }
    if (command != Command::MinimizeOrRestore) {
        owner_.Run(command);
    } else if (owner_.IsWindowMinimized()) {
        owner_.RestoreWindow();
    } else {
        owner_.MinimizeWindow();
    }
}

}  // namespace brelex
