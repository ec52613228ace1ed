// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "database/row_list.h"
#include "tools/open_database.h"

namespace brelex {

/// The entries of the database in a folder, as they are in the file now.
class CurrentEntries {
  public:
    /// `folder` is UTF-8 and ends in the separator.
    explicit CurrentEntries(std::string folder) : folder_(std::move(folder)) {}

    /// Reads the file if it has changed since the last call, or if this is the first. If it cannot
    /// be read, says so on standard error, once, and there are no entries. They are valid until the
    /// next call.
    [[nodiscard]] const RowList& Rows();

  private:
    // What tells one file from another that takes its place, or from itself before it was written
    // to.
    struct FileState {
        bool operator==(const FileState&) const = default;

        std::uint64_t device = 0;
        std::uint64_t number = 0;
        std::int64_t bytes = 0;
        std::int64_t seconds = 0;
        std::int64_t nanoseconds = 0;
    };

    [[nodiscard]] static FileState StateOf(const std::string& path);

    std::string folder_;
    std::optional<FileState> state_;  // of the file when it was read; nothing before the first time
    std::unique_ptr<OpenDatabase> database_;
};

}  // namespace brelex
