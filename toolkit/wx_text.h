// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include <wx/string.h>

namespace brelex {

/// UTF-8 as the toolkit's text, and back.
[[nodiscard]] wxString WxText(std::string_view utf8);
[[nodiscard]] std::string Utf8Text(const wxString& text);

/// Windows-1252 bytes as the toolkit's text.
[[nodiscard]] wxString WxTextOfBytes(std::string_view bytes);

}  // namespace brelex
