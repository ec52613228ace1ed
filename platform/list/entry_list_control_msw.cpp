// SPDX-License-Identifier: MIT
#include "platform/list/entry_list_control.h"

#include <algorithm>

#include <wx/listctrl.h>
#include <wx/utils.h>

#include <windows.h>
#include <commctrl.h>

#include "database/record_text.h"
#include "toolkit/wx_text.h"

namespace brelex {

namespace {

// The system's list view over virtual rows.
class EntryListControlMsw final : public wxListView, public EntryListControl {
  public:
    EntryListControlMsw(wxWindow& parent, int expansionTextAt)
        : wxListView(&parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                     wxLC_REPORT | wxLC_VIRTUAL | wxLC_NO_HEADER | wxLC_SINGLE_SEL) {
        const int cellPadding = FromDIP(6);  // in all columns of the list view except the first
        AppendColumn("Abbreviation", wxLIST_FORMAT_LEFT, expansionTextAt - cellPadding);
        AppendColumn("Expansion", wxLIST_FORMAT_LEFT, wxLIST_AUTOSIZE_USEHEADER);
        Bind(wxEVT_LIST_ITEM_SELECTED, &EntryListControlMsw::OnSelected, this);
        Bind(wxEVT_LIST_ITEM_ACTIVATED, &EntryListControlMsw::OnActivated, this);
        Bind(wxEVT_LIST_ITEM_DESELECTED, &EntryListControlMsw::OnDeselected, this);
        Bind(wxEVT_SIZE, &EntryListControlMsw::OnSize, this);
        Bind(wxEVT_KEY_DOWN, &EntryListControlMsw::OnKeyDown, this);
        Bind(wxEVT_CHAR, [this](wxKeyEvent& event) { OnCharacter(event); });
        Bind(wxEVT_RIGHT_DOWN, [this](wxMouseEvent&) { RightPressed(); });
        Bind(wxEVT_CONTEXT_MENU, [this](wxContextMenuEvent& event) { OnContextMenu(event); });
        WatchFocus();
    }

    wxWindow& Window() override { return *this; }

    void SetRows(const RowList& rows) override {
        rows_ = &rows;
        selected_ = -1;
        SetItemCount(rows.RowCount());
        Refresh();
    }

    void SetTextColour(const wxColour& colour) override {
        wxListView::SetTextColour(colour);
        Refresh();
    }

    [[nodiscard]] wxColour TextColour() const override { return GetTextColour(); }

    [[nodiscard]] std::int32_t SelectedRow() const override { return selected_; }

    [[nodiscard]] bool IsHighlighted(std::int32_t row) const override { return IsSelected(row); }

    void SetTopRow(std::int32_t row) override { ScrollList(0, (row - TopRow()) * RowHeight()); }

    [[nodiscard]] std::int32_t TopRow() const override {
        return static_cast<std::int32_t>(GetTopItem());
    }

    [[nodiscard]] std::int32_t RowsPerPage() const override { return GetCountPerPage(); }

    [[nodiscard]] int RowHeight() const override {
        // The control reports a height only for an existing row, so an empty list gets one
        // temporarily.
        const bool isEmpty = RowCount() == 0;
        if (isEmpty) {
            SendMessageW(GetHWND(), LVM_SETITEMCOUNT, 1, LVSICF_NOINVALIDATEALL | LVSICF_NOSCROLL);
        }
        RECT row{};
        row.left = LVIR_BOUNDS;
        const LRESULT known =
            SendMessageW(GetHWND(), LVM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&row));
        if (isEmpty) {
            SendMessageW(GetHWND(), LVM_SETITEMCOUNT, 0, LVSICF_NOINVALIDATEALL | LVSICF_NOSCROLL);
        }
        return known != 0 ? std::max(1, static_cast<int>(row.bottom - row.top)) : 1;
    }

    [[nodiscard]] std::int32_t RowAt(const wxPoint& point) const override {
        int flags = 0;
        return static_cast<std::int32_t>(HitTest(point, flags));
    }

    [[nodiscard]] int HeightOfRows(int rows) const override {
        return rows * RowHeight() + GetSize().y - GetClientSize().y;
    }

    [[nodiscard]] wxRect RowRect(std::int32_t row) const override {
        wxRect area;
        GetItemRect(row, area);
        return area;
    }

