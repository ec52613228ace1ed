// SPDX-License-Identifier: MIT
#include "platform/desktop/modSysTray.h"

#include <utility>

#include <wx/menu.h>
#include <wx/taskbar.h>

#include <windows.h>

#include "toolkit/wx_text.h"

namespace brelex {

namespace {

// The toolkit's icon adds itself again when the taskbar comes back after a crash.
class TaskBarIcon final : public wxTaskBarIcon {
  public:
    explicit TaskBarIcon(TrayEvents events) : events_(std::move(events)) {
        Bind(wxEVT_TASKBAR_LEFT_UP, [this](wxTaskBarIconEvent&) { events_.onLeftRelease(); });
        Bind(wxEVT_TASKBAR_RIGHT_UP, [this](wxTaskBarIconEvent&) { events_.onRightRelease(); });
    }

    void PopUp() {
        wxMenu menu;
        for (const TrayMenuItem& item : events_.menu()) {
            if (item.command) {
                const int id = kFirstItem + static_cast<int>(*item.command);
                menu.Append(id, WxText(item.caption))->Enable(item.enabled);
            } else {
                menu.AppendSeparator();
            }
        }
        menu.Bind(wxEVT_MENU, [this](wxCommandEvent& event) {
            events_.onMenuItem(static_cast<Command>(event.GetId() - kFirstItem));
        });
        PopupMenu(&menu);
    }

    // The menu may still be open. It needs the icon until it closes.
    void Withdraw() {
        EndMenu();
        RemoveIcon();
        Destroy();
    }

  private:
    static constexpr int kFirstItem = wxID_HIGHEST + 1;

    TrayEvents events_;
};

class TrayIconMsw final : public TrayIcon {
  public:
    TrayIconMsw(const wxIconBundle& pictures, const std::string& tip, TrayEvents events)
        : icon_(new TaskBarIcon(std::move(events))) {
        icon_->SetIcon(wxBitmapBundle::FromIconBundle(pictures), WxText(tip));
    }

    TrayIconMsw(const TrayIconMsw&) = delete;
    TrayIconMsw& operator=(const TrayIconMsw&) = delete;

    ~TrayIconMsw() override { icon_->Withdraw(); }

    [[nodiscard]] bool IsShown() const override { return icon_->IsIconInstalled(); }

    void PopUpMenu() override { icon_->PopUp(); }

    void MenuChanged() override {}

  private:
    TaskBarIcon* icon_;
};

}  // namespace

std::unique_ptr<TrayIcon> AddTrayIcon(const wxIconBundle& pictures, const std::string& tip,
                                      TrayEvents events) {
    return std::make_unique<TrayIconMsw>(pictures, tip, std::move(events));
}

}  // namespace brelex
