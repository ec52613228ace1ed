// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/long_work.h"
#include "base/message_sink.h"
#include "database/program_values.h"
#include "search/anagram.h"
#include "search/copied_rows.h"

namespace brelex {

/// Everything that the anagram window shows except the rows of its list. Texts are UTF-8.
struct AnagramDisplay {
    bool isBusy = false;     ///< takes no input and shows the busy animation
    bool canSearch = false;  ///< accepts the Search command
    std::string letterCount;
    std::string rearrangements;
    std::string percentDone;     ///< the progress of a search, or its result
    std::string listTip;         ///< the tooltip of the list
    bool listIsWarning = false;  ///< the list shows that there are no hits

    bool operator==(const AnagramDisplay&) const = default;
};

/// Where the keyboard goes in the anagram window.
enum class AnagramFocus {
    Letters,
    AllLetters,  ///< and selects them, so that typing replaces them
    FirstHit     ///< and selects it
};

/// The anagram window as its session sees it.
class AnagramView {
  public:
    AnagramView() = default;
    AnagramView(const AnagramView&) = delete;
    AnagramView& operator=(const AnagramView&) = delete;
    virtual ~AnagramView() = default;

    /// Shows all of this. Texts about a search are on the screen when this returns.
    virtual void ShowDisplay(const AnagramDisplay& display) = 0;

    /// Refreshes the list with the session's rows. None of them is selected.
    virtual void ShowRows() = 0;

    virtual void MoveFocus(AnagramFocus focus) = 0;

    /// Puts the letters at the top of the history.
    virtual void AddToHistory() = 0;

    /// Lets all waiting events be handled.
    virtual void LetEventsRun() = 0;

    /// Clears the letters and gives their box the keyboard.
    virtual void EmptyLetters() = 0;

    virtual void HideWindow() = 0;
};

/// Decides what the window "Anagrammatic Search" does. The window shows these decisions and passes
/// on the user's actions. The session lives as long as the window, which is hidden and shown again.
class AnagramSession final : private WorkWatcher {
  public:
    /// All arguments must outlive the session. The database is loaded. `goToRecord` selects an
    /// entry in the main window by its record number (1-based).
    AnagramSession(const ProgramValues& values, AnagramView& view, MessageSink& messages,
                   std::function<void(std::int32_t)> goToRecord);

    /// The window is about to be shown.
    void Open();

    /// The letters are now `letters` (UTF-8). Does nothing if they have not changed.
    void OnLettersChanged(const std::string& letters);

    void RunSearch(const std::string& letters);

    /// The user chose a row of the list (0-based; -1 for none). Goes to its record.
    void ChooseRow(std::int32_t row);

    /// The user closes the window. While a search runs, the window stays open.
    void DismissAnagramWindow();

    /// The program ends. Ends a search, which then shows nothing more.
    void Abandon();

    /// The prompt for the letters, with "&" before its access key.
    [[nodiscard]] std::string Prompt() const;

    /// How many letters can be typed; 0 for no limit.
    [[nodiscard]] std::size_t LetterLimit() const;

    /// The rows of the list: the hits, or one row saying that there are none.
    [[nodiscard]] const RowList& Rows() const { return rows_; }

    /// The letters of the last search that was started.
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
    std::optional<AnagramFinder> finder_;  // from the first search on
    AnagramDisplay display_;
    WorkState state_ = WorkState::Idle;
    std::u32string letters_;
    std::u32string lastSearchedLetters_;
    CopiedRows rows_;
    std::vector<std::int32_t> recordNumbers_;  // of each row, 1-based; 0 without a record
    std::size_t shownRows_ = 0;
};

}  // namespace brelex
