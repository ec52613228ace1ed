// SPDX-License-Identifier: MIT
#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <limits>
#include <map>
#include <new>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "base/file_io.h"
#include "database/locate_database.h"
#include "platform/system/program_folder.h"
#include "platform/system/terminal.h"
#include "tools/build_command.h"
#include "tools/export_command.h"
#include "tools/input_file.h"
#include "tools/licenses_command.h"
#include "tools/lookup_command.h"
#include "tools/open_database.h"
#include "tools/parser_messages.h"
#include "tools/query_commands.h"
#include "tools/search_commands.h"
#include "tools/visible_text.h"

namespace {

std::string DatabaseBesideProgram() {
    const std::string folder = brelex::ProgramFolder();
    return brelex::FindDatabaseIn(folder).value_or(folder + brelex::kDatabaseName);
}

// The terminal that the output goes to. Users who do not want any styles set NO_COLOR.
brelex::OutputTerminal TerminalAsWanted() {
    brelex::OutputTerminal terminal = brelex::StandardOutputTerminal();
    const char* const noColor = std::getenv("NO_COLOR");
    terminal.hasStyles = terminal.hasStyles && (noColor == nullptr || *noColor == '\0');
    return terminal;
}

// The arguments of the command line.
struct CommandLine {
    std::string database;  // from option -d, or empty
    brelex::BuildRequest build;
    brelex::ExportRequest exported;
    brelex::LookupOptions lookup;
    brelex::SearchOptions search;
    std::string letters;           // for the anagram search
    brelex::OutputOptions output;  // of any of these three
    int code = brelex::kFailed;    // the exit code of the command, once it has run
};

std::string DatabaseOf(const CommandLine& line) {
    return line.database.empty() ? DatabaseBesideProgram() : line.database;
}

// Runs a command and shows its report. A terminal gets no control characters but `kept`.
template <typename Run>
int ReportTo(const brelex::OutputTerminal& terminal, std::string_view kept, Run run) {
    if (terminal.columns == 0) {
        return run(std::cout);
    }
    std::ostringstream report;
    const int code = run(report);
    std::cout << brelex::VisibleText(report.view(), kept);
    return code;
}

int RunBuild(const CommandLine& line) {
    if (!line.database.empty()) {
        std::cerr << "brelex: build does not read a database; name the file to write with -o\n";
        return brelex::kFailed;
    }
    const bool toStandardOutput = line.build.output.name == brelex::kStandardStream;
    if (toStandardOutput && line.output.terminal.columns > 0) {
        std::cerr << "brelex: a terminal cannot show a database; name the file to write with -o\n";
        return brelex::kFailed;
    }
    // A control character must not end the input early on Windows.
    brelex::UseBinaryInput();
    if (toStandardOutput) {
        brelex::UseBinaryOutput();
    }
    return ReportTo(line.output.terminal, "\n", [&line](std::ostream& out) {
        return brelex::RunBuild(line.build, std::cin, out, std::cerr);
    });
}

// Refuses the arguments of an option that are texts and not UTF-8. The names of files may be.
void AcceptTexts(CLI::Option& option) {
    option.check(CLI::Validator(
        [](const std::string& text) {
            return std::string(brelex::IsUtf8(text) ? "" : "is not UTF-8");
        },
        ""));
}

// Adds an option that accepts a few fixed words as its value.
template <typename Value>
void AddChoice(CLI::App& command, const char* name, const char* typeName, const char* description,
               Value& value, const std::map<std::string, Value>& words) {
    command
        .add_option_function<std::string>(
            name, [&value, words](const std::string& word) { value = words.at(word); }, description)
        ->check(CLI::IsMember(words).description(""))
        ->type_name(typeName);
}

// Each of the functions below adds a command. The parser stores its options in `line`. Once it has
// read the whole command line, it runs the command.

void AddBuild(CLI::App& app, CommandLine& line) {
    brelex::BuildRequest& request = line.build;
    request.date = BRELEX_DATA_DATE;
    request.output.name = brelex::kDatabaseName;
    CLI::App* const command = app.add_subcommand("build", "Build a database file");
    command->add_option("--version", request.version, "Version of the data (default: 1.0)")
        ->type_name("N.N");
    command->add_option("--date", request.date, "Release date (default: " BRELEX_DATA_DATE ")")
        ->type_name("YYYY-MM-DD");
    command
        ->add_option("--search-list", request.searchList,
                     "Suggested search texts, separated by commas")
        ->type_name("TEXTS");
    command
        ->add_option("-o,--output", request.output.name,
                     "File to write, or - for standard output (default: Acronyms.dat)")
        ->type_name("FILE");
    command->add_flag("--force", request.output.force,
                      "Replace a file even if it is not a sound database");
    command
        ->add_option("--corrections", request.corrections,
                     "UTF-8 file of corrections to the dictd dictionaries")
        ->type_name("FILE");
    command
        ->add_option("INPUT", request.inputs,
                     "UTF-8 .tsv files (abbreviation, TAB, expansion), - for such a list from "
                     "standard input, or dictd dictionaries (NAME.index next to NAME.dict.dz)")
        ->required()
        ->type_name("");
    command->callback([&line] { line.code = RunBuild(line); });
}

int RunExport(const CommandLine& line) {
    // The formats have line ends of their own.
    brelex::UseBinaryOutput();
    return ReportTo(line.output.terminal, "\t\r\n", [&line](std::ostream& out) {
        return brelex::RunExport(DatabaseOf(line), line.exported, out, std::cerr);
    });
}

void AddExport(CLI::App& app, CommandLine& line) {
    using brelex::ExportFormat;
    CLI::App* const command = app.add_subcommand("export", "Write all entries for other programs");
    AddChoice(*command, "--format", "FORMAT",
              "Format of the file: tsv (default), csv, json, dictd or stardict",
              line.exported.format,
              {{"tsv", ExportFormat::Tsv},
               {"csv", ExportFormat::Csv},
               {"json", ExportFormat::Json},
               {"dictd", ExportFormat::Dictd},
               {"stardict", ExportFormat::Stardict}});
    command
        ->add_option("-o,--output", line.exported.output.name,
                     "File to write (default: standard output)")
        ->type_name("FILE");
    command->add_flag("--force", line.exported.output.force, "Replace a file that is there");
    command->callback([&line] { line.code = RunExport(line); });
}

// Adds a command that reads the database and has no options of its own.
void AddReport(CLI::App& app, CommandLine& line, const char* name, const char* description,
               int (*run)(const std::string&, std::ostream&, std::ostream&)) {
    app.add_subcommand(name, description)->callback([&line, run] {
        line.code = ReportTo(line.output.terminal, "\t\n", [&line, run](std::ostream& out) {
            return run(DatabaseOf(line), out, std::cerr);
        });
    });
}

void AddOutputOptions(CLI::App& command, brelex::OutputOptions& output) {
    command.add_flag("-n,--number", output.numbers, "Print the number of each entry");
    command.add_flag("--json", output.json, "Print a JSON array");
}

void AddLookup(CLI::App& app, CommandLine& line) {
    CLI::App* const command = app.add_subcommand("lookup", "Look up the meanings of abbreviations");
    AcceptTexts(*command
                     ->add_option("TEXT", line.lookup.texts,
                                  "Abbreviation, with or without its hyphens, periods, slashes and "
                                  "blanks; - reads standard input")
                     ->required()
                     ->type_name(""));
    command->add_flag("--first", line.lookup.first,
                      "Print the first entry that begins with the text, as typing it selects");
    AddOutputOptions(*command, line.output);
    command->callback([&line] {
        line.code = brelex::RunLookup(DatabaseOf(line), line.lookup, line.output, std::cin,
                                      std::cout, std::cerr);
    });
}

void AddSearch(CLI::App& app, CommandLine& line) {
    using brelex::SearchIn;
    using brelex::SearchPosition;
    brelex::SearchOptions& options = line.search;
    CLI::App* const command = app.add_subcommand("search", "Find the entries that match a text");
    AcceptTexts(*command
                     ->add_option("TEXT", options.request.text,
                                  "Text to find: ? is any character, # any digit, [a-n] a range, "
                                  "[!a-n] anything outside it")
                     ->required()
                     ->type_name(""));
    AddChoice(*command, "--in", "PART", "What to search: abbreviations or expansions (default)",
              options.request.in,
              {{"abbreviations", SearchIn::Abbreviations}, {"expansions", SearchIn::Expansions}});
    AddChoice(*command, "--position", "WHERE",
              "Where the text must be: anywhere (default), beginning or ending",
              options.request.position,
              {{"anywhere", SearchPosition::Anywhere},
               {"beginning", SearchPosition::Beginning},
               {"ending", SearchPosition::Ending}});
    command->add_flag("--match-case", options.request.matchCase, "Match case");
    command->add_flag("--whole-word", options.request.wholeWord, "Match whole words only");
    command->add_flag(
        "--loose", options.request.loose,
        "Hyphens, commas, apostrophes and blanks, and runs of them, match each other");
    command->add_option("--from", options.from, "Number of the entry to start at (default: 1)")
        ->check(CLI::Range(1, std::numeric_limits<std::int32_t>::max()).description(""))
        ->type_name("N");
    command->add_flag("--all", options.all, "Print every match, not just the first 500");
    AddOutputOptions(*command, line.output);
    command->callback([&line] {
        line.code =
            brelex::RunSearch(DatabaseOf(line), line.search, line.output, std::cout, std::cerr);
    });
}

void AddAnagram(CLI::App& app, CommandLine& line) {
    CLI::App* const command =
        app.add_subcommand("anagram", "Find abbreviations made of these letters");
    AcceptTexts(
        *command->add_option("LETTERS", line.letters, "Letters of an abbreviation, in any order")
             ->required()
             ->type_name(""));
    AddOutputOptions(*command, line.output);
    command->callback([&line] {
        line.code =
            brelex::RunAnagram(DatabaseOf(line), line.letters, line.output, std::cout, std::cerr);
    });
}

int SayThatMemoryIsShort() {
    std::fputs("brelex: not enough memory\n", stderr);
    return brelex::kFailed;
}

// The library calls this when an allocation fails. It ends the program at once, because an
// exception would not always arrive: streams swallow it and then lack a part of the output.
[[noreturn]] void EndForLackOfMemory() {
    std::_Exit(SayThatMemoryIsShort());
}

struct MemoryGuard {
    MemoryGuard() { std::set_new_handler(EndForLackOfMemory); }
};

// Before all other objects, because the parser's allocate, too.
[[gnu::init_priority(101)]] const MemoryGuard kMemoryGuard;

}  // namespace

