// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "database/row_list.h"
#include "search/fragment_search.h"
#include "search/search_request.h"
#include "search/wildcard_pattern.h"

namespace brelex {

/// Finds the records that a request asks for.
class RecordFinder {
  public:
    /// Compiles a request. Nothing if its text is malformed as a pattern. `rows` must outlive the
    /// finder.
    [[nodiscard]] static std::optional<RecordFinder> Compile(const SearchRequest& request,
                                                             const RowList& rows);

    /// Whether a record is one of them: the definition, record by record.
    [[nodiscard]] bool IsHit(std::string_view recordText) const;

    /// The first of the rows from `first` to before `last` that is one, else `last`. Looks for the
    /// rarest part of the pattern in all the text at once and then only at the records that have
    /// it.
    [[nodiscard]] std::int32_t FindNext(std::int32_t first, std::int32_t last) const;

  private:
    RecordFinder(const SearchRequest& request, const RowList& rows, WildcardPattern pattern);

    [[nodiscard]] std::string_view FieldOf(std::string_view recordText) const;
    [[nodiscard]] bool HasOnlyFragment(std::string_view recordText, const char* found) const;

    const RowList& rows_;
    SearchIn in_;
    bool matchCase_;
    WildcardPattern pattern_;
    std::optional<std::string>
        word_;  // what must stand alone, in small letters if case is no matter
    std::optional<FragmentSearch> rarest_;  // nothing if the pattern is stars only
    std::size_t edge_ = 0;  // bytes in front of the field that are part of the rarest fragment
    std::size_t onlyFragment_ = 0;  // its length if a record that has it in the field is a hit
};

}  // namespace brelex
