// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "database/database_header.h"

namespace brelex {

/// A folder for a single test. Deletes itself and everything in it at the end.
class TestFolder {
  public:
    TestFolder();
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;
    ~TestFolder();

    [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

    /// The path in UTF-8, ending in the separator.
    [[nodiscard]] std::string Text() const;

    /// Writes a file and returns its path (UTF-8).
    std::string Write(const std::string& name, std::string_view bytes) const;

  private:
    std::filesystem::path path_;
};

[[nodiscard]] std::string ReadText(const std::filesystem::path& path);

/// The bytes of a database file with these records.
[[nodiscard]] std::string DatabaseBytes(const std::vector<std::string>& records);

/// The same, after `change` has changed the header.
[[nodiscard]] std::string DatabaseBytes(const std::vector<std::string>& records,
                                        const std::function<void(DatabaseHeader&)>& change);

/// The bytes of DatabaseBytes(records) before they are compressed.
[[nodiscard]] std::string ExpandedBytes(const std::vector<std::string>& records);

/// Returns `count` different records in ascending order, all beginning with the letter A.
[[nodiscard]] std::vector<std::string> NumberedRecords(int count);

/// Returns `length` visible characters in which hardly any three consecutive ones occur twice.
[[nodiscard]] std::string Incompressible(std::size_t length);

/// A record that compresses so badly that its DatabaseBytes are as long as its ExpandedBytes.
[[nodiscard]] std::string RecordOfEqualLengths();

}  // namespace brelex
