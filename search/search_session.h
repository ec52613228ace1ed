// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "base/long_work.h"
#include "base/message_sink.h"
#include "database/program_values.h"
#include "search/prepared_search.h"
#include "search/search_request.h"

namespace brelex {

struct SearchOutcome;

/// Whether a text is an expected one or one that the user should notice.
enum class Tone {
    Plain,
    Warning
};

/// Everything that the search window shows except the result. Texts are UTF-8.
struct SearchDisplay {
    bool isBusy = false;  ///< takes no input except "Stop", a button that otherwise says "Cancel"
    bool isAnimated = false;  ///< shows the busy animation
    bool canSearch = false;   ///< accepts the Search command
    bool canGoOn = false;     ///< offers to search from the next position
    bool resultAreaShown = false;
    std::string status = "Ready";
    std::string count;
    Tone countTone = Tone::Plain;

    bool operator==(const SearchDisplay&) const = default;
};

/// Where the keyboard goes in the search window.
enum class SearchFocus {
    SearchText,
    Result,
    StopButton
};

/// The search window as its session sees it.
class SearchView {
  public:
    SearchView() = default;
    SearchView(const SearchView&) = delete;
    SearchView& operator=(const SearchView&) = delete;
    virtual ~SearchView() = default;

    /// Shows all of this. Texts about a search are on the screen when this returns.
    virtual void ShowDisplay(const SearchDisplay& display) = 0;

    /// Fills the result box (UTF-8). Throws if that fails.
    virtual void ShowResult(const std::string& text, Tone tone) = 0;

    virtual void MoveFocus(SearchFocus focus) = 0;

    /// Puts the search text at the top of the history.
    virtual void AddToHistory() = 0;

    /// Lets all waiting events be handled, and then rests for `restMs` milliseconds.
    virtual void LetEventsRun(int restMs) = 0;

    /// Clears the search text, gives it the keyboard, and hides the window.
    virtual void HideWindow() = 0;
};

/// Decides what the window "Search Database" does. The window shows these decisions and passes on
/// the user's actions. The session lives as long as the window, which is hidden and shown again.
class SearchSession final : private WorkWatcher {
  public:
    /// All arguments must outlive the session. The database is loaded. Trims the header's search
    /// list.
    SearchSession(ProgramValues& values, SearchView& view, MessageSink& messages);

    /// The window is about to be shown.
    void Open();

    /// The search text is now `text` (UTF-8). Does nothing if it has not changed.
    void OnTextChanged(const std::string& text);

    /// Searches for the request. `goOn` says that the box for the next position is checked.
    void RunSearch(const SearchRequest& request, bool goOn);

    /// The user pressed the button that stops a running search and otherwise dismisses the window.
    void PressCancel();

    /// The user closes the window. Ends a search, and resets and hides the window.
    void DismissSearchWindow();

    /// The program ends. Ends a search, which then shows nothing more.
    void Abandon();

    void ToggleResultArea();

    /// How many characters can be typed as a search text; 0 for no limit.
    [[nodiscard]] std::size_t TextLimit(SearchIn in) const;

    [[nodiscard]] bool ResultAreaShown() const { return display_.resultAreaShown; }

    /// The text of the last search that was started (UTF-8).
    [[nodiscard]] const std::string& LastSearchText() const { return lastSearchText_; }

    /// The record (0-based) from which a search continues.
    [[nodiscard]] std::int32_t NextPosition() const { return nextPosition_; }

    /// Whether the running search has to end.
    [[nodiscard]] bool AbortRequested() const {
        return state_ == WorkState::Stopping || state_ == WorkState::Dismissed;
    }

    /// Whether the last search found anything.
    [[nodiscard]] bool FoundAnything() const { return foundAnything_; }

  private:
    bool OnHit(std::int32_t row) override;
    bool OnPause() override;

    void Begin(const std::string& text, bool goOn);
    void Search(const RecordFinder& finder);
    void StopAtLimit(std::int32_t nextPosition);
    void Present(const SearchOutcome& outcome);
    void TellOfAbort();
    void ReturnToIdle();
    void ResetStatus();
    void Refresh();

    const ProgramValues& values_;
    SearchView& view_;
    MessageSink& messages_;
    SearchDisplay display_;
    WorkState state_ = WorkState::Idle;
    std::string text_;
    std::string lastSearchText_;
    std::int32_t nextPosition_ = 0;
    std::int32_t hits_ = 0;  // of the running search
    bool foundAnything_ = false;
    bool isEndTold_ = false;  // the display shows how the last search ended
};

}  // namespace brelex
