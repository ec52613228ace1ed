// SPDX-License-Identifier: MIT
#include "help/spoken_page.h"

#include <memory>
#include <utility>
#include <vector>

#include <wx/html/htmlwin.h>

#include "help/page_runs.h"
#include "platform/window/spoken_object.h"

namespace brelex {

namespace {

SpokenObject Described(wxHtmlWindow& window, const PageRun& run) {
    const wxString text = run.text.Strip(wxString::both);
    SpokenObject object{.role = run.target.empty() ? SpokenRole::Text : SpokenRole::Link,
                        .name = text,
                        .address = run.target,
                        .place = [&window, place = run.Place()] {
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
    for (const PageRun& run : RunsOf(window)) {
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

}  // namespace

void SpeakPages(wxHtmlWindow& window) {
    SetSpokenObject(window, {.role = SpokenRole::Page});  // before a reader asks what it is
    const auto described = std::make_shared<PageLayout>();
    window.Bind(wxEVT_IDLE, [&window, described](wxIdleEvent& event) {
        event.Skip();
        if (window.GetInternalRepresentation() != nullptr && LayoutOf(window) != *described) {
            *described = LayoutOf(window);
            Describe(window);
        }
    });
}

}  // namespace brelex
