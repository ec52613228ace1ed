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

/// The area of the main window that shows which program this is.
class TitleArea {
  public:
    /// Creates the controls on `surface`, which must be destroyed before this object.
    explicit TitleArea(Surface& surface);

    /// Places the area, in pixels of the surface, with the image at its center.
    void Place(const wxRect& area, const LayoutUnits& units);

    /// The hint with version and copyright.
    [[nodiscard]] ControlHint Hint(const ProgramValues& values) const;

    [[nodiscard]] wxWindow& Label() const { return *lblAppTitle; }

    [[nodiscard]] wxWindow& Image() const;

  private:
    wxWindow* lblAppTitle;
    TitleImage* imgAppTitle;
};

}  // namespace brelex
