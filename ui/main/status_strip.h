// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "database/program_values.h"
#include "ui/controls/hover_hints.h"
#include "ui/controls/layout_units.h"

class wxSize;
class wxStaticText;
class wxString;
class wxWindow;

namespace brelex {

class Surface;

/// The strip along the lower edge of the main window. It shows the number of the selected entry, a
/// hint for the control under the mouse, and the number of entries.
class StatusStrip {
  public:
    /// Creates the labels on `surface`, which must be destroyed before this object. `units` must
    /// outlive this object.
    StatusStrip(Surface& surface, const LayoutUnits& units);

    /// The height of the strip in pixels, including the room below it.
    [[nodiscard]] int Height() const;

    /// Places the labels on the lower edge of a surface of `inner` pixels, the first of them as
    /// wide as `numberWidth`, and shows how many entries there are. Call once.
    void LayoutStatusBar(const wxSize& inner, int numberWidth, const ProgramValues& values);

    /// Starts showing hints for controls under the mouse. Call once all controls exist and the
    /// strip is laid out.
    void WatchHints(const std::vector<ControlHint>& hints);

    /// Shows a hint where the hints on controls appear.
    void ShowHint(const wxString& text);

    /// Shows the hint of a toolbar icon (0-based), or nothing for -1.
    void ShowHintOfIcon(int icon);

    void ShowNumber(const wxString& text);

    [[nodiscard]] wxWindow& NumberWindow() const;
    [[nodiscard]] wxWindow& CountWindow() const;

  private:
    [[nodiscard]] wxStaticText* AddLabel(const char* name);

    Surface& surface_;
    const LayoutUnits& units_;
    wxStaticText* lblRecNumber;
    wxStaticText* lblDescription;
    wxStaticText* lblRecCount;
    HoverHints hints_;
};

}  // namespace brelex
