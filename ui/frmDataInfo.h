// SPDX-License-Identifier: MIT
#pragma once

#include <wx/dialog.h>

#include "database/program_values.h"
#include "ui/controls/layout_units.h"

class wxButton;
class wxFlexGridSizer;
class wxSizer;
class wxStaticBitmap;
class wxStaticText;

namespace brelex {

class Surface;
struct DatabaseStatistics;
struct Statistic;

/// The window "Database Info". It is made for one use.
class frmDataInfo final : public wxDialog {
  public:
    /// The database of `values` is loaded.
    frmDataInfo(wxTopLevelWindow* main, const ProgramValues& values);

  private:
    void CreateControls(const DatabaseStatistics& statistics);
    [[nodiscard]] wxStaticText* AddStatistic(wxFlexGridSizer& group, const char* name,
                                             const Statistic& statistic, int mostLines);
    [[nodiscard]] wxFlexGridSizer* NewGroup() const;
    [[nodiscard]] wxSizer* LayoutOfTitle();
    void PlaceControls();
    void OnPaint(wxPaintEvent& event);

    LayoutUnits units_;
    int captionWidth_ = 0;

    Surface* surface_ = nullptr;
    wxSizer* figures_ = nullptr;
    wxStaticBitmap* imgAppIcon = nullptr;
    wxStaticText* lblTitle = nullptr;
    wxStaticText* lblVersion = nullptr;
    wxStaticText* lblDBVersion = nullptr;
    wxStaticText* lblAcronymCount = nullptr;
    wxStaticText* lblLoadingTime = nullptr;
    wxStaticText* lblFirstLetterOfMostAcronyms = nullptr;
    wxStaticText* lblAcronymWithHighestExpn = nullptr;
    wxStaticText* lblLongestAcronym = nullptr;
    wxStaticText* lblLongestExpansion = nullptr;
    wxStaticText* lblAvgLenOfAcronyms = nullptr;
    wxStaticText* lblAvgLenOfExpansions = nullptr;
    wxStaticText* lblFootnote_ = nullptr;
    wxButton* cmdOK = nullptr;
};

}  // namespace brelex
