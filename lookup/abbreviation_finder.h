// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "database/row_list.h"

namespace brelex {

/// Finds entries by their whole abbreviation. Case, hyphens, periods, slashes and blanks do not
/// count: "tcpip" is TCP/IP, and "P.S." is PS. An abbreviation of nothing but such marks has to be
/// given exactly. Texts are Windows-1252 bytes.
class AbbreviationFinder {
  public:
    /// `rows` must outlive the finder. From its second search on, the finder keeps 8 bytes for each
    /// row, so that a search looks at few of them.
    explicit AbbreviationFinder(const RowList& rows) : rows_(rows) {}

    /// Returns the rows (0-based, ascending) whose abbreviation is `text`.
    [[nodiscard]] std::vector<std::int32_t> Find(std::string_view text);

    /// Returns at most `limit` different abbreviations that are one edit away from `text`: a
    /// character too many, missing or wrong, or two neighbors exchanged. Those with the same first
    /// character come first. Otherwise, exchanged neighbors come first and wrong characters last.
    /// The order of the rows decides the rest. None if no character of `text` counts.
    [[nodiscard]] std::vector<std::string_view> FindSimilar(std::string_view text,
                                                            std::size_t limit);

  private:
    [[nodiscard]] bool IsAbbreviation(std::size_t row, std::string_view text,
                                      std::string_view key) const;
    void MakeSignatures();

    const RowList& rows_;
    bool hasSearched_ = false;
    std::vector<std::uint64_t> signatures_;  // of the abbreviations: which characters they have
};

}  // namespace brelex
