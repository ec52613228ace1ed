// SPDX-License-Identifier: MIT
#include "help/page_runs.h"

#include <wx/html/htmlwin.h>

namespace brelex {

namespace {

wxString TargetOf(const wxHtmlCell& cell) {
    const wxHtmlLinkInfo* const link = cell.GetLink();
    return link == nullptr ? wxString() : link->GetHref();
}

wxRect PlaceOf(const wxHtmlCell& cell) {
    return {cell.GetAbsPos(), wxSize(cell.GetWidth(), cell.GetHeight())};
}

// Words of one line may differ in height. Cells that only change the color have none.
void AddWord(std::vector<wxRect>& lines, const wxRect& word) {
    if (word.IsEmpty()) {
        return;
    }
    const int middle = word.y + word.height / 2;
    if (lines.empty() || middle < lines.back().GetTop() || middle > lines.back().GetBottom()) {
        lines.push_back(word);
    } else {
        lines.back().Union(word);
    }
}

}  // namespace

wxRect PageRun::Place() const {
    wxRect place;
    for (const wxRect& line : lines) {
        place.Union(line);
    }
    return place;
}

std::vector<PageRun> RunsOf(const wxHtmlWindow& window) {
    std::vector<PageRun> runs;
    const wxHtmlContainerCell* const page = window.GetInternalRepresentation();
    if (page == nullptr) {
        return runs;
    }
    wxHtmlTerminalCellsInterator cell(page->GetFirstTerminal(), page->GetLastTerminal());
    for (; cell; ++cell) {
        const wxString target = TargetOf(**cell);
        if (runs.empty() || runs.back().paragraph != cell->GetParent() ||
            runs.back().target != target) {
            runs.push_back({cell->GetParent(), target, wxString(), {}});
        }
        runs.back().text += cell->ConvertToText(nullptr);
        AddWord(runs.back().lines, PlaceOf(**cell));
    }
    return runs;
}

PageLayout LayoutOf(const wxHtmlWindow& window) {
    const wxHtmlContainerCell* const page = window.GetInternalRepresentation();
    return {page, window.GetOpenedPage(),
            page == nullptr ? wxSize() : wxSize(page->GetWidth(), page->GetHeight())};
}

}  // namespace brelex
