// SPDX-License-Identifier: MIT
// The objects of the toolkit's accessibility layer, which it hands on to AT-SPI as they are.
#include "tests/platform/accessible_tree.h"

#include <algorithm>
#include <array>
#include <utility>

#include <wx/toplevel.h>

#include <gtk/gtk.h>

namespace brelex {

namespace {

constexpr int kMostCells = 8;
constexpr int kMostParts = 20;  // of a page

using StateName = std::pair<AtkStateType, const char*>;

constexpr std::array<StateName, 9> kStates = {{
    {ATK_STATE_FOCUSABLE, "focusable"},
    {ATK_STATE_FOCUSED, "focused"},
    {ATK_STATE_CHECKED, "checked"},
    {ATK_STATE_SELECTED, "selected"},
    {ATK_STATE_EXPANDED, "expanded"},
    {ATK_STATE_EDITABLE, "editable"},
    {ATK_STATE_DEFAULT, "default"},
    {ATK_STATE_MODAL, "modal"},
    {ATK_STATE_HAS_POPUP, "pops up"},
}};

std::string Text(const char* text) {
    return text == nullptr ? "" : text;
}

// Takes over the text of the toolkit.
std::string TakenText(char* text) {
    std::string taken = Text(text);
    g_free(text);
    return taken;
}

// Where the toolkit breaks the lines of a label depends on the font.
std::string OneLine(std::string text) {
    std::replace(text.begin(), text.end(), '\n', ' ');
    return text;
}

class States {
  public:
    explicit States(AtkObject* object) : set_(atk_object_ref_state_set(object)) {}

    States(const States&) = delete;
    States& operator=(const States&) = delete;

    ~States() { g_object_unref(set_); }

    [[nodiscard]] bool Has(AtkStateType state) const {
        return atk_state_set_contains_state(set_, state) != FALSE;
    }

