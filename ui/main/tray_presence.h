// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>

#include "platform/desktop/hot_key.h"
#include "platform/desktop/modSysTray.h"
#include "presentation/tray_behaviour.h"

class wxActivateEvent;
class wxFrame;
class wxIconBundle;
class wxIconizeEvent;
class wxShowEvent;

namespace brelex {

/// What the icon needs from its window.
struct TrayPresenceEvents {
    std::function<bool()> isModalOpen;
    std::function<void()>
        raiseModal;  ///< brings the modal window over the main window to the front
    std::function<void(Command)> onCommand;  ///< the user chose a command in the icon's menu
};

/// The main window's presence on the desktop: its icon in the notification area, which replaces the
/// minimized window, and the hot key that brings the window forward.
class TrayPresence final : private TrayOwner {
  public:
    /// Adds the icon with these pictures and requests the hot key. `window` must outlive this
    /// object.
    TrayPresence(wxFrame& window, const wxIconBundle& pictures, TrayPresenceEvents events);
    TrayPresence(const TrayPresence&) = delete;
    TrayPresence& operator=(const TrayPresence&) = delete;
    ~TrayPresence() override;

    /// Minimizes the window. Hides it if its icon is on the screen.
    void MinimizeWindow() override;

    /// Shows the window in front, or the modal window over it.
    void BringWindowForward() { ActivateWindow(); }

    /// The contents of the icon's menu have changed.
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
