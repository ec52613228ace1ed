// SPDX-License-Identifier: MIT
#include "ui/main/help_key.h"

#include <utility>

#include <wx/event.h>
#include <wx/toplevel.h>

#include "toolkit/wx_text.h"

namespace brelex {

namespace {

bool IsHelpKey(const wxEvent& event) {
    if (event.GetEventType() != wxEVT_CHAR_HOOK) {
        return false;
    }
    const auto& key = static_cast<const wxKeyEvent&>(event);
    return key.GetKeyCode() == WXK_F1 && !key.HasAnyModifiers();
}

}  // namespace

HelpKey::HelpKey(std::function<bool(const std::string&)> showHelp)
    : showHelp_(std::move(showHelp)) {
    wxEvtHandler::AddFilter(this);
}

HelpKey::~HelpKey() {
    wxEvtHandler::RemoveFilter(this);
}

int HelpKey::FilterEvent(wxEvent& event) {
    if (!IsHelpKey(event)) {
        return Event_Skip;
    }
    auto* const control = dynamic_cast<wxWindow*>(event.GetEventObject());
    wxWindow* const window = control == nullptr ? nullptr : wxGetTopLevelParent(control);
    return window != nullptr && showHelp_(Utf8Text(window->GetName())) ? Event_Processed
                                                                       : Event_Skip;
}

}  // namespace brelex
