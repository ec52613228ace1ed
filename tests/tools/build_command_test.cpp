// SPDX-License-Identifier: MIT
// What "brelex build" reads and writes. The databases that it builds are tested with the commands
// that read them.
#include "tools/build_command.h"

#include <algorithm>
#include <sstream>

#include <gtest/gtest.h>

#include "base/file_io.h"
#include "tests/tools/commands_test_support.h"
#include "tools/query_commands.h"

namespace brelex {
namespace {

class BuildCommandTest : public CommandsTest {};

TEST_F(BuildCommandTest, CorrectsTheDictionariesButNotTheLists) {
    folder_.Write("my.dict", "ABC\n  Alpha\n");
    BuildRequest request;
    request.inputs = {folder_.Write("my.index", "abc\tA\tM\n"),
                      folder_.Write("own.tsv", "ABC\tAlpha\n")};
    request.corrections = folder_.Write("changes.tsv", "ABC\tAlpha\tABC\tBeta\n");
    ASSERT_EQ(Build(request), 0) << err_.str();
    ASSERT_EQ(RunDump(database_, out_, err_), 0);
    EXPECT_TRUE(Output().ends_with("\nABC\tAlpha\nABC\tBeta\n"));
}

TEST_F(BuildCommandTest, RefusesACorrectionOfNoEntry) {
    BuildRequest request;
    request.corrections = folder_.Write("changes.tsv", "ABC\tAlpha\n");
    EXPECT_EQ(Build(request), 2);
    EXPECT_EQ(err_.str(),
              "brelex: " + request.corrections + ":1: matches no entry of the dictionaries\n");
    EXPECT_FALSE(std::filesystem::exists(PathOfUtf8(database_)));
}

TEST_F(BuildCommandTest, ReadsAListFromStandardInput) {
    BuildRequest request;
    request.inputs = {"-", folder_.Write("OWN.TSV", "CD\tTwo\n")};
    in_.str("AB\tOne\n");
    ASSERT_EQ(Build(request), 0) << err_.str();
    Output();
    ASSERT_EQ(RunDump(database_, out_, err_), 0);
    EXPECT_EQ(Output(), "AB\tOne\nCD\tTwo\n");
}

TEST_F(BuildCommandTest, ReadsStandardInputOnlyOnce) {
    BuildRequest request;
    request.inputs = {"-", "-"};
    in_.str("AB\tOne\nC\n");
    EXPECT_EQ(Build(request), 2);
    EXPECT_EQ(err_.str(),
              "brelex: standard input:2: no TAB between abbreviation and expansion\n"
              "brelex: standard input can be read only once\n");
}

TEST_F(BuildCommandTest, PrintsTwentyErrorsAndCountsTheRest) {
    std::string lines;
    for (int i = 0; i < 22; ++i) {
        lines += "AB\n";
    }
    BuildRequest request;
    request.inputs = {folder_.Write("bad.tsv", lines)};
    EXPECT_EQ(Build(request), 2);
    EXPECT_EQ(std::ranges::count(err_.str(), '\n'), 21);
    EXPECT_NE(err_.str().find("bad.tsv:20: no TAB"), std::string::npos);
    EXPECT_TRUE(err_.str().ends_with("\nbrelex: 2 more errors\n")) << err_.str();
}

TEST_F(BuildCommandTest, WritesTheDatabaseToStandardOutput) {
    ASSERT_EQ(Build({}), 0);
    Output();
    BuildRequest request;
    request.output.name = "-";
    ASSERT_EQ(Build(request), 0) << err_.str();
    EXPECT_EQ(Output(), ReadText(PathOfUtf8(database_)));
    EXPECT_TRUE(err_.str().starts_with("standard output: 3 records, 1 duplicate dropped"));
}

TEST_F(BuildCommandTest, ReplacesADatabaseButNothingElseUnlessForced) {
    ASSERT_EQ(Build({}), 0);
    ASSERT_EQ(Build({}), 0) << err_.str();
    folder_.Write("Acronyms.dat", "a letter");
    EXPECT_EQ(Build({}), 2);
    EXPECT_EQ(err_.str(), "brelex: " + database_ +
                              " is there and is not a sound database; --force replaces it\n");
    EXPECT_EQ(ReadText(PathOfUtf8(database_)), "a letter");
    BuildRequest request;
    request.output.force = true;
    ASSERT_EQ(Build(request), 0);
    folder_.Write("Acronyms.dat", "");
    EXPECT_EQ(Build({}), 0) << "an empty file is no loss";
}

TEST_F(BuildCommandTest, NeverReplacesAnInput) {
    const std::string list = folder_.Write("mine.tsv", "AB\tOne\n");
    folder_.Write("my.dict", "ABC\n  Alpha\n");
    const std::string index = folder_.Write("my.index", "abc\tA\tM\n");
    BuildRequest request;
    request.inputs = {list, index};
    request.output.force = true;
    for (const char* name : {"mine.tsv", "my.index", "my.dict"}) {
        const std::string before = ReadText(folder_.Path() / name);
        request.output.name = folder_.Text() + name;
        EXPECT_EQ(Build(request), 2) << name;
        EXPECT_EQ(ReadText(folder_.Path() / name), before);
    }
    EXPECT_NE(err_.str().find("mine.tsv is an input; it would be lost"), std::string::npos);
}

TEST_F(BuildCommandTest, NeverReplacesAFolder) {
    BuildRequest request;
    request.output = {folder_.Text() + "inside", true};
    std::filesystem::create_directory(PathOfUtf8(request.output.name));
    EXPECT_EQ(Build(request), 2);
    EXPECT_EQ(err_.str(), "brelex: " + request.output.name + " is a folder\n");
}

}  // namespace
}  // namespace brelex
