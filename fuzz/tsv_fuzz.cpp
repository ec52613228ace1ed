// SPDX-License-Identifier: MIT
// Input: a list of entries, which should be UTF-8: on each line abbreviation, TAB, expansion.
#include "base/windows1252.h"
#include "fuzz/fuzz_support.h"
#include "tools/input_entries.h"

namespace brelex {

namespace {

// The lines that are not empty, without CR.
std::vector<std::string> LinesOf(FuzzInput input) {
    std::vector<std::string> lines;
    while (!input.IsAtEnd()) {
        std::string_view line = input.Line();
        line.remove_suffix(line.ends_with('\r') ? 1 : 0);
        if (!line.empty()) {
            lines.emplace_back(line);
        }
    }
    return lines;
}

// A list in a file has the same entries.
void CheckFile(std::string_view text, const std::vector<std::string>& wanted) {
    static const FuzzFolder folder;
    std::vector<std::string> records;
    InputReport report;
    ReadTsvFile(PathOfUtf8(folder.Write("list.tsv", text)), records, report);
    Require(records == wanted, "a list in a file has the same entries");
}

// Nothing but what the code page has can be stored, and no TAB in an abbreviation.
void CheckLine(const std::string& line) {
    std::vector<std::string> records;
    InputReport report;
    AddEntry(line, "x", "line", records, report);
    const bool isStorable = BytesOfUtf8(line).complete && line.find('\t') == std::string::npos;
    Require(records.empty() == !report.errors.empty(), "an entry is stored or an error");
    Require(records.empty() || isStorable, "what the code page lacks is not stored");
}

}  // namespace

}  // namespace brelex

// Reads the list. Each line is either an error or an entry, and no entry changes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view text(reinterpret_cast<const char*>(data), size);
    std::vector<std::string> records;
    brelex::InputReport report;
    brelex::ReadTsv("list.tsv", text, records, report);
    std::for_each(records.begin(), records.end(), brelex::RequireStorable);
    brelex::CheckFile(text, records);
    if (text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF")) {
        brelex::Require(records.empty() && report.errors.size() == 1, "UTF-16 is refused");
        return 0;
    }
    const std::size_t mark = text.starts_with("\xEF\xBB\xBF") ? 3 : 0;
    const auto lines = brelex::LinesOf({data + mark, size - mark});
    brelex::Require(records.size() + report.errors.size() == lines.size(),
                    "each line is an entry or an error");
    std::for_each(lines.begin(), lines.end(), brelex::CheckLine);
    for (std::size_t i = 0; i < records.size() && report.errors.empty(); ++i) {
        brelex::Require(brelex::Utf8OfBytes(records[i]) == lines[i], "entries stay as they are");
    }
    return 0;
}
