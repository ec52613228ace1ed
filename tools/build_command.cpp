// SPDX-License-Identifier: MIT
#include "tools/build_command.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <limits>
#include <sstream>
#include <system_error>
#include <utility>

#include "base/calendar_day.h"
#include "base/file_io.h"
#include "base/text.h"
#include "base/windows1252.h"
#include "database/database_builder.h"
#include "database/database_check.h"
#include "database/database_file.h"
#include "database/szdd.h"
#include "lookup/prefix_search.h"
#include "tools/build_inputs.h"
#include "tools/corrections.h"
#include "tools/input_file.h"
#include "tools/open_database.h"
#include "tools/visible_text.h"

namespace brelex {

namespace {

namespace fs = std::filesystem;

int Refuse(std::ostream& err, const std::string& reason) {
    PrintMessage(err, reason);
    return kFailed;
}

// Prints the first of the messages and how many more there are.
void Print(const std::vector<std::string>& messages, const char* kind, const char* beginning,
           std::ostream& err) {
    constexpr std::size_t kMostPrinted = 20;
    for (std::size_t i = 0; i < std::min(messages.size(), kMostPrinted); ++i) {
        PrintMessage(err, beginning + messages[i]);
    }
    if (messages.size() > kMostPrinted) {
        const std::size_t rest = messages.size() - kMostPrinted;
        PrintMessage(err, std::to_string(rest) + " more " + kind + (rest == 1 ? "" : "s"));
    }
}

// Sets the parts of the content that come from options. Returns an error text, or an empty text on
// success.
std::string ReadRequest(const BuildRequest& request, DatabaseContent& content) {
    const auto version = ParseVersion(request.version);
    if (!version) {
        return "the version is not of the form N.N: " + request.version;
    }
    const auto day = ParseIsoDay(request.date);
    if (!day) {
        return "the date is not a day of the form YYYY-MM-DD: " + request.date;
    }
    EncodedSearchList encoded = EncodeSearchList(request.searchList);
    content.version = *version;
    content.releaseDate = *day;
    content.searchList = std::move(encoded.list);
    return encoded.reason;
}

// Reads the entries of all inputs. Also reports an error if they do not make a database.
InputReport ReadInputs(const BuildRequest& request, std::istream& in,
                       std::vector<std::string>& records) {
    InputReport report;
    Corrections corrections;
    if (!request.corrections.empty()) {
        corrections.ReadFile(PathOfUtf8(request.corrections), report);
    }
    InputReader reader(in, corrections, records, report);
    for (const std::string& input : request.inputs) {
        reader.Read(input);
    }
    if (report.errors.empty()) {  // or else a dictionary may be missing
        corrections.ReportUnused(report);
    }
    std::size_t blockBytes = 0;
    for (const std::string& record : records) {
        blockBytes += record.size() + 1;
    }
    if (blockBytes > kMaxExpandedBytes - kHeaderBytes) {
        report.errors.emplace_back(
            "the entries take up more than the 1 GiB that the program can read");
    }
    if (report.errors.empty() && records.empty()) {
        report.errors.emplace_back("the inputs contain no entries");
    }
    return report;
}

void WarnOfHighIndexes(const DatabaseHeader& header, std::vector<std::string>& warnings) {
    constexpr std::int32_t kHighestIndex = std::numeric_limits<std::int16_t>::max();
    const auto warn = [&](const char* name, std::int32_t index) {
        if (index > kHighestIndex) {
            warnings.push_back(std::string(name) + " is " + std::to_string(index) +
                               ", above 32767: the program will show another record");
        }
    };
    warn("LongestAbbrvIndex", header.LongestAbbrvIndex);
    warn("LongestExpansionIndex", header.LongestExpansionIndex);
    warn("MostExpansionsIndex", header.MostExpansionsIndex);
}

// Reads the finished file back as the program would. Returns the reason if the program would refuse
// it, or an empty text. Adds a warning for anything else that looks wrong.
std::string Verify(const BuiltDatabase& built, std::string_view file,
                   std::vector<std::string>& warnings) {
    if (file.size() == built.expanded.size()) {
        return "the compressed file would be as long as the expanded one (" +
               std::to_string(file.size()) +
               " bytes), which the program takes for damage; add an entry";
    }
    WarnOfHighIndexes(built.header, warnings);
    DatabaseHeader header;
    RecordStore store;
    const LoadFailure failure = ReadDatabase(file, header, store);
    if (failure != LoadFailure::None) {
        return "the program would refuse the file: " + std::string(ReasonText(failure));
    }
    store.MeasureOrder();
    for (std::string& finding : CheckDatabase(header, store, FindFirstByPrefix)) {
        warnings.push_back(std::move(finding));
    }
    return {};
}

// The files that a build reads.
std::vector<fs::path> FilesOf(const BuildRequest& request) {
    std::vector<fs::path> files;
    for (const std::string& input : request.inputs) {
        const std::vector<fs::path> more = FilesOfInput(input);
        files.insert(files.end(), more.begin(), more.end());
    }
    if (!request.corrections.empty()) {
        files.push_back(PathOfUtf8(request.corrections));
    }
    return files;
}

bool IsDatabase(const fs::path& path) {
    OpenDatabase database;
    std::ostringstream ignored;
    return Load(Utf8OfPath(path), database, ignored) == kFound;
}

std::string Counted(std::size_t count, const std::string& things) {
    return std::to_string(count) + " " + things + (count == 1 ? "" : "s");
}

EncodedSearchList Unstorable(std::string reason) {
    return {"", std::move(reason)};
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

EncodedSearchList EncodeSearchList(std::string_view commaSeparated) {
    std::string list;
    while (!commaSeparated.empty()) {
        const std::string_view item = TrimBlanks(TakePart(commaSeparated, ','));
        if (item.find('1') != std::string_view::npos) {
            return Unstorable(
                "search-list items must not contain the digit 1, which separates them in "
                "the file: " +
                std::string(item));
        }
        if (std::any_of(item.begin(), item.end(),
                        [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; })) {
            return Unstorable("the search list contains a control character");
        }
        const EncodedText encoded = BytesOfUtf8(item);
        if (!encoded.complete) {
            return Unstorable("the search list contains a character outside Windows-1252: " +
                              std::string(item));
        }
        if (!item.empty()) {
            list += (list.empty() ? "" : "1") + encoded.bytes;
        }
    }
    if (list.size() > kSearchListLength) {
        return Unstorable("the search list has " + std::to_string(list.size()) +
                          " characters, but only 1024 fit");
    }
    return {list, ""};
}

int RunBuild(const BuildRequest& request, std::istream& in, std::ostream& out, std::ostream& err) {
    static constexpr ReplaceableFile kDatabase = {"a sound database", IsDatabase};
    const std::string reason = ReasonNotToWrite(request.output, FilesOf(request), &kDatabase);
    if (!reason.empty()) {
        return Refuse(err, reason);
    }
    DatabaseContent content;
    if (const std::string fault = ReadRequest(request, content); !fault.empty()) {
        return Refuse(err, fault);
    }
    InputReport report = ReadInputs(request, in, content.records);
    if (!report.errors.empty()) {
        Print(report.errors, "error", "", err);
        return kFailed;
    }
    const BuiltDatabase built = BuildDatabase(std::move(content));
    const std::string file = CompressSzdd(built.expanded);
    if (const std::string fault = Verify(built, file, report.warnings); !fault.empty()) {
        return Refuse(err, fault);
    }
    Print(report.warnings, "warning", "warning: ", err);
    if (const std::string fault = WriteOutputs({{request.output.name, file}}, out);
        !fault.empty()) {
        return Refuse(err, fault);
    }
    const bool toStandardOutput = request.output.name == kStandardStream;
    (toStandardOutput ? err : out)
        << (toStandardOutput ? "standard output" : VisibleText(request.output.name)) << ": "
        << Counted(static_cast<std::size_t>(built.header.RecordCount), "record") << ", "
        << Counted(built.duplicatesDropped, "duplicate") << " dropped, " << file.size()
        << " bytes (" << built.expanded.size() << " expanded)\n";
    return kFound;
}

}  // namespace brelex
