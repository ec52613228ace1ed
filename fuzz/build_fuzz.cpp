// SPDX-License-Identifier: MIT
// Input: a byte of options (1: only lines without an error, 2: the usual version and date; the next
// three bits: where the entries are; the next two: where the database goes), the search list, a
// NUL, the version, a NUL, the date, a NUL, the list of entries.
#include <sstream>

#include "fuzz/fuzz_support.h"
#include "tools/build_command.h"
#include "tools/input_entries.h"
#include "tools/open_database.h"
#include "tools/query_commands.h"

namespace brelex {

namespace {

// The lines that are entries.
std::string EntriesOf(FuzzInput input) {
    std::string list;
    while (!input.IsAtEnd()) {
        const std::string_view line = input.Line();
        std::vector<std::string> records;
        InputReport report;
        ReadTsv("", line, records, report);
        if (!records.empty()) {
            list.append(line).push_back('\n');
        }
    }
    return list;
}

struct Built {
    int code = kFailed;
    std::string file;
    std::string messages;
};

// The names of files with the entries, which stand in this folder. A list is also taken for a
// dictionary with one article and for corrections.
void ChooseInputs(const FuzzFolder& folder, unsigned choice, const std::string& list,
                  BuildRequest& request) {
    constexpr unsigned kBitsOfDigit = 6;
    constexpr std::string_view kDigits =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    const std::size_t size = list.size();
    const std::string sizeText = {kDigits[size >> kBitsOfDigit & 0x3FU], kDigits[size & 0x3FU]};
    const std::string tsv = folder.Write("list.tsv", list);
    const std::string dictionary = folder.Write("d.dict", list);
    const std::string index = folder.Write("d.index", "HEADWORD\tA\t" + sizeText + "\n");
    const std::vector<std::string> kChoices[] = {
        {"-"},        {tsv}, {index}, {dictionary}, {"-", "-"}, {folder.Write("list.txt", list)},
        {tsv, index}, {tsv}};
    request.inputs = kChoices[choice];
    if (choice >= std::size(kChoices) - 2) {
        request.corrections = tsv;
    }
}

// Builds from standard input to standard output.
Built Build(BuildRequest request, const std::string& list) {
    request.inputs = {"-"};
    request.corrections.clear();
    request.output.name = "-";
    std::istringstream in(list);
    std::ostringstream out;
    std::ostringstream err;
    Built built;
    built.code = RunBuild(request, in, out, err);
    built.file = out.str();
    built.messages = err.str();
    return built;
}

// Builds from files, or to a file. If that goes well, the database is the one from the dump.
void BuildFromFiles(const FuzzFolder& folder, unsigned options, BuildRequest request,
                    const std::string& list) {
    const std::string fixed[] = {"-", folder.PathOf("new.dat"), folder.PathOf("list.tsv"),
                                 folder.PathOf("missing/new.dat")};
    ChooseInputs(folder, options >> 2U & 7U, list, request);
    request.output.name = fixed[options >> 5U & 3U];
    std::istringstream in(list);
    std::ostringstream out;
    std::ostringstream err;
    const int code = RunBuild(request, in, out, err);
    Require(code == kFound || code == kFailed, "a build goes well or fails");
    Require(code == kFound || err.str().starts_with("brelex: "), "a failure has a reason");
    if (code == kFound && request.output.name == fixed[1]) {
        OpenDatabase database;
        Require(Load(fixed[1], database, err) == kFound, "what is built can be loaded");
    }
}

// A check finds nothing but abbreviations that look-ups may miss, and the build warned of them.
void Check(const std::string& database, const std::string& warnings) {
    std::ostringstream out;
    std::ostringstream err;
    const int code = RunCheck(database, out, err);
    Require(code == kFound || code == kNothingFound, "a new database can be checked");
    if (code == kFound || warnings.find(" more warning") != std::string::npos) {
        return;
    }
    std::istringstream lines(out.str());
    std::string line;
    while (std::getline(lines, line)) {
        Require(warnings.find(line) != std::string::npos, "a build warns of what a check finds");
        Require(line.find("does not reach") != std::string::npos ||
                    line.find("unreachable beginnings") != std::string::npos,
                "a new database is sound");
    }
}

std::string Dump(const std::string& database) {
    std::ostringstream out;
    std::ostringstream err;
    Require(RunDump(database, out, err) == kFound, "a new database can be dumped");
    return out.str();
}

}  // namespace

}  // namespace brelex

// Builds a database from files and from standard input, checks it, dumps it, and builds the same
// from that.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const brelex::FuzzFolder folder;
    brelex::FuzzInput input(data, size);
    const unsigned options = input.Byte();
    brelex::BuildRequest request;
    request.searchList = input.Text();
    request.version = input.Text();
    request.date = input.Text();
    if ((options & 2U) != 0) {
        request.version = "1.0";
        request.date = "2026-11-21";
    }
    const std::string list((options & 1U) != 0 ? brelex::EntriesOf(input)
                                               : std::string(input.Rest()));
    brelex::BuildFromFiles(folder, options, request, list);
    const brelex::Built built = brelex::Build(request, list);
    if (built.code != brelex::kFound) {
        brelex::Require(built.code == brelex::kFailed && built.file.empty(),
                        "a build that fails writes nothing");
        brelex::Require(built.messages.starts_with("brelex: ") &&
                            !built.messages.starts_with("brelex: the program would refuse"),
                        "a build fails for a reason that its input gives");
        return 0;
    }
    const std::string path = folder.Write("new.dat", built.file);
    brelex::Check(path, built.messages);
    const brelex::Built again = brelex::Build(request, brelex::Dump(path));
    brelex::Require(again.code == brelex::kFound && again.file == built.file,
                    "building from a dump gives the same file");
    return 0;
}
