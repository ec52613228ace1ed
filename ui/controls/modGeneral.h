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

/// Draws a sunken 3-D frame on the boundary of `area`. The left and top edges take the system's
/// button-shadow color, then the right and bottom edges, which are at left + width and
/// top + height, its button-highlight color.
void Draw3DFrame(wxDC& dc, const wxRect& area);

/// Puts a window into the band of windows that stay above all others, or takes it out of it.
void SetTopMost(wxTopLevelWindow& window, bool topMost);

/// Puts the entry with this record text (Windows-1252 bytes) on the clipboard as text, in the form
/// "RAM = Random Access Memory". If another program holds the clipboard, waits a little and then
/// says so.
void CopyEntryToClipboard(std::string_view recordText, MessageSink& messages);

/// Makes the text of a combo box the first item of its list, and removes what equals it there.
void AddToComboHistory(wxComboBox& combo);

/// Selects all text of a control.
void SelectAllText(wxTextEntry& control);

/// Centers a window over the main window, or on the screen if that one is minimized or hidden, but
/// not beyond the edges of the screen that the middle is on.
void CenterWindow(wxTopLevelWindow& window, const wxTopLevelWindow& main);

/// Says what program this is. The text box loses its selection; its caret stays.
void ShowAppInfo(wxTextCtrl& box, const AppInfo& info, MessageSink& messages);

}  // namespace brelex
