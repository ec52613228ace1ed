// SPDX-License-Identifier: MIT
#include "ui/title_image.h"

#include <wx/dcgraph.h>
#include <wx/dcmemory.h>
#include <wx/image.h>
#include <wx/settings.h>
#include <wx/window.h>

#include "database/program_values.h"
#include "ui/app_icon.h"

namespace brelex {

namespace {

// The largest bold font in which the name fits into `size`.
wxFont FittingFont(const wxWindow& window, const wxSize& size) {
    wxFont font = window.GetFont().Bold();
    wxFont larger = font;
    while (true) {
        larger.SetFractionalPointSize(larger.GetFractionalPointSize() + 0.5);
        int width = 0;
        int height = 0;
        window.GetTextExtent(kAppTitle, &width, &height, nullptr, nullptr, &larger);
        if (width > size.x || height > size.y) {
            return font;
        }
        font = larger;
    }
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
