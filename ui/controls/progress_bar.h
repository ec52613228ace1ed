// SPDX-License-Identifier: MIT
#pragma once

#include <wx/settings.h>

#include "ui/controls/backdrop.h"

namespace brelex {

/// A progress bar with its percentage written on it.
class ProgressBar final : public Backdrop {
  public:
    explicit ProgressBar(wxWindow* parent);

    /// Shows 0 to 100 percent. The new value is on the screen when this returns.
    void SetPercent(int percent);

    /// Removes both the bar and the percentage.
    void Clear();

    /// The percentage shown; -1 after Clear.
    [[nodiscard]] int Percent() const { return percent_; }

    /// Draws the background, the bar and the percentage.
    void Draw(wxDC& dc) const;

  private:
    void OnPaint(wxPaintEvent& event);
    void Describe();
    void DrawText(wxDC& dc, wxSystemColour colour) const;

    int percent_ = -1;
};

}  // namespace brelex
