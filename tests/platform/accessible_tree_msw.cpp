// SPDX-License-Identifier: MIT
// The objects of Active Accessibility.
#include "tests/platform/accessible_tree.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <oleacc.h>
#include <utility>

#include <wx/toplevel.h>

#include <windows.h>

#include "platform/system/wide_text.h"

namespace brelex {

namespace {

using StateName = std::pair<LONG, const char*>;

constexpr std::array<StateName, 9> kStates = {{
    {STATE_SYSTEM_FOCUSABLE, "focusable"},
    {STATE_SYSTEM_FOCUSED, "focused"},
    {STATE_SYSTEM_CHECKED, "checked"},
    {STATE_SYSTEM_SELECTED, "selected"},
    {STATE_SYSTEM_EXPANDED, "expanded"},
    {STATE_SYSTEM_READONLY, "read-only"},
    {STATE_SYSTEM_DEFAULT, "default"},
    {STATE_SYSTEM_LINKED, "linked"},
    {STATE_SYSTEM_UNAVAILABLE, "disabled"},
}};

VARIANT Id(LONG id) {
    VARIANT variant{};
    variant.vt = VT_I4;
    variant.lVal = id;
    return variant;
}

std::string RoleName(LONG role) {
    std::array<wchar_t, 100> name{};
    GetRoleTextW(static_cast<DWORD>(role), name.data(), static_cast<UINT>(name.size()));
    return Utf8OfWide(name.data());
}

// Wine calls every window a client that has no role of its own. Then its class tells more.
std::string ClassName(HWND window) {
    std::array<wchar_t, 100> name{};
    GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    return Utf8OfWide(name.data());
}

// An object, or one of its simple parts.
class Part {
  public:
    Part(IAccessible& object, LONG id) : object_(object), id_(id) {}

    [[nodiscard]] std::string Name() const { return Text(&IAccessible::get_accName); }

    [[nodiscard]] LONG Role() const { return Number(&IAccessible::get_accRole); }

    // A reader leaves it out.
    [[nodiscard]] bool IsInvisible() const {
        return (Number(&IAccessible::get_accState) & STATE_SYSTEM_INVISIBLE) != 0;
    }

    [[nodiscard]] AccessibleObject Described(int depth) const {
        AccessibleObject described;
        described.depth = depth;
        described.role = RoleName(Role());
        if (Role() == ROLE_SYSTEM_CLIENT) {
            HWND window = nullptr;
            WindowFromAccessibleObject(&object_, &window);
            described.role += " " + ClassName(window);
        }
        described.name = Name();
        described.description = Text(&IAccessible::get_accDescription);
        described.value = Text(&IAccessible::get_accValue);
        const LONG states = Number(&IAccessible::get_accState);
        for (const auto& [state, name] : kStates) {
            if ((states & state) != 0) {
                described.states.emplace_back(name);
            }
        }
        if (const std::string action = Text(&IAccessible::get_accDefaultAction); !action.empty()) {
            described.actions.push_back(action);
        }
        return described;
    }

    [[nodiscard]] bool Act() const { return object_.accDoDefaultAction(Id(id_)) == S_OK; }

  private:
    [[nodiscard]] std::string Text(HRESULT (STDMETHODCALLTYPE IAccessible::*get)(VARIANT,
                                                                                 BSTR*)) const {
        BSTR text = nullptr;
        (object_.*get)(Id(id_), &text);
        std::string known = text == nullptr ? "" : Utf8OfWide(text);
        SysFreeString(text);
        return known;
    }

    [[nodiscard]] LONG Number(HRESULT (STDMETHODCALLTYPE IAccessible::*get)(VARIANT,
                                                                            VARIANT*)) const {
        VARIANT number{};
        (object_.*get)(Id(id_), &number);
        return number.vt == VT_I4 ? number.lVal : 0;
    }

    IAccessible& object_;
    LONG id_;
};

// Calls visit(part, depth) for the objects of a window and the windows in it; it returns false to
// end the walk. Windows come in the order in which they lie, which is the order of reading.
template <typename Visit>
bool Walk(HWND window, int depth, const Visit& visit) {
    IAccessible* object = nullptr;
    if (IsWindowVisible(window) == 0 ||
        FAILED(AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                                          reinterpret_cast<void**>(&object)))) {
        return true;
    }
    const Part self(*object, CHILDID_SELF);
    // A plain window without a name means nothing to a reader.
    const bool isLeftOut = depth > 0 && self.Role() == ROLE_SYSTEM_CLIENT && self.Name().empty() &&
                           ClassName(window).starts_with("wxWindow") && GetFocus() != window;
    if (self.IsInvisible()) {
        object->Release();
        return true;
    }
    bool goesOn = isLeftOut || visit(self, depth);
    const int below = isLeftOut ? depth : depth + 1;
    HWND child = GetWindow(window, GW_CHILD);
    LONG parts = 0;
    if (child == nullptr && object->get_accChildCount(&parts) == S_OK) {
        constexpr LONG kMostParts = 20;  // of a page
        for (LONG id = 1; id <= std::min(parts, kMostParts) && goesOn; ++id) {
            goesOn = visit(Part(*object, id), below);
        }
    }
    for (; child != nullptr && goesOn; child = GetWindow(child, GW_HWNDNEXT)) {
        goesOn = Walk(child, below, visit);
    }
    object->Release();
    return goesOn;
}

}  // namespace

std::vector<AccessibleObject> AccessibleObjectsOf(wxTopLevelWindow& window) {
    std::vector<AccessibleObject> objects;
    Walk(window.GetHWND(), 0, [&](const Part& part, int depth) {
        objects.push_back(part.Described(depth));
        return true;
    });
    return objects;
}

bool DoAccessibleAction(wxTopLevelWindow& window, const std::string& role,
                        const std::string& name) {
    bool done = false;
    Walk(window.GetHWND(), 0, [&](const Part& part, int /*depth*/) {
        if (RoleName(part.Role()) != role || part.Name() != name) {
            return true;
        }
        done = part.Act();
        return false;
    });
    return done;
}

}  // namespace brelex
