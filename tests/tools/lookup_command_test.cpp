// SPDX-License-Identifier: MIT
#include "tools/lookup_command.h"

#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/named_case.h"
#include "tests/support/test_files.h"

namespace brelex {
namespace {

// An answer that some texts have.
struct LookupCase {
    const char* name;
    std::vector<std::string> texts;
    int code;
    std::string out;
    std::string err;
    std::string input = {};
};

class LookupTest : public testing::TestWithParam<LookupCase> {
  protected:
    void Use(const std::vector<std::string>& records) {
        database_ = folder_.Write("Acronyms.dat", DatabaseBytes(records));
    }

    void SetUp() override {
        Use({"'Til\tUntil", "AI RMF\tRisk Management Framework", "AI\tArtificial Intelligence",
             "AI\tAudio Interface", "P.S.\tPost Script", "PS\tPower Supply",
             "RAM\tRandom Access Memory", "SCSI\tInterface", "TCP/IP\tInternet Protocol"});
    }

    int Lookup(const std::vector<std::string>& texts, const std::string& input = "") {
        std::istringstream in(input);
        return RunLookup(database_, {texts, first_}, output_, in, out_, err_);
    }

    void ExpectCase() {
        EXPECT_EQ(Lookup(GetParam().texts, GetParam().input), GetParam().code);
        EXPECT_EQ(out_.str(), GetParam().out);
        EXPECT_EQ(err_.str(), GetParam().err);
    }

