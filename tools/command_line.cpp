// SPDX-License-Identifier: MIT
#include "tools/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdint>
#include <limits>
#include <map>
#include <sstream>
#include <utility>

#include "base/file_io.h"
#include "database/locate_database.h"
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

namespace brelex {

namespace {

// The arguments of the command line, and what surrounds it.
struct CommandLine {
    explicit CommandLine(const CommandSurroundings& around) : surroundings(around) {}

    const CommandSurroundings& surroundings;
    std::string database;  // from option -d, or empty
    BuildRequest build;
    ExportRequest exported;
    LookupOptions lookup;
    SearchOptions search;
    std::string letters;   // for the anagram search
    OutputOptions output;  // of any of these three
    int code = kFailed;    // the exit code of the command, once it has run
};

std::string DatabaseOf(const CommandLine& line) {
    if (!line.database.empty()) {
        return line.database;
    }
    const std::string& folder = line.surroundings.programFolder;
    return FindDatabaseIn(folder).value_or(folder + kDatabaseName);
}

// Runs a command and shows its report. A terminal gets no control characters but `kept`.
template <typename Run>
int Report(const CommandLine& line, std::string_view kept, Run run) {
    if (line.output.terminal.columns == 0) {
        return run(line.surroundings.out);
    }
    std::ostringstream report;
    const int code = run(report);
    line.surroundings.out << VisibleText(report.view(), kept);
    return code;
}

int Build(const CommandLine& line) {
    if (!line.database.empty()) {
        PrintMessage(line.surroundings.err,
                     "build does not read a database; name the file to write with -o");
        return kFailed;
    }
    const bool toStandardOutput = line.build.output.name == kStandardStream;
    if (toStandardOutput && line.output.terminal.columns > 0) {
        PrintMessage(line.surroundings.err,
                     "a terminal cannot show a database; name the file to write with -o");
        return kFailed;
    }
    // A control character must not end the input early on Windows.
    UseBinaryInput();
    if (toStandardOutput) {
        UseBinaryOutput();
    }
    return Report(line, "\n", [&line](std::ostream& out) {
        return RunBuild(line.build, line.surroundings.in, out, line.surroundings.err);
    });
}

// Refuses the arguments of an option that are texts and not UTF-8. The names of files may be.
void AcceptTexts(CLI::Option& option) {
    option.check(CLI::Validator(
        [](const std::string& text) { return std::string(IsUtf8(text) ? "" : "is not UTF-8"); },
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
    BuildRequest& request = line.build;
    request.date = BRELEX_DATA_DATE;
    request.output.name = kDatabaseName;
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
    command->callback([&line] { line.code = Build(line); });
}

int Export(const CommandLine& line) {
    // The formats have line ends of their own.
    UseBinaryOutput();
    return Report(line, "\t\r\n", [&line](std::ostream& out) {
        return RunExport(DatabaseOf(line), line.exported, out, line.surroundings.err);
    });
}

void AddExport(CLI::App& app, CommandLine& line) {
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
    command->callback([&line] { line.code = Export(line); });
}

// Adds a command that reads the database and has no options of its own.
void AddReport(CLI::App& app, CommandLine& line, const char* name, const char* description,
               int (*run)(const std::string&, std::ostream&, std::ostream&)) {
    app.add_subcommand(name, description)->callback([&line, run] {
        line.code = Report(line, "\t\n", [&line, run](std::ostream& out) {
            return run(DatabaseOf(line), out, line.surroundings.err);
        });
    });
}

void AddOutputOptions(CLI::App& command, OutputOptions& output) {
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
        line.code = RunLookup(DatabaseOf(line), line.lookup, line.output, line.surroundings.in,
                              line.surroundings.out, line.surroundings.err);
    });
}

void AddSearch(CLI::App& app, CommandLine& line) {
    SearchOptions& options = line.search;
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
        line.code = RunSearch(DatabaseOf(line), line.search, line.output, line.surroundings.out,
                              line.surroundings.err);
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
        line.code = RunAnagram(DatabaseOf(line), line.letters, line.output, line.surroundings.out,
                               line.surroundings.err);
    });
}

// Adds everything that the command line may consist of.
void AddOptions(CLI::App& app, CommandLine& line) {
    app.set_version_flag("--version", "brelex " BRELEX_VERSION);
    app.add_flag_callback(
        "--licenses",
        [&line] {
            const CommandSurroundings& surroundings = line.surroundings;
            line.code = RunLicenses(surroundings.programFolder, surroundings.out, surroundings.err);
            throw CLI::Success();  // ends the parsing, as --version does: no command is needed
        },
        "Print the licenses of the program and the database, and exit");
    // On Windows, too, "/x" is a text to look up or the path of a file.
    app.allow_windows_style_options(false);
    app.require_subcommand(1);
    app.fallthrough();
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
    AddReport(app, line, "info", "Show facts about the database", RunInfo);
    AddReport(app, line, "dump", "Print all entries as UTF-8 TSV", RunDump);
    AddExport(app, line);
    AddReport(app, line, "check", "Check the database for errors", RunCheck);
    AddLookup(app, line);
    AddSearch(app, line);
    AddAnagram(app, line);
}

}  // namespace

int RunCommandLine(std::vector<std::string> arguments, const CommandSurroundings& surroundings) {
    std::ostream& err = surroundings.err;
    if (const std::string fault = EncodingMessage(arguments); !fault.empty()) {
        PrintMessage(err, fault);
        return kFailed;
    }
    CLI::App app("Look up abbreviations and build databases for Brevilexicon.", "brelex");
    CommandLine line(surroundings);
    line.output.terminal = surroundings.terminal;
    AddOptions(app, line);
    try {
        std::reverse(arguments.begin(), arguments.end());  // the parser takes them from the end
        app.parse(std::move(arguments));
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() != 0) {
            PrintMessage(err, ParserMessage(app, error));
            err << "Run with --help for more information.\n";
            return kFailed;
        }
        if (error.get_name() != "Success") {
            line.code = app.exit(error, surroundings.out, err);  // prints the help or the version
        }
    }
    return line.code;
}

}  // namespace brelex
