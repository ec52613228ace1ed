// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "database/program_values.h"

class wxComboBox;
class wxDC;
class wxRect;
class wxTextCtrl;
class wxTextEntry;
class wxTopLevelWindow;

namespace brelex {

class MessageSink;

/// Draws a sunken 3-D frame on the boundary of `area`. First draws the left and top edges in the
/// system's button-shadow color, then the right and bottom edges, which are at left + width and top
/// + height, in its button-highlight color. Where a theme's own colors would not be seen, it mixes
/// similar ones.
void Draw3DFrame(wxDC& dc, const wxRect& area);

/// Puts a window into the band of windows that stay above all others, or takes it out of that band.
void SetTopMost(wxTopLevelWindow& window, bool topMost);

/// Puts the entry with this record text (Windows-1252 bytes) on the clipboard as text, in the form
/// "RAM = Random Access Memory". If another program holds the clipboard, waits a little and then
/// tells the user.
void CopyEntryToClipboard(std::string_view recordText, MessageSink& messages);

/// Moves the text of a combo box to the top of its list, so that it appears there only once.
void AddToComboHistory(wxComboBox& combo);

/// Selects all of the text in a control.
void SelectAllText(wxTextEntry& control);

/// Centers a window over the main window, or on the screen if the main window is minimized or
/// hidden. Keeps it within the edges of the screen that the center is on, or of the main window's
/// screen if the center is on none.
void CenterWindow(wxTopLevelWindow& window, const wxTopLevelWindow& main);

/// Shows what program this is. The text box loses its selection but keeps its caret.
void ShowAppInfo(wxTextCtrl& box, const AppInfo& info, MessageSink& messages);

}  // namespace brelex
