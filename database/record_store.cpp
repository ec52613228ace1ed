// SPDX-License-Identifier: MIT
#include "database/record_store.h"

#include <algorithm>
#include <cassert>
#include <cstring>
#include <memory>
#include <utility>

#include "base/number_text.h"
#include "database/string_order.h"

namespace brelex {

namespace {

// The greatest length, up to `limit`, to which both texts can be cut so that `next` still does not
// sort before `row`. Gives up at a byte that is not plain: with accents, cut texts can be out of
// order.
std::size_t AscendingBytes(std::string_view row, std::string_view next, std::size_t limit) {
    const std::size_t common = std::min({row.size(), next.size(), limit});
    for (std::size_t i = 0; i < common; ++i) {
        const std::uint8_t a = PlainWeightOf(row[i]);
        const std::uint8_t b = PlainWeightOf(next[i]);
        if (a == 0 || b == 0 || a > b) {
            return i;
        }
        if (a < b) {
            return limit;
        }
    }
    return row.size() <= next.size() ? limit : std::min(limit, next.size());
}

}  // namespace

bool RecordStore::Fill(ExpandedFile file, std::size_t blockAt, std::int32_t recordCount,
                       std::int32_t progressStep, WorkWatcher& progress) {
    assert(progressStep > 0);
    assert(blockAt <= file.View().size());
    file_ = std::move(file);
    block_ = file_.View().substr(blockAt);
    offsets_.reset();
    SetRows(nullptr, nullptr, 0);
    recordCount = std::max(recordCount, 0);
    const auto wanted = static_cast<std::size_t>(recordCount);
    // A record takes at least one byte. So a count beyond the block's size is wrong, and no memory
    // is reserved for it.
    if (wanted > block_.size()) {
        return false;
    }
    auto offsets = std::make_unique_for_overwrite<std::uint32_t[]>(wanted + 1);
    offsets[0] = 0;
    const char* next = block_.data();
    const char* const end = next + block_.size();
    std::int64_t nextReport = 0;
    for (std::int32_t row = 0; row < recordCount; ++row) {
        const void* const nul = std::memchr(next, 0, static_cast<std::size_t>(end - next));
        if (nul == nullptr) {
            return false;
        }
        next = static_cast<const char*>(nul) + 1;
        offsets[static_cast<std::size_t>(row) + 1] =
            static_cast<std::uint32_t>(next - block_.data());
        if (row == nextReport) {
            progress.SetProgress(PercentOf(row, recordCount));
            nextReport += progressStep;
        }
    }
    offsets_ = std::move(offsets);
    SetRows(block_.data(), offsets_.get(), recordCount);
    return true;
}

void RecordStore::MeasureOrder() {
    if (RowCount() == 0) {
        return;
    }
    std::size_t ascending = std::string_view::npos;
    for (std::int32_t row = 1; row < RowCount(); ++row) {
        ascending = AscendingBytes(RowText(row - 1), RowText(row), ascending);
    }
    SetRows(block_.data(), offsets_.get(), RowCount(), ascending);
}

}  // namespace brelex
