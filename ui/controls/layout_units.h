// SPDX-License-Identifier: MIT
#pragma once

#include <wx/font.h>

class wxWindow;

namespace brelex {

/// The unit in which windows are laid out: a pixel at 96 dots per inch. Where the user's
/// font is so large that a line of small text would not fit into a frame of the status strip (18
/// units high), the unit grows with it, so that nothing is ever cut off.
class LayoutUnits {
  public:
    explicit LayoutUnits(const wxWindow& window);

    /// `units` in device pixels, rounded.
    [[nodiscard]] int Pixels(double units) const;

    /// The font of the header and the status strip: the window's, or a smaller one if that one is
    /// too high for them.
    [[nodiscard]] const wxFont& StripFont() const { return stripFont_; }

  private:
    wxFont stripFont_;
    double pixelsPerUnit_ = 1;
};

}  // namespace brelex
