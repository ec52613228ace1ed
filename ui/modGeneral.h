// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "database/program_values.h"

class wxComboBox;
class wxDC;
class wxRect;
class wxSizer;
class wxStaticText;
class wxTextCtrl;
class wxTextEntry;
class wxTopLevelWindow;
class wxWindow;

namespace brelex {

class Surface;

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

/// Has Ctrl+A select all text of a control, which Windows' own does not do on every version of the
/// system. `window` and `entry` are the same control.
void SelectAllOnCtrlA(wxWindow& window, wxTextEntry& entry);

/// Has small letters that are typed into a control become capitals. Other characters, and what is
/// pasted, stay as they are. `window` and `entry` are the same control.
void TypeInCapitals(wxWindow& window, wxTextEntry& entry);

/// Pastes the clipboard's text over the selection of a control, of its first line what fits within
/// `maxLength` characters. GTK by itself would delete the selection and then refuse all of it.
/// Returns false if the clipboard has no text.
[[nodiscard]] bool PasteWhatFits(wxTextEntry& entry, std::size_t maxLength);

/// Lays `content` out on the surface and gives the surface's window the size of it, or `width`
/// pixels across if that is not 0; less where the screen is too small.
void FillWindow(Surface& surface, wxSizer* content, int width = 0);

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

/// A label with an access key in its text, and where the key leads.
struct LabelledControl {
    const wxStaticText* label;
    wxWindow* target;
};

/// Has the access keys of labels lead to the controls behind them. On GTK a label does so by
/// itself; Windows promises it for dialogs only. Call once for each window.
void LeadAccessKeysTo(wxTopLevelWindow& window, const std::vector<LabelledControl>& controls);

}  // namespace brelex
