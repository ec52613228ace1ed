// SPDX-License-Identifier: MIT
#include "ui/controls/colours.h"

namespace brelex {

SystemEdges EdgesOnFace() {
    const EdgeColours edges = VisibleEdges(
        RgbOf(wxSYS_COLOUR_BTNFACE),
        {.light = RgbOf(wxSYS_COLOUR_BTNHIGHLIGHT), .shadow = RgbOf(wxSYS_COLOUR_BTNSHADOW)});
    return {WxColourOf(edges.light), WxColourOf(edges.shadow)};
}

Rgb RgbOf(const wxColour& colour) {
    return {colour.Red(), colour.Green(), colour.Blue()};
}

Rgb RgbOf(wxSystemColour colour) {
    return RgbOf(wxSystemSettings::GetColour(colour));
}

wxColour WxColourOf(Rgb colour) {
    return {colour.red, colour.green, colour.blue};
}

wxColour RedOn(const wxColour& ground) {
    return WxColourOf(ReadableOn(RgbOf(ground), {255, 0, 0}));
}

wxColour DarkRedOn(const wxColour& ground) {
    return WxColourOf(ReadableOn(RgbOf(ground), {192, 0, 0}));
}

wxColour BlueOn(const wxColour& ground) {
    return WxColourOf(ReadableOn(RgbOf(ground), {0, 0, 255}));
}

}  // namespace brelex
