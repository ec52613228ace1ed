// SPDX-License-Identifier: MIT
#include "platform/acronym_list.h"

#include <algorithm>

#include <wx/dataview.h>
#include <wx/settings.h>

#include <gtk/gtk.h>

#include "database/record_text.h"
#include "ui/wx_text.h"

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
        value = WxTextOfBytes(column == 0 ? GetAbbreviation(text) : GetExpansion(text));
    }

    bool SetValueByRow(const wxVariant& /*value*/, unsigned /*row*/, unsigned /*column*/) override {
        return false;
    }

    [[nodiscard]] std::int32_t RowCount() const { return rows_ == nullptr ? 0 : rows_->RowCount(); }

  private:
    const RowList* rows_ = nullptr;
};

// A GtkTreeView over a virtual model. Positions come from its scroll position and the height of a
// row, as all rows have the same: what the toolkit derives itself is off by one for a row's first
// pixel, and its scrolling is animated and deferred (seen with GTK 3.24, wxWidgets 3.2.2).
class AcronymListGtk final : public wxDataViewCtrl, public AcronymList {
  public:
    AcronymListGtk(wxWindow& parent, const AcronymListColumns& columns)
        : wxDataViewCtrl(&parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                         wxDV_SINGLE | wxDV_NO_HEADER) {
        for (const unsigned column : {0U, 1U}) {
            AppendTextColumn(wxEmptyString, column, wxDATAVIEW_CELL_INERT)
                ->GetRenderer()
                ->EnableEllipsize(wxELLIPSIZE_END);
        }
        AssociateModel(model_.get());
        GtkTreeView* const view = TreeView();
        // Or else typing would open a search box over the list.
        gtk_tree_view_set_enable_search(view, FALSE);
        PlaceColumns(columns.expansionTextAt);
        // All rows are as high as the first, so that none but the visible ones are measured.
        gtk_tree_view_set_fixed_height_mode(view, TRUE);
        Bind(wxEVT_DATAVIEW_SELECTION_CHANGED, &AcronymListGtk::OnSelectionChanged, this);
        Bind(wxEVT_DATAVIEW_ITEM_ACTIVATED, &AcronymListGtk::OnActivated, this);
    }

    wxWindow& Window() override { return *this; }

    void SetRows(const RowList& rows) override {
        quiet_ = true;
        model_->SetRows(rows);
        selected_ = -1;
        quiet_ = false;
    }

    void Select(std::int32_t row) override {
        quiet_ = true;
        GtkTreePath* const path = gtk_tree_path_new_from_indices(row, -1);
        // The cursor too, so that the keys of the list go on from here.
        gtk_tree_view_set_cursor(TreeView(), path, nullptr, FALSE);
        gtk_tree_path_free(path);
        selected_ = row;
        quiet_ = false;
    }

    [[nodiscard]] std::int32_t SelectedRow() const override { return selected_; }

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
        GtkTreePath* const path = gtk_tree_path_new_first();
        GdkRectangle area;
        gtk_tree_view_get_background_area(TreeView(), path, nullptr, &area);
        gtk_tree_path_free(path);
        return std::max(1, area.height);
    }

    [[nodiscard]] std::int32_t RowAt(const wxPoint& point) const override {
        const std::int32_t row = (ScrollPosition() + point.y) / RowHeight();
        return point.y >= 0 && row < RowCount() ? row : -1;
    }

  protected:
    [[nodiscard]] std::int32_t RowCount() const override { return model_->RowCount(); }

  private:
    [[nodiscard]] GtkTreeView* TreeView() const {
        // The toolkit's accessor is not const; nothing is changed.
        auto* const self = const_cast<AcronymListGtk*>(this);  // NOLINT(*-const-cast)
        return GTK_TREE_VIEW(self->GtkGetTreeView());
    }

    [[nodiscard]] GtkAdjustment* Adjustment() const {
        return gtk_scrollable_get_vadjustment(GTK_SCROLLABLE(TreeView()));
    }

    [[nodiscard]] int ScrollPosition() const {
        return static_cast<int>(gtk_adjustment_get_value(Adjustment()));
    }

    // Fixed columns: the first ends where the second's text begins less the padding of a cell, the
    // second takes what is left.
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

    void OnSelectionChanged(wxDataViewEvent& event) {
        if (quiet_ || !event.GetItem().IsOk()) {
            return;
        }
        const auto row = static_cast<std::int32_t>(model_->GetRow(event.GetItem()));
        if (row == selected_) {
            return;
        }
        selected_ = row;
        if (onClick) {
            onClick();
        }
    }

    // A double-click or Enter; the latter with any modifier, which do not count here.
    void OnActivated(wxDataViewEvent& /*event*/) {
        GdkModifierType modifiers{};
        gtk_get_current_event_state(&modifiers);
        const bool plain = (static_cast<unsigned>(modifiers) &
                            (GDK_SHIFT_MASK | GDK_CONTROL_MASK | GDK_MOD1_MASK)) == 0;
        if (plain && selected_ >= 0 && onEnter) {
            onEnter();
        }
    }

    wxObjectDataPtr<RowModel> model_{new RowModel};
    std::int32_t selected_ = -1;
    bool quiet_ = false;
};

}  // namespace

AcronymList& CreateAcronymList(wxWindow& parent, const AcronymListColumns& columns) {
    return *new AcronymListGtk(parent, columns);
}

}  // namespace brelex
