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

/// What has the user asked for the number of an entry, instead of naming one.
inline constexpr RecordNumber kAskForRecord{-1};

/// The window that the lookup works on. Rows are 0-based, texts are UTF-8.
class LookupView {
  public:
    LookupView() = default;
    LookupView(const LookupView&) = delete;
    LookupView& operator=(const LookupView&) = delete;
    virtual ~LookupView() = default;

    /// The list's selected row, -1 if there is none.
    [[nodiscard]] virtual std::int32_t SelectedRow() const = 0;

    /// Selects a row and scrolls it into sight, without raising the list's click.
    virtual void SelectRow(std::int32_t row, Scrolling scrolling) = 0;

    /// Lets the list handle a key as if it had been pressed there, its click included.
    virtual void SendKeyToList(NavigationKey key) = 0;

    /// Replaces the box's text. Must not report the change: LookupBox follows it up itself.
    virtual void SetBoxText(const std::string& text) = 0;

    virtual void MoveCaretToEnd() = 0;

    virtual void SetRecordNumberText(const std::string& text) = 0;

    /// Asks for a line of text; empty if the user cancels.
    virtual std::string AskText(const std::string& title, const std::string& prompt,
                                const std::string& defaultText) = 0;
};

/// How the lookup box and the list of entries follow each other: typing selects the first entry
/// that begins with the text; navigation keys in the box move the list; the list writes the
/// abbreviation of its selected entry into the box.
///
/// The fields keep the state of the whole run. If the box's text changes to one that equals the
/// last one but for case, typing stops moving the list for good (IsLookupBusy stays set); keys,
/// clicks and record numbers go on working. That is how the lookup is meant to behave. A report of
/// a change that finds the text as it was, such as toolkits give for a letter that no longer fits,
/// is none.
class LookupBox {
  public:
    LookupBox(const ProgramValues& values, LookupView& view, MessageSink& messages)
        : values_(values),
          view_(view),
          messages_(messages) {}

    /// The box's text may have changed to `text` (UTF-8), by the user's typing or pasting.
    void OnBoxChanged(const std::string& text);

    /// A navigation key was pressed in the box, which does not process it further.
    void OnBoxKeyDown(NavigationKey key);

    /// The user selected `row` (0-based) of the list, by mouse or key. Only a list that has the
    /// focus, or was sent a key, writes into the box.
    void OnListClick(std::int32_t row);

    /// The list, which has the focus, is about to show the menu of its selected `row` (0-based):
    /// shows the row's number and writes its abbreviation into the box.
    void OnListMenu(std::int32_t row);

    void OnListGotFocus() { IsNavigating = true; }

    void OnListLostFocus() { IsNavigating = false; }

    /// Selects the row that FindFirstByPrefix finds for `text` (UTF-8) and scrolls it to be the
    /// second visible one. Text from the first character outside Windows-1252 on matches nothing.
    void SelectByPrefix(const std::string& text);

    /// Shows the number of the selected row.
    void ShowRecordNumber();

    /// Selects the entry with a number; one out of range, even below 1, means the nearest.
    /// kAskForRecord asks the user for it.
    void GoToRecordNumber(RecordNumber nRecordNumber);

    bool IsNavigating = false;  ///< the list drives the box, not the user's typing
    bool IsLookupBusy = false;
    std::string LastText;     ///< last looked up, or last written by the list
    std::string CurrentText;  ///< being looked up
    std::int32_t FoundRow = 0;

  private:
    /// Shows the number of a row and writes its abbreviation into the box.
    void ShowEntry(std::int32_t row);

    /// The number that the user gives, which may be out of range; none if the user gives none.
    [[nodiscard]] std::optional<RecordNumber> AskRecordNumber();

    const ProgramValues& values_;
    LookupView& view_;
    MessageSink& messages_;
    std::string shownText_;  // the box's text after the last change, by whomever
};

}  // namespace brelex
