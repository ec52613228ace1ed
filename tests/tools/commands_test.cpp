// SPDX-License-Identifier: MIT
#include <iomanip>
#include <sstream>

#include <gtest/gtest.h>

#include "base/file_io.h"
#include "database/database_file.h"
#include "database/szdd.h"
#include "tests/support/named_case.h"
#include "tests/tools/commands_test_support.h"
#include "tools/query_commands.h"

namespace brelex {
namespace {

TEST_F(CommandsTest, BuildSortsAndDropsDuplicates) {
    ASSERT_EQ(Build({}), 0) << err_.str();
    EXPECT_NE(Output().find("3 records, 1 duplicate dropped"), std::string::npos);
    ASSERT_EQ(RunDump(database_, out_, err_), 0);
    EXPECT_EQ(Output(), "ABC\tAlpha\nABCD\tLong\nRAM\tRandom Access Memory\n");
    EXPECT_EQ(RunCheck(database_, out_, err_), 0) << out_.str();
}

TEST_F(CommandsTest, TheSameInputGivesTheSameBytes) {
    ASSERT_EQ(Build({}), 0);
    const std::string first = ReadText(PathOfUtf8(database_));
    ASSERT_EQ(Build({}), 0);
    EXPECT_EQ(ReadText(PathOfUtf8(database_)), first);
}

TEST_F(CommandsTest, InfoNamesEveryFieldInFileOrderAndTheFactsInWords) {
    BuildRequest request;
    request.version = "2.5";
    request.searchList = "network, memory ,, disk";
    ASSERT_EQ(Build(request), 0);
    Output();
    ASSERT_EQ(RunInfo(database_, out_, err_), 0);
    EXPECT_EQ(
        Output(),
        "Version: 2.5\n"
        "ReleaseDate: 2005-02-03\n"
        "MaxAbbrvLength: 4\n"
        "MaxExpansionLength: 20\n"
        "RecordCount: 3\n"
        "DataSize: 45\n"
        "Reserved: 0\n"
        "DataCRC: " +
            [&] {
                DatabaseHeader header;
                RecordStore store;
                EXPECT_EQ(ReadDatabase(ReadText(PathOfUtf8(database_)), header, store),
                          LoadFailure::None);
                std::ostringstream hex;
                hex << std::hex << std::uppercase << std::setw(8) << std::setfill('0')
                    << static_cast<std::uint32_t>(header.DataCRC);
                return hex.str();
            }() +
            "\n"
            "AvgAbbrvLength: 3\n"
            "AvgExpansionLength: 10\n"
            "LongestAbbrvIndex: 1\n"
            "LongestExpansionIndex: 2\n"
            "CommonFirstLetter: A\n"
            "CommonFirstLetterCount: 2\n"
            "MostExpansionsIndex: 0\n"
            "MostExpansionsCount: 1\n"
            "SearchListText: network, memory, disk\n"
            "\n"
            "Database version: 2.5, released on 3 Feb 2005\n"
            "Total number of entries: 3\n"
            "Most abbreviations start with: 'A' (2 occurrences)\n"
            "Abbreviation with highest no. of expansions*: ABC (1 expansions)\n"
            "Longest abbreviation*: ABCD (4 letters)\n"
            "Longest expansion including parenthetical note*: Random Access Memory (18 letters, "
            "abbreviated as RAM)\n"
            "Average length of abbreviations: 3 characters\n"
            "Average length of expansions: 10 characters\n"
            "* The first such occurrence in the database\n");
}

TEST_F(CommandsTest, AWholeVersionIsShownWithOneDecimal) {
    ASSERT_EQ(Build({}), 0);
    Output();
    ASSERT_EQ(RunInfo(database_, out_, err_), 0);
    EXPECT_TRUE(Output().starts_with("Version: 1.0\n"));
}

TEST_F(CommandsTest, InfoOfADateThatIsNoneSaysSo) {
    folder_.Write("Acronyms.dat", DatabaseBytes({"ABC\tx"}, [](DatabaseHeader& header) {
                      header.ReleaseDate = 1e300;
                  }));
    ASSERT_EQ(RunInfo(database_, out_, err_), 0);
    EXPECT_NE(Output().find("ReleaseDate: not a date (1e+300)\n"), std::string::npos);
}

TEST_F(CommandsTest, ALoadFailureGivesTheReasonAndExitsWithTwo) {
    folder_.Write("Acronyms.dat", ExpandedBytes({"ABC\tx"}));
    const std::string expected =
        "brelex: " + database_ + ": Cannot decode a corrupt database. Loading was aborted.\n";
    EXPECT_EQ(RunInfo(database_, out_, err_), 2);
    EXPECT_EQ(err_.str(), expected);
    EXPECT_EQ(RunDump(database_, out_, err_), 2);
    EXPECT_EQ(out_.str(), "");
}

TEST_F(CommandsTest, AMissingFileExitsWithTwo) {
    EXPECT_EQ(RunInfo(database_, out_, err_), 2);
    EXPECT_EQ(err_.str(), "brelex: cannot read " + database_ + "\n");
    EXPECT_EQ(RunCheck(database_, out_, err_), 2);
}

TEST_F(CommandsTest, CheckOfADamagedFileExitsWithOne) {
    folder_.Write("Acronyms.dat", "SZDD");
    EXPECT_EQ(RunCheck(database_, out_, err_), 1);
    std::string expanded = ExpandedBytes({"ABC\tx"});
    expanded.at(kHeaderBytes) = 'B';
    folder_.Write("Acronyms.dat", CompressSzdd(expanded));
    EXPECT_EQ(RunCheck(database_, out_, err_), 1);
    EXPECT_NE(Output().find("the CRC of the records is not the header's DataCRC"),
              std::string::npos);
}

struct BadRequest {
    const char* name;
    BuildRequest request;
    std::string reason;
};

class BadRequestTest : public CommandsTest, public testing::WithParamInterface<BadRequest> {};

TEST_P(BadRequestTest, IsRefusedAndNothingIsWritten) {
    EXPECT_EQ(Build(GetParam().request), 2);
    EXPECT_NE(err_.str().find(GetParam().reason), std::string::npos) << err_.str();
    EXPECT_FALSE(std::filesystem::exists(PathOfUtf8(database_)));
    EXPECT_EQ(out_.str(), "");
}

BuildRequest WithVersion(const char* version) {
    BuildRequest request;
    request.version = version;
    return request;
}

BuildRequest WithDate(const char* date) {
    BuildRequest request;
    request.date = date;
    return request;
}

BuildRequest WithList(const std::string& list) {
    BuildRequest request;
    request.searchList = list;
    return request;
}

BuildRequest WithInput(const char* input) {
    BuildRequest request;
    request.inputs = {input};
    return request;
}

INSTANTIATE_TEST_SUITE_P(
    Requests, BadRequestTest,
    testing::Values(
        BadRequest{"Version", WithVersion("2"), "the version is not of the form N.N: 2"},
        BadRequest{"VersionWithLetters", WithVersion("2.x"), "not of the form N.N: 2.x"},
        BadRequest{"VersionWithTwoPoints", WithVersion("2..1"), "not of the form N.N: 2..1"},
        BadRequest{"Date", WithDate("2026-02-30"), "not a day of the form YYYY-MM-DD: 2026-02-30"},
        BadRequest{"DigitOneInTheSearchList", WithList("network,802.11"),
                   "search-list items must not contain the digit 1, which separates them in "
                   "the file: 802.11"},
        BadRequest{"LongSearchList", WithList(std::string(1025, 'x')),
                   "the search list has 1025 characters, but only 1024 fit"},
        BadRequest{"SearchListOutsideTheCodePage", WithList("日本"), "outside Windows-1252: 日本"},
        BadRequest{"ControlCharacterInTheSearchList", WithList("net\twork"),
                   "the search list contains a control character"},
        BadRequest{"UnknownKindOfInput", WithInput("list.csv"),
                   "list.csv: neither a .tsv file nor a dictd dictionary"},
        BadRequest{"MissingInput", WithInput("no.tsv"), "no.tsv: cannot be read"}),
    CaseName());

TEST_F(CommandsTest, ASearchListMayFillItsRoom) {
    EXPECT_EQ(Build(WithList(std::string(1024, 'x'))), 0) << err_.str();
}

TEST_F(CommandsTest, AllBadLinesAreNamedAndNothingIsWritten) {
    BuildRequest request;
    request.inputs = {folder_.Write("bad.tsv", "A\tx\nB\nC\t\n")};
    EXPECT_EQ(Build(request), 2);
    EXPECT_NE(err_.str().find("bad.tsv:2: no TAB"), std::string::npos);
    EXPECT_NE(err_.str().find("bad.tsv:3:3: the expansion is empty"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(PathOfUtf8(database_)));
}

TEST_F(CommandsTest, AnEmptyInputIsRefused) {
    BuildRequest request;
    request.inputs = {folder_.Write("empty.tsv", "\n")};
    EXPECT_EQ(Build(request), 2);
    EXPECT_EQ(err_.str(), "brelex: the inputs contain no entries\n");
}

TEST_F(CommandsTest, ARefusedBuildLeavesTheOldFile) {
    ASSERT_EQ(Build({}), 0);
    const std::string before = ReadText(PathOfUtf8(database_));
    EXPECT_EQ(Build(WithVersion("x")), 2);
    EXPECT_EQ(ReadText(PathOfUtf8(database_)), before);
}

TEST_F(CommandsTest, StatisticsAboveSixteenBitsAreWarnedOf) {
    // So many that the last one is the first with a number beyond 15 bits. Short ones build fast.
    constexpr std::size_t kRecords = 32768;
    constexpr std::string_view kLetters = "0123456789ABCDEFGHIJKLMNOPQRSTUVW";
    constexpr std::size_t kBase = kLetters.size();
    std::string lines;
    for (std::size_t i = 0; i < kRecords; ++i) {
        lines += {kLetters[i / kBase / kBase],
                  kLetters[i / kBase % kBase],
                  kLetters[i % kBase],
                  '\t',
                  'x',
                  '\n'};
    }
    lines += "ZLONGEST\tThe longest expansion of all\n";
    BuildRequest request;
    request.inputs = {folder_.Write("many.tsv", lines)};
    ASSERT_EQ(Build(request), 0);
    EXPECT_NE(err_.str().find("warning: LongestAbbrvIndex is 32768, above 32767"),
              std::string::npos);
    EXPECT_NE(err_.str().find("warning: LongestExpansionIndex is 32768"), std::string::npos);
    EXPECT_EQ(err_.str().find("MostExpansionsIndex"), std::string::npos);
}

TEST_F(CommandsTest, AFileOfEqualLengthsIsRefused) {
    BuildRequest request;
    request.version = "1.5";
    request.date = "2005-02-03";
    request.searchList = "network,memory";
    const std::string record = RecordOfEqualLengths();
    request.inputs = {folder_.Write("equal.tsv", record + "\n")};
    EXPECT_EQ(Build(request), 2);
    EXPECT_NE(err_.str().find("would be as long as the expanded one"), std::string::npos)
        << err_.str();
    request.inputs = {folder_.Write("longer.tsv", record + "\nB\tx\n")};
    EXPECT_EQ(Build(request), 0);
}

TEST_F(CommandsTest, ADictdDictionaryIsReadByEitherOfItsNames) {
    folder_.Write("my.dict", "A\n  Alpha\n");
    folder_.Write("my.index", "a\tA\tK\n");
    for (const char* name : {"my.index", "my.dict"}) {
        BuildRequest request;
        request.inputs = {folder_.Text() + name};
        EXPECT_EQ(Build(request), 0) << err_.str();
    }
}

}  // namespace
}  // namespace brelex
