// SPDX-License-Identifier: MIT
#include "database/database_statistics.h"

#include <cmath>
#include <cstdint>
#include <string_view>

#include "base/calendar_day.h"
#include "base/number_text.h"
#include "base/windows1252.h"
#include "database/record_text.h"

namespace brelex {

namespace {

// The entry at an index of the header; empty if there is none.
std::string_view RecordAt(const RowList& rows, std::int32_t index) {
    const std::int32_t row = RowOfHeaderIndex(index, rows.RowCount());
    return row < 0 ? std::string_view() : rows.RowText(row);
}

// A damaged header may hold a character that ends or breaks a text.
std::string LetterText(char letter) {
    return static_cast<unsigned char>(letter) < ' ' ? std::string() : Utf8OfBytes({&letter, 1});
}

std::string LetterCountText(std::string_view text) {
    return std::to_string(LetterCount(text)) + " letters";
}

std::string VersionText(const DatabaseHeader& header, float applicationVersion,
                        std::string_view decimalSeparator) {
    const auto day = DayOfCount(header.ReleaseDate);
    return (std::isfinite(header.Version) ? FormatOneDecimal(header.Version, decimalSeparator)
                                          : "unknown") +
           ", released on " + (day ? FormatShortDay(*day) : "an unknown day") +
           (header.Version > applicationVersion ? " (Updated)" : "");
}

std::string LongestExpansionText(std::string_view record) {
    const std::string_view expansion = GetExpansion(record);
    return Utf8OfBytes(expansion) + " (" + LetterCountText(expansion) + ", abbreviated as " +
           Utf8OfBytes(GetAbbreviation(record)) + ")";
}

}  // namespace

DatabaseStatistics StatisticsOf(const ProgramValues& values) {
    const DatabaseHeader& header = values.Header;
    const RowList& rows = *values.AcronymList;
    const std::string_view longest = GetAbbreviation(RecordAt(rows, header.LongestAbbrvIndex));
    const std::string_view richest = GetAbbreviation(RecordAt(rows, header.MostExpansionsIndex));
    DatabaseStatistics statistics;
    statistics.version =
        "Application version " + FormatOneDecimal(values.AppVersion, values.decimalSeparator);
    statistics.groups[0] = {
        {"lblDBVersion",
         "Database version:", VersionText(header, values.AppVersion, values.decimalSeparator)},
        {"lblAcronymCount",
         "Total number of entries:", FormatGrouped(header.RecordCount, values.groupSeparator)},
        {.name = "lblLoadingTime",
         .caption = "Loading time (current session):",
         .text = FormatPlain(values.LoadingTime, values.decimalSeparator) + " seconds",
         .isOfThisRun = true}};
    statistics.groups[1] = {
        {"lblFirstLetterOfMostAcronyms", "Most abbreviations start with:",
         "'" + LetterText(header.CommonFirstLetter) + "' (" +
             std::to_string(header.CommonFirstLetterCount) + " occurrences)"},
        {"lblAcronymWithHighestExpn", "Abbreviation with highest no. of expansions*:",
         Utf8OfBytes(richest) + " (" + std::to_string(header.MostExpansionsCount) +
             " expansions)"}};
    statistics.groups[2] = {
        {"lblLongestAcronym",
         "Longest abbreviation*:", Utf8OfBytes(longest) + " (" + LetterCountText(longest) + ")"},
        {.name = "lblLongestExpansion",
         .caption = "Longest expansion including parenthetical note*:",
         .text = LongestExpansionText(RecordAt(rows, header.LongestExpansionIndex)),
         .mayNeedLines = true}};
    statistics.groups[3] = {{"lblAvgLenOfAcronyms", "Average length of abbreviations:",
                             std::to_string(header.AvgAbbrvLength) + " characters"},
                            {"lblAvgLenOfExpansions", "Average length of expansions:",
                             std::to_string(header.AvgExpansionLength) + " characters"}};
    return statistics;
}

}  // namespace brelex
