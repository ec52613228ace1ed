// SPDX-License-Identifier: MIT
#pragma once

#include "base/app_info.h"
#include "ui/side_window.h"

namespace brelex {

class ScrollArea;

/// The window with the credits. Created anew for each use. The ESC key closes it.
class frmCredit final : public SideWindow {
  public:
    frmCredit(wxTopLevelWindow* about, const AppInfo& info);

  private:
    void OnKey(wxKeyEvent& event);

    ScrollArea* picAbout = nullptr;
};

}  // namespace brelex
