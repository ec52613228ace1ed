// SPDX-License-Identifier: MIT
#pragma once

#include <gtk/gtk.h>

namespace brelex {

/// For a window of the system that is the program's only one: puts it into the task bar under the
/// program's icon, and has the desktop point at it until it gets the keyboard, should it
/// come up behind others.
void MakeFindable(GtkWindow* window);

}  // namespace brelex
