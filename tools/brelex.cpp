// SPDX-License-Identifier: MIT
#include <CLI/CLI.hpp>
#include <algorithm>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "database/file_io.h"
#include "database/locate_database.h"
#include "platform/program_folder.h"
#include "platform/terminal.h"
#include "tools/build_command.h"
#include "tools/query_commands.h"

namespace {

std::string DatabaseBesideProgram() {
    const std::string folder = brelex::ProgramFolder();
    return brelex::FindDatabaseIn(folder).value_or(folder + brelex::kDatabaseName);
}

constexpr int kRefused = 2;

// The exit code of a command, once all that it printed has got out.
int Finished(int code) {
    std::cout.flush();
    if (!std::cout) {
        std::cerr << "brelex: cannot write the output\n";
        return kRefused;
    }
    return code;
}

}  // namespace

// What is thrown here beyond the parser's errors is "out of memory".
int main(int argc, char** argv) {  // NOLINT(bugprone-exception-escape): see above
    const brelex::Utf8Terminal terminal;
    CLI::App app("Looks abbreviations up and makes databases for Brevilexicon.", "brelex");
    app.set_version_flag("--version", "brelex " BRELEX_VERSION);
    // On Windows, too, "/x" is a text to look up or the path of a file.
    app.allow_windows_style_options(false);
    app.require_subcommand(1);
    app.fallthrough();
    std::string database;
    app.add_option("-d,--database", database,
                   "The database file; without it, Acronyms.dat beside this program")
        ->type_name("FILE");

    brelex::BuildRequest build;
    build.date = BRELEX_DATA_DATE;
    build.output = brelex::kDatabaseName;
    auto* buildCommand = app.add_subcommand("build", "Makes a database file");
    buildCommand->add_option("--version", build.version, "The database's version, 1.0 if not given")
        ->type_name("N.N");
    buildCommand
        ->add_option("--date", build.date, "Its release date, " BRELEX_DATA_DATE " if not given")
        ->type_name("YYYY-MM-DD");
    buildCommand
        ->add_option("--search-list", build.searchList, "Suggested search texts, parted by commas")
        ->type_name("TEXTS");
    buildCommand
        ->add_option("-o,--output", build.output, "The file to write, Acronyms.dat if not given")
        ->type_name("FILE");
    buildCommand
        ->add_option("INPUT", build.inputs,
                     "UTF-8 .tsv files (abbreviation, TAB, expansion) and dictd "
                     "dictionaries (NAME.index beside NAME.dict.dz)")
        ->required()
        ->type_name("");

    auto* infoCommand = app.add_subcommand("info", "Prints the database's header");
    auto* dumpCommand = app.add_subcommand("dump", "Prints all records as UTF-8 TSV");
    auto* checkCommand = app.add_subcommand("check", "Says what is wrong with the database");
    auto* lookupCommand = app.add_subcommand(
        "lookup", "Prints the entry that typing a text in the program would select");
    std::vector<std::string> texts;
    lookupCommand
        ->add_option("TEXT", texts, "First letters of an abbreviation; - reads lines from input")
        ->required()
        ->type_name("");

    try {
        std::vector<std::string> arguments = brelex::Utf8Arguments(argc, argv);
        std::reverse(arguments.begin(), arguments.end());  // the parser takes them from the end
        app.parse(arguments);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : kRefused;
    }

    std::ios::sync_with_stdio(false);
    if (buildCommand->parsed()) {
        if (!database.empty()) {
            std::cerr << "brelex: build reads no database; name the file to write with -o\n";
            return kRefused;
        }
        return Finished(brelex::RunBuild(build, std::cout, std::cerr));
    }
    if (database.empty()) {
        database = DatabaseBesideProgram();
    }
    if (infoCommand->parsed()) {
        return Finished(brelex::RunInfo(database, std::cout, std::cerr));
    }
    if (dumpCommand->parsed()) {
        return Finished(brelex::RunDump(database, std::cout, std::cerr));
    }
    if (checkCommand->parsed()) {
        return Finished(brelex::RunCheck(database, std::cout, std::cerr));
    }
    return lookupCommand->parsed()
               ? Finished(brelex::RunLookup(database, texts, std::cin, std::cout, std::cerr))
               : kRefused;
}
