// SPDX-License-Identifier: MIT
#pragma once

namespace brelex {

/// Tells the desktop which desktop entry the program's windows belong to: the one named `id`. Under
/// X11 this is the windows' instance in WM_CLASS, under Wayland their application ID. Call it
/// before the toolkit initializes itself. Does nothing on Windows, where the taskbar goes by the
/// program's file.
void SetDesktopEntry(const char* id);

/// Sets the name that screen readers have for the program. Otherwise they would say the ID. Call it
/// when the toolkit has initialized itself. Does nothing on Windows.
void SetSpokenProgramName(const char* name);

}  // namespace brelex
