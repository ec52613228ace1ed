// SPDX-License-Identifier: MIT
#pragma once

#include <istream>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "tools/output_file.h"

namespace brelex {

/// The options and arguments of "brelex build".
struct BuildRequest {
    std::string version = "1.0";
    std::string date;         ///< in the form YYYY-MM-DD
    std::string searchList;   ///< items separated by commas
    OutputRequest output;     ///< another database is replaced without force
    std::string corrections;  ///< a file of corrections to dictd dictionaries, or empty
    std::vector<std::string> inputs;
};

/// Parses a database version "N.N". Nothing if `text` has any other form.
[[nodiscard]] std::optional<float> ParseVersion(const std::string& text);

/// A search list in the form that the header stores, or the reason why it cannot be stored.
struct EncodedSearchList {
    std::string list;    ///< Windows-1252
    std::string reason;  ///< empty on success
};

/// Encodes a search list: trims the items of `commaSeparated` (UTF-8) and separates them by the
/// digit 1. Fails if an item contains that digit or a character that cannot be stored, or if the
/// list is too long.
[[nodiscard]] EncodedSearchList EncodeSearchList(std::string_view commaSeparated);

/// Builds a database file from the inputs. The input "-" is the list that `in` delivers. Reports
/// the result on `out`, errors and warnings on `err`. Returns the exit code: kFound, or kFailed if
/// nothing was written.
int RunBuild(const BuildRequest& request, std::istream& in, std::ostream& out, std::ostream& err);

}  // namespace brelex
