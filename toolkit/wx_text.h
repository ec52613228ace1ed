// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include <wx/string.h>

namespace brelex {

/// Converts between UTF-8 and the toolkit's text.
[[nodiscard]] wxString WxText(std::string_view utf8);
[[nodiscard]] std::string Utf8Text(const wxString& text);

/// Converts Windows-1252 bytes to the toolkit's text.
[[nodiscard]] wxString WxTextOfBytes(std::string_view bytes);

}  // namespace brelex
