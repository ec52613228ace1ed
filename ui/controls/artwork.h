// SPDX-License-Identifier: MIT
#pragma once

#include <array>

#include <wx/bmpbndl.h>

#include "presentation/toolbar_state.h"

namespace brelex {

// Pictures of 16 by 16 for buttons.
[[nodiscard]] wxBitmapBundle StopPicture();
[[nodiscard]] wxBitmapBundle CancelPicture();
[[nodiscard]] wxBitmapBundle ExpandPicture();
[[nodiscard]] wxBitmapBundle ShrinkPicture();
[[nodiscard]] wxBitmapBundle CopyPicture();

// Pictures of 32 by 32 for the results of a check.
[[nodiscard]] wxBitmapBundle PassedPicture();
[[nodiscard]] wxBitmapBundle FailedPicture();

/// The toolbar's icons of 32 by 32, from left to right.
[[nodiscard]] std::array<wxBitmapBundle, kToolbarIcons.size()> ToolbarPictures();

/// The button that leads to the donation page, 92 by 31.
[[nodiscard]] wxBitmapBundle DonateButtonPicture();

/// A film strip: pictures of one size, the first at the top, the others below it.
struct FilmStrip {
    wxBitmapBundle picture;
    int frames = 1;
    wxSize frameSize;  ///< at 96 dots per inch
};

/// The film strip of the search, 11 frames of 48 by 50.
[[nodiscard]] FilmStrip SearchFilmStrip();

/// That of the anagrams, 15 frames of 64 by 50.
[[nodiscard]] FilmStrip AnagramFilmStrip();

}  // namespace brelex
