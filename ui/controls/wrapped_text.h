// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include <wx/string.h>

class wxWindow;

namespace brelex {

/// The room available for a text.
struct TextRoom {
    int width = 0;  ///< in pixels
    int lines = 0;
};

/// Breaks `text` into lines that fit into `room` when `window` draws them. Breaks at blanks, and
/// within words that are longer than a line. An ellipsis replaces text that does not fit: before
/// the last `keptEnd` characters if these fit, otherwise at the end. Control characters become
/// blanks. The cost depends on the room, not on the length of the text.
[[nodiscard]] wxString WrappedText(const wxWindow& window, wxString text, TextRoom room,
                                   std::size_t keptEnd);

}  // namespace brelex
