// SPDX-License-Identifier: MIT
#pragma once

#include <wx/bitmap.h>

class wxWindow;

namespace brelex {

/// The program's icon and name as an image at most `size` pixels large, in colours that suit the
/// background of `window`.
[[nodiscard]] wxBitmap DrawTitleImage(const wxWindow& window, const wxSize& size);

}  // namespace brelex
