// SPDX-License-Identifier: MIT
#pragma once

#include <wx/dialog.h>

#include "database/program_values.h"

namespace brelex {

class ScrollArea;

/// The window with the credits. It is made for one use; the ESC key closes it.
class frmCredit final : public wxDialog {
  public:
    frmCredit(wxTopLevelWindow* about, const AppInfo& info);

    void EndModal(int result) override;

  private:
    void OnKey(wxKeyEvent& event);

    ScrollArea* picAbout = nullptr;
};

}  // namespace brelex
