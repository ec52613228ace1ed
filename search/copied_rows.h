// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "database/row_list.h"

namespace brelex {

/// A few rows of one's own, such as what a search has found.
class CopiedRows final : public RowList {
  public:
    void Clear();

    /// Adds a row at the end (Windows-1252 bytes, without NUL).
    void Add(std::string_view text);

  private:
    std::string texts_;
    std::vector<std::uint32_t> offsets_ = {0};
};

}  // namespace brelex
