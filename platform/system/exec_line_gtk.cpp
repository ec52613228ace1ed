// SPDX-License-Identifier: MIT
#include "platform/system/exec_line_gtk.h"

namespace brelex {

std::string EscapedForExecLine(std::string_view text) {
    std::string escaped;
    for (const char c : text) {
        if (c == '\\') {
            escaped += "\\\\\\\\";
        } else if (c == '"' || c == '`' || c == '$') {
            escaped += "\\\\";
            escaped += c;
        } else if (c == '%') {
            escaped += "%%";
        } else {
            escaped += c;
        }
    }
    return escaped;
}

}  // namespace brelex
