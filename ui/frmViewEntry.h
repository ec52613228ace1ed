// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string_view>

#include "base/app_info.h"
#include "ui/side_window.h"

class wxButton;
class wxSizer;
class wxStaticText;
class wxTextCtrl;

namespace brelex {

/// The window "Current Selection (Read Only)", which shows one entry. Created anew for each use.
class frmViewEntry final : public SideWindow {
  public:
    /// `selectedEntry` returns the record text of the entry selected in the main window's list.
    /// `info` must outlive the window.
    frmViewEntry(wxTopLevelWindow* main, std::function<std::string_view()> selectedEntry,
                 const AppInfo& info);

  private:
    void CreateControls();
    [[nodiscard]] long ScrollStyle() const;
    [[nodiscard]] wxStaticText* NewCount() const;
    [[nodiscard]] wxSizer* LayoutOfCount(wxStaticText* count, wxStaticText* unit);
    void PlaceControls();
    void BindEvents(const AppInfo& info);
    void ShowEntry();
    void CopyEntry();
    void OnKey(wxKeyEvent& event);

    std::function<std::string_view()> selectedEntry_;
    wxStaticText* lblAbbreviation_ = nullptr;
    wxTextCtrl* txtAbbrv = nullptr;
    wxStaticText* lblAbbrLen = nullptr;
    wxStaticText* lblAbbrUnit_ = nullptr;
    wxStaticText* lblExpansion_ = nullptr;
    wxTextCtrl* txtExpn = nullptr;
    wxStaticText* lblExpnLen = nullptr;
    wxStaticText* lblExpnUnit_ = nullptr;
    wxButton* cmdCopy = nullptr;
    wxButton* cmdOK = nullptr;
};

}  // namespace brelex
