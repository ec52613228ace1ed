// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <functional>

#include "search/search_request.h"

class wxBoxSizer;
class wxCheckBox;
class wxRadioButton;
class wxStaticBox;
class wxWindow;

namespace brelex {

/// The controls of the search window that say where to search, and how.
class SearchOptions {
  public:
    /// Makes the controls on `surface`, which must destroy them before this goes. `onSearchIn` is
    /// called when the user chooses another part of the entries.
    SearchOptions(wxWindow& surface, const std::function<void(SearchIn)>& onSearchIn);
    SearchOptions(const SearchOptions&) = delete;
    SearchOptions& operator=(const SearchOptions&) = delete;

    /// A row of the controls, `gap` pixels apart.
    [[nodiscard]] wxBoxSizer* Layout(int gap) const;

    /// What is chosen; the search text is left to the caller.
    [[nodiscard]] SearchRequest Request() const;

    /// Whether to search from the next position.
    [[nodiscard]] bool GoesOn() const;

    /// Offers to search from the next position, or not.
    void OfferToGoOn(bool offer);

    /// Whether the other options can be changed.
    void Enable(bool enable);

  private:
    wxStaticBox* fraPosition;
    std::array<wxRadioButton*, 3> optPosition;
    wxStaticBox* fraSearchIn;
    std::array<wxRadioButton*, 2> optSearchIn;
    wxCheckBox* chkMatchCase;
    wxCheckBox* chkWholeWord;
    wxCheckBox* chkNextSearch;
};

}  // namespace brelex
