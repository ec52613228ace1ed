// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace brelex {

/// What was found wrong with the input, each as "file:line: reason". Errors stop the build.
struct InputReport {
    std::vector<std::string> errors;
    std::vector<std::string> warnings;
};

/// Checks an entry (UTF-8) and appends it to `records` as record text in Windows-1252. Reports at
/// `place` and appends nothing if the entry cannot be stored: a control character, a TAB in the
/// abbreviation, an empty part, text outside Windows-1252. Warns of an abbreviation that look-ups
/// may miss: with accents, ligatures, superscripts or soft hyphens.
void AddEntry(std::string_view abbreviation, std::string_view expansion, const std::string& place,
              std::vector<std::string>& records, InputReport& report);

/// Reads the UTF-8 file `path`: a line for each entry, abbreviation, TAB, expansion. Empty lines
/// are skipped; a byte order mark and CR LF are accepted.
void ReadTsvFile(const std::filesystem::path& path, std::vector<std::string>& records,
                 InputReport& report);

}  // namespace brelex
