// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <wx/iconbndl.h>

#include "presentation/tray_behaviour.h"

namespace brelex {

/// What happens on the icon, and what it needs to know.
struct TrayEvents {
    std::function<void()> onLeftRelease;
    std::function<void()> onRightRelease;

    /// The menu as it has to look now. Its items are always for the same commands.
    std::function<std::vector<TrayMenuItem>()> menu;

    /// An item was chosen.
    std::function<void(Command)> onMenuItem;

    /// A notification area has begun to show the icon, as its host came up.
    std::function<void()> onShown;

    /// No notification area shows the icon any longer, as its host ended.
    std::function<void()> onGone;
};

/// The program's icon in the notification area, for as long as this lives. Where the desktop has no
/// such area the icon waits for one.
class TrayIcon {
  public:
    TrayIcon() = default;
    TrayIcon(const TrayIcon&) = delete;
    TrayIcon& operator=(const TrayIcon&) = delete;
    virtual ~TrayIcon() = default;

    /// Whether a notification area shows the icon.
    [[nodiscard]] virtual bool IsShown() const = 0;

    /// Shows the menu at the mouse. For use in onRightRelease; a desktop that shows the menu itself
    /// never calls that.
    virtual void PopUpMenu() = 0;

    /// The menu has to look different now. For desktops that show it themselves.
    virtual void MenuChanged() = 0;
};

/// Adds the icon, with `tip` (UTF-8, fewer than 64 characters) shown while the mouse rests on it.
[[nodiscard]] std::unique_ptr<TrayIcon> AddTrayIcon(const wxIconBundle& pictures,
                                                    const std::string& tip, TrayEvents events);

/// Removes the icon; none is fine, too.
inline void RemoveTrayIcon(std::unique_ptr<TrayIcon>& icon) {
    icon.reset();
}

}  // namespace brelex
