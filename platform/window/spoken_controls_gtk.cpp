// SPDX-License-Identifier: MIT
#include "platform/window/spoken_controls.h"

#include <vector>

#include <wx/stattext.h>
#include <wx/toolbar.h>
#include <wx/treectrl.h>

#include <gtk/gtk.h>

#include "platform/window/spoken_object.h"

namespace brelex {

namespace {

void NameByTip(GtkWidget* widget, gpointer /*data*/) {
    AtkObject* const object = gtk_widget_get_accessible(widget);
    const char* const name = atk_object_get_name(object);
    char* const tip = gtk_widget_get_tooltip_text(widget);
    if (GTK_IS_BUTTON(widget) && tip != nullptr && (name == nullptr || *name == '\0')) {
        atk_object_set_name(object, tip);
    }
    g_free(tip);
    if (GTK_IS_CONTAINER(widget)) {
        gtk_container_forall(GTK_CONTAINER(widget), &NameByTip, nullptr);
    }
}

// The items that can be seen when the tree is scrolled, in their order.
void AddItems(wxTreeCtrl& tree, const wxTreeItemId& parent, int level,
              std::vector<SpokenObject>& items) {
    wxTreeItemIdValue cookie = nullptr;
    for (wxTreeItemId item = tree.GetFirstChild(parent, cookie); item.IsOk();
         item = tree.GetNextChild(parent, cookie)) {
        items.push_back({.role = SpokenRole::TreeItem,
                         .name = tree.GetItemText(item),
                         .level = level,
                         .isCurrent = tree.IsSelected(item),
                         .act = [&tree, item] { tree.SelectItem(item); },
                         .place =
                             [&tree, item] {
                                 wxRect place;
                                 tree.GetBoundingRect(item, place);
                                 return place;
                             }});
        if (tree.IsExpanded(item)) {
            AddItems(tree, item, level + 1, items);
        }
    }
}

enum class Current {
    Selected,
    None
};

void DescribeTree(wxTreeCtrl& tree, Current current) {
    std::vector<SpokenObject> items;
    if (tree.GetRootItem().IsOk()) {
        AddItems(tree, tree.GetRootItem(), 1, items);
    }
    for (SpokenObject& item : items) {
        item.isCurrent = item.isCurrent && current == Current::Selected;
    }
    SetSpokenObject(tree, {.role = SpokenRole::Tree, .name = "Contents"}, std::move(items));
}

}  // namespace

void NameToolsByTips(wxToolBar& toolBar) {
    NameByTip(toolBar.GetHandle(), nullptr);
}

// An object of our own knows nothing of the label's text. GTK tells of each text, three times.
void SpeakOnlyName(wxStaticText& label, const wxString& name) {
    SetSpokenObject(label, {.role = SpokenRole::Text, .name = name});
}

void SpeakTree(wxTreeCtrl& tree) {
    for (const wxEventTypeTag<wxTreeEvent>& type :
         {wxEVT_TREE_SEL_CHANGED, wxEVT_TREE_ITEM_EXPANDED, wxEVT_TREE_ITEM_COLLAPSED}) {
        tree.Bind(type, [&tree](wxTreeEvent& event) {
            event.Skip();
            tree.CallAfter([&tree] { DescribeTree(tree, Current::Selected); });
        });
    }
    // A reader then hears of the item that has the focus, as if it were just selected.
    tree.Bind(wxEVT_SET_FOCUS, [&tree](wxFocusEvent& event) {
        event.Skip();
        DescribeTree(tree, Current::None);
        tree.CallAfter([&tree] { DescribeTree(tree, Current::Selected); });
    });
    DescribeTree(tree, Current::Selected);
}

}  // namespace brelex
