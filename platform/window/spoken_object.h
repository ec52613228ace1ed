// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <vector>

#include <wx/gdicmn.h>
#include <wx/string.h>

class wxTopLevelWindow;
class wxWindow;

namespace brelex {

/// What an object is to a screen reader.
enum class SpokenRole {
    Button,
    Image,
    Link,
    Page,  ///< of a book; its parts are read one after the other
    ProgressBar,
    Section,  ///< holds the parts of a Page where the system wants it
    Text,
    ToolBar,
    Tree,
    TreeItem
};

/// A window that we paint ourselves, or a part of one, as a screen reader gets it.
struct SpokenObject {
    SpokenRole role = SpokenRole::Text;
    wxString name{};
    wxString description{};           ///< what there is to say beyond the name
    wxString text{};                  ///< what a Page shows, to be read in lines
    wxString address{};               ///< where a Link leads
    int percent = 0;                  ///< of a ProgressBar
    int level = 0;                    ///< of a TreeItem, 1 for the topmost
    bool isCurrent = false;           ///< a TreeItem that is selected
    std::function<void()> act{};      ///< presses a Button, opens a Link or selects a TreeItem
    std::function<wxRect()> place{};  ///< where a part is in its window, in pixels
};

/// Describes a window that we paint ourselves to screen readers: the window as a whole and the
/// parts in it that are no windows. A later call replaces the description and tells of what has
/// changed; the role of the window stays what it was.
void SetSpokenObject(wxWindow& window, SpokenObject whole, std::vector<SpokenObject> parts = {});

/// Makes an area that may scroll a plain one to screen readers. They would not say the texts in it
/// when its dialog opens.
void MakeSpokenPanel(wxWindow& area);

/// Makes a window a dialog to screen readers, which then say its texts when it opens.
void MakeSpokenDialog(wxTopLevelWindow& window);

}  // namespace brelex
