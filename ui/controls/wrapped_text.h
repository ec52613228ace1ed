// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include <wx/string.h>

class wxWindow;

namespace brelex {

/// The room there is for a text.
struct TextRoom {
    int width = 0;  ///< in pixels
    int lines = 0;
};

/// `text` broken into lines that `window` draws within `room`: at blanks, and within words that are
/// longer than a line. What does not fit is left out with an ellipsis in its place, before the last
/// `keptEnd` characters if these fit, else at the end. Its cost does not grow with the text beyond
/// what there is room for. Control characters become blanks.
[[nodiscard]] wxString WrappedText(const wxWindow& window, wxString text, TextRoom room,
                                   std::size_t keptEnd);

}  // namespace brelex
