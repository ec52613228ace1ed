// SPDX-License-Identifier: MIT
#include "platform/desktop/command_line.h"

namespace brelex {

wxString ArgumentText(const wxArrayString& arguments) {
    wxString text;
    for (std::size_t i = 1; i < arguments.size(); ++i) {
        text += (i > 1 ? " " : "") + arguments[i];
    }
    return text;
}

}  // namespace brelex
