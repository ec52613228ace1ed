// SPDX-License-Identifier: MIT
#include "tools/search_commands.h"

#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/test_files.h"

namespace brelex {
namespace {

class SearchCommandTest : public testing::Test {
  protected:
    int Search(const SearchOptions& options) {
        out_.str("");
        err_.str("");
        return RunSearch(database_, options, output_, out_, err_);
    }

    static SearchOptions For(const char* text) {
        SearchOptions options;
        options.request.text = text;
        return options;
    }

    void Use(const std::vector<std::string>& records) {
        database_ = folder_.Write("Acronyms.dat", DatabaseBytes(records));
    }

    void SetUp() override {
        Use({"CAF\tCaf\xE9 \"chez\" nous", "RAM\tRandom Access Memory", "RAS\tremote access",
             "TLA\tThree-Letter\tAbbreviation"});
    }

    TestFolder folder_;
    std::string database_;
    OutputOptions output_;
    std::ostringstream out_;
    std::ostringstream err_;
};

TEST_F(SearchCommandTest, PrintsTheRecordsFoundAndTheirNumber) {
    EXPECT_EQ(Search(For("ACCESS")), 0);
    EXPECT_EQ(out_.str(), "RAM\tRandom Access Memory\nRAS\tremote access\n");
    EXPECT_EQ(err_.str(), "Number of Hits: 2\n");
}

TEST_F(SearchCommandTest, TakesEveryOption) {
    SearchOptions options = For("Access");
    options.request.matchCase = true;
    EXPECT_EQ(Search(options), 0);
    EXPECT_EQ(out_.str(), "RAM\tRandom Access Memory\n");
    options = For("access");
    options.request.position = SearchPosition::Ending;
    EXPECT_EQ(Search(options), 0);
    EXPECT_EQ(out_.str(), "RAS\tremote access\n");
    options = For("ra");
    options.request.in = SearchIn::Abbreviations;
    options.from = RecordNumber{3};
    EXPECT_EQ(Search(options), 0);
    EXPECT_EQ(out_.str(), "RAS\tremote access\n");
    options = For("acc");
    options.request.wholeWord = true;
    EXPECT_EQ(Search(options), 1);
}

TEST_F(SearchCommandTest, PrintsNumbersIfWanted) {
    output_.numbers = true;
    EXPECT_EQ(Search(For("ACCESS")), 0);
    EXPECT_EQ(out_.str(), "2\tRAM\tRandom Access Memory\n3\tRAS\tremote access\n");
}

TEST_F(SearchCommandTest, LooselyFindsWordsWithOtherSeparators) {
    SearchOptions options = For("three letter");
    EXPECT_EQ(Search(options), 1);
    options.request.loose = true;
    EXPECT_EQ(Search(options), 0);
    EXPECT_EQ(out_.str(), "TLA\tThree-Letter\tAbbreviation\n");
    EXPECT_EQ(err_.str(), "Number of Hits: 1\n");
}

TEST_F(SearchCommandTest, ShowsTheMatchOnATerminal) {
    output_.terminal = {80, true};
    SearchOptions options = For("three letter");
    options.request.loose = true;
    EXPECT_EQ(Search(options), 0);
    EXPECT_EQ(out_.str(),
              "TLA       \x1B[1mThree-Letter\x1B[0m\xE2\x90\x89"
              "Abbreviation\n");
    options.request.text = "la";
    options.request.in = SearchIn::Abbreviations;
    EXPECT_EQ(Search(options), 0);
    EXPECT_EQ(out_.str(),
              "T\x1B[1mLA\x1B[0m       Three-Letter\xE2\x90\x89"
              "Abbreviation\n");
}

TEST_F(SearchCommandTest, SaysThatNothingIsFound) {
    EXPECT_EQ(Search(For("xyz")), 1);
    EXPECT_EQ(out_.str(), "");
    EXPECT_EQ(err_.str(), "Search text is not found\nNumber of Hits: 0\n");
}

TEST_F(SearchCommandTest, PrintsJson) {
    SearchOptions options = For("c");
    output_.json = true;
    options.from = RecordNumber{1};
    EXPECT_EQ(Search(options), 0);
    EXPECT_EQ(out_.str(),
              "[\n"
              "{\"recordNumber\":1,\"abbreviation\":\"CAF\",\"expansion\":\"Caf\xC3\xA9 "
              "\\\"chez\\\" nous\"},\n"
              "{\"recordNumber\":2,\"abbreviation\":\"RAM\",\"expansion\":\"Random Access "
              "Memory\"},\n"
              "{\"recordNumber\":3,\"abbreviation\":\"RAS\",\"expansion\":\"remote access\"}\n"
              "]\n");
    options.request.text = "tion";
    EXPECT_EQ(Search(options), 0);
    EXPECT_NE(out_.str().find("Three-Letter\\u0009Abbreviation"), std::string::npos);
    options.request.text = "xyz";
    EXPECT_EQ(Search(options), 1);
    EXPECT_EQ(out_.str(), "[]\n");
}

TEST_F(SearchCommandTest, RefusesInTheTermsOfATerminal) {
    EXPECT_EQ(Search(For("a*b")), 2);
    EXPECT_EQ(err_.str(),
              "brelex: Free use of asterisk (*) in search text is not allowed. Enclose it in "
              "square brackets ([]) and then try again.\n");
    EXPECT_EQ(Search(For("x[abc")), 2);
    EXPECT_EQ(err_.str().rfind("brelex: The pattern string is invalid. ", 0), 0U);
    SearchOptions wholeWord = For("a?");
    wholeWord.request.wholeWord = true;
    EXPECT_EQ(Search(wholeWord), 2);
    EXPECT_EQ(
        err_.str(),
        "brelex: Use of wildcards is not allowed, if you want to find whole words only. Leave "
        "out --whole-word or remove all wildcards from the search text.\n");
    EXPECT_EQ(Search(For("")), 2);
    EXPECT_EQ(err_.str(), "brelex: the search text is empty\n");
    EXPECT_EQ(out_.str(), "");
}

TEST_F(SearchCommandTest, AtTheLimitItSaysWhereToGoOn) {
    Use(NumberedRecords(600));
    EXPECT_EQ(Search(For("?")), 0);
    EXPECT_EQ(
        err_.str(),
        "Number of Hits: 500\nThere are more hits: continue with --from 501, or use --all.\n");
    SearchOptions rest = For("?");
    rest.from = RecordNumber{501};
    EXPECT_EQ(Search(rest), 0);
    EXPECT_EQ(err_.str(), "Number of Hits: 100\n");
    rest.from = RecordNumber{601};
    EXPECT_EQ(Search(rest), 1);
    SearchOptions all = For("?");
    all.all = true;
    EXPECT_EQ(Search(all), 0);
    EXPECT_EQ(err_.str(), "Number of Hits: 600\n");
}

class AnagramCommandTest : public SearchCommandTest {
  protected:
    int Anagram(const std::string& letters) {
        out_.str("");
        err_.str("");
        return RunAnagram(database_, letters, output_, out_, err_);
    }
};

TEST_F(AnagramCommandTest, PrintsTheRecordsFound) {
    EXPECT_EQ(Anagram("mra"), 0);
    EXPECT_EQ(out_.str(), "RAM\tRandom Access Memory\n");
    EXPECT_EQ(err_.str(), "Number of possible rearrangements: 6\n");
    output_.numbers = true;
    EXPECT_EQ(Anagram("mra"), 0);
    EXPECT_EQ(out_.str(), "2\tRAM\tRandom Access Memory\n");
    output_.json = true;
    EXPECT_EQ(Anagram("mra"), 0);
    EXPECT_EQ(out_.str(),
              "[\n{\"recordNumber\":2,\"abbreviation\":\"RAM\",\"expansion\":\"Random Access "
              "Memory\"}\n]\n");
}

TEST_F(AnagramCommandTest, ShowsTheAbbreviationInBoldOnATerminal) {
    output_.terminal = {80, true};
    EXPECT_EQ(Anagram("mra"), 0);
    EXPECT_EQ(out_.str(), "\x1B[1mRAM\x1B[0m       Random Access Memory\n");
}

TEST_F(AnagramCommandTest, SaysByItsCodeThatNothingIsFound) {
    EXPECT_EQ(Anagram("xyz"), 1);
    EXPECT_EQ(out_.str(), "");
    EXPECT_EQ(err_.str(), "Number of possible rearrangements: 6\n");
}

TEST_F(AnagramCommandTest, RefusesLessThanTwoDistinctLetters) {
    EXPECT_EQ(Anagram("CC"), 2);
    EXPECT_EQ(err_.str(), "brelex: Type at least 2 distinct letters\n");
    EXPECT_EQ(Anagram(""), 2);
}

TEST_F(AnagramCommandTest, NeedsADatabase) {
    database_ = folder_.Text() + "nowhere.dat";
    EXPECT_EQ(Anagram("AB"), 2);
    EXPECT_NE(err_.str().find("cannot read"), std::string::npos);
}

TEST_F(SearchCommandTest, NeedsADatabase) {
    database_ = folder_.Text() + "nowhere.dat";
    EXPECT_EQ(Search(For("a")), 2);
    EXPECT_NE(err_.str().find("cannot read"), std::string::npos);
}

}  // namespace
}  // namespace brelex
