// SPDX-License-Identifier: MIT
#include "ui/controls/layout_units.h"

#include <algorithm>
#include <cmath>

#include <wx/window.h>

namespace brelex {

namespace {

constexpr int kStripTextUnits = 15;  // a frame of 18 minus its edge and margin

int TextHeight(const wxWindow& window, const wxFont& font) {
    int width = 0;
    int height = 0;
    window.GetTextExtent("Xg", &width, &height, nullptr, nullptr, &font);
    return height;
}

}  // namespace

double ScaleOf(const wxDPIChangedEvent& event) {
    return static_cast<double>(event.GetNewDPI().x) / event.GetOldDPI().x;
}

LayoutUnits::LayoutUnits(const wxWindow& window)
    : window_(window),
      dip_(window.FromDIP(1000) / 1000.0) {
    Measure();
}

void LayoutUnits::Rescale(double times) {
    dip_ *= times;
    Measure();
}

void LayoutUnits::Measure() {
    const double room = std::round(kStripTextUnits * dip_);
    stripFont_ = window_.GetFont();
    if (TextHeight(window_, stripFont_) > room) {
        stripFont_.MakeSmaller();
    }
    pixelsPerUnit_ = dip_ * std::max(1.0, TextHeight(window_, stripFont_) / room);
}

int LayoutUnits::Pixels(double units) const {
    return static_cast<int>(std::lround(units * pixelsPerUnit_));
}

int LayoutUnits::TextWidth(const wxString& text) const {
    constexpr double kWider = 4;
    return window_.GetTextExtent(text).x + Pixels(kWider);
}

}  // namespace brelex
