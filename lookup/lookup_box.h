// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/message_sink.h"
#include "database/program_values.h"
#include "lookup/list_navigation.h"

namespace brelex {

/// The window that the lookup works on. Rows are 0-based, texts are UTF-8.
class LookupView {
  public:
    LookupView() = default;
    LookupView(const LookupView&) = delete;
    LookupView& operator=(const LookupView&) = delete;
    virtual ~LookupView() = default;

    /// The list's selected row, -1 if there is none.
    [[nodiscard]] virtual std::int32_t SelectedRow() const = 0;

    /// Selects a row without raising the list's click.
    virtual void SelectRow(std::int32_t row) = 0;

    /// Scrolls the list so that `row` is its top row, as far as the list's end allows.
    virtual void SetTopRow(std::int32_t row) = 0;

    /// Lets the list handle a key as if it had been pressed there, its click included.
    virtual void SendKeyToList(NavigationKey key) = 0;

    [[nodiscard]] virtual std::string BoxText() const = 0;

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

    /// The box's text may have changed, by the user's typing or pasting.
    void OnBoxChanged();

    /// A navigation key was pressed in the box, which does not process it further.
    void OnBoxKeyDown(NavigationKey key);

    /// The user selected a row of the list, by mouse or key.
    void OnListClick();

    /// The list, which has the focus, is about to show the menu of its selected row: shows the
    /// row's number and writes its abbreviation into the box.
    void OnListMenu();

    void OnListGotFocus() { IsNavigating = true; }

    void OnListLostFocus() { IsNavigating = false; }

    /// Selects the row that FindFirstByPrefix finds for `text` (UTF-8) and scrolls it to be the
    /// second visible one. Text from the first character outside Windows-1252 on matches nothing.
    void SelectByPrefix(const std::string& text);

    /// Shows the number (1-based) of the selected row.
    void ShowRecordNumber();

    /// Selects the row with a number (1-based); one out of range means the nearest. -1 asks the
    /// user for it.
    void GoToRecordNumber(std::int32_t nRecordNumber);

    bool IsNavigating = false;  ///< the list drives the box, not the user's typing
    bool IsLookupBusy = false;
    std::string LastText;     ///< last looked up, or last written by the list
    std::string CurrentText;  ///< being looked up
    std::int32_t FoundRow = 0;

  private:
    /// Writes the abbreviation of the selected row into the box.
    void WriteSelectedAbbreviation();

    /// Asks for a record number; false if the user gave none.
    [[nodiscard]] bool AskRecordNumber(std::int32_t& number);

    const ProgramValues& values_;
    LookupView& view_;
    MessageSink& messages_;
    std::string shownText_;  // the box's text after the last change, by whomever
};

}  // namespace brelex
