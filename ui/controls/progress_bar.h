// SPDX-License-Identifier: MIT
#pragma once

#include "ui/controls/backdrop.h"

namespace brelex {

/// A bar with its percentage written on it.
class ProgressBar final : public Backdrop {
  public:
    explicit ProgressBar(wxWindow* parent);

    /// Shows 0 to 100 percent, which are on the screen when this returns.
    void SetPercent(int percent);

    /// Shows neither a bar nor a percentage.
    void Clear();

    /// The percentage on show; -1 after Clear.
    [[nodiscard]] int Percent() const { return percent_; }

    /// Draws background, bar and percentage.
    void Draw(wxDC& dc) const;

  private:
    void OnPaint(wxPaintEvent& event);

    int percent_ = -1;
};

}  // namespace brelex
