// SPDX-License-Identifier: MIT
#include "platform/window/spoken_accessible_msw.h"

#include <cstddef>
#include <utility>

#include <wx/window.h>

namespace brelex {

namespace {

wxAccRole SystemRoleOf(SpokenRole role) {
    switch (role) {
        case SpokenRole::Button:
            return wxROLE_SYSTEM_PUSHBUTTON;
        case SpokenRole::Image:
            return wxROLE_SYSTEM_GRAPHIC;
        case SpokenRole::Link:
            return wxROLE_SYSTEM_LINK;
        case SpokenRole::Page:
            return wxROLE_SYSTEM_DOCUMENT;
        case SpokenRole::ProgressBar:
            return wxROLE_SYSTEM_PROGRESSBAR;
        case SpokenRole::ToolBar:
            return wxROLE_SYSTEM_TOOLBAR;
        case SpokenRole::Tree:
            return wxROLE_SYSTEM_OUTLINE;
        case SpokenRole::TreeItem:
            return wxROLE_SYSTEM_OUTLINEITEM;
        default:
            return wxROLE_SYSTEM_STATICTEXT;
    }
}

const char* ActionOf(SpokenRole role) {
    return role == SpokenRole::Link ? "Jump" : "Press";
}

}  // namespace

SpokenAccessible& SpokenAccessible::Of(wxWindow& window) {
    auto* known = dynamic_cast<SpokenAccessible*>(window.GetAccessible());
    if (known == nullptr) {
        known = new SpokenAccessible(window);
        window.SetAccessible(known);  // the window owns it
    }
    return *known;
}

void SpokenAccessible::Tell(int event, int id) {
    NotifyEvent(event, GetWindow(), wxOBJID_CLIENT, id);
}

void SpokenAccessible::SetName(const wxString& name) {
    if (name_ != name) {
        name_ = name;
        Tell(wxACC_EVENT_OBJECT_NAMECHANGE, wxACC_SELF);
    }
}

void SpokenAccessible::SetDescription(const wxString& description) {
    if (description_ != description) {
        description_ = description;
        Tell(wxACC_EVENT_OBJECT_DESCRIPTIONCHANGE, wxACC_SELF);
    }
}

void SpokenAccessible::SetObject(SpokenObject whole, std::vector<SpokenObject> parts) {
    const auto before = std::exchange(whole_, std::move(whole));
    const bool isOther = parts.size() != parts_.size();
    parts_ = std::move(parts);
    if (!before) {
        return;
    }
    if (before->name != whole_->name) {
        Tell(wxACC_EVENT_OBJECT_NAMECHANGE, wxACC_SELF);
    }
    if (before->percent != whole_->percent) {
        Tell(wxACC_EVENT_OBJECT_VALUECHANGE, wxACC_SELF);
    }
    if (isOther) {
        Tell(wxACC_EVENT_OBJECT_REORDER, wxACC_SELF);
    }
}

const SpokenObject* SpokenAccessible::ObjectOf(int id) const {
    if (id == wxACC_SELF) {
        return whole_ ? &*whole_ : nullptr;
    }
    const auto number = static_cast<std::size_t>(id) - 1;
    return number < parts_.size() ? &parts_[number] : nullptr;
}

wxAccStatus SpokenAccessible::GetName(int id, wxString* name) {
    if (id == wxACC_SELF && name_) {
        *name = *name_;
        return wxACC_OK;
    }
    const SpokenObject* const object = ObjectOf(id);
    if (object == nullptr) {
        return wxACC_NOT_IMPLEMENTED;
    }
    *name = object->name;
    return wxACC_OK;
}

wxAccStatus SpokenAccessible::GetDescription(int id, wxString* description) {
    const SpokenObject* const object = ObjectOf(id);
    if (id == wxACC_SELF && description_) {
        *description = *description_;
    } else if (object != nullptr) {
        *description = object->description;
    } else {
        return wxACC_NOT_IMPLEMENTED;
    }
    return wxACC_OK;
}

wxAccStatus SpokenAccessible::GetRole(int id, wxAccRole* role) {
    const SpokenObject* const object = ObjectOf(id);
    if (object == nullptr) {
        return wxACC_NOT_IMPLEMENTED;
    }
    *role = SystemRoleOf(object->role);
    return wxACC_OK;
}

wxAccStatus SpokenAccessible::GetState(int id, long* state) {
    if (isUnspoken_) {
        *state = wxACC_STATE_SYSTEM_INVISIBLE;
        return wxACC_OK;
    }
    const SpokenObject* const object = ObjectOf(id);
    if (object == nullptr) {
        return wxACC_NOT_IMPLEMENTED;
    }
    const wxWindow& window = *GetWindow();
    *state = window.IsShownOnScreen() ? 0 : wxACC_STATE_SYSTEM_INVISIBLE;
    if (!window.IsEnabled()) {
        *state |= wxACC_STATE_SYSTEM_UNAVAILABLE;
    }
    if (id == wxACC_SELF && window.HasFocus()) {
        *state |= wxACC_STATE_SYSTEM_FOCUSABLE | wxACC_STATE_SYSTEM_FOCUSED;
    } else if (id == wxACC_SELF && window.AcceptsFocus()) {
        *state |= wxACC_STATE_SYSTEM_FOCUSABLE;
    }
    if (object->role == SpokenRole::Text || object->role == SpokenRole::Page) {
        *state |= wxACC_STATE_SYSTEM_READONLY;
    }
    return wxACC_OK;
}

wxAccStatus SpokenAccessible::GetValue(int id, wxString* value) {
    const SpokenObject* const object = ObjectOf(id);
    if (object != nullptr && object->role == SpokenRole::Link) {
        *value = object->address;
    } else if (object != nullptr && object->role == SpokenRole::ProgressBar) {
        *value = wxString::Format("%d%%", object->percent);
    } else {
        return wxACC_NOT_IMPLEMENTED;
    }
    return wxACC_OK;
}

wxAccStatus SpokenAccessible::GetDefaultAction(int id, wxString* name) {
    const SpokenObject* const object = ObjectOf(id);
    if (object == nullptr || !object->act) {
        return wxACC_NOT_IMPLEMENTED;
    }
    *name = ActionOf(object->role);
    return wxACC_OK;
}

// Later, because it may open a window that must be closed before this would return.
wxAccStatus SpokenAccessible::DoDefaultAction(int id) {
    const SpokenObject* const object = ObjectOf(id);
    if (object == nullptr || !object->act) {
        return wxACC_NOT_IMPLEMENTED;
    }
    GetWindow()->CallAfter(object->act);
    return wxACC_OK;
}

wxAccStatus SpokenAccessible::GetLocation(wxRect& place, int id) {
    const SpokenObject* const object = ObjectOf(id);
    if (id == wxACC_SELF || object == nullptr || !object->place) {
        return wxACC_NOT_IMPLEMENTED;
    }
    place = object->place();
    place.SetPosition(GetWindow()->ClientToScreen(place.GetPosition()));
    return wxACC_OK;
}

wxAccStatus SpokenAccessible::GetChildCount(int* count) {
    if (!whole_) {
        return wxACC_NOT_IMPLEMENTED;
    }
    *count = static_cast<int>(parts_.size());
    return wxACC_OK;
}

// The parts are simple: they have no object of their own.
wxAccStatus SpokenAccessible::GetChild(int /*id*/, wxAccessible** child) {
    if (!whole_) {
        return wxACC_NOT_IMPLEMENTED;
    }
    *child = nullptr;
    return wxACC_OK;
}

wxAccStatus SpokenAccessible::HitTest(const wxPoint& point, int* id, wxAccessible** child) {
    if (!whole_) {
        return wxACC_NOT_IMPLEMENTED;
    }
    const wxPoint inside = GetWindow()->ScreenToClient(point);
    *child = nullptr;
    *id = wxACC_SELF;
    for (std::size_t i = 0; i < parts_.size(); ++i) {
        if (parts_[i].place && parts_[i].place().Contains(inside)) {
            *id = static_cast<int>(i) + 1;
        }
    }
    return wxACC_OK;
}

}  // namespace brelex
