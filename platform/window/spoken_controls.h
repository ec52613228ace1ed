// SPDX-License-Identifier: MIT
#pragma once

class wxToolBar;
class wxTreeCtrl;

namespace brelex {

/// Gives the tools of a toolbar without texts names for screen readers: those of their tips.
void NameToolsByTips(wxToolBar& toolBar);

/// Tells screen readers the items of a tree, which the toolkit may draw itself, and which of them
/// is selected. Call once the tree has its items.
void SpeakTree(wxTreeCtrl& tree);

}  // namespace brelex
