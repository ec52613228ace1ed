// SPDX-License-Identifier: MIT
#pragma once

#include "base/app_info.h"
#include "ui/side_window.h"

namespace brelex {

class ScrollArea;

/// The window with the credits. It is made for one use; the ESC key closes it.
class frmCredit final : public SideWindow {
  public:
    frmCredit(wxTopLevelWindow* about, const AppInfo& info);

  private:
    void OnKey(wxKeyEvent& event);

    ScrollArea* picAbout = nullptr;
};

}  // namespace brelex