  private:
    AtkStateSet* set_;
};

bool IsOfMenu(AtkRole role) {
    return role == ATK_ROLE_MENU || role == ATK_ROLE_MENU_ITEM ||
           role == ATK_ROLE_CHECK_MENU_ITEM || role == ATK_ROLE_SEPARATOR;
}

// Without a name they mean nothing to a reader.
bool OnlyHolds(AtkRole role) {
    constexpr std::array<AtkRole, 7> kHolders = {
        ATK_ROLE_PANEL,      ATK_ROLE_FILLER,  ATK_ROLE_SCROLL_PANE, ATK_ROLE_VIEWPORT,
        ATK_ROLE_SPLIT_PANE, ATK_ROLE_UNKNOWN, ATK_ROLE_SECTION};
    return std::find(kHolders.begin(), kHolders.end(), role) != kHolders.end();
}

std::vector<std::string> StatesOf(AtkRole role, const States& states) {
    std::vector<std::string> names;
    for (const auto& [state, name] : kStates) {
        if (states.Has(state)) {
            names.emplace_back(name);
        }
    }
    // The toolkit calls each label one of several lines.
    if (role == ATK_ROLE_TEXT && states.Has(ATK_STATE_MULTI_LINE)) {
        names.emplace_back("multi-line");
    }
    if (!states.Has(ATK_STATE_SENSITIVE)) {
        names.emplace_back("disabled");
    }
    return names;
}

std::vector<std::string> ActionsOf(AtkObject* object) {
    std::vector<std::string> actions;
    if (ATK_IS_ACTION(object)) {
        for (int i = 0; i < atk_action_get_n_actions(ATK_ACTION(object)); ++i) {
            actions.push_back(Text(atk_action_get_name(ATK_ACTION(object), i)));
        }
    }
    return actions;
}

std::string AddressOf(AtkObject* object) {
    std::string address;
    if (ATK_IS_HYPERLINK_IMPL(object)) {
        AtkHyperlink* const link = atk_hyperlink_impl_get_hyperlink(ATK_HYPERLINK_IMPL(object));
        address = TakenText(atk_hyperlink_get_uri(link, 0));
        g_object_unref(link);
    }
    return address;
}

std::string ValueOf(AtkObject* object) {
    if (!ATK_IS_VALUE(object) || atk_object_get_role(object) != ATK_ROLE_PROGRESS_BAR) {
        return AddressOf(object);
    }
    double value = 0;
    char* text = nullptr;
    atk_value_get_value_and_text(ATK_VALUE(object), &value, &text);
    g_free(text);
    return std::to_string(static_cast<int>(value));
}

// The names of the objects that label this one.
std::vector<std::string> LabelsOf(AtkObject* object) {
    std::vector<std::string> labels;
    AtkRelationSet* const relations = atk_object_ref_relation_set(object);
    for (int i = 0; i < atk_relation_set_get_n_relations(relations); ++i) {
        AtkRelation* const relation = atk_relation_set_get_relation(relations, i);
        // A group of radio buttons has an empty one.
        if (relation == nullptr ||
            atk_relation_get_relation_type(relation) != ATK_RELATION_LABELLED_BY) {
            continue;
        }
        const GPtrArray* const targets = atk_relation_get_target(relation);
        for (guint target = 0; target < targets->len; ++target) {
            labels.push_back(
                Text(atk_object_get_name(ATK_OBJECT(g_ptr_array_index(targets, target)))));
        }
    }
    g_object_unref(relations);
    return labels;
}

// Tables tell the texts of their columns at the side.
std::string HeadersOf(AtkObject* object) {
    std::string headers;
    if (atk_object_get_role(object) == ATK_ROLE_TREE_TABLE ||
        atk_object_get_role(object) == ATK_ROLE_TABLE) {
        for (int i = 0; i < atk_table_get_n_columns(ATK_TABLE(object)); ++i) {
            AtkObject* const header = atk_table_get_column_header(ATK_TABLE(object), i);
            headers += (i == 0 ? "" : ", ") +
                       (header == nullptr ? "(none)" : Text(atk_object_get_name(header)));
        }
    }
    return headers;
}

AccessibleObject Described(AtkObject* object, int depth, const States& states) {
    AccessibleObject described;
    described.depth = depth;
    described.role = atk_role_get_name(atk_object_get_role(object));
    described.name = Text(atk_object_get_name(object));
    described.description = Text(atk_object_get_description(object));
    described.value = ValueOf(object);
    if (ATK_IS_TEXT(object)) {
        described.text = TakenText(atk_text_get_text(ATK_TEXT(object), 0, -1));
    }
    if (atk_object_get_role(object) == ATK_ROLE_LABEL) {
        described.text = OneLine(described.text);
    }
    if (OneLine(described.text) == OneLine(described.name)) {
        described.text.clear();
    }
    described.states = StatesOf(atk_object_get_role(object), states);
    for (const std::string& label : LabelsOf(object)) {
        described.states.push_back("labelled by \"" + label + "\"");
    }
    if (const std::string headers = HeadersOf(object); !headers.empty()) {
        described.states.push_back("columns " + headers);
    }
    described.actions = ActionsOf(object);
    return described;
}

// Calls visit(object, depth, states) for what a reader gets; it returns false to end the walk.
template <typename Visit>
bool Walk(AtkObject* object, int depth, const Visit& visit) {
    const States states(object);
    const AtkRole role = atk_object_get_role(object);
    if ((!states.Has(ATK_STATE_SHOWING) && !IsOfMenu(role)) || role == ATK_ROLE_SCROLL_BAR ||
        role == ATK_ROLE_REDUNDANT_OBJECT) {
        return true;
    }
    const bool isLeftOut = OnlyHolds(role) && Text(atk_object_get_name(object)).empty() &&
                           !states.Has(ATK_STATE_FOCUSED);
    if (!isLeftOut && !visit(object, depth, states)) {
        return false;
    }
    const int count = atk_object_get_n_accessible_children(object);
    const int most = ATK_IS_TABLE(object)       ? kMostCells
                     : role == ATK_ROLE_SECTION ? kMostParts
                                                : count;
    for (int i = 0; i < std::min(count, most); ++i) {
        AtkObject* const child = atk_object_ref_accessible_child(object, i);
        if (child == nullptr) {
            continue;
        }
        const bool goesOn = Walk(child, isLeftOut ? depth : depth + 1, visit);
        g_object_unref(child);
        if (!goesOn) {
            return false;
        }
    }
    return true;
}

AtkObject* ObjectOf(wxTopLevelWindow& window) {
    return gtk_widget_get_accessible(GTK_WIDGET(window.GetHandle()));
}

}  // namespace

std::vector<AccessibleObject> AccessibleObjectsOf(wxTopLevelWindow& window) {
    std::vector<AccessibleObject> objects;
    Walk(ObjectOf(window), 0, [&](AtkObject* object, int depth, const States& states) {
        objects.push_back(Described(object, depth, states));
        return true;
    });
    return objects;
}

bool DoAccessibleAction(wxTopLevelWindow& window, const std::string& role,
                        const std::string& name) {
    bool done = false;
    Walk(ObjectOf(window), 0, [&](AtkObject* object, int /*depth*/, const States& /*states*/) {
        if (atk_role_get_name(atk_object_get_role(object)) != role ||
            Text(atk_object_get_name(object)) != name) {
            return true;
        }
        done = ATK_IS_ACTION(object) && atk_action_do_action(ATK_ACTION(object), 0) != FALSE;
        return false;
    });
    return done;
}

}  // namespace brelex
