// SPDX-License-Identifier: MIT
#include "ui/title_image.h"

#include <algorithm>

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

// Drawn in white on black and then turned into coloured transparency: text does not show on a
// transparent bitmap on every system (seen with Wine 8).
wxImage ImageOfName(const wxFont& font, const wxSize& size) {
    wxBitmap bitmap(size, 24);
    wxMemoryDC dc(bitmap);
    dc.SetBackground(*wxBLACK_BRUSH);
    dc.Clear();
    dc.SetFont(font);
    dc.SetTextForeground(*wxWHITE);
    dc.DrawText(kAppTitle, 0, 0);
    dc.SelectObject(wxNullBitmap);
    wxImage image = bitmap.ConvertToImage();
    const wxColour colour = wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT);
    image.ConvertColourToAlpha(colour.Red(), colour.Green(), colour.Blue());
    return image;
}

}  // namespace

wxBitmap DrawTitleImage(const wxWindow& window, const wxSize& size) {
    const int iconSize = size.y;
    const int gap = window.FromDIP(6);
    const wxFont font = FittingFont(window, {size.x - iconSize - gap, size.y});
    int textWidth = 0;
    int textHeight = 0;
    window.GetTextExtent(kAppTitle, &textWidth, &textHeight, nullptr, nullptr, &font);

    wxImage image(iconSize + gap + textWidth, size.y);
    image.InitAlpha();
    std::fill_n(image.GetAlpha(), image.GetWidth() * image.GetHeight(), wxALPHA_TRANSPARENT);
    image.Paste(AppIcon(iconSize).GetBitmap(wxSize(iconSize, iconSize)).ConvertToImage(), 0, 0);
    image.Paste(ImageOfName(font, {textWidth, textHeight}), iconSize + gap,
                (size.y - textHeight) / 2);
    return {image};
}

}  // namespace brelex
