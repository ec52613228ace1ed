// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>

#include <wx/iconbndl.h>

#include "platform/desktop/modSysTray.h"

namespace brelex {

/// Converts a caption to the form of GTK and the desktops' menus, which mark the access key with
/// "_" instead of "&".
[[nodiscard]] std::string MenuLabel(const std::string& caption);

/// Connects a menu's item, a GObject, with its command, and finds the command again.
void TieToCommand(void* item, Command command);
[[nodiscard]] Command TiedCommand(void* item);

/// The program's icon as a StatusNotifierItem on the session bus. KDE shows such items, and so does
/// GNOME with an extension. The desktop draws icon and menu and reports the user's choice. Linux
/// only.
class StatusNotifier {
  public:
    /// Calls `onHostChanged` when a desktop begins or stops showing such icons.
    StatusNotifier(const wxIconBundle& pictures, const std::string& tip, const TrayEvents& events,
                   std::function<void()> onHostChanged);
    StatusNotifier(const StatusNotifier&) = delete;
    StatusNotifier& operator=(const StatusNotifier&) = delete;
    ~StatusNotifier();

    /// Whether a desktop shows the icon.
    [[nodiscard]] bool IsShown() const;

    /// Shows the menu in its current state.
    void MenuChanged();

  private:
    class Item;
    std::unique_ptr<Item> item_;
};

}  // namespace brelex
