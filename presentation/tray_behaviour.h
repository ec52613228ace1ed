// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "presentation/commands.h"

namespace brelex {

/// An item of the icon's menu.
struct TrayMenuItem {
    std::optional<Command> command;  ///< a separator has none
    std::string caption;             ///< "&" stands before the access key
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

    /// Shows the window, hidden or minimized, in front of the others.
    virtual void RestoreWindow() = 0;

    /// Brings the program's visible window, or what stands modally over it, to the front.
    virtual void ActivateWindow() = 0;

    virtual void MinimizeWindow() = 0;

    /// Shows the icon's menu.
    virtual void PopUpMenu() = 0;

    /// Does what a command of the menu, other than MinimizeOrRestore, says.
    virtual void Run(Command command) = 0;
};

/// What the icon does: a left click brings the window back, a right click shows a menu.
class TrayBehaviour {
  public:
    explicit TrayBehaviour(TrayOwner& owner) : owner_(owner) {}

    /// The left button was released on the icon.
    void OnLeftRelease();

    /// The right button was released on the icon: the menu is shown, unless a modal window is open.
    void OnRightRelease();

    /// The menu `mnuSysTrayMenu` as it has to look now; all disabled while a modal window is open.
    [[nodiscard]] std::vector<TrayMenuItem> Menu() const;

    /// An item of the menu was chosen.
    void OnMenuItem(Command command);

    bool IsTrayBusy = false;  ///< a release is being handled; another one is ignored

  private:
    TrayOwner& owner_;
};

}  // namespace brelex
