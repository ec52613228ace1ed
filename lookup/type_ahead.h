// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "database/row_list.h"

namespace brelex {

/// What typing in a list of entries selects, as in any list box: letters typed in quick succession
/// form a text, which selects the first row that begins with it. The same letter typed repeatedly
/// goes through the rows that begin with it.
class TypeAhead {
  public:
    /// The time in milliseconds after which a letter starts a new text.
    static constexpr std::int64_t kPauseMs = 1000;

    /// The row (0-based) to select when `character` (a Windows-1252 byte) is typed at `nowMs`, a
    /// time that never goes back. `selected` is the selected row (-1: none). Nothing if no row
    /// begins with the text. A blank never starts a text, because list boxes use it otherwise.
    ///
    /// Like FindFirstByPrefix, requires rows sorted by CompareTexts.
    [[nodiscard]] std::optional<std::int32_t> RowAfter(const RowList& rows, std::int32_t selected,
                                                       char character, std::int64_t nowMs);

    /// Whether a letter typed at `nowMs` continues a text.
    [[nodiscard]] bool IsTyping(std::int64_t nowMs) const;

  private:
    std::string text_;
    std::int64_t lastMs_ = 0;
};

}  // namespace brelex
