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

/// A window that stands over another one while it is in use. It carries the program's icon and
/// comes up in the middle of its owner.
class SideWindow : public wxDialog {
  public:
    /// `name` is the one by which the help and the tests know the window. `owner` must outlive it.
    SideWindow(wxTopLevelWindow& owner, const wxString& name, const wxString& title);

    bool Show(bool show = true) override;
    void EndModal(int result) override;

  protected:
    /// Lays `content` out and gives the window its size, or a width of `width` pixels if that is
    /// not 0; less where the screen is too small.
    void FillWindow(wxSizer* content, int width = 0);

    /// Stops the timer, a member of the window or of one of its controls, when the window closes.
    void StopWithWindow(wxTimer& timer);

    /// Makes the window say what program this is where a read-only text box would show its menu.
    /// `info` must outlive the window.
    void ShowAppInfoOnMenuRequest(wxTextCtrl& box, const AppInfo& info);

    /// For a window that changes its size while it is shown.
    void CenterOverOwner();

    const LayoutUnits units_;
    WxMessageSink messages_;  ///< shows messages over the window
    Surface* const surface_;  ///< holds the controls

  private:
    wxTopLevelWindow& owner_;
    std::vector<wxTimer*> timers_;
};

}  // namespace brelex
