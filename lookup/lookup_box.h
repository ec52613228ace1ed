// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "base/message_sink.h"
#include "database/program_values.h"
#include "database/record_number.h"
#include "lookup/list_navigation.h"

namespace brelex {

/// Stands for a number that the user still has to enter.
inline constexpr RecordNumber kAskForRecord{-1};

/// The window that the look-up works on. Rows are 0-based, texts are UTF-8.
class LookupView {
  public:
    LookupView() = default;
    LookupView(const LookupView&) = delete;
    LookupView& operator=(const LookupView&) = delete;
    virtual ~LookupView() = default;

    /// The list's selected row, -1 if there is none.
    [[nodiscard]] virtual std::int32_t SelectedRow() const = 0;

    /// Selects a row and scrolls it into view, without reporting a click on the list.
    virtual void SelectRow(std::int32_t row, Scrolling scrolling) = 0;

    /// Lets the list handle a key as if it had been pressed there. This may report a click.
    virtual void SendKeyToList(NavigationKey key) = 0;

    /// Replaces the box's text. Must not report the change: LookupBox keeps track of it itself.
    virtual void SetBoxText(const std::string& text) = 0;

    virtual void MoveCaretToEnd() = 0;

    virtual void SetRecordNumberText(const std::string& text) = 0;

    /// Asks for a line of text. Returns an empty text if the user cancels.
    virtual std::string AskText(const std::string& title, const std::string& prompt,
                                const std::string& defaultText) = 0;
};

/// Connects the look-up box and the list of entries. Typing selects the first entry that begins
/// with the text. Navigation keys in the box move the list. The list writes the abbreviation of its
/// selected entry into the box.
///
/// The fields keep the state of the whole run. If the box's text changes to one that differs from
/// the last only in case, typing stops moving the list for the rest of the run (IsLookupBusy stays
/// set). Keys, clicks and record numbers keep working. This is intentional. Toolkits also report
/// changes that change nothing, for example for a letter that no longer fits; such reports are
/// ignored.
class LookupBox {
  public:
    LookupBox(const ProgramValues& values, LookupView& view, MessageSink& messages)
        : values_(values),
          view_(view),
          messages_(messages) {}

    /// The box's text may now be `text` (UTF-8), because the user typed or pasted.
    void OnBoxChanged(const std::string& text);

    /// The user pressed a navigation key in the box, which does not process it further.
    void OnBoxKeyDown(NavigationKey key);

    /// The user selected `row` (0-based) in the list, with the mouse or a key. The list writes into
    /// the box only if it has the focus or was sent a key.
    void OnListClick(std::int32_t row);

    /// The list, which has the focus, is about to show the menu of its selected `row` (0-based).
    /// Shows the row's number and writes its abbreviation into the box.
    void OnListMenu(std::int32_t row);

    void OnListGotFocus() { IsNavigating = true; }

    void OnListLostFocus() { IsNavigating = false; }

    /// Selects the row that FindFirstByPrefix finds for `text` (UTF-8) and makes it the second
    /// visible row. If `text` contains a character outside Windows-1252, only the text before it
    /// can match.
    void SelectByPrefix(const std::string& text);

    /// Shows the number of the selected row.
    void ShowRecordNumber();

    /// Selects the entry with this number. A number out of range, even below 1, selects the nearest
    /// entry. kAskForRecord asks the user for the number.
    void GoToRecordNumber(RecordNumber nRecordNumber);

    /// Shows what the user chose outside the window, for example in the search of the desktop (see
    /// RowToShow), and makes it the second visible row, as typing would.
    void ShowChosen(const std::string& id);

    bool IsNavigating = false;  ///< the list drives the box, not the user's typing
    bool IsLookupBusy = false;
    std::string LastText;     ///< last looked up, or last written by the list
    std::string CurrentText;  ///< being looked up
    std::int32_t FoundRow = 0;

  private:
    /// Shows the number of a row and writes its abbreviation into the box.
    void ShowEntry(std::int32_t row);

    /// Selects a row and writes its abbreviation into the box.
    void GoToRow(std::int32_t row, Scrolling scrolling);

    /// Asks the user for a number, which may be out of range. Nothing if the user gives none.
    [[nodiscard]] std::optional<RecordNumber> AskRecordNumber();

    const ProgramValues& values_;
    LookupView& view_;
    MessageSink& messages_;
    std::string shownText_;  // the box's text after the last change, no matter who made it
};

}  // namespace brelex
