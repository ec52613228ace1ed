// SPDX-License-Identifier: MIT
#pragma once

#include <gtk/gtk.h>

namespace brelex {

/// Adds rules, in the CSS of GTK 3, to the theme for one widget without its children. The user's
/// own rules take precedence.
void AddStyle(GtkWidget& widget, const char* rules);

/// Adds rules for all windows of the program.
void AddStyleToProgram(const char* rules);

}  // namespace brelex