    TestFolder folder_;
    std::string database_;
    bool first_ = false;
    OutputOptions output_;
    std::ostringstream out_;
    std::ostringstream err_;
};

TEST_P(LookupTest, AnswersTexts) {
    ExpectCase();
}

constexpr const char* kAi = "AI\tArtificial Intelligence\nAI\tAudio Interface\n";
constexpr const char* kRam = "RAM\tRandom Access Memory\n";

INSTANTIATE_TEST_SUITE_P(
    Found, LookupTest,
    testing::Values(
        LookupCase{"EveryMeaning", {"AI"}, 0, kAi, ""}, LookupCase{"InAnyCase", {"ai"}, 0, kAi, ""},
        LookupCase{"WithoutMarks", {"tcpip"}, 0, "TCP/IP\tInternet Protocol\n", ""},
        LookupCase{"WithMarks", {"p.s."}, 0, "P.S.\tPost Script\nPS\tPower Supply\n", ""},
        LookupCase{"WithTheMarkOfAnOption", {"-ai"}, 0, kAi, ""},
        LookupCase{"SeveralTexts", {"ram", "ai"}, 0, std::string(kRam) + kAi, ""},
        LookupCase{"TheSameTextTwice", {"ram", "RAM"}, 0, std::string(kRam) + kRam, ""},
        LookupCase{"TheStandardInput", {"-"}, 0, std::string(kRam) + kAi, "", "ram\r\n\nai"},
        LookupCase{"TheStandardInputAmongTexts",
                   {"ai", "-", "ai"},
                   0,
                   std::string(kAi) + kRam + kAi,
                   "",
                   "ram\n"}),
    CaseName());

INSTANTIATE_TEST_SUITE_P(
    NotFound, LookupTest,
    testing::Values(
        LookupCase{"TheBeginningOfALongerOne",
                   {"scs"},
                   1,
                   "SCSI\tInterface\n",
                   "No entry has the abbreviation \"scs\"; typing it selects SCSI.\n"
                   "Did you mean SCSI?\n"},
        LookupCase{"AMissingCharacter",
                   {"TCPI"},
                   1,
                   "TCP/IP\tInternet Protocol\n",
                   "No entry has the abbreviation \"TCPI\"; typing it selects TCP/IP.\n"
                   "Did you mean TCP/IP?\n"},
        LookupCase{"NothingIsSimilar",
                   {"rxxx"},
                   1,
                   kRam,
                   "No entry has the abbreviation \"rxxx\"; typing it selects RAM.\n"},
        LookupCase{"TwoAreSimilar",
                   {"as"},
                   1,
                   "AI RMF\tRisk Management Framework\n",
                   "No entry has the abbreviation \"as\"; typing it selects AI RMF.\n"
                   "Did you mean AI or P.S.?\n"},
        LookupCase{"NothingBeginsWithIt",
                   {"?"},
                   1,
                   "'Til\tUntil\n",
                   "No entry has the abbreviation \"?\"; typing it selects 'Til.\n"},
        LookupCase{"Empty",
                   {""},
                   1,
                   "'Til\tUntil\n",
                   "No entry has the abbreviation \"\"; typing it selects 'Til.\n"},
        LookupCase{"BeyondTheCodePage",
                   {"RAM\xE5\xAD\x97"},
                   1,
                   kRam,
                   "No entry has the abbreviation \"RAM\xE5\xAD\x97\"; typing it selects RAM.\n"
                   "Did you mean RAM?\n"},
        LookupCase{"NotUtf8",
                   {"RA\xFF"},
                   1,
                   kRam,
                   "No entry has the abbreviation \"RA\uFFFD\"; typing it selects RAM.\n"
                   "Did you mean RAM?\n"},
        LookupCase{"AControlSequence",
                   {"-"},
                   1,
                   "'Til\tUntil\n",
                   "No entry has the abbreviation \"\xE2\x90\x9B[2J\"; typing it selects 'Til.\n",
                   "\x1B[2J\n"},
        LookupCase{"SeveralTextsOfWhichOneIsFound",
                   {"scs", "ram"},
                   0,
                   std::string("SCSI\tInterface\n") + kRam,
                   "No entry has the abbreviation \"scs\"; typing it selects SCSI.\n"
                   "Did you mean SCSI?\n"}),
    CaseName());

class FirstLookupTest : public LookupTest {
  protected:
    FirstLookupTest() { first_ = true; }
};

TEST_P(FirstLookupTest, PrintsTheEntryThatTypingSelects) {
    ExpectCase();
}

constexpr const char* kAiRmf = "AI RMF\tRisk Management Framework\n";
constexpr const char* kTil = "'Til\tUntil\n";

INSTANTIATE_TEST_SUITE_P(
    Texts, FirstLookupTest,
    testing::Values(
        LookupCase{"ALongerOne", {"ai"}, 0, kAiRmf, ""},
        LookupCase{"TheMarksCount",
                   {"tcpip", "ps"},
                   0,
                   "TCP/IP\tInternet Protocol\nPS\tPower Supply\n",
                   ""},
        LookupCase{"ABeginningOfTheText", {"rxxx"}, 0, kRam, ""},
        LookupCase{"NothingBeginsWithIt", {"?"}, 1, kTil, ""},
        LookupCase{"NothingBeginsWithOneOfThem", {"?", "r"}, 0, std::string(kTil) + kRam, ""},
        LookupCase{"AnEmptyText", {""}, 0, kTil, ""},
        LookupCase{"BeyondTheCodePage", {"\xE5\xAD\x97"}, 1, kTil, ""},
        LookupCase{
            "TheStandardInput", {"-"}, 0, std::string(kRam) + kTil + kAiRmf, "", "r\r\n\nai"}),
    CaseName());

TEST_F(LookupTest, PrintsNumbersIfWanted) {
    output_.numbers = true;
    EXPECT_EQ(Lookup({"ai", "sc"}), 0);
    EXPECT_EQ(out_.str(),
              "3\tAI\tArtificial Intelligence\n4\tAI\tAudio Interface\n8\tSCSI\tInterface\n");
}

TEST_F(LookupTest, PrintsASingleJsonArray) {
    output_.json = true;
    EXPECT_EQ(Lookup({"ram", "-"}, "scsi"), 0);
    EXPECT_EQ(out_.str(),
              "[\n{\"recordNumber\":7,\"abbreviation\":\"RAM\",\"expansion\":\"Random Access "
              "Memory\"},\n"
              "{\"recordNumber\":8,\"abbreviation\":\"SCSI\",\"expansion\":\"Interface\"}\n]\n");
}

TEST_F(LookupTest, ShowsWhatMatchesInBoldOnATerminal) {
    output_.terminal = {80, true};
    EXPECT_EQ(Lookup({"tcpip", "rax"}), 0);
    EXPECT_EQ(out_.str(),
              "\x1B[1mTCP/IP\x1B[0m    Internet Protocol\n"
              "\x1B[1mRA\x1B[0mM       Random Access Memory\n");
}

TEST_F(LookupTest, NamesEightSimilarAbbreviationsAtMost) {
    Use({"A\tx", "B\tx", "C\tx", "D\tx", "E\tx", "F\tx", "G\tx", "H\tx", "I\tx"});
    EXPECT_EQ(Lookup({"X"}), 1);
    EXPECT_NE(err_.str().find("Did you mean A, B, C, D, E, F, G or H?\n"), std::string::npos);
}

TEST_F(LookupTest, ControlCharactersOfTheDatabaseDoNotReachTheErrorOutput) {
    Use({"A\x1B[2J\tx"});
    EXPECT_EQ(Lookup({"a"}), 1);
    EXPECT_EQ(err_.str(),
              "No entry has the abbreviation \"a\"; typing it selects A\xE2\x90\x9B[2J.\n");
}

TEST_F(LookupTest, ADatabaseWithoutEntriesHasNone) {
    database_ = folder_.Write("Acronyms.dat", DatabaseBytes({"A\tx"}, [](DatabaseHeader& header) {
                                  header.RecordCount = 0;
                              }));
    EXPECT_EQ(Lookup({"a"}), 1);
    EXPECT_EQ(out_.str(), "");
    EXPECT_EQ(err_.str(), "No entry has the abbreviation \"a\".\n");
    first_ = true;
    EXPECT_EQ(Lookup({"a"}), 1);
    EXPECT_EQ(out_.str(), "");
}

TEST_F(LookupTest, NeedsADatabase) {
    database_ = folder_.Text() + "nowhere.dat";
    EXPECT_EQ(Lookup({"a"}), 2);
    EXPECT_EQ(err_.str(), "brelex: cannot read " + database_ + "\n");
    database_ = folder_.Write("Acronyms.dat", ExpandedBytes({"ABC\tx"}));
    EXPECT_EQ(Lookup({"a"}), 2);
    EXPECT_EQ(out_.str(), "");
}

}  // namespace
}  // namespace brelex
