// SPDX-License-Identifier: MIT
#pragma once

#include <wx/bmpbndl.h>
#include <wx/font.h>

#include "ui/controls/backdrop.h"

namespace brelex {

/// The program's icon with its name beside it, as large as a given size allows. Both are drawn at
/// the resolution of the screen that they are on.
class TitleImage final : public Backdrop {
  public:
    explicit TitleImage(wxWindow* parent);

    /// Gives the window the size of its image in pixels, which is at most `largest`.
    void FitInto(const wxSize& largest);

    void Draw(wxDC& dc) const;

  private:
    wxBitmapBundle icon_;
    wxFont font_;
    int iconSize_ = 1;
    int gap_;
};

}  // namespace brelex
