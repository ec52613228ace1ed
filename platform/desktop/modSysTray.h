// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <wx/iconbndl.h>

#include "presentation/tray_behaviour.h"

namespace brelex {

/// Reports events on the icon, and supplies its menu.
struct TrayEvents {
    /// The desktop hands over its permission to bring a window to the front. The other event for
    /// which it does so follows. See UseActivationToken.
    std::function<void(const std::string& token)> onToken;

    std::function<void()> onLeftRelease;
    std::function<void()> onRightRelease;

    /// Returns the current menu. Its items always stand for the same commands.
    std::function<std::vector<TrayMenuItem>()> menu;

    /// The user chose an item.
    std::function<void(Command)> onMenuItem;

    /// A notification area has started to show the icon, because its host came up.
    std::function<void()> onShown;

    /// No notification area shows the icon any longer, because its host ended.
    std::function<void()> onGone;
};

/// The program's icon in the notification area. It exists as long as this object. If the desktop
/// has no notification area, the icon waits for one.
class TrayIcon {
  public:
    TrayIcon() = default;
    TrayIcon(const TrayIcon&) = delete;
    TrayIcon& operator=(const TrayIcon&) = delete;
    virtual ~TrayIcon() = default;

    /// Whether a notification area shows the icon.
    [[nodiscard]] virtual bool IsShown() const = 0;

    /// Shows the menu at the mouse. Meant for onRightRelease. A desktop that shows the menu itself
    /// never calls onRightRelease.
    virtual void PopUpMenu() = 0;

    /// The menu has changed. Needed for desktops that show it themselves.
    virtual void MenuChanged() = 0;
};

/// Adds the icon. `tip` (UTF-8, fewer than 64 characters) appears while the mouse rests on it.
[[nodiscard]] std::unique_ptr<TrayIcon> AddTrayIcon(const wxIconBundle& pictures,
                                                    const std::string& tip, TrayEvents events);

/// Removes the icon, if there is one.
inline void RemoveTrayIcon(std::unique_ptr<TrayIcon>& icon) {
    icon.reset();
}

}  // namespace brelex
