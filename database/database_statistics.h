// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>
#include <vector>

#include "database/program_values.h"

namespace brelex {

/// A fact about the database as the user sees it.
struct Statistic {
    const char* name;  ///< of the label that shows the text
    const char* caption;
    std::string text;           ///< UTF-8
    bool isOfThisRun = false;   ///< depends on the run of the program, not on the database alone
    bool mayNeedLines = false;  ///< is as long as an expansion can be
};

/// The facts about the loaded database. All but the loading time and the application's version come
/// from the header.
struct DatabaseStatistics {
    std::string version;  ///< the application's
    std::array<std::vector<Statistic>, 4> groups;
};

/// Explains the asterisk of some captions.
inline constexpr const char* kStatisticsFootnote = "* The first such occurrence in the database";

/// The facts from `values`, whose database is loaded. The header is not trusted: an entry that it
/// names but that does not exist has empty texts, and an impossible version or day is "unknown".
[[nodiscard]] DatabaseStatistics StatisticsOf(const ProgramValues& values);

}  // namespace brelex
