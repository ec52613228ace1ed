// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include <wx/gdicmn.h>
#include <wx/string.h>

class wxHtmlCell;
class wxHtmlWindow;

namespace brelex {

/// Words one after the other in a paragraph that belong to the same link, or to none.
struct PageRun {
    const wxHtmlCell* paragraph = nullptr;
    wxString target;            ///< where the link leads; empty if it is none
    wxString text;              ///< may be blank
    std::vector<wxRect> lines;  ///< places in the page, in pixels from its upper left corner

    /// The rectangle around all lines.
    [[nodiscard]] wxRect Place() const;
};

/// The page that a window shows, in reading order. Empty if it shows none.
[[nodiscard]] std::vector<PageRun> RunsOf(const wxHtmlWindow& window);

/// What a list of runs holds for. The toolkit does not tell that another page is open or that lines
/// break elsewhere.
struct PageLayout {
    const wxHtmlCell* page = nullptr;
    wxString address;
    wxSize size;  // another page may lie where the last one was

    bool operator==(const PageLayout&) const = default;
};

/// The layout of the page that a window shows.
[[nodiscard]] PageLayout LayoutOf(const wxHtmlWindow& window);

}  // namespace brelex
