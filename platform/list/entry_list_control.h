// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>

#include "database/row_list.h"
#include "lookup/list_navigation.h"
#include "lookup/type_ahead.h"

class wxColour;
class wxContextMenuEvent;
class wxKeyEvent;
class wxPoint;
class wxRect;
class wxWindow;

namespace brelex {

/// The list of entries on the screen: two columns without a header of its own, and at most one
/// selected row. It draws its rows straight from the entries, so a million open as fast as a
/// hundred. On each system it is the control that looks native there and that a screen reader can
/// read. Rows are 0-based, -1 is none.
class EntryListControl {
  public:
    EntryListControl() = default;
    EntryListControl(const EntryListControl&) = delete;
    EntryListControl& operator=(const EntryListControl&) = delete;
    virtual ~EntryListControl() = default;

    /// The control itself. Its parent owns it.
    [[nodiscard]] virtual wxWindow& Window() = 0;

    /// Shows `rows`, which must outlive the list. None of them is selected.
    virtual void SetRows(const RowList& rows) = 0;

    /// Sets the color of the text in all rows.
    virtual void SetTextColour(const wxColour& colour) = 0;
    [[nodiscard]] virtual wxColour TextColour() const = 0;

    /// Selects a row. Does not call onClick.
    void SelectRow(std::int32_t row, Scrolling scrolling = Scrolling::Nowhere);

    [[nodiscard]] virtual std::int32_t SelectedRow() const = 0;

    /// Whether the screen shows `row` as selected.
    [[nodiscard]] virtual bool IsHighlighted(std::int32_t row) const = 0;

    /// Makes `row` the top visible row, or scrolls as close to that as the end of the list allows.
    virtual void SetTopRow(std::int32_t row) = 0;

    /// The first row that is fully visible.
    [[nodiscard]] virtual std::int32_t TopRow() const = 0;

    /// The number of rows that are fully visible.
    [[nodiscard]] virtual std::int32_t RowsPerPage() const = 0;

    /// The height of a row in pixels.
    [[nodiscard]] virtual int RowHeight() const = 0;

    /// The height in pixels, including borders, at which a control shows `rows` full rows and no
    /// part of another.
    [[nodiscard]] virtual int HeightOfRows(int rows) const = 0;

    /// How many full rows a control shows at a height in pixels, including borders. At least 1.
    [[nodiscard]] int RowsIn(int height) const;

    /// Where the screen shows `row`, in pixels from the inside of the control.
    [[nodiscard]] virtual wxRect RowRect(std::int32_t row) const = 0;

    /// The row under a point of the control, -1 below the last one.
    [[nodiscard]] virtual std::int32_t RowAt(const wxPoint& point) const = 0;

    /// Does what the list does when a key is pressed in it. Moves the selection, scrolls it into
    /// view, and calls onClick if the selection changed. Calls onEnter for Enter.
    void SendKey(NavigationKey key);

    std::function<void(std::int32_t)> onClick;  ///< the user selected a row, by mouse or key

    /// The user pressed Enter without Shift, Ctrl or Alt, or double-clicked a row.
    std::function<void()> onEnter;

    std::function<void(std::int32_t)> onRightPress;  ///< the right button was pressed on a row
    std::function<void()> onMenuKey;  ///< a key asks for the menu of the selected row

    /// The control got or lost the focus. A click that brings the focus is reported after
    /// onGotFocus.
    std::function<void()> onGotFocus;
    std::function<void()> onLostFocus;

  protected:
    /// The native control reports the right button, and then does nothing of its own for it. It
    /// also reports a menu requested with the keyboard.
    void RightPressed();
    void OnContextMenu(wxContextMenuEvent& event) const;

    /// The user typed a character into the control.
    void OnCharacter(wxKeyEvent& event);

    /// Whether a blank typed now continues a text typed into the list.
    [[nodiscard]] bool IsTyping() const;

    /// Reports from the native control. WatchFocus makes the control report the focus by itself.
    void Clicked(std::int32_t row) const;
    void Entered() const;
    void GotFocus() const;
    void LostFocus() const;
    void WatchFocus();

    /// Selects a row without scrolling or calling any function.
    virtual void SelectQuietly(std::int32_t row) = 0;

    /// The rows shown; null if there are none yet.
    [[nodiscard]] virtual const RowList* Rows() const = 0;

    [[nodiscard]] std::int32_t RowCount() const {
        return Rows() == nullptr ? 0 : Rows()->RowCount();
    }

    /// Scrolls so that `row` is the last fully visible row.
    virtual void SetBottomRow(std::int32_t row) = 0;

  private:
    void SelectAsUser(std::int32_t row);
    void ScrollIntoSight(std::int32_t row);

    TypeAhead typeAhead_;
};

/// Creates this system's list as a child of `parent`. The text of the second column begins
/// `expansionTextAt` pixels from the list's left edge.
EntryListControl& CreateEntryListControl(wxWindow& parent, int expansionTextAt);

}  // namespace brelex
