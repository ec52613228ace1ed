// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string_view>

#include <wx/dialog.h>

#include "database/program_values.h"
#include "ui/controls/layout_units.h"

class wxButton;
class wxSizer;
class wxStaticText;
class wxTextCtrl;

namespace brelex {

class Surface;

/// The window "Current Selection (Read Only)", which shows one entry. It is made for one use.
class frmViewEntry final : public wxDialog {
  public:
    /// `selectedEntry` gives the record text of the entry that is selected in the main window's
    /// list. `info` must outlive the window.
    frmViewEntry(wxTopLevelWindow* main, std::function<std::string_view()> selectedEntry,
                 const AppInfo& info);

  private:
    void CreateControls();
    [[nodiscard]] long ScrollStyle() const;
    void NameControls();
    [[nodiscard]] wxSizer* LayoutOfCount(wxStaticText* count);
    void PlaceControls();
    void BindEvents(const AppInfo& info);
    void ShowEntry();
    void CopyEntry();
    void OnKey(wxKeyEvent& event);

    std::function<std::string_view()> selectedEntry_;
    LayoutUnits units_;

    Surface* surface_ = nullptr;
    wxStaticText* lblAbbreviation_ = nullptr;
    wxTextCtrl* txtAbbrv = nullptr;
    wxStaticText* lblAbbrLen = nullptr;
    wxStaticText* lblExpansion_ = nullptr;
    wxTextCtrl* txtExpn = nullptr;
    wxStaticText* lblExpnLen = nullptr;
    wxButton* cmdCopy = nullptr;
    wxButton* cmdOK = nullptr;
};

}  // namespace brelex
