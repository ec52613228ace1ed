// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "tools/input_entries.h"

namespace brelex {

/// Changes to the entries of a dictionary that others maintain. Texts are UTF-8.
class Corrections {
  public:
    /// An abbreviation and its expansion.
    using Entry = std::pair<std::string, std::string>;

    /// Reads the UTF-8 file `path`. Each line has two parts, separated by a TAB, to leave out the
    /// entry with this abbreviation and expansion. It has four to replace the entry by that of the
    /// last two. Ignores blanks and TABs around the parts, empty lines, a byte order mark and CR
    /// LF. Reports an error for a line of any other form, for a second correction of an entry, and
    /// for a new entry that cannot be stored.
    void ReadFile(const std::filesystem::path& path, InputReport& report);

    /// Returns the entry as it should be, or nothing if it should be left out.
    [[nodiscard]] std::optional<Entry> Apply(Entry entry);

    /// Reports an error for each correction that matched none of the entries.
    void ReportUnused(InputReport& report) const;

  private:
    struct Correction {
        std::string place;
        std::optional<Entry> replacement;
        bool used = false;
    };

    void AddLine(std::string_view line, const std::string& place, InputReport& report);

    std::vector<Correction> corrections_;  // in the order of the file
    std::map<Entry, std::size_t> indexOf_;
};

}  // namespace brelex
