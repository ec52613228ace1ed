// SPDX-License-Identifier: MIT
#include "help/spoken_page.h"

#include <memory>
#include <utility>
#include <vector>

#include <wx/html/htmlwin.h>

#include "platform/window/spoken_object.h"

namespace brelex {

namespace {

// Cells one after the other in a paragraph that belong to the same link, or to none.
struct Run {
    const wxHtmlCell* paragraph = nullptr;
    wxString target;
    wxString text;
    wxRect place;  // in the page
};

wxString TargetOf(const wxHtmlCell& cell) {
    const wxHtmlLinkInfo* const link = cell.GetLink();
    return link == nullptr ? wxString() : link->GetHref();
}

wxRect PlaceOf(const wxHtmlCell& cell) {
    return {cell.GetAbsPos(), wxSize(cell.GetWidth(), cell.GetHeight())};
}

std::vector<Run> RunsOf(const wxHtmlContainerCell& page) {
    std::vector<Run> runs;
    wxHtmlTerminalCellsInterator cell(page.GetFirstTerminal(), page.GetLastTerminal());
    for (; cell; ++cell) {
        const wxString text = cell->ConvertToText(nullptr);
        const wxString target = TargetOf(**cell);
        if (runs.empty() || runs.back().paragraph != cell->GetParent() ||
            runs.back().target != target) {
            runs.push_back({cell->GetParent(), target, wxString(), PlaceOf(**cell)});
        }
        runs.back().text += text;
        runs.back().place.Union(PlaceOf(**cell));
    }
    return runs;
}

SpokenObject Described(wxHtmlWindow& window, const Run& run) {
    const wxString text = run.text.Strip(wxString::both);
    SpokenObject object{.role = run.target.empty() ? SpokenRole::Text : SpokenRole::Link,
                        .name = text,
                        .address = run.target,
                        .place = [&window, place = run.place] {
                            return wxRect(window.CalcScrolledPosition(place.GetPosition()),
                                          place.GetSize());
                        }};
    if (!run.target.empty()) {
        object.act = [&window, target = run.target] {
            window.OnLinkClicked(wxHtmlLinkInfo(target));
        };
    }
    return object;
}

void Describe(wxHtmlWindow& window) {
    std::vector<SpokenObject> parts;
    wxString text;
    const wxHtmlCell* paragraph = nullptr;
    for (const Run& run : RunsOf(*window.GetInternalRepresentation())) {
        if (run.text.Strip(wxString::both).empty()) {
            continue;
        }
        const bool goesOn = paragraph == run.paragraph;
        text += (text.empty() || goesOn ? wxString() : wxString("\n")) + run.text;
        paragraph = run.paragraph;
        parts.push_back(Described(window, run));
    }
    SetSpokenObject(window,
                    {.role = SpokenRole::Page, .name = window.GetOpenedPageTitle(), .text = text},
                    std::move(parts));
}

// What a description holds for.
struct Layout {
    const wxHtmlCell* page = nullptr;
    wxString address;
    int width = 0;

    bool operator==(const Layout&) const = default;
};

Layout LayoutOf(const wxHtmlWindow& window) {
    return {window.GetInternalRepresentation(), window.GetOpenedPage(),
            window.GetInternalRepresentation()->GetWidth()};
}

}  // namespace

// The toolkit does not tell that another page is open or that lines break elsewhere.
void SpeakPages(wxHtmlWindow& window) {
    SetSpokenObject(window, {.role = SpokenRole::Page});  // before a reader asks what it is
    const auto described = std::make_shared<Layout>();
    window.Bind(wxEVT_IDLE, [&window, described](wxIdleEvent& event) {
        event.Skip();
        if (window.GetInternalRepresentation() != nullptr && LayoutOf(window) != *described) {
            *described = LayoutOf(window);
            Describe(window);
        }
    });
}

}  // namespace brelex
