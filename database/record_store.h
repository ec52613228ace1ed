// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

#include "base/long_work.h"
#include "database/compressed_file.h"
#include "database/row_list.h"

namespace brelex {

/// The only copy of the entries in memory: the expanded file and, for each record, the 32-bit
/// offset of its first byte. Never changes once it is filled.
class RecordStore final : public RowList {
  public:
    /// Takes over `file`, whose record block begins at byte `blockAt`, and indexes `recordCount`
    /// NUL-terminated records, or none if the number is negative. Returns false and leaves the
    /// store empty if the block has fewer. Reports to `progress` after every `progressStep` (1 or
    /// more) records.
    [[nodiscard]] bool Fill(ExpandedFile file, std::size_t blockAt, std::int32_t recordCount,
                            std::int32_t progressStep, WorkWatcher& progress);

    /// Finds out AscendingPrefixBytes(), which is 0 otherwise. Takes a good part of the time of
    /// Fill, so it pays before many look-ups, not before one.
    void MeasureOrder();

    /// The bytes of the record block.
    [[nodiscard]] std::string_view Block() const { return block_; }

  private:
    ExpandedFile file_;
    std::string_view block_;
    // One more than there are records: where the next would begin. Not a vector, which would be
    // cleared first.
    std::unique_ptr<std::uint32_t[]> offsets_;
};

}  // namespace brelex
