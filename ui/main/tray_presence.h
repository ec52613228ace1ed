// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>

#include "platform/desktop/hot_key.h"
#include "platform/desktop/modSysTray.h"
#include "presentation/tray_behaviour.h"

class wxActivateEvent;
class wxFrame;
class wxIconizeEvent;
class wxShowEvent;

namespace brelex {

/// What the icon asks of the window that it stands for.
struct TrayPresenceEvents {
    std::function<bool()> isModalOpen;
    std::function<void()> raiseModal;        ///< brings what is modal over the window to the front
    std::function<void(Command)> onCommand;  ///< a command of the icon's menu was chosen
};

/// The main window's presence on the desktop: its icon in the notification area, into which
/// minimizing hides it, and the hot key that brings it forward.
class TrayPresence final : private TrayOwner {
  public:
    /// Adds the icon and asks for the hot key. `window` must outlive this.
    TrayPresence(wxFrame& window, TrayPresenceEvents events);
    TrayPresence(const TrayPresence&) = delete;
    TrayPresence& operator=(const TrayPresence&) = delete;
    ~TrayPresence() override;

    /// Minimizes the window, into the icon if there is one on the screen.
    void MinimizeWindow() override;

    /// What the icon's menu shows has changed.
    void MenuChanged();

    /// Removes the icon.
    void Remove();

  private:
    [[nodiscard]] TrayEvents EventsOfIcon();
    [[nodiscard]] bool HasIcon() const;
    void OnIconize(wxIconizeEvent& event);
    void OnShow(wxShowEvent& event);
    void OnActivate(wxActivateEvent& event);
    void CatchUpWithSystem();

    [[nodiscard]] bool IsWindowVisible() const override;
    [[nodiscard]] bool IsWindowMinimized() const override;
    [[nodiscard]] bool IsModalWindowOpen() const override;
    void RestoreWindow() override;
    void ActivateWindow() override;
    void PopUpMenu() override;
    void Run(Command command) override;

    wxFrame& window_;
    TrayPresenceEvents events_;
    TrayBehaviour behaviour_;
    ActivationHotKey hotKey_;
    std::unique_ptr<TrayIcon> icon_;
};

}  // namespace brelex
