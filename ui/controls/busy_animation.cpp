// SPDX-License-Identifier: MIT
#include "ui/controls/busy_animation.h"

#include <utility>

#include <wx/dcclient.h>
#include <wx/math.h>

namespace brelex {

BusyAnimation::BusyAnimation(wxWindow* parent, FilmStrip strip, int intervalMs)
    : Backdrop(parent),
      tmrAnimation(this),
      strip_(std::move(strip)),
      intervalMs_(intervalMs) {
    SetName("picAnim");
    SetDoubleBuffered(true);
    SetInitialSize(FromDIP(strip_.frameSize));
    Hide();
    Bind(wxEVT_PAINT, &BusyAnimation::OnPaint, this);
    Bind(wxEVT_TIMER, [this](wxTimerEvent&) {
        ShowFrame(AnimationFrame);
        AnimationFrame = (AnimationFrame + 1) % strip_.frames;
    });
}

void BusyAnimation::Run(bool on) {
    if (on) {
        ShowFrame(0);
        AnimationFrame = 1;
        tmrAnimation.Start(intervalMs_);
    } else {
        tmrAnimation.Stop();
    }
    Show(on);
}

void BusyAnimation::ShowFrame(int frame) {
    shownFrame_ = frame;
    Refresh();
    Update();  // the busy code lets events run only now and then
}

void BusyAnimation::OnPaint(wxPaintEvent& /*event*/) {
    wxPaintDC dc(this);
    const wxBitmap strip = strip_.picture.GetBitmapFor(this);
    // The window is as high as one frame and cuts off the rest of the strip.
    dc.DrawBitmap(strip, 0, -wxRound(strip.GetLogicalHeight() * shownFrame_ / strip_.frames));
}

}  // namespace brelex
