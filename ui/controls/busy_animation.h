// SPDX-License-Identifier: MIT
#pragma once

#include <wx/timer.h>

#include "ui/controls/artwork.h"
#include "ui/controls/backdrop.h"

namespace brelex {

/// The animation `picAnim`. While a window is busy, it shows the frames of a film strip one after
/// the other. Otherwise it is hidden.
class BusyAnimation final : public Backdrop {
  public:
    BusyAnimation(wxWindow* parent, FilmStrip strip, int intervalMs);

    /// Starts at the first frame, or stops and hides.
    void Run(bool on);

    int AnimationFrame = 0;  ///< the next frame, 0-based

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
