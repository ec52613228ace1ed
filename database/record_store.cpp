// SPDX-License-Identifier: MIT
#include "database/record_store.h"

#include <algorithm>
#include <cassert>
#include <cstring>
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
        const ByteWeight& a = WeightOf(row[i]);
        const ByteWeight& b = WeightOf(next[i]);
        if (!a.IsPlain() || !b.IsPlain() || a.primary > b.primary) {
            return i;
        }
        if (a.primary < b.primary) {
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
    offsets_.clear();
    SetRows(nullptr, nullptr, 0, 0);
    if (recordCount <= 0) {
        return true;
    }
    const auto wanted = static_cast<std::size_t>(recordCount);
    // A record takes at least one byte. So a count beyond the block's size is wrong, and no memory
    // is reserved for it.
    if (wanted > block_.size()) {
        return false;
    }
    offsets_.reserve(wanted + 1);
    offsets_.push_back(0);
    std::size_t position = 0;
    std::size_t ascending = std::string_view::npos;
    std::string_view previous;
    for (std::int32_t i = 0; i < recordCount; ++i) {
        const void* nul = std::memchr(block_.data() + position, 0, block_.size() - position);
        if (nul == nullptr) {
            offsets_.clear();
            return false;
        }
        const auto length =
            static_cast<std::size_t>(static_cast<const char*>(nul) - (block_.data() + position));
        const std::string_view text = block_.substr(position, length);
        ascending = AscendingBytes(previous, text, ascending);
        previous = text;
        position += length + 1;
        offsets_.push_back(static_cast<std::uint32_t>(position));
        if (i % progressStep == 0) {
            progress.SetProgress(PercentOf(i, recordCount));
        }
    }
    SetRows(block_.data(), offsets_.data(), recordCount, ascending);
    return true;
}

}  // namespace brelex
