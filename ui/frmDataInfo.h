// SPDX-License-Identifier: MIT
#pragma once

#include "database/program_values.h"
#include "ui/side_window.h"

class wxButton;
class wxFlexGridSizer;
class wxSizer;
class wxStaticBitmap;
class wxStaticText;

namespace brelex {

struct DatabaseStatistics;
struct Statistic;

/// The window "Database Info". It is made for one use.
class frmDataInfo final : public SideWindow {
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

    int captionWidth_ = 0;

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
