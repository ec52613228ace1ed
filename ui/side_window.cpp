// SPDX-License-Identifier: MIT
#include "ui/side_window.h"

#include <wx/sizer.h>
#include <wx/textctrl.h>
#include <wx/timer.h>

#include "platform/window/spoken_object.h"
#include "platform/window/window_place.h"
#include "toolkit/app_icon.h"
#include "ui/controls/menu_request.h"
#include "ui/controls/modGeneral.h"
#include "ui/controls/surface.h"

namespace brelex {

SideWindow::SideWindow(wxTopLevelWindow& owner, const wxString& name, const wxString& title)
    : wxDialog(&owner, wxID_ANY, title),
      units_(*this),
      messages_(this),
      surface_(new Surface(this)),
      owner_(owner) {
    SetName(name);
    SetIcons(AppIcons());
    MakeSpokenDialog(*this);
    // Centers again once the desktop has put its frame around the window.
    OnEachShowing(*this, [this] { CenterOverOwner(); });
}

bool SideWindow::Show(bool show) {
    if (show && !IsShown()) {
        CenterOverOwner();
    }
    return wxDialog::Show(show);
}

void SideWindow::EndModal(int result) {
    for (wxTimer* const timer : timers_) {
        timer->Stop();
    }
    wxDialog::EndModal(result);
}

void SideWindow::FillWindow(wxSizer* content, int width) {
    brelex::FillWindow(*surface_, content, width);
}

void SideWindow::StopWithWindow(wxTimer& timer) {
    timers_.push_back(&timer);
}

void SideWindow::CenterOverOwner() {
    CenterWindow(*this, owner_);
}

void SideWindow::ShowAppInfoOnMenuRequest(wxTextCtrl& box, const AppInfo& info) {
    OnMenuRequest(box, [this, &box, &info] { ShowAppInfo(box, info, messages_); });
}

}  // namespace brelex
