// SPDX-License-Identifier: MIT
#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdint>
#include <functional>
#include <iostream>
#include <limits>
#include <map>
#include <string>
#include <vector>

#include "base/file_io.h"
#include "database/locate_database.h"
#include "platform/system/program_folder.h"
#include "platform/system/terminal.h"
#include "tools/build_command.h"
#include "tools/open_database.h"
#include "tools/query_commands.h"
#include "tools/search_commands.h"

namespace {

std::string DatabaseBesideProgram() {
    const std::string folder = brelex::ProgramFolder();
    return brelex::FindDatabaseIn(folder).value_or(folder + brelex::kDatabaseName);
}

// The exit code of a command, once all that it printed has got out.
int Finished(int code) {
    std::cout.flush();
    if (!std::cout) {
        std::cerr << "brelex: cannot write the output\n";
        return brelex::kFailed;
    }
    return code;
}

// An option whose value is one of a few words.
template <typename Value>
void AddChoice(CLI::App& command, const char* name, const char* typeName, const char* description,
               Value& value, const std::map<std::string, Value>& words) {
    command
        .add_option_function<std::string>(
            name, [&value, words](const std::string& word) { value = words.at(word); }, description)
        ->check(CLI::IsMember(words).description(""))
        ->type_name(typeName);
}

// A subcommand: its options are written into `request` when it is parsed.
void AddBuild(CLI::App& app, brelex::BuildRequest& request) {
    request.date = BRELEX_DATA_DATE;
    request.output = brelex::kDatabaseName;
    CLI::App* const command = app.add_subcommand("build", "Build a database file");
    command->add_option("--version", request.version, "Version of the data (default: 1.0)")
        ->type_name("N.N");
    command->add_option("--date", request.date, "Release date (default: " BRELEX_DATA_DATE ")")
        ->type_name("YYYY-MM-DD");
    command
        ->add_option("--search-list", request.searchList,
                     "Suggested search texts, separated by commas")
        ->type_name("TEXTS");
    command->add_option("-o,--output", request.output, "File to write (default: Acronyms.dat)")
        ->type_name("FILE");
    command
        ->add_option("INPUT", request.inputs,
                     "UTF-8 .tsv files (abbreviation, TAB, expansion) or dictd "
                     "dictionaries (NAME.index next to NAME.dict.dz)")
        ->required()
        ->type_name("");
}

void AddSearch(CLI::App& app, brelex::SearchOptions& options) {
    using brelex::SearchIn;
    using brelex::SearchPosition;
    CLI::App* const command = app.add_subcommand("search", "Find the entries that match a text");
    command
        ->add_option("TEXT", options.request.text,
                     "Text to find: ? is any character, # any digit, [a-n] a range, "
                     "[!a-n] anything outside it")
        ->required()
        ->type_name("");
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
    command->add_option("--from", options.from, "Number of the entry to start at (default: 1)")
        ->check(CLI::Range(1, std::numeric_limits<std::int32_t>::max()).description(""))
        ->type_name("N");
    command->add_flag("--all", options.all, "Print every match, not just the first 500");
    command->add_flag("--json", options.json, "Print a JSON array");
}

void AddAnagram(CLI::App& app, std::string& letters, bool& json) {
    CLI::App* const command =
        app.add_subcommand("anagram", "Find abbreviations made of these letters");
    command->add_option("LETTERS", letters, "Letters of an abbreviation, in any order")
        ->required()
        ->type_name("");
    command->add_flag("--json", json, "Print a JSON array");
}

}  // namespace

// What is thrown here beyond the parser's errors is "out of memory".
int main(int argc, char** argv) {  // NOLINT(bugprone-exception-escape): see above
    const brelex::Utf8Terminal terminal;
    CLI::App app("Look up abbreviations and build databases for Brevilexicon.", "brelex");
    app.set_version_flag("--version", "brelex " BRELEX_VERSION);
    // On Windows, too, "/x" is a text to look up or the path of a file.
    app.allow_windows_style_options(false);
    app.require_subcommand(1);
    app.fallthrough();
    std::string database;
    app.add_option("-d,--database", database,
                   "Database file to read (default: Acronyms.dat in this program's folder)")
        ->type_name("FILE");
    brelex::BuildRequest build;
    AddBuild(app, build);
    app.add_subcommand("info", "Show facts about the database");
    app.add_subcommand("dump", "Print all entries as UTF-8 TSV");
    app.add_subcommand("check", "Check the database for errors");
    auto* lookupCommand =
        app.add_subcommand("lookup", "Look up abbreviations by their first letters");
    std::vector<std::string> texts;
    lookupCommand
        ->add_option("TEXT", texts, "First letters of an abbreviation; - reads standard input")
        ->required()
        ->type_name("");
    brelex::SearchOptions search;
    AddSearch(app, search);
    std::string letters;
    bool anagramsAsJson = false;
    AddAnagram(app, letters, anagramsAsJson);

    try {
        std::vector<std::string> arguments = brelex::Utf8Arguments(argc, argv);
        std::reverse(arguments.begin(), arguments.end());  // the parser takes them from the end
        app.parse(arguments);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : brelex::kFailed;
    }

    std::ios::sync_with_stdio(false);
    if (app.got_subcommand("build")) {
        if (!database.empty()) {
            std::cerr << "brelex: build does not read a database; name the file to write with -o\n";
            return brelex::kFailed;
        }
        return Finished(brelex::RunBuild(build, std::cout, std::cerr));
    }
    if (database.empty()) {
        database = DatabaseBesideProgram();
    }
    const std::map<std::string, std::function<int()>> commands = {
        {"info", [&] { return brelex::RunInfo(database, std::cout, std::cerr); }},
        {"dump", [&] { return brelex::RunDump(database, std::cout, std::cerr); }},
        {"check", [&] { return brelex::RunCheck(database, std::cout, std::cerr); }},
        {"lookup",
         [&] { return brelex::RunLookup(database, texts, std::cin, std::cout, std::cerr); }},
        {"anagram",
         [&] {
             return brelex::RunAnagram(database, letters, anagramsAsJson, std::cout, std::cerr);
         }},
        {"search", [&] { return brelex::RunSearch(database, search, std::cout, std::cerr); }}};
    return Finished(commands.at(app.get_subcommands().front()->get_name())());
}
