// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "platform/desktop/modSysTray.h"

namespace brelex {

/// The main window as its icon in the notification area sees it.
class TrayOwner {
  public:
    TrayOwner() = default;
    TrayOwner(const TrayOwner&) = delete;
    TrayOwner& operator=(const TrayOwner&) = delete;
    virtual ~TrayOwner() = default;

    [[nodiscard]] virtual bool IsWindowVisible() const = 0;
    [[nodiscard]] virtual bool IsWindowMinimised() const = 0;
    [[nodiscard]] virtual bool IsModalWindowOpen() const = 0;

    /// Shows the window, hidden or minimised, in front of the others.
    virtual void RestoreWindow() = 0;

    /// Brings the program's visible window, or what stands modally over it, to the front.
    virtual void ActivateWindow() = 0;

    virtual void MinimiseWindow() = 0;

    /// Opens a side window (a number of side_windows.h) modally.
    virtual void OpenModalForm(int number) = 0;

    /// Unloads the main window.
    virtual void Exit() = 0;
};

/// What the icon does: a left click brings the window back, a right click shows a menu.
class TrayBehaviour {
  public:
    explicit TrayBehaviour(TrayOwner& owner) : owner_(owner) {}

    /// The left button was released on the icon.
    void OnLeftRelease();

    /// The right button was released on the icon: `icon` shows the menu, unless a modal window is
    /// open.
    void OnRightRelease(TrayIcon& icon);

    /// The menu `mnuSysTrayMenu` as it has to look now; all disabled while a modal window is open.
    [[nodiscard]] std::vector<TrayMenuItem> Menu() const;

    /// Does what the item of the menu (0-based, the separator counted) says.
    void OnMenuItem(int index);

    bool IsTrayBusy = false;  ///< a release is being handled; another one is ignored

  private:
    TrayOwner& owner_;
};

}  // namespace brelex
