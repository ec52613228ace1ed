// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace brelex {

/// The folder data/ in the source tree.
[[nodiscard]] std::filesystem::path DataFolder();

/// The corrections to the package.
[[nodiscard]] std::filesystem::path CorrectionsFile();

[[nodiscard]] std::vector<std::string> LinesOf(const std::filesystem::path& path);

/// The files of entries in data/, in order.
[[nodiscard]] std::vector<std::filesystem::path> EntryFiles();

/// Calls `check` with each line of each of them and where it stands.
void ForEachEntry(
    const std::function<void(const std::string& line, const std::string& place)>& check);

/// Whether scripts/make_database.sh has fetched Debian's package, or it is installed.
[[nodiscard]] bool HasPackage();

/// The entries of the package (UTF-8) as the database gets them, which is after the corrections.
[[nodiscard]] std::vector<std::string> CorrectedPackage();

}  // namespace brelex
