// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include <wx/access.h>

#include "platform/window/spoken_object.h"

namespace brelex {

/// The system's own description of a window with what we know better.
class SpokenAccessible final : public wxAccessible {
  public:
    explicit SpokenAccessible(wxWindow& window) : wxAccessible(&window) {}

    /// The one of a window, which gets it if it has none yet.
    [[nodiscard]] static SpokenAccessible& Of(wxWindow& window);

    void SetName(const wxString& name);
    void SetDescription(const wxString& description);

    void LeaveUnspoken() { isUnspoken_ = true; }

    void SetObject(SpokenObject whole, std::vector<SpokenObject> parts);

    wxAccStatus GetName(int id, wxString* name) override;
    wxAccStatus GetDescription(int id, wxString* description) override;
    wxAccStatus GetRole(int id, wxAccRole* role) override;
    wxAccStatus GetState(int id, long* state) override;
    wxAccStatus GetValue(int id, wxString* value) override;
    wxAccStatus GetDefaultAction(int id, wxString* name) override;
    wxAccStatus DoDefaultAction(int id) override;
    wxAccStatus GetLocation(wxRect& place, int id) override;
    wxAccStatus GetChildCount(int* count) override;
    wxAccStatus GetChild(int id, wxAccessible** child) override;
    wxAccStatus HitTest(const wxPoint& point, int* id, wxAccessible** child) override;

  private:
    // The description of the window or a part; null if the system's holds.
    [[nodiscard]] const SpokenObject* ObjectOf(int id) const;
    void Tell(int event, int id);

    bool isUnspoken_ = false;
    std::optional<wxString> name_;
    std::optional<wxString> description_;
    std::optional<SpokenObject> whole_;
    std::vector<SpokenObject> parts_;
};

}  // namespace brelex
