// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "database/row_list.h"
#include "search/fragment_search.h"
#include "search/search_request.h"
#include "search/wildcard_pattern.h"

namespace brelex {

/// Finds the records that match a search request.
class RecordFinder {
  public:
    /// Compiles a request. Nothing if its text is not a valid pattern. `rows` must outlive the
    /// finder.
    [[nodiscard]] static std::optional<RecordFinder> Compile(const SearchRequest& request,
                                                             const RowList& rows);

    /// Whether a record matches. This is the definition, applied to one record at a time.
    [[nodiscard]] bool IsHit(std::string_view recordText) const;

    /// The part of a record that matches, the first of several. Requires a hit.
    [[nodiscard]] std::string_view MatchIn(std::string_view recordText) const;

    /// Appends the matching rows from `first` up to but not including `last` to `hits`, in
    /// ascending order and at most `limit` of them. Requires 0 <= first, last <= RowCount() and a
    /// limit above 0. Searches the text of all rows at once for the rarest fragment of the pattern,
    /// and looks only at the records that contain it.
    void FindHits(std::int32_t first, std::int32_t last, std::size_t limit,
                  std::vector<std::int32_t>& hits) const;

  private:
    RecordFinder(const SearchRequest& request, const RowList& rows, WildcardPattern pattern);

    [[nodiscard]] bool IsHitInField(std::string_view field) const;
    [[nodiscard]] std::string_view FieldOf(std::string_view recordText) const;
    [[nodiscard]] bool IsInField(std::string_view recordText, const char* found) const;

    const RowList& rows_;
    SearchIn in_;
    bool matchCase_;
    bool loose_;  // the pattern and the word are for a LooseText
    WildcardPattern pattern_;
    std::optional<std::string>
        word_;  // the whole word to find, in lowercase if case does not matter
    std::optional<FragmentSearch> rarest_;  // empty if the pattern consists of stars
    std::size_t edge_ = 0;  // bytes before the field that belong to the rarest fragment
    // The length of that fragment if any field that contains it matches.
    std::optional<std::size_t> onlyFragment_;
};

}  // namespace brelex
