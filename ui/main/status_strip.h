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

/// The strip along the lower edge of the main window: the number of the selected entry, a hint
/// about what is under the mouse, and how many entries there are.
class StatusStrip {
  public:
    /// Makes the labels on `surface`, which must go before this. `units` must outlive this.
    StatusStrip(Surface& surface, const LayoutUnits& units);

    /// The height in pixels of the strip with the room below it.
    [[nodiscard]] int Height() const;

    /// Places the labels on the lower edge of a surface of `inner` pixels, the first of them as
    /// wide as `numberWidth`, and shows how many entries there are. Call once.
    void LayoutStatusBar(const wxSize& inner, int numberWidth, const ProgramValues& values);

    /// Begins to show the hints of controls under the mouse. Call when all controls are there and
    /// the strip is laid out.
    void WatchHints(const std::vector<ControlHint>& hints);

    /// Says what an icon of the toolbar (0-based) is for; nothing for -1.
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
