// SPDX-License-Identifier: MIT
#include "platform/list/entry_list_control.h"

#include <algorithm>
#include <array>

#include <wx/dataview.h>
#include <wx/settings.h>

#include <gtk/gtk.h>

#include "database/record_text.h"
#include "toolkit/wx_text.h"

namespace brelex {

namespace {

class RowModel final : public wxDataViewVirtualListModel {
  public:
    void SetRows(const RowList& rows) {
        rows_ = &rows;
        Reset(static_cast<unsigned>(rows.RowCount()));
    }

    void GetValueByRow(wxVariant& value, unsigned row, unsigned column) const override {
        const std::string_view text = rows_->RowText(static_cast<std::int32_t>(row));
        value = WxTextOfBytes(ColumnText(text, static_cast<int>(column)));
    }

    bool SetValueByRow(const wxVariant& /*value*/, unsigned /*row*/, unsigned /*column*/) override {
        return false;
    }

    bool GetAttrByRow(unsigned /*row*/, unsigned /*column*/,
                      wxDataViewItemAttr& attributes) const override {
        attributes.SetColour(colour);
        return colour.IsOk();
    }

    [[nodiscard]] const RowList* Rows() const { return rows_; }

    wxColour colour;  // the theme's color if not set

  private:
    const RowList* rows_ = nullptr;
};

// The event that the toolkit is handling, if any.
class CurrentEvent {
  public:
    CurrentEvent() : event_(gtk_get_current_event()) {}

    CurrentEvent(const CurrentEvent&) = delete;
    CurrentEvent& operator=(const CurrentEvent&) = delete;

    ~CurrentEvent() {
        if (event_ != nullptr) {
            gdk_event_free(event_);
        }
    }

    [[nodiscard]] bool Is(GdkEventType type) const {
        return event_ != nullptr && event_->type == type;
    }

    [[nodiscard]] const GdkEvent* Get() const { return event_; }

  private:
    GdkEvent* event_;
};

// A GtkTreeView over a virtual model. Positions are computed from its scroll position and the
// height of a row, because all rows have the same height. The toolkit's own result is off by one
// for a row's first pixel, and its scrolling is animated and deferred (seen with GTK 3.24,
// wxWidgets 3.2.2).
class EntryListControlGtk final : public wxDataViewCtrl, public EntryListControl {
  public:
    EntryListControlGtk(wxWindow& parent, int expansionTextAt)
        : wxDataViewCtrl(&parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                         wxDV_SINGLE | wxDV_NO_HEADER) {
        // Only screen readers tell the titles.
        const std::array<const char*, 2> titles = {"Abbreviation", "Expansion"};
        for (const unsigned column : {0U, 1U}) {
            AppendTextColumn(titles.at(column), column, wxDATAVIEW_CELL_INERT)
                ->GetRenderer()
                ->EnableEllipsize(wxELLIPSIZE_END);
        }
        AssociateModel(model_.get());
        GtkTreeView* const view = TreeView();
        // Otherwise typing would open a search box over the list. So would Ctrl+F, for which a
        // column to search is enough.
        gtk_tree_view_set_enable_search(view, FALSE);
        gtk_tree_view_set_search_column(view, -1);
        PlaceColumns(expansionTextAt);
        // All rows have the height of the first, so GTK measures only the visible ones.
        gtk_tree_view_set_fixed_height_mode(view, TRUE);
        Bind(wxEVT_DATAVIEW_SELECTION_CHANGED, &EntryListControlGtk::OnSelectionChanged, this);
        Bind(wxEVT_DATAVIEW_ITEM_ACTIVATED, &EntryListControlGtk::OnActivated, this);
        // This runs before the toolkit's own handling, which selects a row even for a press below
        // the last one.
        g_signal_connect(view, "event", G_CALLBACK(&EntryListControlGtk::OnEvent), this);
        Bind(wxEVT_CONTEXT_MENU, [this](wxContextMenuEvent& event) { OnContextMenu(event); });
        Bind(wxEVT_CHAR, &EntryListControlGtk::OnChar, this);
        WatchFocus();
    }

    wxWindow& Window() override { return *this; }

    void SetRows(const RowList& rows) override {
        quiet_ = true;
        model_->SetRows(rows);
        selected_ = -1;
        quiet_ = false;
    }

    void SetTextColour(const wxColour& colour) override {
        // A selected row uses the colors of a selection only if no text color is set.
        const bool usual = colour == wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT);
        model_->colour = usual ? wxColour() : colour;
        Refresh();
    }

    [[nodiscard]] wxColour TextColour() const override {
        return model_->colour.IsOk() ? model_->colour
                                     : wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT);
    }

    [[nodiscard]] std::int32_t SelectedRow() const override { return selected_; }

