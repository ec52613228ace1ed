// SPDX-License-Identifier: MIT
#pragma once

#include <wx/font.h>
#include <wx/string.h>

class wxDPIChangedEvent;
class wxWindow;

namespace brelex {

// The spacing of all windows, in layout units: from the window's edge, between groups of controls,
// and between controls that belong together.
inline constexpr double kWindowMargin = 12;
inline constexpr double kGroupGap = 12;
inline constexpr double kControlGap = 6;

/// How many times as many dots per inch the new screen has.
[[nodiscard]] double ScaleOf(const wxDPIChangedEvent& event);

/// The unit for the layout of windows: a pixel at 96 dots per inch. If the user's font is so large
/// that a line of small text would not fit into a frame of the status strip (18 units high), the
/// unit grows with the font, so that nothing is cut off.
class LayoutUnits {
  public:
    /// `window` must outlive the units.
    explicit LayoutUnits(const wxWindow& window);

    /// Measures the window again. For a window that has moved to a screen with `times` as many dots
    /// per inch, once its font has followed.
    void Rescale(double times);

    /// Converts `units` to device pixels, rounded.
    [[nodiscard]] int Pixels(double units) const;

    /// The width in pixels that a label with this text needs in the window's font. Letters may be
    /// drawn a little wider than the toolkit measures them (seen with Wine 8).
    [[nodiscard]] int TextWidth(const wxString& text) const;

    /// The font of the header and the status strip: the window's font, or a smaller one if that is
    /// too high for them.
    [[nodiscard]] const wxFont& StripFont() const { return stripFont_; }

  private:
    void Measure();

    const wxWindow& window_;
    wxFont stripFont_;
    double dip_ = 1;  // the pixels for one at 96 dots per inch
    double pixelsPerUnit_ = 1;
};

}  // namespace brelex
