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
        case SpokenRole::Section:
            return ATK_ROLE_SECTION;
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

// Readers that still hold a part learn that it is gone.
void Detach(AtkObject* part) {
    SpokenNode& node = NodeOf(part);
    for (AtkObject* const inner : std::exchange(node.parts, {})) {
        Detach(inner);
        g_object_unref(inner);
    }
    node.window = nullptr;
    node.whole = nullptr;
    node.object.act = nullptr;
}

void LetPartsGo(AtkObject* whole) {
    const std::vector<AtkObject*> parts = std::exchange(NodeOf(whole).parts, {});
    for (std::size_t i = parts.size(); i > 0; --i) {
        AtkObject* const part = parts[i - 1];
        Detach(part);
        g_signal_emit_by_name(whole, "children-changed::remove", static_cast<guint>(i - 1), part);
        atk_object_notify_state_change(part, ATK_STATE_DEFUNCT, TRUE);
        g_object_unref(part);
    }
}

AtkObject* NewPart(AtkObject* holder, const SpokenObject& description) {
    SpokenNode& node = NodeOf(holder);
    auto* const part = ATK_OBJECT(g_object_new(SpokenType(description.role, true), nullptr));
    SetNode(part,
            {.window = node.window, .whole = holder, .index = static_cast<int>(node.parts.size())});
    Fill(part, description);
    node.parts.push_back(part);
    return part;
}

void TellOfPart(AtkObject* part) {
    const SpokenNode& node = NodeOf(part);
    g_signal_emit_by_name(node.whole, "children-changed::add", static_cast<guint>(node.index),
                          part);
}

// A page has a hundred parts. They come and go as one, or else a reader would be busy for seconds
// with what it is told.
void AddParts(AtkObject* whole, const std::vector<SpokenObject>& descriptions) {
    if (NodeOf(whole).object.role == SpokenRole::Page && !descriptions.empty()) {
        AtkObject* const section = NewPart(whole, {.role = SpokenRole::Section});
        for (const SpokenObject& description : descriptions) {
            NewPart(section, description);
        }
        TellOfPart(section);
        return;
    }
    for (const SpokenObject& description : descriptions) {
        TellOfPart(NewPart(whole, description));
    }
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

// The object takes the place of the one that plain windows and labels have from the toolkit. The
// classes of their widgets all get that from GtkWidget.
AtkObject* NewWhole(wxWindow& window, GtkWidget* widget, SpokenRole role) {
    GtkWidgetClass* const klass = GTK_WIDGET_GET_CLASS(widget);
    if (klass->get_accessible != &OwnOrUsualObject) {
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
    AddParts(object, parts);
}

void MakeSpokenPanel(wxWindow& area) {
    atk_object_set_role(gtk_widget_get_accessible(area.GetHandle()), ATK_ROLE_PANEL);
}

void MakeSpokenDialog(wxTopLevelWindow& window) {
    atk_object_set_role(gtk_widget_get_accessible(window.GetHandle()), ATK_ROLE_DIALOG);
}

}  // namespace brelex
