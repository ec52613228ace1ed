// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace brelex {

/// Problems in the input, each as "file:line: reason" or "file:line:column: reason". Columns count
/// characters from 1. Errors stop the build.
struct InputReport {
    std::vector<std::string> errors;
    std::vector<std::string> warnings;
};

/// Checks an entry (UTF-8) and appends it to `records` as record text in Windows-1252. Reports an
/// error at `place`, and appends nothing, if the entry cannot be stored: because of a control
/// character, a TAB in the abbreviation, an empty part, or text outside Windows-1252. Warns about
/// an abbreviation that look-ups may miss: one with accents, ligatures, superscripts or soft
/// hyphens, or with a blank at its edges.
void AddEntry(std::string_view abbreviation, std::string_view expansion, const std::string& place,
              std::vector<std::string>& records, InputReport& report);

/// Calls `use` with each line of the UTF-8 text and its place, "name:line". Skips empty lines;
/// accepts a byte order mark and CR LF. Reports an error for UTF-16.
void ForEachLine(const std::string& name, std::string_view text, InputReport& report,
                 const std::function<void(std::string_view line, const std::string& place)>& use);

/// Reads a list (UTF-8) called `name`. Each line is an entry: abbreviation, TAB, expansion.
void ReadTsv(const std::string& name, std::string_view text, std::vector<std::string>& records,
             InputReport& report);

/// Reads the list in the file `path`.
void ReadTsvFile(const std::filesystem::path& path, std::vector<std::string>& records,
                 InputReport& report);

}  // namespace brelex
