// SPDX-License-Identifier: MIT
#include "tools/build_command.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <string_view>
#include <system_error>

#include "base/calendar_day.h"
#include "base/file_io.h"
#include "base/text.h"
#include "base/windows1252.h"
#include "database/database_builder.h"
#include "database/database_check.h"
#include "database/database_file.h"
#include "database/szdd.h"
#include "lookup/prefix_search.h"
#include "tools/dictd_reader.h"
#include "tools/input_entries.h"
#include "tools/open_database.h"

namespace brelex {

namespace {

namespace fs = std::filesystem;

int Refuse(std::ostream& err, const std::string& reason) {
    err << "brelex: " << reason << "\n";
    return kFailed;
}

void ReadInput(const std::string& input, std::vector<std::string>& records, InputReport& report) {
    const fs::path path = PathOfUtf8(input);
    if (path.extension() == ".tsv") {
        ReadTsvFile(path, records, report);
    } else if (path.extension() == ".index") {
        ReadDictdPair(path, records, report);
    } else if (input.ends_with(".dict.dz")) {
        ReadDictdPair(fs::path(path).replace_extension().replace_extension(".index"), records,
                      report);
    } else if (path.extension() == ".dict") {
        ReadDictdPair(fs::path(path).replace_extension(".index"), records, report);
    } else {
        report.errors.push_back(input +
                                ": neither a .tsv file nor a dictd dictionary (.index, .dict.dz)");
    }
}

void WarnOfHighIndexes(const DatabaseHeader& header, std::vector<std::string>& warnings) {
    const auto warn = [&](const char* name, std::int32_t index) {
        if (index > 32767) {
            warnings.push_back(std::string(name) + " is " + std::to_string(index) +
                               ", above 32767: the program will show another record");
        }
    };
    warn("LongestAbbrvIndex", header.LongestAbbrvIndex);
    warn("LongestExpansionIndex", header.LongestExpansionIndex);
    warn("MostExpansionsIndex", header.MostExpansionsIndex);
}

// What the program itself would find wrong with the finished file.
std::optional<std::string> Verify(std::string_view file, std::vector<std::string>& warnings) {
    DatabaseHeader header;
    RecordStore store;
    const LoadFailure failure = ReadDatabase(file, header, store);
    if (failure != LoadFailure::None) {
        return std::string(ReasonText(failure));
    }
    for (std::string& finding : CheckDatabase(header, store, FindFirstByPrefix)) {
        warnings.push_back(std::move(finding));
    }
    return std::nullopt;
}

}  // namespace

std::optional<float> ParseVersion(const std::string& text) {
    const auto point = text.find('.');
    const bool oneDigitBehind = point != std::string::npos && point > 0 && text.size() == point + 2;
    if (!oneDigitBehind || text.find_first_not_of("0123456789.") != std::string::npos ||
        text.find('.', point + 1) != std::string::npos) {
        return std::nullopt;
    }
    float version = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), version);
    return error == std::errc() ? std::optional(version) : std::nullopt;
}

std::optional<std::string> EncodeSearchList(const std::string& commaSeparated,
                                            std::string& reason) {
    constexpr std::size_t kMostCharacters = 1024;
    std::string list;
    std::string_view rest = commaSeparated;
    while (!rest.empty()) {
        const std::string_view item = TrimBlanks(TakePart(rest, ','));
        if (item.find('1') != std::string_view::npos) {
            reason =
                "search-list items must not contain the digit 1, which separates them in "
                "the file: " +
                std::string(item);
            return std::nullopt;
        }
        if (std::any_of(item.begin(), item.end(),
                        [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; })) {
            reason = "the search list contains a control character";
            return std::nullopt;
        }
        const EncodedText encoded = BytesOfUtf8(item);
        if (!encoded.complete) {
            reason =
                "the search list contains a character outside Windows-1252: " + std::string(item);
            return std::nullopt;
        }
        if (!item.empty()) {
            list += (list.empty() ? "" : "1") + encoded.bytes;
        }
    }
    if (list.size() > kMostCharacters) {
        reason =
            "the search list has " + std::to_string(list.size()) + " characters, but only 1024 fit";
        return std::nullopt;
    }
    return list;
}

int RunBuild(const BuildRequest& request, std::ostream& out, std::ostream& err) {
    DatabaseContent content;
    const auto version = ParseVersion(request.version);
    if (!version) {
        return Refuse(err, "the version is not of the form N.N: " + request.version);
    }
    const auto day = ParseIsoDay(request.date);
    if (!day) {
        return Refuse(err, "the date is not a day of the form YYYY-MM-DD: " + request.date);
    }
    std::string reason;
    auto searchList = EncodeSearchList(request.searchList, reason);
    if (!searchList) {
        return Refuse(err, reason);
    }
    content.version = *version;
    content.releaseDate = *day;
    content.searchList = std::move(*searchList);

    InputReport report;
    for (const std::string& input : request.inputs) {
        ReadInput(input, content.records, report);
    }
    std::size_t blockBytes = 0;
    for (const std::string& record : content.records) {
        blockBytes += record.size() + 1;
    }
    if (blockBytes > kMaxExpandedBytes - kHeaderBytes) {
        report.errors.emplace_back(
            "the entries take up more than the 1 GiB that the program can read");
    }
    if (report.errors.empty() && content.records.empty()) {
        report.errors.emplace_back("the inputs contain no entries");
    }
    if (!report.errors.empty()) {
        for (const std::string& error : report.errors) {
            err << "brelex: " << error << "\n";
        }
        return kFailed;
    }

    const BuiltDatabase built = BuildDatabase(std::move(content));
    const std::string file = CompressSzdd(built.expanded);
    if (file.size() == built.expanded.size()) {
        return Refuse(err, "the compressed file would be as long as the expanded one (" +
                               std::to_string(file.size()) +
                               " bytes), which the program takes for damage; add an entry");
    }
    WarnOfHighIndexes(built.header, report.warnings);
    if (const auto fault = Verify(file, report.warnings)) {
        return Refuse(err, "the program would refuse the file: " + *fault);
    }
    for (const std::string& warning : report.warnings) {
        err << "brelex: warning: " << warning << "\n";
    }
    std::string why;
    if (!ReplaceFile(PathOfUtf8(request.output), file, &why)) {
        return Refuse(err, why);
    }
    out << request.output << ": " << built.header.RecordCount << " records, "
        << built.duplicatesDropped << " duplicates dropped, " << file.size() << " bytes ("
        << built.expanded.size() << " expanded)\n";
    return 0;
}

}  // namespace brelex
