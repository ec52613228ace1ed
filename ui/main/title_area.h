// SPDX-License-Identifier: MIT
#pragma once

#include "database/program_values.h"
#include "ui/controls/hover_hints.h"
#include "ui/controls/layout_units.h"

class wxRect;
class wxWindow;

namespace brelex {

class Surface;
class TitleImage;

/// The area of the main window that shows what program this is.
class TitleArea {
  public:
    /// Makes the controls on `surface`, which must go before this.
    explicit TitleArea(Surface& surface);

    /// Places the area, in pixels of the surface, with the image in its middle.
    void Place(const wxRect& area, const LayoutUnits& units);

    /// Tells version and copyright.
    [[nodiscard]] ControlHint Hint(const ProgramValues& values) const;

    [[nodiscard]] wxWindow& Label() const { return *lblAppTitle; }

    [[nodiscard]] wxWindow& Image() const;

  private:
    wxWindow* lblAppTitle;
    TitleImage* imgAppTitle;
};

}  // namespace brelex
