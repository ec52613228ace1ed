// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>

#include <wx/dialog.h>

#include "database/program_values.h"
#include "platform/desktop/wx_message_sink.h"
#include "search/search_request.h"
#include "ui/controls/combo_box.h"
#include "ui/controls/held_enter.h"
#include "ui/controls/layout_units.h"
#include "ui/controls/text_change.h"

class wxBitmapButton;
class wxButton;
class wxCheckBox;
class wxComboBox;
class wxRadioButton;
class wxSizer;
class wxStaticBox;
class wxStaticText;
class wxTextCtrl;

namespace brelex {

class Surface;
class BusyAnimation;
class ColumnHeader;
struct SearchOutcome;

/// Has `assign` fill a box with the result of a search. If it throws, the box says so in red.
void ShowSearchResult(wxTextCtrl& box, const std::function<void()>& assign);

/// The window "Search Database". It is hidden, never destroyed, while the program runs: its
/// history, its options and the position to go on from survive.
class frmSearch final : public wxDialog {
  public:
    /// `values` must outlive the window; the database is loaded.
    frmSearch(wxTopLevelWindow* main, ProgramValues& values);
    frmSearch(const frmSearch&) = delete;
    frmSearch& operator=(const frmSearch&) = delete;
    ~frmSearch() override;

    /// Shows the window over the main window until it is dismissed.
    void ShowSearchWindow();

    bool ResultAreaShown = false;
    int ExpandedHeight = 0;  ///< of the inside, in pixels, with the result area
    int ShrunkHeight = 0;    ///< without it
    wxString LastSearchText;
    std::int32_t NextPosition = 0;  ///< the record (0-based) at which a search goes on
    bool AbortRequested = false;
    bool FoundAnything = false;

  private:
    void CreateControls();
    void CreateFrames();
    void CreateResultArea();
    void NameControls();
    [[nodiscard]] wxSizer* LayoutOfControls();
    void PlaceControls();
    void BindEvents();
    void FillHistory();

    void ShowResultArea(bool show);
    void ShowBusyAnimation(bool on);
    void DismissSearchWindow();
    void DrawColumnHeader();
    void ResetStatus();
    void RunSearch();

    [[nodiscard]] SearchRequest Request() const;
    [[nodiscard]] std::optional<SearchOutcome> Scan(const SearchRequest& request);
    void Present(const SearchOutcome& outcome);
    [[nodiscard]] bool SearchAndPresent(const SearchRequest& request);
    void PrepareForSearch();
    void ReturnToIdle();
    void EnableInput(bool enable);
    void SetCancelButton(bool stops);
    void ClearResults();
    void ShowHits(std::int32_t hits);
    void OnClose(wxCloseEvent& event);
    void OnPaint(wxPaintEvent& event);
    void OnSearchTextChanged();

    class Watcher;

    wxTopLevelWindow& main_;
    ProgramValues& values_;
    WxMessageSink messages_;
    LayoutUnits units_;
    std::optional<HeldEnter> heldEnter_;
    TextChange textChange_;
    int innerWidth_ = 0;        // in pixels
    bool cancelStops_ = false;  // the tag of cmdCancel: "Stop", not "Cancel"

    Surface* surface_ = nullptr;
    wxWindow* statusArea_ = nullptr;
    wxStaticText* lblPrompt_ = nullptr;
    wxComboBox* cboSearchWhat = nullptr;
    std::optional<ComboTextLimit> textLimit_;
    wxButton* cmdSearch = nullptr;
    wxButton* cmdCancel = nullptr;
    wxStaticBox* fraPosition = nullptr;
    std::array<wxRadioButton*, 3> optPosition{};
    wxStaticBox* fraSearchIn = nullptr;
    std::array<wxRadioButton*, 2> optSearchIn{};
    wxCheckBox* chkMatchCase = nullptr;
    wxCheckBox* chkWholeWord = nullptr;
    wxCheckBox* chkNextSearch = nullptr;
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
