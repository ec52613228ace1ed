// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "database/program_values.h"

namespace brelex {

/// A fact about the database as the user is shown it: what it is, and its value (UTF-8).
struct Statistic {
    const char* caption;
    std::string text;
};

/// The facts about the loaded database that the user is shown. All but the loading time and the
/// application's version stand in the header.
struct DatabaseStatistics {
    std::string version;  ///< the application's
    Statistic dbVersion;
    Statistic acronymCount;
    Statistic loadingTime;
    Statistic firstLetterOfMostAcronyms;
    Statistic acronymWithHighestExpn;
    Statistic longestAcronym;
    Statistic longestExpansion;
    Statistic avgLenOfAcronyms;
    Statistic avgLenOfExpansions;
};

/// What is said of the captions with an asterisk.
inline constexpr const char* kStatisticsFootnote = "* The first such occurrence in the database";

/// The facts from `values`, whose database is loaded. Nothing of the header is trusted: an entry
/// that it names and that is not there has empty texts, and a version or day that is none is
/// "unknown".
[[nodiscard]] DatabaseStatistics StatisticsOf(const ProgramValues& values);

}  // namespace brelex
