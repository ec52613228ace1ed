// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>

#include <wx/iconbndl.h>

#include "platform/desktop/modSysTray.h"

namespace brelex {

/// A caption with "&" before its access key as GTK and the desktops' menus write it, with "_".
[[nodiscard]] std::string MenuLabel(const std::string& caption);

/// Ties a menu's item, a GObject, to its command, and tells it again.
void TieToCommand(void* item, Command command);
[[nodiscard]] Command TiedCommand(void* item);

/// The program's icon as a StatusNotifierItem of the session bus, as the desktops KDE and, with an
/// extension, GNOME show them. The desktop draws icon and menu and says what was chosen. Linux
/// only.
class StatusNotifier {
  public:
    /// `onHostChanged` is called when a desktop begins or ceases to show such icons.
    StatusNotifier(const wxIconBundle& pictures, const std::string& tip, const TrayEvents& events,
                   std::function<void()> onHostChanged);
    StatusNotifier(const StatusNotifier&) = delete;
    StatusNotifier& operator=(const StatusNotifier&) = delete;
    ~StatusNotifier();

    /// Whether a desktop shows the icon.
    [[nodiscard]] bool IsShown() const;

    /// Shows the menu as it has to look now.
    void MenuChanged();

  private:
    class Item;
    std::unique_ptr<Item> item_;
};

}  // namespace brelex
