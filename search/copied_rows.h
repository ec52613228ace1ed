// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "database/row_list.h"

namespace brelex {

/// Rows with copies of their texts, such as the hits of a search.
class CopiedRows final : public RowList {
  public:
    void Clear();

    /// Appends a row: Windows-1252 bytes without a NUL.
    void Add(std::string_view text);

  private:
    std::string texts_;
    std::vector<std::uint32_t> offsets_ = {0};
};

}  // namespace brelex
