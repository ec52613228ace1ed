// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "presentation/commands.h"

namespace brelex {

/// An item of the icon's menu.
struct TrayMenuItem {
    std::optional<Command> command;  ///< none for a separator
    std::string caption;             ///< "&" marks the access key
    bool enabled = true;
};

/// The main window as its icon in the notification area sees it.
class TrayOwner {
  public:
    TrayOwner() = default;
    TrayOwner(const TrayOwner&) = delete;
    TrayOwner& operator=(const TrayOwner&) = delete;
    virtual ~TrayOwner() = default;

    [[nodiscard]] virtual bool IsWindowVisible() const = 0;
    [[nodiscard]] virtual bool IsWindowMinimized() const = 0;
    [[nodiscard]] virtual bool IsModalWindowOpen() const = 0;

    /// Shows the window, whether hidden or minimized, in front of the others.
    virtual void RestoreWindow() = 0;

    /// Brings the program's visible window, or the modal window over it, to the front.
    virtual void ActivateWindow() = 0;

    virtual void MinimizeWindow() = 0;

    /// Shows the icon's menu.
    virtual void PopUpMenu() = 0;

    /// Runs a command of the menu other than MinimizeOrRestore.
    virtual void Run(Command command) = 0;
};

/// The behavior of the icon: a left click brings the window back, a right click shows a menu.
class TrayBehaviour {
  public:
    explicit TrayBehaviour(TrayOwner& owner) : owner_(owner) {}

    /// The left button was released on the icon.
    void OnLeftRelease();

    /// The right button was released on the icon. Brings a visible window to the front, and shows
    /// the menu unless a modal window is open.
    void OnRightRelease();

    /// The current menu `mnuSysTrayMenu`. All items are disabled while a modal window is open.
    [[nodiscard]] std::vector<TrayMenuItem> Menu() const;

    /// The user chose an item of the menu.
    void OnMenuItem(Command command);

    bool IsTrayBusy = false;  ///< a release is being handled, so another one is ignored

  private:
    TrayOwner& owner_;
};

}  // namespace brelex