    [[nodiscard]] bool IsHighlighted(std::int32_t row) const override {
        return IsSelected(model_->GetItem(static_cast<unsigned>(row)));
    }

    void SetTopRow(std::int32_t row) override {
        gtk_adjustment_set_value(Adjustment(), static_cast<double>(row) * RowHeight());
    }

    [[nodiscard]] std::int32_t TopRow() const override {
        const int height = RowHeight();
        return (ScrollPosition() + height - 1) / height;
    }

    [[nodiscard]] std::int32_t RowsPerPage() const override {
        return static_cast<std::int32_t>(gtk_adjustment_get_page_size(Adjustment())) / RowHeight();
    }

    [[nodiscard]] int RowHeight() const override {
        if (gtk_widget_get_realized(GTK_WIDGET(TreeView())) == FALSE) {
            return HeightOfCells();  // the tree view does not know its height yet
        }
        GtkTreePath* const path = gtk_tree_path_new_first();
        GdkRectangle area;
        gtk_tree_view_get_background_area(TreeView(), path, nullptr, &area);
        gtk_tree_path_free(path);
        return std::max(1, area.height);
    }

    [[nodiscard]] int HeightOfRows(int rows) const override {
        GtkStyleContext* const style = gtk_widget_get_style_context(m_widget);
        GtkBorder border;
        GtkBorder padding;
        gtk_style_context_get_border(style, gtk_style_context_get_state(style), &border);
        gtk_style_context_get_padding(style, gtk_style_context_get_state(style), &padding);
        return rows * RowHeight() + border.top + border.bottom + padding.top + padding.bottom;
    }

    [[nodiscard]] wxRect RowRect(std::int32_t row) const override {
        const int height = RowHeight();
        return {0, row * height - ScrollPosition(), GetClientSize().x, height};
    }

    [[nodiscard]] std::int32_t RowAt(const wxPoint& point) const override {
        const std::int32_t row = (ScrollPosition() + point.y) / RowHeight();
        return point.y >= 0 && row < RowCount() ? row : -1;
    }

  protected:
    void SelectQuietly(std::int32_t row) override {
        quiet_ = true;
        const double position = gtk_adjustment_get_value(Adjustment());
        GtkTreePath* const path = gtk_tree_path_new_from_indices(row, -1);
        // The cursor moves, too, so that the keys of the list continue from here.
        gtk_tree_view_set_cursor(TreeView(), path, nullptr, FALSE);
        gtk_tree_path_free(path);
        // Setting the cursor starts a scroll to it. This cancels that scroll.
        gtk_adjustment_set_value(Adjustment(), position);
        selected_ = row;
        quiet_ = false;
    }

    [[nodiscard]] const RowList* Rows() const override { return model_->Rows(); }

    void SetBottomRow(std::int32_t row) override {
        gtk_adjustment_set_value(Adjustment(), static_cast<double>(row + 1) * RowHeight() -
                                                   gtk_adjustment_get_page_size(Adjustment()));
    }

  private:
    [[nodiscard]] GtkTreeView* TreeView() const {
        // The toolkit's accessor is not const; nothing is changed.
        auto* const self = const_cast<EntryListControlGtk*>(this);  // NOLINT(*-const-cast)
        return GTK_TREE_VIEW(self->GtkGetTreeView());
    }

    [[nodiscard]] GtkAdjustment* Adjustment() const {
        return gtk_scrollable_get_vadjustment(GTK_SCROLLABLE(TreeView()));
    }

    [[nodiscard]] int ScrollPosition() const {
        return static_cast<int>(gtk_adjustment_get_value(Adjustment()));
    }

    // The height that the tree view will give its cells.
    [[nodiscard]] int HeightOfCells() const {
        int highest = 1;
        for (const int column : {0, 1}) {
            GList* const cells = gtk_cell_layout_get_cells(
                GTK_CELL_LAYOUT(gtk_tree_view_get_column(TreeView(), column)));
            for (const GList* cell = cells; cell != nullptr; cell = cell->next) {
                int height = 0;
                gtk_cell_renderer_get_preferred_height(GTK_CELL_RENDERER(cell->data),
                                                       GTK_WIDGET(TreeView()), nullptr, &height);
                highest = std::max(highest, height);
            }
            g_list_free(cells);
        }
        int separator = 0;
        gtk_widget_style_get(GTK_WIDGET(TreeView()), "vertical-separator", &separator, nullptr);
        return highest + separator;
    }

