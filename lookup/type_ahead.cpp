// SPDX-License-Identifier: MIT
#include "lookup/type_ahead.h"

#include <algorithm>
#include <compare>

#include "database/string_order.h"
#include "lookup/prefix_search.h"

namespace brelex {

namespace {

bool BeginsWith(const RowList& rows, std::int32_t row, std::string_view text) {
    const std::string_view beginning = rows.RowText(row).substr(0, text.size());
    return beginning.size() == text.size() && std::is_eq(CompareTexts(beginning, text));
}

bool IsOneCharacterRepeated(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [first = text.substr(0, 1)](const char& c) {
        return std::is_eq(CompareTexts({&c, 1}, first));
    });
}

}  // namespace

bool TypeAhead::IsTyping(std::int64_t nowMs) const {
    return !text_.empty() && nowMs - lastMs_ < kPauseMs;
}

std::optional<std::int32_t> TypeAhead::RowAfter(const RowList& rows, std::int32_t selected,
                                                char character, std::int64_t nowMs) {
    if (!IsTyping(nowMs)) {
        text_.clear();
    }
    if (character == ' ' && text_.empty()) {
        return std::nullopt;
    }
    text_ += character;
    lastMs_ = nowMs;
    const bool repeated = IsOneCharacterRepeated(text_);
    const std::string_view wanted = repeated ? std::string_view(text_).substr(0, 1) : text_;
    const bool hasNext = selected >= 0 && selected + 1 < rows.RowCount();
    if (repeated && hasNext && BeginsWith(rows, selected, wanted) &&
        BeginsWith(rows, selected + 1, wanted)) {
        return selected + 1;
    }
    const std::int32_t row = FindFirstByPrefix(rows, wanted);
    if (row >= rows.RowCount() || !BeginsWith(rows, row, wanted)) {
        return std::nullopt;
    }
    return row;
}

}  // namespace brelex
