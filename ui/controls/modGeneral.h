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
class wxWindow;

namespace brelex {

/// Draws a sunken 3-D frame on the boundary of `area`: the left and top edges in the system's
/// button-shadow colour, then the right and bottom edges, which stand at left + width and
/// top + height, in its button-highlight colour.
void Draw3DFrame(wxDC& dc, const wxRect& area);

/// The same round a control, one pixel outside it, or `above` pixels at the top. `area` is the
/// control's.
void DrawFrameRound(wxDC& dc, const wxRect& area, int above = 1);

/// Puts a window into the band of windows that stay above all others, or takes it out of it.
void SetTopMost(wxTopLevelWindow& window, bool topMost);

/// Puts the entry with this record text (Windows-1252 bytes) on the clipboard as text, in the form
/// "RAM = Random Access Memory". If another program holds the clipboard, waits a little and then
/// says so over `owner`.
void CopyEntryToClipboard(wxWindow& owner, std::string_view recordText);

/// Makes the text of a combo box the first item of its list, and removes what equals it there.
void AddToComboHistory(wxComboBox& combo);

/// Selects all text of a control.
void SelectAllText(wxTextEntry& control);

/// Centres a window over the main window, or on the screen if that one is minimised or hidden, but
/// not beyond the edges of the screen that the middle is on.
void CenterWindow(wxTopLevelWindow& window, const wxTopLevelWindow& main);

/// The same now and whenever the window comes onto the screen, when it has the desktop's frame.
/// Call once for each window; `main` must outlive it.
void KeepCentered(wxTopLevelWindow& window, const wxTopLevelWindow& main);

/// Tells what program this is. The text box loses its selection; its caret stays.
void ShowAppInfo(wxTextCtrl& box, const AppInfo& info);

/// Has a read-only text box tell what program this is where others show a menu: when it is pressed
/// with the right mouse button, and on Shift+F10 and the menu key. `info` must outlive the box.
void ShowAppInfoOnMenuRequest(wxTextCtrl& box, const AppInfo& info);

}  // namespace brelex