    // The columns have fixed widths. The first ends where the text of the second begins, less the
    // padding of a cell. The second takes the rest.
    void PlaceColumns(int textAt) {
        GtkTreeViewColumn* const first = gtk_tree_view_get_column(TreeView(), 0);
        GtkTreeViewColumn* const second = gtk_tree_view_get_column(TreeView(), 1);
        GList* const cells = gtk_cell_layout_get_cells(GTK_CELL_LAYOUT(second));
        int padding = 0;
        for (const GList* cell = cells; cell != nullptr; cell = cell->next) {
            gtk_cell_renderer_get_padding(GTK_CELL_RENDERER(cell->data), &padding, nullptr);
        }
        g_list_free(cells);
        int separator = 0;
        gtk_widget_style_get(GTK_WIDGET(TreeView()), "horizontal-separator", &separator, nullptr);
        for (GtkTreeViewColumn* column : {first, second}) {
            gtk_tree_view_column_set_sizing(column, GTK_TREE_VIEW_COLUMN_FIXED);
        }
        constexpr int kListEdge = 1;
        const int width = textAt - kListEdge - padding - separator / 2;
        gtk_tree_view_column_set_fixed_width(first, std::max(1, width));
        gtk_tree_view_column_set_expand(second, TRUE);
    }

    static gboolean OnEvent(GtkWidget* /*view*/, GdkEvent* event, EntryListControlGtk* self) {
        const bool right = event->type == GDK_BUTTON_PRESS &&
                           event->button.button == GDK_BUTTON_SECONDARY &&
                           event->button.window == gtk_tree_view_get_bin_window(self->TreeView());
        if (right) {
            self->RightPressed();
        }
        return right ? TRUE : FALSE;
    }

    // A blank that continues a typed text must not reach the tree view, which treats it as a key.
    void OnChar(wxKeyEvent& event) {
        if (event.GetKeyCode() == WXK_SPACE && !IsTyping()) {
            event.Skip();
        } else {
            OnCharacter(event);
        }
    }

    void OnSelectionChanged(wxDataViewEvent& event) {
        if (quiet_) {
            return;
        }
        if (!event.GetItem().IsOk() || !IsListUsed()) {
            CallAfter(&EntryListControlGtk::KeepSelection);  // once the toolkit is done
            return;
        }
        const auto row = static_cast<std::int32_t>(model_->GetRow(event.GetItem()));
        if (row == selected_) {
            return;
        }
        selected_ = row;
        TellOfClick(row);
    }

    // GTK selects a clicked row before it gives the list the focus. Anything else that selects a
    // row, such as a screen reader, need not bring the focus at all.
    void TellOfClick(std::int32_t row) {
        if (HasFocus()) {
            Clicked(row);
            return;
        }
        GotFocus();
        Clicked(row);
        if (!CurrentEvent().Is(GDK_BUTTON_PRESS)) {
            LostFocus();
        }
    }

    // Whether the selection changes because somebody clicked or pressed a key in the list. GTK also
    // selects the first row when the list merely gets the focus.
    [[nodiscard]] bool IsListUsed() const {
        const CurrentEvent event;
        if (event.Is(GDK_BUTTON_PRESS) || event.Is(GDK_BUTTON_RELEASE)) {
            return event.Get()->button.window == gtk_tree_view_get_bin_window(TreeView());
        }
        if (event.Is(GDK_KEY_PRESS)) {
            const guint key = event.Get()->key.keyval;
            return HasFocus() && key != GDK_KEY_Tab && key != GDK_KEY_ISO_Left_Tab;
        }
        return !event.Is(GDK_FOCUS_CHANGE);
    }

    // Undoes the toolkit's change of the selection. A click with Ctrl, for example, clears it.
    void KeepSelection() {
        if (selected_ >= 0) {
            SelectQuietly(selected_);
            return;
        }
        quiet_ = true;
        UnselectAll();
        quiet_ = false;
    }

    // A double-click or a key. The tree view accepts more keys than the list does: a blank, and
    // Enter together with any modifier.
    void OnActivated(wxDataViewEvent& /*event*/) {
        const CurrentEvent event;
        if (event.Is(GDK_KEY_PRESS)) {
            constexpr unsigned kModifiers = GDK_SHIFT_MASK | GDK_CONTROL_MASK | GDK_MOD1_MASK;
            const GdkEventKey& key = event.Get()->key;
            const bool enter = key.keyval == GDK_KEY_Return || key.keyval == GDK_KEY_KP_Enter ||
                               key.keyval == GDK_KEY_ISO_Enter;
            if (!enter || (key.state & kModifiers) != 0) {
                return;
            }
        }
        Entered();
    }

    wxObjectDataPtr<RowModel> model_{new RowModel};
    std::int32_t selected_ = -1;
    bool quiet_ = false;
};

}  // namespace

EntryListControl& CreateEntryListControl(wxWindow& parent, int expansionTextAt) {
    return *new EntryListControlGtk(parent, expansionTextAt);
}

}  // namespace brelex
