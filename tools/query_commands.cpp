// SPDX-License-Identifier: MIT
#include "tools/query_commands.h"

#include <array>
#include <bit>
#include <charconv>
#include <cstdint>
#include <string_view>

#include "base/calendar_day.h"
#include "base/windows1252.h"
#include "database/database_check.h"
#include "database/database_statistics.h"
#include "lookup/prefix_search.h"
#include "search/search_list.h"
#include "tools/open_database.h"
#include "tools/visible_text.h"

namespace brelex {

namespace {

template <typename Number>
std::string PlainNumber(Number number) {
    std::array<char, 64> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    return {digits.data(), end};
}

std::string HexDigits(std::int32_t number) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string text;
    for (int shift = 28; shift >= 0; shift -= 4) {
        text.push_back(kDigits[(std::bit_cast<std::uint32_t>(number) >> shift) & 0xFU]);
    }
    return text;
}

// Formats the values of the header's fields: a version, a day, a number, a letter, a list.

std::string FieldText(float version, FieldSource /*source*/) {
    const std::string text = PlainNumber(version);
    const bool whole = text.find_first_not_of("-0123456789") == std::string::npos;
    return whole ? text + ".0" : text;
}

std::string FieldText(double dayCount, FieldSource /*source*/) {
    const auto day = DayOfCount(dayCount);
    return day ? FormatIsoDay(*day) : "not a date (" + PlainNumber(dayCount) + ")";
}

std::string FieldText(std::int32_t number, FieldSource source) {
    return source == FieldSource::Checksum ? HexDigits(number) : PlainNumber(number);
}

std::string FieldText(char letter, FieldSource /*source*/) {
    return Utf8OfBytes({&letter, 1});
}

std::string FieldText(const std::string& searchList, FieldSource /*source*/) {
    std::string text;
    const char* separator = "";
    for (const std::string& item : SearchListItems(searchList)) {
        text += separator + Utf8OfBytes(item);
        separator = ", ";
    }
    return text;
}

// Prints the facts that the program's window shows, except those about the current run.
void PrintStatistics(const OpenDatabase& opened, std::ostream& out) {
    ProgramValues values;
    values.AcronymList = &opened.store;
    values.Header = opened.header;
    values.AppVersion = opened.header.Version;
    for (const std::vector<Statistic>& group : StatisticsOf(values).groups) {
        for (const Statistic& statistic : group) {
            if (!statistic.isOfThisRun) {
                out << statistic.caption << " " << statistic.text << "\n";
            }
        }
    }
    out << kStatisticsFootnote << "\n";
}

}  // namespace

int RunInfo(const std::string& database, std::ostream& out, std::ostream& err) {
    OpenDatabase opened;
    if (const int failure = Load(database, opened, err); failure != kFound) {
        return failure;
    }
    const DatabaseHeader& header = opened.header;
    VisitFields([&](const char* name, auto member, FieldSource source) {
        out << name << ": " << FieldText(header.*member, source) << "\n";
    });
    out << "\n";
    PrintStatistics(opened, out);
    return kFound;
}

int RunDump(const std::string& database, std::ostream& out, std::ostream& err) {
    OpenDatabase opened;
    if (const int failure = Load(database, opened, err); failure != kFound) {
        return failure;
    }
    for (std::int32_t row = 0; row < opened.store.RowCount(); ++row) {
        out << Utf8OfBytes(opened.store.RowText(row)) << "\n";
    }
    return opened.store.RowCount() > 0 ? kFound : kNothingFound;
}

int RunCheck(const std::string& database, std::ostream& out, std::ostream& err) {
    OpenDatabase opened;
    if (const int failure = Load(database, opened, err, kNothingFound); failure != kFound) {
        return failure;
    }
    opened.store.MeasureOrder();
    const auto findings = CheckDatabase(opened.header, opened.store, FindFirstByPrefix);
    for (const std::string& finding : findings) {
        out << VisibleText(finding) << "\n";
    }
    if (!findings.empty()) {
        return kNothingFound;
    }
    out << VisibleText(database) << ": " << opened.store.RowCount() << " records, nothing wrong\n";
    return kFound;
}

}  // namespace brelex
