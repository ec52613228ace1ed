// SPDX-License-Identifier: MIT
#pragma once

#include "base/app_info.h"
#include "ui/side_window.h"

class wxButton;
class wxTextCtrl;

namespace brelex {

/// The window "The Smiley Dictionary". Created anew for each use.
class frmSmiley final : public SideWindow {
  public:
    /// `info` must outlive the window.
    frmSmiley(wxTopLevelWindow* main, const AppInfo& info);

  private:
    void PlaceControls(int textWidth);
    void OnKey(wxKeyEvent& event);

    wxTextCtrl* txtReadme = nullptr;
    wxButton* cmdClose = nullptr;
};

}  // namespace brelex
