// SPDX-License-Identifier: MIT
#include "search/copied_rows.h"

namespace brelex {

void CopiedRows::Clear() {
    texts_.clear();
    offsets_ = {0};
    SetRows(texts_.data(), offsets_.data(), 0);
}

void CopiedRows::Add(std::string_view text) {
    texts_ += text;
    texts_.push_back('\0');
    offsets_.push_back(static_cast<std::uint32_t>(texts_.size()));
    SetRows(texts_.data(), offsets_.data(), static_cast<std::int32_t>(offsets_.size()) - 1);
}

}  // namespace brelex
