// SPDX-License-Identifier: MIT
#include "ui/controls/title_image.h"

#include <algorithm>

#include <wx/dcclient.h>
#include <wx/settings.h>

#include "base/app_info.h"
#include "platform/window/spoken_object.h"
#include "toolkit/app_icon.h"

namespace brelex {

namespace {

wxSize ExtentOfName(const wxWindow& window, const wxFont& font) {
    int width = 0;
    int height = 0;
    window.GetTextExtent(kAppTitle, &width, &height, nullptr, nullptr, &font);
    return {width, height};
}

// Finds a bold font in which the name fills `size`. Widths grow with the point size.
wxFont FittingFont(const wxWindow& window, const wxSize& size) {
    wxFont font = window.GetFont().Bold();
    const wxSize name = ExtentOfName(window, font);
    const double scale = std::min(static_cast<double>(size.x) / std::max(name.x, 1),
                                  static_cast<double>(size.y) / std::max(name.y, 1));
    constexpr double kMargin = 0.97;  // hinting makes some sizes wider
    font.SetFractionalPointSize(font.GetFractionalPointSize() * scale * kMargin);
    return font;
}

}  // namespace

TitleImage::TitleImage(wxWindow* parent) : Backdrop(parent), gap_(FromDIP(6)) {
    SetDoubleBuffered(true);
    SetSpokenObject(*this, {.role = SpokenRole::Image, .name = kAppTitle});
    Bind(wxEVT_PAINT, [this](wxPaintEvent&) {
        wxPaintDC dc(this);
        Draw(dc);
    });
}

void TitleImage::FitInto(const wxSize& largest) {
    iconSize_ = largest.y;
    icon_ = AppIcon(iconSize_);
    font_ = FittingFont(*this, {largest.x - iconSize_ - gap_, largest.y});
    // Letters may be drawn a little wider than measured (seen with Wine 8).
    const int width = iconSize_ + gap_ + ExtentOfName(*this, font_).x + FromDIP(2);
    SetInitialSize({std::min(width, largest.x), largest.y});
    Refresh();
}

void TitleImage::Draw(wxDC& dc) const {
    const double scale = GetContentScaleFactor();
    wxBitmap icon = icon_.GetBitmap(wxSize(iconSize_, iconSize_) * scale);
    icon.SetScaleFactor(scale);
    dc.DrawBitmap(icon, 0, (GetClientSize().y - iconSize_) / 2);
    dc.SetFont(font_);
    dc.SetTextForeground(wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT));
    dc.DrawText(kAppTitle, iconSize_ + gap_,
                (GetClientSize().y - dc.GetTextExtent(kAppTitle).y) / 2);
}

}  // namespace brelex
