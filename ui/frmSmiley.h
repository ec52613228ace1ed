// SPDX-License-Identifier: MIT
#pragma once

#include <wx/dialog.h>

#include "database/program_values.h"
#include "ui/controls/layout_units.h"

class wxButton;
class wxTextCtrl;

namespace brelex {

/// The window "The Smiley Dictionary". It is made for one use.
class frmSmiley final : public wxDialog {
  public:
    /// `info` must outlive the window.
    frmSmiley(wxTopLevelWindow* main, const AppInfo& info);

  private:
    void PlaceControls(int textWidth);
    void OnKey(wxKeyEvent& event);

    LayoutUnits units_;
    wxTextCtrl* txtReadme = nullptr;
    wxButton* cmdClose = nullptr;
};

}  // namespace brelex
