// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "ui/controls/backdrop.h"
#include "ui/controls/layout_units.h"

namespace brelex {

// In layout units.
inline constexpr double kColumnHeaderHeight = 18;
inline constexpr double kColumnHeaderFrameAbove = 3;  ///< between it and the top of its frame
inline constexpr double kExpansionTextAt = 139.5;     ///< from the left edge of the list below

/// The drawn header of a list, `picColHeader`. It shows the names of the two columns, a line under
/// them, a sunken line between them, and an arrow for ascending order.
class ColumnHeader final : public Backdrop {
  public:
    ColumnHeader(wxWindow* parent, const LayoutUnits& units);

    /// Makes the second column begin `pixels` from the left edge.
    void SetSecondColumn(int pixels);

  private:
    void OnPaint(wxPaintEvent& event);

    const LayoutUnits& units_;
    std::optional<int> secondColumn_;  // where it begins, unless at its usual place
};

}  // namespace brelex
