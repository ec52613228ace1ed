// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

#include "search/fragment_scan.h"
#include "search/wildcard_pattern.h"

namespace brelex {

/// Finds a fragment in a long text: consecutive bytes, each from a set. It picks the two places of
/// the fragment that together are rarest, and skips every position that lacks either of them.
class FragmentSearch {
  public:
    /// Requires a fragment that is not empty. `sample` is text similar to the text to be searched;
    /// it shows what is rare.
    FragmentSearch(WildcardPattern::Segment fragment, std::string_view sample);

    /// The expected share of positions that need a closer look, from 0 to 1.
    [[nodiscard]] double ExpectedCandidates() const { return expectedCandidates_; }

    /// Calls `visit` with the first position of the fragment in `text` at or after `from`. Goes on
    /// from the position that `visit` returns, which must be greater, until the text ends.
    template <typename Visit>
    void VisitPlaces(std::string_view text, std::size_t from, Visit visit) const {
        if (text.size() < fragment_.sets.size()) {
            return;
        }
        const std::size_t end = text.size() - fragment_.sets.size() + 1;
        while (from < end) {
            const std::size_t position = scan_(text, from, end, fragment_);
            from = position < end ? visit(position) : end;
        }
    }

  private:
    Fragment fragment_;
    double expectedCandidates_ = 1;
    FragmentScan scan_ = FastestScan();
};

}  // namespace brelex
