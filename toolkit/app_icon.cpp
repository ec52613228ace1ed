// SPDX-License-Identifier: MIT
#include "toolkit/app_icon.h"

#include "embedded/kIconSmallSvg.h"
#include "embedded/kIconSvg.h"

namespace brelex {

wxBitmapBundle AppIcon(int size) {
    constexpr int kSmall = 24;  // cmake/icons.cmake has the same limit
    return wxBitmapBundle::FromSVG(size <= kSmall ? kIconSmallSvg : kIconSvg, wxSize(size, size));
}

wxIconBundle AppIcons() {
    wxIconBundle icons;
    for (const int size : {16, 20, 24, 32, 48, 64}) {
        wxIcon icon;
        icon.CopyFromBitmap(AppIcon(size).GetBitmap(wxSize(size, size)));
        icons.AddIcon(icon);
    }
    return icons;
}

}  // namespace brelex
