// SPDX-License-Identifier: MIT
#include "tools/export_command.h"

#include <cstdint>
#include <filesystem>
#include <numeric>
#include <sstream>
#include <string_view>
#include <utility>
#include <vector>

#include "base/calendar_day.h"
#include "base/file_io.h"
#include "base/number_text.h"
#include "base/windows1252.h"
#include "database/record_text.h"
#include "tools/dictionary_files.h"
#include "tools/input_file.h"
#include "tools/json_records.h"
#include "tools/open_database.h"
#include "tools/visible_text.h"

namespace brelex {

namespace {

int Refuse(std::ostream& err, const std::string& reason) {
    PrintMessage(err, reason);
    return kFailed;
}

std::string Tsv(const RowList& rows) {
    std::string text;
    for (std::int32_t row = 0; row < rows.RowCount(); ++row) {
        text += Utf8OfBytes(rows.RowText(row)) + "\n";
    }
    return text;
}

std::string CsvField(std::string_view bytes) {
    std::string text = Utf8OfBytes(bytes);
    if (text.find_first_of(",\"\r\n") == std::string::npos) {
        return text;
    }
    std::string field = "\"";
    for (const char c : text) {
        field += c == '"' ? "\"\"" : std::string(1, c);
    }
    return field + "\"";
}

// With a line of titles. Spreadsheet programs expect CR LF.
std::string Csv(const RowList& rows) {
    std::string text = "abbreviation,expansion\r\n";
    for (std::int32_t row = 0; row < rows.RowCount(); ++row) {
        const std::string_view record = rows.RowText(row);
        text += CsvField(GetAbbreviation(record)) + "," + CsvField(GetExpansion(record)) + "\r\n";
    }
    return text;
}

std::string Json(const RowList& rows) {
    std::vector<std::int32_t> all(static_cast<std::size_t>(rows.RowCount()));
    std::iota(all.begin(), all.end(), 0);
    std::ostringstream text;
    PrintJsonRecords(rows, all, text);
    return text.str();
}

Dictionary DictionaryOf(const OpenDatabase& opened) {
    Dictionary dictionary;
    dictionary.title = "Brevilexicon";
    dictionary.description =
        "Computer acronyms, data version " + FormatOneDecimal(opened.header.Version, ".");
    if (const auto day = DayOfCount(opened.header.ReleaseDate)) {
        dictionary.date = FormatIsoDay(*day);
        dictionary.description += " of " + dictionary.date;
    }
    for (std::int32_t row = 0; row < opened.store.RowCount(); ++row) {
        const std::string_view record = opened.store.RowText(row);
        DictionaryEntry entry{Utf8OfBytes(GetAbbreviation(record)),
                              Utf8OfBytes(GetExpansion(record))};
        const auto isBlank = [](const std::string& text) {
            return text.find_first_not_of(" \t\r\n") == std::string::npos;
        };
        if (!isBlank(entry.abbreviation) && !isBlank(entry.expansion)) {
            dictionary.entries.push_back(std::move(entry));
        }
    }
    return dictionary;
}

bool IsDictionary(ExportFormat format) {
    return format == ExportFormat::Dictd || format == ExportFormat::Stardict;
}

// The files to write. The ending of a list is empty: its name is the one that the user gave.
std::vector<DictionaryFile> FilesOf(const OpenDatabase& opened, ExportFormat format) {
    switch (format) {
        case ExportFormat::Csv:
            return {{"", Csv(opened.store)}};
        case ExportFormat::Json:
            return {{"", Json(opened.store)}};
        case ExportFormat::Dictd:
            return DictdFiles(DictionaryOf(opened));
        case ExportFormat::Stardict:
            return StardictFiles(DictionaryOf(opened));
        case ExportFormat::Tsv:
            break;
    }
    return {{"", Tsv(opened.store)}};
}

// The name of a dictionary without the ending of one of its files, if it has one.
std::string StemOf(const std::string& name, const std::vector<DictionaryFile>& files) {
    for (const DictionaryFile& file : files) {
        if (!file.ending.empty() && name.ends_with(file.ending)) {
            return name.substr(0, name.size() - file.ending.size());
        }
    }
    return name;
}

}  // namespace

int RunExport(const std::string& database, const ExportRequest& request, std::ostream& out,
              std::ostream& err) {
    const bool toStandardOutput = request.output.name == kStandardStream;
    if (toStandardOutput && IsDictionary(request.format)) {
        return Refuse(err, "this format consists of several files; name them with -o");
    }
    OpenDatabase opened;
    if (const int failure = Load(database, opened, err); failure != kFound) {
        return failure;
    }
    const std::vector<DictionaryFile> files = FilesOf(opened, request.format);
    const std::string stem = StemOf(request.output.name, files);
    for (const DictionaryFile& file : files) {
        const std::string reason =
            ReasonNotToWrite({stem + file.ending, request.output.force}, {PathOfUtf8(database)});
        if (!reason.empty()) {
            return Refuse(err, reason);
        }
    }
    std::vector<OutputFile> outputs;
    outputs.reserve(files.size());
    for (const DictionaryFile& file : files) {
        outputs.push_back({stem + file.ending, file.bytes});
    }
    if (const std::string fault = WriteOutputs(outputs, out); !fault.empty()) {
        return Refuse(err, fault);
    }
    if (!toStandardOutput) {
        for (const OutputFile& output : outputs) {
            err << output.name << ": " << output.bytes.size() << " bytes\n";
        }
    }
    return opened.store.RowCount() > 0 ? kFound : kNothingFound;
}

}  // namespace brelex
