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

LayoutUnits::LayoutUnits(const wxWindow& window) : window_(window), stripFont_(window.GetFont()) {
    const int room = window.FromDIP(kStripTextUnits);
    if (TextHeight(window, stripFont_) > room) {
        stripFont_.MakeSmaller();
    }
    const double dip = window.FromDIP(1000) / 1000.0;
    pixelsPerUnit_ =
        dip * std::max(1.0, static_cast<double>(TextHeight(window, stripFont_)) / room);
}

int LayoutUnits::Pixels(double units) const {
    return static_cast<int>(std::lround(units * pixelsPerUnit_));
}

int LayoutUnits::TextWidth(const wxString& text) const {
    constexpr double kWider = 4;
    return window_.GetTextExtent(text).x + Pixels(kWider);
}

}  // namespace brelex
