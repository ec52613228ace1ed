// SPDX-License-Identifier: MIT
#pragma once

#include <wx/string.h>

class wxStaticText;
class wxToolBar;
class wxTreeCtrl;

namespace brelex {

/// Gives the tools of a toolbar without texts names for screen readers: those of their tips.
void NameToolsByTips(wxToolBar& toolBar);

/// Keeps the texts of a label that changes many times in a second away from screen readers, and
/// tells them `name` instead. On Linux they would be so busy with the texts that they say nothing
/// else. Does nothing on Windows.
void SpeakOnlyName(wxStaticText& label, const wxString& name);

/// Tells screen readers the items of a tree, which the toolkit may draw itself, and which of them
/// is selected. Call once the tree has its items.
void SpeakTree(wxTreeCtrl& tree);

}  // namespace brelex
