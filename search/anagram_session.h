// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/long_work.h"
#include "base/message_sink.h"
#include "database/program_values.h"
#include "search/copied_rows.h"

namespace brelex {

/// What the anagram window shows, but for the rows of its list. Texts are UTF-8.
struct AnagramDisplay {
    bool isBusy = false;     ///< takes no input, and shows the busy animation
    bool canSearch = false;  ///< takes the Search command
    std::string letterCount;
    std::string rearrangements;
    std::string percentDone;     ///< how far a search is, or what it has found
    std::string listTip;         ///< the tool tip of the list
    bool listIsWarning = false;  ///< the list says that there are no hits

    bool operator==(const AnagramDisplay&) const = default;
};

/// Where the keyboard goes in the anagram window.
enum class AnagramFocus {
    Letters,
    AllLetters,  ///< which are selected, so that typing replaces them
    FirstHit     ///< which is selected
};

/// The anagram window as its session sees it.
class AnagramView {
  public:
    AnagramView() = default;
    AnagramView(const AnagramView&) = delete;
    AnagramView& operator=(const AnagramView&) = delete;
    virtual ~AnagramView() = default;

    /// Shows all this. What tells of a search is on the screen when this returns.
    virtual void ShowDisplay(const AnagramDisplay& display) = 0;

    /// Shows the session's rows anew, with none selected.
    virtual void ShowRows() = 0;

    virtual void MoveFocus(AnagramFocus focus) = 0;

    /// Puts the letters on top of the history.
    virtual void AddToHistory() = 0;

    /// Lets all waiting events be handled.
    virtual void LetEventsRun() = 0;

    /// Empties the letters and gives them the keyboard.
    virtual void EmptyLetters() = 0;

    virtual void HideWindow() = 0;
};

/// What the window "Anagrammatic Search" does: it decides, and the window shows it and passes on
/// what the user does. It lives as long as the window, which is hidden and shown again.
class AnagramSession final : private WorkWatcher {
  public:
    /// All must outlive the session; the database is loaded. `goToRecord` selects an entry in the
    /// main window by its record number (1-based).
    AnagramSession(const ProgramValues& values, AnagramView& view, MessageSink& messages,
                   std::function<void(std::int32_t)> goToRecord);

    /// The window is about to be shown.
    void Open();

    /// The letters are now `letters` (UTF-8). A report that finds them as they were changes
    /// nothing.
    void OnLettersChanged(const std::string& letters);

    void RunSearch(const std::string& letters);

    /// A row of the list (0-based) is chosen: goes to its record. -1 for none.
    void ChooseRow(std::int32_t row);

    /// The user closes the window, which stays open while a search runs.
    void DismissAnagramWindow();

    /// The program ends: a search ends, and shows nothing any more.
    void Abandon();

    /// The prompt for the letters, with "&" before its access key.
    [[nodiscard]] std::string Prompt() const;

    /// The most letters to be typed; 0 for no limit.
    [[nodiscard]] std::size_t LetterLimit() const;

    /// The rows of the list: the hits, or one that says that there are none.
    [[nodiscard]] const RowList& Rows() const { return rows_; }

    /// Of the last search that was started.
    [[nodiscard]] const std::u32string& LastSearchedLetters() const { return lastSearchedLetters_; }

  private:
    bool OnHit(std::int32_t row) override;
    void SetProgress(int percent) override;
    bool OnPause() override;

    void DescribeLetters();
    [[nodiscard]] bool Scan(const std::u32string& letters);
    void Begin(const std::u32string& letters);
    void PresentHits();
    void ReturnToIdle();
    void ClearRows();
    void AddRow(std::string_view text, std::int32_t recordNumber);
    void ShowNewRows();
    void Refresh();

    const ProgramValues& values_;
    AnagramView& view_;
    MessageSink& messages_;
    std::function<void(std::int32_t)> goToRecord_;
    AnagramDisplay display_;
    WorkState state_ = WorkState::Idle;
    std::u32string letters_;
    std::u32string lastSearchedLetters_;
    CopiedRows rows_;
    std::vector<std::int32_t> recordNumbers_;  // of the rows, 1-based; 0 for what is no record
    std::size_t shownRows_ = 0;
};

}  // namespace brelex
