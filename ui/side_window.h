// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include <wx/dialog.h>

#include "base/app_info.h"
#include "platform/desktop/wx_message_sink.h"
#include "ui/controls/layout_units.h"

class wxSizer;
class wxTextCtrl;
class wxTimer;

namespace brelex {

class Surface;

/// A window that stays over another one while it is open. It carries the program's icon and appears
/// centered over its owner.
class SideWindow : public wxDialog {
  public:
    /// The help and the tests identify the window by `name`. `owner` must outlive it.
    SideWindow(wxTopLevelWindow& owner, const wxString& name, const wxString& title);

    bool Show(bool show = true) override;
    void EndModal(int result) override;

  protected:
    /// Lays out `content` and sizes the window to it, or to a width of `width` pixels if that is
    /// not 0. The window is smaller if the screen requires it.
    void FillWindow(wxSizer* content, int width = 0);

    /// Stops the timer when the window closes. The timer is a member of the window or of one of its
    /// controls.
    void StopWithWindow(wxTimer& timer);

    /// Makes the window show what program this is where a read-only text box would show its menu.
    /// `info` must outlive the window.
    void ShowAppInfoOnMenuRequest(wxTextCtrl& box, const AppInfo& info);

    /// Centers the window again. For a window that changes its size while it is shown.
    void CenterOverOwner();

    const LayoutUnits units_;
    WxMessageSink messages_;  ///< shows messages over the window
    Surface* const surface_;  ///< holds the controls

  private:
    wxTopLevelWindow& owner_;
    std::vector<wxTimer*> timers_;
};

}  // namespace brelex
