// SPDX-License-Identifier: MIT
#include "platform/window/focus_marks.h"

#include "platform/window/style_sheet_gtk.h"

namespace brelex {

void MakeFocusMarksSeen() {
    AddStyleToProgram("* { outline-color: currentColor; }");
}

}  // namespace brelex
