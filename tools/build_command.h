// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace brelex {

/// What "brelex build" is asked for.
struct BuildRequest {
    std::string version = "1.0";
    std::string date;        ///< YYYY-MM-DD
    std::string searchList;  ///< items parted by commas
    std::string output;      ///< the file to write
    std::vector<std::string> inputs;
};

/// A database version "N.N" as a number; nothing if `text` has another form.
[[nodiscard]] std::optional<float> ParseVersion(const std::string& text);

/// The stored form of a search list: the items of `commaSeparated` (UTF-8) without blanks around
/// them, parted by the digit 1, as Windows-1252. Nothing, with the reason in `reason`, if an item
/// holds that digit or a character that cannot be stored, or the whole is too long.
[[nodiscard]] std::optional<std::string> EncodeSearchList(const std::string& commaSeparated,
                                                          std::string& reason);

/// Builds a database file from the inputs. Says on `out` what was made and on `err` what is wrong.
/// Returns the exit code: 0, or 2 if nothing was written.
int RunBuild(const BuildRequest& request, std::ostream& out, std::ostream& err);

}  // namespace brelex