// The only exceptions here are the parser's errors.
int main(int argc, char** argv) {  // NOLINT(bugprone-exception-escape): see above
    const brelex::Utf8Terminal terminal;
    std::ios::sync_with_stdio(false);  // gives the streams new buffers, so it comes first
    const brelex::VisibleOutput visibleMessages(std::cerr);
    CLI::App app("Look up abbreviations and build databases for Brevilexicon.", "brelex");
    app.set_version_flag("--version", "brelex " BRELEX_VERSION);
    CommandLine line;
    app.add_flag_callback(
        "--licenses",
        [&line] {
            line.code = brelex::RunLicenses(brelex::ProgramFolder(), std::cout, std::cerr);
            throw CLI::Success();  // ends the parsing, as --version does: no command is needed
        },
        "Print the licenses of the program and the database, and exit");
    // On Windows, too, "/x" is a text to look up or the path of a file.
    app.allow_windows_style_options(false);
    app.require_subcommand(1);
    app.fallthrough();
    line.output.terminal = TerminalAsWanted();
    app.add_option("-d,--database", line.database,
                   "Database file to read (default: Acronyms.dat in this program's folder)")
        ->type_name("FILE")
        // As an empty variable of a script gives it.
        ->check(CLI::Validator(
            [](const std::string& name) {
                return std::string(name.empty() ? "the name of the file is empty" : "");
            },
            ""));
    AddBuild(app, line);
    AddReport(app, line, "info", "Show facts about the database", brelex::RunInfo);
    AddReport(app, line, "dump", "Print all entries as UTF-8 TSV", brelex::RunDump);
    AddExport(app, line);
    AddReport(app, line, "check", "Check the database for errors", brelex::RunCheck);
    AddLookup(app, line);
    AddSearch(app, line);
    AddAnagram(app, line);

    try {
        std::vector<std::string> arguments = brelex::Utf8Arguments(argc, argv);
        if (const std::string fault = brelex::EncodingMessage(arguments); !fault.empty()) {
            std::cerr << "brelex: " << fault << "\n";
            return brelex::kFailed;
        }
        std::reverse(arguments.begin(), arguments.end());  // the parser takes them from the end
        app.parse(arguments);
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() != 0) {
            std::cerr << "brelex: " << brelex::ParserMessage(app, error)
                      << "\nRun with --help for more information.\n";
            return brelex::kFailed;
        }
        if (error.get_name() != "Success") {
            line.code = app.exit(error);  // prints the help or the version
        }
    } catch (const std::bad_alloc&) {
        return SayThatMemoryIsShort();  // thrown where there was something to undo
    }

    std::cout.flush();
    if (!std::cout) {
        std::cerr << "brelex: cannot write the output\n";
        return brelex::kFailed;
    }
    return line.code;
}
