// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "database/row_list.h"

namespace brelex {

/// Selects rows in response to typing in the list of entries, as any list box does. Letters typed
/// in quick succession form a text, which selects the first row that begins with it. Typing the
/// same letter repeatedly goes through the rows that begin with it.
class TypeAhead {
  public:
    /// After this pause, in milliseconds, a letter starts a new text.
    static constexpr std::int64_t kPauseMs = 1000;

    /// Returns the row (0-based) to select when `character` (a Windows-1252 byte) is typed at
    /// `nowMs`, a time that never goes back. `selected` is the selected row (-1: none). Nothing if
    /// no row begins with the text. A blank never starts a text, because list boxes use it for
    /// something else.
    ///
    /// Like FindFirstByPrefix, requires rows sorted by CompareTexts.
    [[nodiscard]] std::optional<std::int32_t> RowAfter(const RowList& rows, std::int32_t selected,
                                                       char character, std::int64_t nowMs);

    /// Whether a letter typed at `nowMs` would continue a text.
    [[nodiscard]] bool IsTyping(std::int64_t nowMs) const;

  private:
    std::string text_;
    std::int64_t lastMs_ = 0;
};

}  // namespace brelex
