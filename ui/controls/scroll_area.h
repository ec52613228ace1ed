// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include <wx/colour.h>
#include <wx/font.h>
#include <wx/string.h>
#include <wx/timer.h>

#include "ui/controls/backdrop.h"

namespace brelex {

/// A line of scrolling text.
struct ScrollLine {
    wxString text;
    wxFont font;
    wxColour colour;  ///< if not set, the user's color
};

/// An area in which lines of text scroll upwards, over and over.
class ScrollArea final : public Backdrop {
  public:
    ScrollArea(wxWindow* parent, std::vector<ScrollLine> lines);

    [[nodiscard]] const std::vector<ScrollLine>& Lines() const { return lines_; }

    /// Tells screen readers all lines but rules and a title that is `name`, and that name.
    void DescribeAs(const wxString& name);

    /// The current distance of the first line from the top, in pixels.
    [[nodiscard]] int Position() const { return position_; }

    /// The total height of the lines, in pixels.
    [[nodiscard]] int LinesHeight() const { return linesHeight_; }

    /// The width that the widest line needs, in pixels.
    [[nodiscard]] int LinesWidth() const { return linesWidth_; }

    /// Draws the background and the lines at their current positions.
    void Draw(wxDC& dc) const;

    wxTimer tmrScrollText;  ///< must be stopped before the window is hidden

  private:
    void Measure();
    void OnTick();
    void OnPaint(wxPaintEvent& event);

    std::vector<ScrollLine> lines_;
    int linesHeight_ = 0;
    int linesWidth_ = 0;
    int position_ = 0;
    bool isScrolling_ = false;
};

}  // namespace brelex
