// SPDX-License-Identifier: MIT
#include "tools/visible_text.h"

#include <cstddef>

namespace brelex {

std::string VisibleText(std::string_view text, std::string_view kept) {
    constexpr std::string_view kReplacementCharacter = "\xEF\xBF\xBD";
    std::string visible;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const auto next = static_cast<unsigned char>(i + 1 < text.size() ? text[i + 1] : 0);
        const bool isDelete = byte == 0x7F;
        const bool isKept = kept.find(text[i]) != std::string_view::npos;
        if ((byte < 0x20 || isDelete) && !isKept) {
            // Unicode has a picture for each: U+2400 to U+241F, and U+2421.
            visible += "\xE2\x90";
            visible.push_back(static_cast<char>(0x80 + (isDelete ? 0x21 : byte)));
        } else if (byte == 0xC2 && next >= 0x80 && next < 0xA0) {  // U+0080 to U+009F
            visible += kReplacementCharacter;
            ++i;
        } else {
            visible.push_back(text[i]);
        }
    }
    return visible;
}

}  // namespace brelex
