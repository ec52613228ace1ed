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

/// The list of entries on the screen: two columns without a header of its own, one row selected at
/// most. It draws its rows straight from the entries, so a million open as fast as a hundred. On
/// each system it is the control that looks native there and that a screen reader can read.
/// Rows are 0-based, -1 is none.
class EntryListControl {
  public:
    EntryListControl() = default;
    EntryListControl(const EntryListControl&) = delete;
    EntryListControl& operator=(const EntryListControl&) = delete;
    virtual ~EntryListControl() = default;

    /// The control itself. Its parent owns it.
    [[nodiscard]] virtual wxWindow& Window() = 0;

    /// Shows `rows`, which must outlive the list, with none selected.
    virtual void SetRows(const RowList& rows) = 0;

    /// The colour of all rows' texts.
    virtual void SetTextColour(const wxColour& colour) = 0;
    [[nodiscard]] virtual wxColour TextColour() const = 0;

    /// Selects a row; onClick is not called.
    void SelectRow(std::int32_t row, Scrolling scrolling = Scrolling::Nowhere);

    [[nodiscard]] virtual std::int32_t SelectedRow() const = 0;

    /// Whether the screen shows `row` as selected.
    [[nodiscard]] virtual bool IsHighlighted(std::int32_t row) const = 0;

    /// Makes `row` the top visible row; near the end of the list as far as there are rows.
    virtual void SetTopRow(std::int32_t row) = 0;

    /// The first row that is visible as a whole.
    [[nodiscard]] virtual std::int32_t TopRow() const = 0;

    /// Number of rows that are visible as a whole.
    [[nodiscard]] virtual std::int32_t RowsPerPage() const = 0;

    /// Height of a row in pixels.
    [[nodiscard]] virtual int RowHeight() const = 0;

    /// The height in pixels of a control, borders included, that shows `rows` rows as a whole and
    /// no part of another.
    [[nodiscard]] virtual int HeightOfRows(int rows) const = 0;

    /// The most rows that a control of a height in pixels, borders included, shows as a whole; at
    /// least 1.
    [[nodiscard]] int RowsIn(int height) const;

    /// Where the screen shows `row`, in pixels of the control's inside.
    [[nodiscard]] virtual wxRect RowRect(std::int32_t row) const = 0;

    /// The row under a point of the control, -1 below the last one.
    [[nodiscard]] virtual std::int32_t RowAt(const wxPoint& point) const = 0;

    /// Does what the list does for a key pressed in it: moves the selection, scrolls it into view
    /// and calls onClick if it changed; calls onEnter for Enter.
    void SendKey(NavigationKey key);

    std::function<void(std::int32_t)> onClick;  ///< the user selected a row, by mouse or key

    /// Enter without Shift, Ctrl or Alt, or a double-click on a row.
    std::function<void()> onEnter;

    std::function<void(std::int32_t)> onRightPress;  ///< the right button was pressed on a row
    std::function<void()> onMenuKey;  ///< the keyboard asks for the menu of the selected row

    /// The control has the focus, which a click brings before it is reported; or not any longer.
    std::function<void()> onGotFocus;
    std::function<void()> onLostFocus;

  protected:
    /// The control tells of the right button, and then does nothing of its own for it; and of the
    /// keyboard's wish for a menu.
    void RightPressed();
    void OnContextMenu(wxContextMenuEvent& event) const;

    /// A character was typed into the control.
    void OnCharacter(wxKeyEvent& event);

    /// Whether a blank typed now is part of a text that is typed into the list.
    [[nodiscard]] bool IsTyping() const;

    /// What the native control tells. WatchFocus has it tell of the focus by itself.
    void Clicked(std::int32_t row) const;
    void Entered() const;
    void GotFocus() const;
    void LostFocus() const;
    void WatchFocus();

    /// Selects a row without scrolling or any call.
    virtual void SelectQuietly(std::int32_t row) = 0;

    /// The rows shown; null if there are none yet.
    [[nodiscard]] virtual const RowList* Rows() const = 0;

    [[nodiscard]] std::int32_t RowCount() const {
        return Rows() == nullptr ? 0 : Rows()->RowCount();
    }

    /// Scrolls so that `row` is the last one that is visible as a whole.
    virtual void SetBottomRow(std::int32_t row) = 0;

  private:
    void SelectAsUser(std::int32_t row);
    void ScrollIntoSight(std::int32_t row);

    TypeAhead typeAhead_;
};

/// Creates the list for this system as a child of `parent`. The text of the second column begins
/// `expansionTextAt` pixels from the list's left edge.
EntryListControl& CreateEntryListControl(wxWindow& parent, int expansionTextAt);

}  // namespace brelex
