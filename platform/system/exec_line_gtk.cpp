// SPDX-License-Identifier: MIT
#include "platform/system/exec_line_gtk.h"

namespace brelex {

// A line break in the name of a folder must not begin a new line of the entry.
std::string EscapedForDesktopEntry(std::string_view text) {
    std::string escaped;
    for (const char c : text) {
        switch (c) {
            case '\\':
                escaped += "\\\\";
                break;
            case '\n':
                escaped += "\\n";
                break;
            case '\r':
                escaped += "\\r";
                break;
            case '\t':
                escaped += "\\t";
                break;
            default:
                escaped += c;
        }
    }
    return escaped;
}

std::string EscapedForExecLine(std::string_view text) {
    std::string command;
    for (const char c : text) {
        if (c == '\\' || c == '"' || c == '`' || c == '$') {
            command += '\\';
        } else if (c == '%') {
            command += '%';
        }
        command += c;
    }
    return EscapedForDesktopEntry(command);
}

}  // namespace brelex
