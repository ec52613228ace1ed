// SPDX-License-Identifier: MIT
#include "ui/side_window.h"

#include <cmath>
#include <utility>

#include <wx/sizer.h>
#include <wx/textctrl.h>

#include "platform/window/spoken_object.h"
#include "platform/window/user_size.h"
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
    OnEachNewFrame(*this, [this] {
        if (std::exchange(awaitsFrame_, false)) {
            // The display tells of frame and size one after the other.
            constexpr int kUntilBothAreThereMs = 50;
            centering_.StartOnce(kUntilBothAreThereMs);
        }
    });
    centering_.Bind(wxEVT_TIMER, [this](wxTimerEvent&) { ComeToRest(); });
    StopWithWindow(centering_);
    Bind(wxEVT_DPI_CHANGED, [this](wxDPIChangedEvent& event) {
        event.Skip();
        OnRescaled(ScaleOf(event));
        // The toolkit first gives the window the size that Windows suggests, which is rounded.
        CallAfter([this] { surface_->FitWindow(); });
    });
}

void SideWindow::OnRescaled(double times) {
    units_.Rescale(times);
    surface_->Rescale(times);
    const auto scale = [times](wxSize& size) {
        if (size.IsFullySpecified()) {
            size = {static_cast<int>(std::lround(size.x * times)),
                    static_cast<int>(std::lround(size.y * times))};
        }
    };
    scale(smallest_);
    scale(enlarged_);
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

void SideWindow::LetUserEnlarge() {
    if (std::exchange(mayEnlarge_, true)) {
        return;
    }
    if (!smallest_.IsFullySpecified()) {
        smallest_ = GetClientSize();
    }
    LetUserResize(*this, smallest_, EnlargedSize());
    awaitsFrame_ = true;
    CenterOverOwner();
}

// The size of the inside as the user left it, as far as there is room.
wxSize SideWindow::EnlargedSize() const {
    wxSize size = enlarged_;
    size.DecTo(LargestInside(*this));
    size.IncTo(smallest_);
    return size;
}

// On a busy display, a size from before the enlarging may arrive last.
void SideWindow::ComeToRest() {
    if (mayEnlarge_ && GetClientSize() == smallest_ && EnlargedSize() != smallest_) {
        LetUserResize(*this, smallest_, EnlargedSize());
    }
    CenterOverOwner();
}

void SideWindow::EndEnlarging() {
    if (std::exchange(mayEnlarge_, false)) {
        enlarged_ = IsShown() ? GetClientSize() : wxDefaultSize;
        KeepSizeFromUser(*this);
        SetClientSize(smallest_);
        awaitsFrame_ = true;
    }
}

void SideWindow::ShowAppInfoOnMenuRequest(wxTextCtrl& box, const AppInfo& info) {
    OnMenuRequest(box, [this, &box, &info] { ShowAppInfo(box, info, messages_); });
}

}  // namespace brelex
