// SPDX-License-Identifier: MIT
#pragma once

#include <wx/font.h>
#include <wx/string.h>

class wxWindow;

namespace brelex {

/// The unit in which windows are laid out: a pixel at 96 dots per inch. If the user's font is so
/// large that a line of small text would not fit into a frame of the status strip (18 units high),
/// the unit grows with the font, so that nothing is ever cut off.
class LayoutUnits {
  public:
    /// `window` must outlive the units.
    explicit LayoutUnits(const wxWindow& window);

    /// `units` in device pixels, rounded.
    [[nodiscard]] int Pixels(double units) const;

    /// The width in pixels that a label with this text takes in the window's font. Letters may come
    /// out a little wider than the toolkit measures them (seen with Wine 8).
    [[nodiscard]] int TextWidth(const wxString& text) const;

    /// The font of the header and the status strip: the window's, or a smaller one if that one is
    /// too high for them.
    [[nodiscard]] const wxFont& StripFont() const { return stripFont_; }

  private:
    const wxWindow& window_;
    wxFont stripFont_;
    double pixelsPerUnit_ = 1;
};

}  // namespace brelex
