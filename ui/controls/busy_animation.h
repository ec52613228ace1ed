// SPDX-License-Identifier: MIT
#pragma once

#include <wx/timer.h>

#include "ui/controls/artwork.h"
#include "ui/controls/backdrop.h"

namespace brelex {

/// The animation `picAnim` that shows that a window is busy: the frames of a film strip, one after
/// the other. Hidden while it does not run.
class BusyAnimation final : public Backdrop {
  public:
    BusyAnimation(wxWindow* parent, FilmStrip strip, int intervalMs);

    /// Shows the first frame and begins to go on, or stops and hides.
    void Run(bool on);

    int AnimationFrame = 0;  ///< the frame that comes next, 0-based

    /// The frame on the screen, 0-based.
    [[nodiscard]] int ShownFrame() const { return shownFrame_; }

    wxTimer tmrAnimation;

  private:
    void ShowFrame(int frame);
    void OnPaint(wxPaintEvent& event);

    FilmStrip strip_;
    int intervalMs_;
    int shownFrame_ = 0;
};

}  // namespace brelex
