// SPDX-License-Identifier: MIT
// The types of objects. A reader takes an object for what its interfaces are, so each kind has a
// type of its own.
#include "platform/window/spoken_node_gtk.h"

#include <array>
#include <map>
#include <utility>

#include <wx/window.h>

#include <gtk/gtk-a11y.h>
#include <gtk/gtk.h>

#include "platform/window/spoken_text_gtk.h"

namespace brelex {

namespace {

GQuark NodeQuark() {
    return g_quark_from_static_string("brelex-spoken-node");
}

void DeleteNode(gpointer data) {
    auto* const node = static_cast<SpokenNode*>(data);
    for (AtkObject* part : node->parts) {
        g_object_unref(part);
    }
    if (node->address != nullptr) {
        g_object_unref(node->address);
    }
    delete node;
}

// --- The address of a link.

char* GetAddress(AtkHyperlink* link, int /*anchor*/) {
    const auto* const address =
        static_cast<const char*>(g_object_get_data(G_OBJECT(link), "address"));
    return g_strdup(address);
}

AtkObject* GetLinkObject(AtkHyperlink* link, int /*anchor*/) {
    return static_cast<AtkObject*>(g_object_get_data(G_OBJECT(link), "object"));
}

int GetAnchorCount(AtkHyperlink* /*link*/) {
    return 1;
}

gboolean IsLinkValid(AtkHyperlink* /*link*/) {
    return TRUE;
}

int GetLinkStart(AtkHyperlink* /*link*/) {
    return 0;
}

int GetLinkEnd(AtkHyperlink* link) {
    return static_cast<int>(NodeOf(GetLinkObject(link, 0)).object.name.length());
}

void InitAddressClass(gpointer klass, gpointer /*data*/) {
    auto* const link = ATK_HYPERLINK_CLASS(klass);
    link->get_uri = &GetAddress;
    link->get_object = &GetLinkObject;
    link->get_n_anchors = &GetAnchorCount;
    link->is_valid = &IsLinkValid;
    link->get_start_index = &GetLinkStart;
    link->get_end_index = &GetLinkEnd;
}

GType AddressType() {
    static const GType type = g_type_register_static_simple(
        ATK_TYPE_HYPERLINK, "BrelexSpokenAddress", sizeof(AtkHyperlinkClass), &InitAddressClass,
        sizeof(AtkHyperlink), nullptr, static_cast<GTypeFlags>(0));
    return type;
}

AtkHyperlink* GetHyperlink(AtkHyperlinkImpl* object) {
    SpokenNode& node = NodeOf(object);
    if (node.address == nullptr) {
        node.address = ATK_HYPERLINK(g_object_new(AddressType(), nullptr));
        g_object_set_data(G_OBJECT(node.address), "object", object);
    }
    g_object_set_data_full(G_OBJECT(node.address), "address",
                           g_strdup(node.object.address.utf8_str()), &g_free);
    return ATK_HYPERLINK(g_object_ref(node.address));
}

// --- What is done with a button or a link.

// Later, because it may open a window that must be closed first before this would return.
gboolean DoAction(AtkAction* object, int number) {
    const SpokenNode& node = NodeOf(object);
    if (number != 0 || node.window == nullptr || !node.object.act) {
        return FALSE;
    }
    node.window->CallAfter(node.object.act);
    return TRUE;
}

int CountActions(AtkAction* /*object*/) {
    return 1;
}

const char* NameOfAction(AtkAction* object, int /*number*/) {
    switch (NodeOf(object).object.role) {
        case SpokenRole::Link:
            return "jump";
        case SpokenRole::TreeItem:
            return "activate";
        default:
            return "click";
    }
}

// --- How far a progress bar is.

void GetValue(AtkValue* object, double* value, char** text) {
    *value = NodeOf(object).object.percent;
    if (text != nullptr) {
        *text = nullptr;
    }
}

AtkRange* GetRange(AtkValue* /*object*/) {
    return atk_range_new(0, 100, nullptr);
}

const char* TextOfNode(gpointer object) {
    return NodeOf(object).text.c_str();
}

// --- What an object has beyond its name.

struct Interface {
    GType type;
    GInterfaceInitFunc init;
};

std::vector<Interface> InterfacesOf(SpokenRole role) {
    const Interface action{ATK_TYPE_ACTION, [](gpointer iface, gpointer) {
                               auto* const actions = static_cast<AtkActionIface*>(iface);
                               actions->do_action = &DoAction;
                               actions->get_n_actions = &CountActions;
                               actions->get_name = &NameOfAction;
                           }};
    switch (role) {
        case SpokenRole::Button:
        case SpokenRole::TreeItem:
            return {action};
        case SpokenRole::Link:
            return {action, {ATK_TYPE_HYPERLINK_IMPL, [](gpointer iface, gpointer) {
                                 static_cast<AtkHyperlinkImplIface*>(iface)->get_hyperlink =
                                     &GetHyperlink;
                             }}};
        case SpokenRole::ProgressBar:
            return {{ATK_TYPE_VALUE, [](gpointer iface, gpointer) {
                         auto* const value = static_cast<AtkValueIface*>(iface);
                         value->get_value_and_text = &GetValue;
                         value->get_range = &GetRange;
                     }}};
        case SpokenRole::Text:
        case SpokenRole::Page:
            return {{ATK_TYPE_TEXT, [](gpointer iface, gpointer) {
                         FillTextInterface(*static_cast<AtkTextIface*>(iface), &TextOfNode);
                     }}};
        default:
            return {};
    }
}

// --- The window as a whole.

gpointer wholeParentClass = nullptr;

int CountParts(AtkObject* object) {
    return static_cast<int>(NodeOf(object).parts.size());
}

AtkObject* RefPart(AtkObject* object, int number) {
    const SpokenNode& node = NodeOf(object);
    return number < 0 || number >= static_cast<int>(node.parts.size())
               ? nullptr
               : ATK_OBJECT(g_object_ref(node.parts[static_cast<std::size_t>(number)]));
}

AtkStateSet* RefWholeStates(AtkObject* object) {
    AtkStateSet* const states = ATK_OBJECT_CLASS(wholeParentClass)->ref_state_set(object);
    const SpokenNode& node = NodeOf(object);
    if (node.window != nullptr && !node.window->AcceptsFocus() && !node.window->HasFocus()) {
        atk_state_set_remove_state(states, ATK_STATE_FOCUSABLE);
    }
    if (node.object.role == SpokenRole::Tree) {
        atk_state_set_add_state(states, ATK_STATE_MANAGES_DESCENDANTS);
    }
    return states;
}

// The toolkit makes the label before a window the name of it.
AtkRelationSet* RefNoRelations(AtkObject* /*object*/) {
    return atk_relation_set_new();
}

void InitWholeClass(gpointer klass, gpointer /*data*/) {
    wholeParentClass = g_type_class_peek_parent(klass);
    auto* const object = ATK_OBJECT_CLASS(klass);
    object->get_n_children = &CountParts;
    object->ref_child = &RefPart;
    object->ref_state_set = &RefWholeStates;
    object->ref_relation_set = &RefNoRelations;
}

// --- A part of it.

AtkObject* GetWhole(AtkObject* object) {
    return NodeOf(object).whole;
}

int GetIndex(AtkObject* object) {
    return NodeOf(object).index;
}

wxRect PlaceOf(const SpokenNode& node) {
    return node.object.place ? node.object.place() : wxRect(node.window->GetClientSize());
}

AtkStateSet* RefPartStates(AtkObject* object) {
    AtkStateSet* const states = atk_state_set_new();
    const SpokenNode& node = NodeOf(object);
    if (node.window == nullptr) {
        atk_state_set_add_state(states, ATK_STATE_DEFUNCT);
        return states;
    }
    for (const AtkStateType state : {ATK_STATE_ENABLED, ATK_STATE_SENSITIVE, ATK_STATE_VISIBLE}) {
        atk_state_set_add_state(states, state);
    }
    if (node.window->IsShownOnScreen() &&
        PlaceOf(node).Intersects(wxRect(node.window->GetClientSize()))) {
        atk_state_set_add_state(states, ATK_STATE_SHOWING);
    }
    if (node.object.role == SpokenRole::TreeItem) {
        atk_state_set_add_state(states, ATK_STATE_SELECTABLE);
        atk_state_set_add_state(states, ATK_STATE_FOCUSABLE);
    }
    if (node.object.isCurrent) {
        atk_state_set_add_state(states, ATK_STATE_SELECTED);
        if (node.window->HasFocus()) {
            atk_state_set_add_state(states, ATK_STATE_FOCUSED);
        }
    }
    return states;
}

AtkAttributeSet* GetPartAttributes(AtkObject* object) {
    const int level = NodeOf(object).object.level;
    if (level == 0) {
        return nullptr;
    }
    auto* const attribute = g_new(AtkAttribute, 1);
    attribute->name = g_strdup("level");
    attribute->value = g_strdup_printf("%d", level);
    return g_slist_append(nullptr, attribute);
}

void InitPartClass(gpointer klass, gpointer /*data*/) {
    auto* const object = ATK_OBJECT_CLASS(klass);
    object->get_n_children = &CountParts;
    object->ref_child = &RefPart;
    object->get_parent = &GetWhole;
    object->get_index_in_parent = &GetIndex;
    object->ref_state_set = &RefPartStates;
    object->get_attributes = &GetPartAttributes;
}

void GetPartExtents(AtkComponent* object, int* x, int* y, int* width, int* height,
                    AtkCoordType origin) {
    *x = *y = *width = *height = 0;
    const SpokenNode& node = NodeOf(object);
    if (node.window == nullptr || node.whole == nullptr) {
        return;
    }
    atk_component_get_extents(ATK_COMPONENT(node.whole), x, y, width, height, origin);
    const wxRect place = PlaceOf(node);
    *x += place.x;
    *y += place.y;
    *width = place.width;
    *height = place.height;
}

void InitPartComponent(gpointer iface, gpointer /*data*/) {
    static_cast<AtkComponentIface*>(iface)->get_extents = &GetPartExtents;
}

GType NewType(GType base, const std::string& name, GClassInitFunc init) {
    GTypeQuery query;
    g_type_query(base, &query);
    return g_type_register_static_simple(base, name.c_str(), query.class_size, init,
                                         query.instance_size, nullptr, static_cast<GTypeFlags>(0));
}

void AddInterface(GType type, const Interface& added) {
    const GInterfaceInfo info{added.init, nullptr, nullptr};
    g_type_add_interface_static(type, added.type, &info);
}

}  // namespace

SpokenNode& NodeOf(gpointer object) {
    return *static_cast<SpokenNode*>(g_object_get_qdata(G_OBJECT(object), NodeQuark()));
}

void SetNode(AtkObject* object, SpokenNode node) {
    g_object_set_qdata_full(G_OBJECT(object), NodeQuark(), new SpokenNode(std::move(node)),
                            &DeleteNode);
}

GType SpokenType(SpokenRole role, bool isPart) {
    static std::map<std::pair<SpokenRole, bool>, GType> types;
    GType& type = types[{role, isPart}];
    if (type == 0) {
        const std::string name = (isPart ? "BrelexSpokenPart" : "BrelexSpokenWindow") +
                                 std::to_string(static_cast<int>(role));
        type = NewType(isPart ? ATK_TYPE_OBJECT : GTK_TYPE_WIDGET_ACCESSIBLE, name,
                       isPart ? &InitPartClass : &InitWholeClass);
        if (isPart) {
            AddInterface(type, {ATK_TYPE_COMPONENT, &InitPartComponent});
        }
        for (const Interface& added : InterfacesOf(role)) {
            AddInterface(type, added);
        }
    }
    return type;
}

}  // namespace brelex