  protected:
    void SelectQuietly(std::int32_t row) override {
        quiet_ = true;  // the control reports the change before it returns
        // Otherwise selecting walks through all rows of a virtual list (seen with Wine 8).
        if (selected_ >= 0 && selected_ != row) {
            SetItemState(selected_, 0, wxLIST_STATE_SELECTED);
        }
        constexpr long kState = wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED;
        SetItemState(row, kState, kState);
        selected_ = row;
        quiet_ = false;
    }

    [[nodiscard]] const RowList* Rows() const override { return rows_; }

    void SetBottomRow(std::int32_t row) override { EnsureVisible(row); }

    // While somebody types into the box, the row found is what that person looks at. So it keeps
    // the colors of a selection even without the focus, instead of a gray that is hard to see.
    bool MSWOnNotify(int control, WXLPARAM parameter, WXLPARAM* result) override {
        if (reinterpret_cast<const NMHDR*>(parameter)->code == LVN_ODFINDITEMW) {
            *result = -1;  // finds no row, or else the control would use the first one
            return true;
        }
        auto* const drawing = reinterpret_cast<NMLVCUSTOMDRAW*>(parameter);
        if (drawing->nmcd.hdr.code == NM_CUSTOMDRAW &&
            drawing->nmcd.dwDrawStage == CDDS_ITEMPREPAINT && !HasFocus() &&
            IsSelected(static_cast<long>(drawing->nmcd.dwItemSpec))) {
            drawing->nmcd.uItemState &= ~static_cast<UINT>(CDIS_SELECTED);
            drawing->clrText = GetSysColor(COLOR_HIGHLIGHTTEXT);
            drawing->clrTextBk = GetSysColor(COLOR_HIGHLIGHT);
            *result = CDRF_NEWFONT;
            return true;
        }
        return wxListView::MSWOnNotify(control, parameter, result);
    }

  private:
    [[nodiscard]] wxString OnGetItemText(long item, long column) const override {
        if (item >= RowCount()) {
            return {};  // the temporary row of RowHeight
        }
        const std::string_view text = rows_->RowText(static_cast<std::int32_t>(item));
        return WxTextOfBytes(ColumnText(text, static_cast<int>(column)));
    }

    void OnSelected(wxListEvent& event) {
        const auto row = static_cast<std::int32_t>(event.GetIndex());
        if (quiet_ || row == selected_) {
            return;
        }
        selected_ = row;
        TellOfClick(row);
    }

    // The control may select a clicked row before it takes the focus (seen with Wine 8). Anything
    // else that selects a row, such as a screen reader, need not bring the focus at all.
    void TellOfClick(std::int32_t row) {
        if (HasFocus()) {
            Clicked(row);
            return;
        }
        GotFocus();
        Clicked(row);
        if (!wxGetMouseState().LeftIsDown()) {
            LostFocus();
        }
    }

    // A click with Ctrl or below the last row clears the selection. A list box keeps it.
    void OnDeselected(wxListEvent& /*event*/) {
        if (!quiet_) {
            CallAfter([this] {
                if (selected_ >= 0 && !IsSelected(selected_)) {
                    SelectQuietly(selected_);
                }
            });
        }
    }

    // A blank would open the entry, and so would Enter together with any modifier.
    void OnKeyDown(wxKeyEvent& event) {
        const int key = event.GetKeyCode();
        const bool enter = key == WXK_RETURN || key == WXK_NUMPAD_ENTER;
        const bool opens = (key == WXK_SPACE && !IsTyping()) || (enter && event.HasAnyModifiers());
        if (!opens) {
            event.Skip();
        }
    }

    void OnActivated(wxListEvent& /*event*/) { Entered(); }

    // The second column takes the width that the first leaves.
    void OnSize(wxSizeEvent& event) {
        SetColumnWidth(1, GetClientSize().x - GetColumnWidth(0));
        event.Skip();
    }

    const RowList* rows_ = nullptr;
    std::int32_t selected_ = -1;
    bool quiet_ = false;
};

}  // namespace

EntryListControl& CreateEntryListControl(wxWindow& parent, int expansionTextAt) {
    return *new EntryListControlMsw(parent, expansionTextAt);
}

}  // namespace brelex
