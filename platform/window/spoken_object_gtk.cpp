// SPDX-License-Identifier: MIT
#include "platform/window/spoken_object.h"

#include <cstddef>
#include <utility>

#include <wx/toplevel.h>

#include <gtk/gtk.h>

#include "platform/window/spoken_node_gtk.h"
#include "platform/window/spoken_widget_gtk.h"

namespace brelex {

namespace {

AtkRole AtkRoleOf(SpokenRole role) {
    switch (role) {
        case SpokenRole::Button:
            return ATK_ROLE_PUSH_BUTTON;
        case SpokenRole::Image:
            return ATK_ROLE_IMAGE;
        case SpokenRole::Link:
            return ATK_ROLE_LINK;
        case SpokenRole::Page:
            return ATK_ROLE_DOCUMENT_TEXT;
        case SpokenRole::ProgressBar:
            return ATK_ROLE_PROGRESS_BAR;
        case SpokenRole::ToolBar:
            return ATK_ROLE_TOOL_BAR;
        case SpokenRole::Tree:
            return ATK_ROLE_TREE;
        case SpokenRole::TreeItem:
            return ATK_ROLE_TREE_ITEM;
        default:
            return ATK_ROLE_LABEL;  // readers say the labels of a dialog when it opens
    }
}

// The object changes to what its node says. The layer tells readers of what differs.
void Fill(AtkObject* object, SpokenObject description) {
    SpokenNode& node = NodeOf(object);
    const SpokenObject before = std::exchange(node.object, std::move(description));
    const SpokenObject& now = node.object;
    node.text = (now.text.empty() ? now.name : now.text).utf8_string();
    atk_object_set_role(object, AtkRoleOf(now.role));
    atk_object_set_name(object, now.name.utf8_str());
    atk_object_set_description(object, now.description.utf8_str());
    if (now.percent != before.percent) {
        g_object_notify(G_OBJECT(object), "accessible-value");
    }
    if (now.isCurrent != before.isCurrent) {
        atk_object_notify_state_change(object, ATK_STATE_SELECTED, now.isCurrent ? TRUE : FALSE);
    }
    if (now.isCurrent && !before.isCurrent && node.whole != nullptr) {
        g_signal_emit_by_name(node.whole, "active-descendant-changed", object);
    }
}

void LetPartsGo(AtkObject* whole) {
    SpokenNode& node = NodeOf(whole);
    const std::vector<AtkObject*> parts = std::exchange(node.parts, {});
    for (std::size_t i = parts.size(); i > 0; --i) {
        AtkObject* const part = parts[i - 1];
        NodeOf(part).window = nullptr;
        NodeOf(part).whole = nullptr;
        NodeOf(part).object.act = nullptr;
        g_signal_emit_by_name(whole, "children-changed::remove", static_cast<guint>(i - 1), part);
        atk_object_notify_state_change(part, ATK_STATE_DEFUNCT, TRUE);
        g_object_unref(part);
    }
}

void AddPart(AtkObject* whole, const SpokenObject& description) {
    SpokenNode& node = NodeOf(whole);
    auto* const part = ATK_OBJECT(g_object_new(SpokenType(description.role, true), nullptr));
    const auto index = static_cast<int>(node.parts.size());
    SetNode(part, {.window = node.window, .whole = whole, .index = index});
    node.parts.push_back(part);
    Fill(part, description);
    g_signal_emit_by_name(whole, "children-changed::add", static_cast<guint>(index), part);
}

bool HaveSameRoles(const std::vector<AtkObject*>& parts,
                   const std::vector<SpokenObject>& descriptions) {
    bool same = parts.size() == descriptions.size();
    for (std::size_t i = 0; same && i < parts.size(); ++i) {
        same = NodeOf(parts[i]).object.role == descriptions[i].role;
    }
    return same;
}

constexpr const char* kOwnObject = "brelex-spoken-object";

AtkObject* (*usualObject)(GtkWidget*) = nullptr;

AtkObject* OwnOrUsualObject(GtkWidget* widget) {
    auto* const own = static_cast<AtkObject*>(g_object_get_data(G_OBJECT(widget), kOwnObject));
    return own != nullptr ? own : usualObject(widget);
}

void OnWidgetDestroyed(GtkWidget* /*widget*/, gpointer object) {
    LetPartsGo(ATK_OBJECT(object));
    NodeOf(object).window = nullptr;
    NodeOf(object).object.act = nullptr;
    gtk_accessible_set_widget(GTK_ACCESSIBLE(object), nullptr);
}

// The object takes the place of the one that the widgets of plain windows have from the toolkit.
// Their class is the toolkit's own, so no other widgets are asked here.
AtkObject* NewWhole(wxWindow& window, GtkWidget* widget, SpokenRole role) {
    GtkWidgetClass* const klass = GTK_WIDGET_GET_CLASS(widget);
    if (usualObject == nullptr) {
        usualObject = std::exchange(klass->get_accessible, &OwnOrUsualObject);
    }
    auto* const object =
        ATK_OBJECT(g_object_new(SpokenType(role, false), "widget", widget, nullptr));
    SetNode(object, {.window = &window});
    atk_object_initialize(object, widget);
    g_object_set_data_full(G_OBJECT(widget), kOwnObject, object, &g_object_unref);
    g_signal_connect_object(widget, "destroy", G_CALLBACK(&OnWidgetDestroyed), object,
                            static_cast<GConnectFlags>(0));
    return object;
}

}  // namespace

void SetSpokenObject(wxWindow& window, SpokenObject whole, std::vector<SpokenObject> parts) {
    GtkWidget* const widget = FocusableWidget(window);
    auto* object = static_cast<AtkObject*>(g_object_get_data(G_OBJECT(widget), kOwnObject));
    if (object == nullptr) {
        object = NewWhole(window, widget, whole.role);
    }
    Fill(object, std::move(whole));
    if (HaveSameRoles(NodeOf(object).parts, parts)) {
        for (std::size_t i = 0; i < parts.size(); ++i) {
            Fill(NodeOf(object).parts[i], std::move(parts[i]));
        }
        return;
    }
    LetPartsGo(object);
    for (const SpokenObject& part : parts) {
        AddPart(object, part);
    }
}

void MakeSpokenPanel(wxWindow& area) {
    atk_object_set_role(gtk_widget_get_accessible(area.GetHandle()), ATK_ROLE_PANEL);
}

void MakeSpokenDialog(wxTopLevelWindow& window) {
    atk_object_set_role(gtk_widget_get_accessible(window.GetHandle()), ATK_ROLE_DIALOG);
}

}  // namespace brelex
