// SPDX-License-Identifier: MIT
#pragma once

#include <wx/string.h>

#include "ui/controls/backdrop.h"

namespace brelex {

/// A line of text that changes often and may be too wide for its area.
class PaintedText final : public Backdrop {
  public:
    explicit PaintedText(wxWindow* parent);

    void SetText(const wxString& text);

    [[nodiscard]] const wxString& Text() const { return text_; }

    void Draw(wxDC& dc) const;

  private:
    wxString text_;
};

}  // namespace brelex
