// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "database/program_values.h"
#include "platform/system/fine_timer.h"
#include "search/search_session.h"
#include "ui/controls/combo_box.h"
#include "ui/controls/held_enter.h"
#include "ui/search_options.h"
#include "ui/side_window.h"

class wxBitmapButton;
class wxButton;
class wxComboBox;
class wxSizer;
class wxStaticText;
class wxTextCtrl;

namespace brelex {

class BusyAnimation;
class ColumnHeader;

/// The window "Search Database". While the program runs, it is hidden but never destroyed, so that
/// its history, its options and the position to continue from survive.
class frmSearch final : public SideWindow, private SearchView {
  public:
    /// `values` must outlive the window. The database is loaded.
    frmSearch(wxTopLevelWindow* main, ProgramValues& values);
    frmSearch(const frmSearch&) = delete;
    frmSearch& operator=(const frmSearch&) = delete;
    ~frmSearch() override;

    /// Shows the window over the main window until it is dismissed.
    void ShowSearchWindow();

    int ExpandedHeight = 0;  ///< height of the inside with the result area, in pixels
    int ShrunkHeight = 0;    ///< the same without the result area

    // The rest of the window's state, which the session keeps.
    [[nodiscard]] bool ResultAreaShown() const { return session_.ResultAreaShown(); }

    [[nodiscard]] const std::string& LastSearchText() const { return session_.LastSearchText(); }

    [[nodiscard]] std::int32_t NextPosition() const { return session_.NextPosition(); }

    [[nodiscard]] bool AbortRequested() const { return session_.AbortRequested(); }

    [[nodiscard]] bool FoundAnything() const { return session_.FoundAnything(); }

  private:
    void CreateControls();
    void CreateRequest();
    void CreateResultArea();
    [[nodiscard]] wxSizer* LayoutOfRequest();
    void PlaceControls();
    void BindEvents();
    void FillHistory();

    void OnRescaled(double times) override;
    void ShowDisplay(const SearchDisplay& display) override;
    void ShowResult(const std::string& text, Tone tone) override;
    void MoveFocus(SearchFocus focus) override;
    void AddToHistory() override;
    void LetEventsRun(int restMs) override;
    void HideWindow() override;

    void ShowBusy(bool busy);
    void ShowResultArea(bool show);
    void DrawColumnHeader();
    void RunSearch();
    void OnCancel();
    void OnClose(wxCloseEvent& event);

    ProgramValues& values_;
    SearchSession session_;
    std::optional<SearchDisplay> shown_;
    std::optional<HeldEnter> heldEnter_;
    std::optional<FineTimer> fineTimer_;  // while a search runs
    int innerWidth_ = 0;                  // in pixels

    wxWindow* statusArea_ = nullptr;
    wxStaticText* lblPrompt_ = nullptr;
    wxComboBox* cboSearchWhat = nullptr;
    std::optional<ComboTextLimit> textLimit_;
    std::optional<SearchOptions> options_;
    wxButton* cmdSearch = nullptr;
    wxButton* cmdCancel = nullptr;
    wxButton* cmdHelp = nullptr;
    wxBitmapButton* cmdExpandShrink = nullptr;
    wxWindow* lblColHeaderBack = nullptr;
    ColumnHeader* picColHeader = nullptr;
    wxTextCtrl* txtSearchResult = nullptr;
    wxStaticText* lblStatus = nullptr;
    wxStaticText* lblCount = nullptr;
    BusyAnimation* picAnim = nullptr;
};

}  // namespace brelex
