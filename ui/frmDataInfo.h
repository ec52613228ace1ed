// SPDX-License-Identifier: MIT
#pragma once

#include "database/program_values.h"
#include "ui/side_window.h"

class wxButton;
class wxSizer;
class wxStaticBitmap;
class wxStaticText;

namespace brelex {

struct DatabaseStatistics;
struct Statistic;

/// The window "Database Info". Created anew for each use.
class frmDataInfo final : public SideWindow {
  public:
    /// Requires that the database in `values` is loaded.
    frmDataInfo(wxTopLevelWindow* main, const ProgramValues& values);

  private:
    void CreateControls(const DatabaseStatistics& statistics);
    void CreateFigures(const DatabaseStatistics& statistics);
    [[nodiscard]] wxStaticText* NewValue(const Statistic& statistic) const;
    [[nodiscard]] wxSizer* LayoutOfTitle();
    void PlaceControls();

    wxSizer* figures_ = nullptr;
    wxStaticBitmap* imgAppIcon = nullptr;
    wxStaticText* lblTitle = nullptr;
    wxStaticText* lblVersion = nullptr;
    wxStaticText* lblFootnote_ = nullptr;
    wxButton* cmdOK = nullptr;
};

}  // namespace brelex
