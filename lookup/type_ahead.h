// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "database/row_list.h"

namespace brelex {

/// What letters typed into a list of entries select, as list boxes have it: letters that follow
/// each other quickly make one text, and the first row that begins with it is meant; one letter
/// again and again goes from row to row of those that begin with it.
class TypeAhead {
  public:
    /// The time after which a letter begins a new text, in milliseconds.
    static constexpr std::int64_t kPauseMs = 1000;

    /// The row (0-based) that is meant when `character` (one character, in Windows-1252) is typed
    /// at `nowMs`, a time that never goes back, while `selected` is the selected row (-1: none).
    /// None if no row begins with the text. A blank begins no text, as list boxes use it otherwise.
    ///
    /// Relies on rows sorted by CompareTexts, as FindFirstByPrefix does.
    [[nodiscard]] std::optional<std::int32_t> RowAfter(const RowList& rows, std::int32_t selected,
                                                       char character, std::int64_t nowMs);

    /// Whether a letter typed at `nowMs` goes on with a text that has begun.
    [[nodiscard]] bool IsTyping(std::int64_t nowMs) const;

  private:
    std::string text_;
    std::int64_t lastMs_ = 0;
};

}  // namespace brelex
