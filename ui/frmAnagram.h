// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "database/program_values.h"
#include "platform/list/entry_list_control.h"
#include "search/anagram_session.h"
#include "ui/controls/combo_box.h"
#include "ui/controls/held_enter.h"
#include "ui/side_window.h"

class wxButton;
class wxComboBox;
class wxSizer;
class wxStaticText;

namespace brelex {

class BusyAnimation;

/// The window "Anagrammatic Search". While the program runs, it is hidden but never destroyed, so
/// that its history survives.
class frmAnagram final : public SideWindow, private AnagramView {
  public:
    /// `values` must outlive the window. The database is loaded. `goToRecord` selects an entry in
    /// the main window by its record number (1-based).
    frmAnagram(wxTopLevelWindow* main, ProgramValues& values,
               std::function<void(std::int32_t)> goToRecord);
    frmAnagram(const frmAnagram&) = delete;
    frmAnagram& operator=(const frmAnagram&) = delete;
    ~frmAnagram() override;

    /// Shows the window over the main window until it is dismissed.
    void ShowAnagramWindow();

    /// The list with the hits, or with a single row that says there are none.
    [[nodiscard]] EntryListControl& Hits() { return *lstAnagrams; }

    [[nodiscard]] const RowList& HitRows() const { return session_.Rows(); }

    [[nodiscard]] const std::u32string& LastSearchedLetters() const {
        return session_.LastSearchedLetters();
    }

  private:
    void CreateControls();
    [[nodiscard]] wxStaticText* NewFact(const char* widest, long alignment = 0) const;
    [[nodiscard]] wxSizer* LayoutOfLetters();
    void PlaceControls();
    void BindEvents();

    void ShowDisplay(const AnagramDisplay& display) override;
    void ShowRows() override;
    void MoveFocus(AnagramFocus focus) override;
    void AddToHistory() override;
    void LetEventsRun() override;
    void EmptyLetters() override;
    void HideWindow() override;

    void ShowBusy(bool busy);
    static void ShowFact(wxStaticText& label, const wxString& number, const char* unit);
    [[nodiscard]] std::string TypedLetters() const;
    void OnClose(wxCloseEvent& event);

    AnagramSession session_;
    std::optional<AnagramDisplay> shown_;
    std::optional<HeldEnter> heldEnter_;

    wxStaticText* lblOverview = nullptr;
    wxStaticText* lblPrompt = nullptr;
    wxComboBox* cboLetters = nullptr;
    std::optional<ComboTextLimit> textLimit_;
    wxStaticText* lblWordLen = nullptr;
    wxStaticText* lblLetters_ = nullptr;
    wxStaticText* lblRearrangements_ = nullptr;
    wxStaticText* lblPossiblePerms = nullptr;
    wxButton* cmdSearch = nullptr;
    wxButton* cmdCancel = nullptr;
    wxStaticText* lblPercentDone = nullptr;
    wxWindow* lblColHeaderBack = nullptr;
    wxWindow* picColHeader = nullptr;
    EntryListControl* lstAnagrams = nullptr;
    BusyAnimation* picAnim = nullptr;
};

}  // namespace brelex
