// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include <wx/dialog.h>
#include <wx/timer.h>

#include "base/app_info.h"
#include "platform/desktop/wx_message_sink.h"
#include "ui/controls/layout_units.h"

class wxSizer;
class wxTextCtrl;

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

    /// Lets the user make the window larger than it is now, the first time that this is called.
    /// Gives it the size back to which the user made it before, unless it was closed since. The
    /// window is on the screen.
    void LetUserEnlarge();

    /// Ends that. The window goes back to the size that it had before.
    void EndEnlarging();

    /// Centers the window again. For a window that changes its size while it is shown.
    void CenterOverOwner();

    /// Scales what a window has measured itself, after it has moved to a screen with `times` as
    /// many dots per inch. The toolkit takes care of sizers and fonts.
    virtual void OnRescaled(double times);

    LayoutUnits units_;
    WxMessageSink messages_;  ///< shows messages over the window
    Surface* const surface_;  ///< holds the controls

  private:
    [[nodiscard]] wxSize EnlargedSize() const;
    void ComeToRest();

    wxTopLevelWindow& owner_;
    wxSize smallest_ = wxDefaultSize;  // of the inside while the user may make it larger
    wxSize enlarged_ = wxDefaultSize;  // of the inside, as the user left it
    bool mayEnlarge_ = false;
    bool awaitsFrame_ = false;  // which is different where the user may enlarge the window
    wxTimer centering_;         // until the display has told of frame and size
    std::vector<wxTimer*> timers_;
};

}  // namespace brelex
