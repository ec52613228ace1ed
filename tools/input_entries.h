// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace brelex {

/// Problems in the input, each as "file:line: reason". Errors stop the build.
struct InputReport {
    std::vector<std::string> errors;
    std::vector<std::string> warnings;
};

/// Checks an entry (UTF-8) and appends it to `records` as record text in Windows-1252. Reports an
/// error at `place`, and appends nothing, if the entry cannot be stored: because of a control
/// character, a TAB in the abbreviation, an empty part, or text outside Windows-1252. Warns about
/// an abbreviation that look-ups may miss: one with accents, ligatures, superscripts or soft
/// hyphens.
void AddEntry(std::string_view abbreviation, std::string_view expansion, const std::string& place,
              std::vector<std::string>& records, InputReport& report);

/// Calls `use` with each line of the UTF-8 file `path` and its place, "file:line". Skips empty
/// lines; accepts a byte order mark and CR LF. Reports an error if the file cannot be read.
void ForEachLine(const std::filesystem::path& path, InputReport& report,
                 const std::function<void(std::string_view line, const std::string& place)>& use);

/// Reads the UTF-8 file `path`. Each line is an entry: abbreviation, TAB, expansion. Skips empty
/// lines; accepts a byte order mark and CR LF.
void ReadTsvFile(const std::filesystem::path& path, std::vector<std::string>& records,
                 InputReport& report);

}  // namespace brelex
