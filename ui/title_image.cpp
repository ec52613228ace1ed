// SPDX-License-Identifier: MIT
#include "ui/title_image.h"

#include <algorithm>

#include <wx/dcgraph.h>
#include <wx/dcmemory.h>
#include <wx/image.h>
#include <wx/settings.h>
#include <wx/window.h>

#include "database/program_values.h"
#include "ui/app_icon.h"

namespace brelex {

namespace {

// A bold font in which the name fills `size` as far as it goes. Widths grow with the point size.
wxFont FittingFont(const wxWindow& window, const wxSize& size) {
    wxFont font = window.GetFont().Bold();
    int width = 0;
    int height = 0;
    window.GetTextExtent(kAppTitle, &width, &height, nullptr, nullptr, &font);
    const double scale = std::min(static_cast<double>(size.x) / std::max(width, 1),
                                  static_cast<double>(size.y) / std::max(height, 1));
    constexpr double kMargin = 0.97;  // hinting makes some sizes wider than that
    font.SetFractionalPointSize(font.GetFractionalPointSize() * scale * kMargin);
    return font;
}

}  // namespace

wxBitmap DrawTitleImage(const wxWindow& window, const wxSize& size) {
    const int iconSize = size.y;
    const int gap = window.FromDIP(6);
    const wxFont font = FittingFont(window, {size.x - iconSize - gap, size.y});
    int textWidth = 0;
    int textHeight = 0;
    window.GetTextExtent(kAppTitle, &textWidth, &textHeight, nullptr, nullptr, &font);

    wxBitmap bitmap(iconSize + gap + textWidth, size.y, 32);
    bitmap.UseAlpha();
    wxMemoryDC memory(bitmap);
    wxGCDC dc(memory);
    dc.SetBackground(*wxTRANSPARENT_BRUSH);
    dc.Clear();
    dc.DrawBitmap(AppIcon(iconSize).GetBitmap(wxSize(iconSize, iconSize)), 0, 0, true);
    dc.SetFont(font);
    dc.SetTextForeground(wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT));
    dc.DrawText(kAppTitle, iconSize + gap, (size.y - textHeight) / 2);
    memory.SelectObject(wxNullBitmap);
    return bitmap;
}

}  // namespace brelex
