// SPDX-License-Identifier: MIT
#include "toolkit/wx_text.h"

#include "base/windows1252.h"

namespace brelex {

wxString WxText(std::string_view utf8) {
    return wxString::FromUTF8(utf8.data(), utf8.size());
}

std::string Utf8Text(const wxString& text) {
    const wxScopedCharBuffer utf8 = text.utf8_str();
    if (utf8.length() > 0 || text.empty()) {
        return {utf8.data(), utf8.length()};
    }
    // An edit control may leave half of a surrogate pair behind. It would make the whole text fail
    // to convert.
    wxString sound;
    for (const wxUniChar character : text) {
        const bool isHalf = character >= 0xD800 && character <= 0xDFFF;
        sound += isHalf ? wxUniChar(0xFFFD) : character;
    }
    return sound.utf8_string();
}

wxString WxTextOfBytes(std::string_view bytes) {
    return WxText(Utf8OfBytes(bytes));
}

}  // namespace brelex
