// SPDX-License-Identifier: MIT
#pragma once

#include <gtk/gtk.h>

namespace brelex {

/// For a window of the system that is the program's only one. Puts it into the taskbar with the
/// program's icon. If it comes up behind others, the desktop draws attention to it until it gets
/// the keyboard.
void MakeFindable(GtkWindow* window);

}  // namespace brelex
