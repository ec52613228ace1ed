// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <wx/dialog.h>

#include "database/program_values.h"
#include "platform/desktop/wx_message_sink.h"
#include "platform/list/acronym_list.h"
#include "search/copied_rows.h"
#include "ui/controls/combo_box.h"
#include "ui/controls/held_enter.h"
#include "ui/controls/layout_units.h"
#include "ui/controls/text_change.h"

class wxButton;
class wxComboBox;
class wxSizer;
class wxStaticText;

namespace brelex {

class Surface;
class BusyAnimation;

/// The window "Anagrammatic Search". It is hidden, never destroyed, while the program runs: its
/// history survives.
class frmAnagram final : public wxDialog {
  public:
    /// `values` must outlive the window; the database is loaded. `goToRecord` selects an entry in
    /// the main window by its record number (1-based).
    frmAnagram(wxTopLevelWindow* main, ProgramValues& values,
               std::function<void(std::int32_t)> goToRecord);
    frmAnagram(const frmAnagram&) = delete;
    frmAnagram& operator=(const frmAnagram&) = delete;
    ~frmAnagram() override;

    /// Shows the window over the main window until it is dismissed.
    void ShowAnagramWindow();

    /// The hits, or the one row that says that there are none.
    [[nodiscard]] AcronymList& Hits() { return *lstAnagrams; }

    [[nodiscard]] const RowList& HitRows() const { return rows_; }

    std::u32string LastSearchedLetters;

  private:
    void CreateControls();
    void NameControls();
    [[nodiscard]] wxSizer* LayoutOfLetters();
    void PlaceControls();
    void BindEvents();

    void ShowBusyAnimation(bool on);
    void DismissAnagramWindow();
    void DrawColumnHeader();

    [[nodiscard]] std::u32string TypedLetters() const;
    void OnLettersChanged();
    void ShowLetters();
    void RunSearch();
    void PrepareForSearch();
    void ReturnToIdle();
    void PresentHits();
    void AddHit(std::int32_t row);
    void ShowPercentDone(int percent);
    void ClearHits();
    void ShowHits();
    void ShowNewHits();
    void EnableInput(bool enable);
    void GoToSelectedRecord();
    void HideWindow();
    void OnClose(wxCloseEvent& event);
    void OnPaint(wxPaintEvent& event);

    class Watcher;

    wxTopLevelWindow& main_;
    ProgramValues& values_;
    std::function<void(std::int32_t)> goToRecord_;
    WxMessageSink messages_;
    LayoutUnits units_;
    CopiedRows rows_;
    std::vector<std::int32_t> recordNumbers_;  // of the rows, 1-based; 0 for what is no record
    std::int32_t shownHits_ = 0;
    std::optional<HeldEnter> heldEnter_;
    TextChange textChange_;
    bool isSearching_ = false;

    Surface* surface_ = nullptr;
    wxStaticText* lblOverview = nullptr;
    wxStaticText* lblPrompt = nullptr;
    wxComboBox* cboLetters = nullptr;
    std::optional<ComboTextLimit> textLimit_;
    wxStaticText* lblWordLen = nullptr;
    wxStaticText* lblPossiblePerms = nullptr;
    wxButton* cmdSearch = nullptr;
    wxButton* cmdCancel = nullptr;
    wxStaticText* lblPercentDone = nullptr;
    wxWindow* lblColHeaderBack = nullptr;
    wxWindow* picColHeader = nullptr;
    AcronymList* lstAnagrams = nullptr;
    BusyAnimation* picAnim = nullptr;
};

}  // namespace brelex
