// SPDX-License-Identifier: MIT
#include "ui/search_options.h"

#include <cstddef>
#include <initializer_list>
#include <string>

#include <wx/checkbox.h>
#include <wx/radiobut.h>
#include <wx/sizer.h>
#include <wx/statbox.h>

#include "platform/window/accessible_name.h"

namespace brelex {

namespace {

wxStaticBox* NewFrame(wxWindow& parent, const char* caption, const char* name) {
    return Named(new wxStaticBox(&parent, wxID_ANY, caption), name);
}

// The first of the buttons begins a group.
template <std::size_t count>
std::array<wxRadioButton*, count> NewButtons(wxWindow& parent, const std::string& name,
                                             const std::array<const char*, count>& captions) {
    std::array<wxRadioButton*, count> buttons{};
    for (std::size_t i = 0; i < count; ++i) {
        buttons.at(i) =
            Named(new wxRadioButton(&parent, wxID_ANY, captions.at(i), wxDefaultPosition,
                                    wxDefaultSize, i == 0 ? wxRB_GROUP : 0),
                  name + std::to_string(i));
    }
    return buttons;
}

wxCheckBox* NewCheckBox(wxWindow& parent, const char* caption, const char* name) {
    return Named(new wxCheckBox(&parent, wxID_ANY, caption), name);
}

}  // namespace

// In the order in which the TAB key visits them. The buttons in a frame are its siblings: from
// within a frame of the toolkit no access key leads out again on Windows (seen with 3.2.2).
SearchOptions::SearchOptions(wxWindow& surface, const std::function<void(SearchIn)>& onSearchIn)
    : fraPosition(NewFrame(surface, "Position", "fraPosition")),
      optPosition(
          NewButtons<3>(surface, "optPosition", {"Any&where", "&Beginning with", "En&ding with"})),
      fraSearchIn(NewFrame(surface, "Search", "fraSearchIn")),
      optSearchIn(NewButtons<2>(surface, "optSearchIn", {"&Abbreviations", "&Expansions"})),
      chkMatchCase(NewCheckBox(surface, "&Match Case", "chkMatchCase")),
      chkWholeWord(NewCheckBox(surface, "Search Whole Word &Only", "chkWholeWord")),
      chkNextSearch(NewCheckBox(surface, "Search from &Next Position", "chkNextSearch")) {
    optPosition[0]->SetValue(true);
    optSearchIn[1]->SetValue(true);
    chkNextSearch->Disable();
    for (wxRadioButton* button : optSearchIn) {
        button->Bind(wxEVT_RADIOBUTTON,
                     [this, onSearchIn](wxCommandEvent&) { onSearchIn(Request().in); });
    }
}

wxBoxSizer* SearchOptions::Layout(int gap) const {
    auto* all = new wxBoxSizer(wxHORIZONTAL);
    const auto addFrame = [&](wxStaticBox* frame, const auto& buttons) {
        auto* column = new wxStaticBoxSizer(frame, wxVERTICAL);
        for (wxRadioButton* button : buttons) {
            column->Add(button, 0, wxLEFT | wxRIGHT | wxBOTTOM, gap / 2);
        }
        all->Add(column, 0, wxEXPAND | wxRIGHT, gap);
    };
    addFrame(fraPosition, optPosition);
    addFrame(fraSearchIn, optSearchIn);
    // Beside the buttons in the frames.
    auto* checks = new wxBoxSizer(wxVERTICAL);
    int toFirst = 0;
    int beside = 0;
    fraPosition->GetBordersForSizer(&toFirst, &beside);
    checks->AddSpacer(toFirst);
    for (wxCheckBox* check : {chkMatchCase, chkWholeWord, chkNextSearch}) {
        checks->Add(check, 0, wxBOTTOM, gap / 2);
    }
    all->Add(checks);
    return all;
}

SearchRequest SearchOptions::Request() const {
    SearchRequest request;
    request.in = optSearchIn[0]->GetValue() ? SearchIn::Abbreviations : SearchIn::Expansions;
    if (optPosition[1]->GetValue()) {
        request.position = SearchPosition::Beginning;
    } else if (optPosition[2]->GetValue()) {
        request.position = SearchPosition::Ending;
    }
    request.matchCase = chkMatchCase->GetValue();
    request.wholeWord = chkWholeWord->GetValue();
    return request;
}

bool SearchOptions::GoesOn() const {
    return chkNextSearch->GetValue();
}

void SearchOptions::OfferToGoOn(bool offer) {
    chkNextSearch->Enable(offer);
}

void SearchOptions::Enable(bool enable) {
    for (wxWindow* control : std::initializer_list<wxWindow*>{
             fraPosition, optPosition[0], optPosition[1], optPosition[2], fraSearchIn,
             optSearchIn[0], optSearchIn[1], chkMatchCase, chkWholeWord}) {
        control->Enable(enable);
    }
}

}  // namespace brelex
