// SPDX-License-Identifier: MIT
#pragma once

#include <array>

#include <wx/bmpbndl.h>

#include "presentation/toolbar_state.h"

namespace brelex {

// Pictures for buttons, 16 by 16.
[[nodiscard]] wxBitmapBundle StopPicture();
[[nodiscard]] wxBitmapBundle CancelPicture();
[[nodiscard]] wxBitmapBundle ExpandPicture();
[[nodiscard]] wxBitmapBundle ShrinkPicture();
[[nodiscard]] wxBitmapBundle CopyPicture();

// Pictures for the results of a check, 32 by 32.
[[nodiscard]] wxBitmapBundle PassedPicture();
[[nodiscard]] wxBitmapBundle FailedPicture();

/// The toolbar's icons, 32 by 32, from left to right.
[[nodiscard]] std::array<wxBitmapBundle, kToolbarIcons.size()> ToolbarPictures();

/// The picture of the button that leads to the donation page, 92 by 31.
[[nodiscard]] wxBitmapBundle DonateButtonPicture();

/// A film strip: pictures of the same size, one below the other. The first is at the top.
struct FilmStrip {
    wxBitmapBundle picture;
    int frames = 1;
    wxSize frameSize;  ///< at 96 dots per inch
};

/// The film strip of the search: 11 frames of 48 by 50.
[[nodiscard]] FilmStrip SearchFilmStrip();

/// The film strip of the anagram search: 15 frames of 64 by 50.
[[nodiscard]] FilmStrip AnagramFilmStrip();

}  // namespace brelex
