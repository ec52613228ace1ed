// SPDX-License-Identifier: MIT
#include "tools/input_entries.h"

#include <gtest/gtest.h>

#include "base/file_io.h"
#include "tests/support/named_case.h"
#include "tests/support/test_files.h"

namespace brelex {
namespace {

class ReadTsvFileTest : public testing::Test {
  protected:
    void Read(std::string_view bytes) {
        path_ = folder_.Write("list.tsv", bytes);
        ReadTsvFile(PathOfUtf8(path_), records_, report_);
    }

    TestFolder folder_;
    std::string path_;
    std::vector<std::string> records_;
    InputReport report_;
};

TEST_F(ReadTsvFileTest, ReadsAnEntryALine) {
    Read("ABC\tAlpha\nHVGA\tHalf [320×480]\n");
    EXPECT_EQ(records_, (std::vector<std::string>{"ABC\tAlpha",
                                                  "HVGA\tHalf [320\xD7"
                                                  "480]"}));
    EXPECT_TRUE(report_.errors.empty());
}

TEST_F(ReadTsvFileTest, FurtherTabsBelongToTheExpansion) {
    Read("ABC\tOne\tTwo\n");
    EXPECT_EQ(records_, std::vector<std::string>{"ABC\tOne\tTwo"});
}

TEST_F(ReadTsvFileTest, AcceptsAByteOrderMarkAndCrLfAndAMissingLastLineEnd) {
    Read(
        "\xEF\xBB\xBF"
        "A\tx\r\n\r\nB\ty");
    EXPECT_EQ(records_, (std::vector<std::string>{"A\tx", "B\ty"}));
    EXPECT_TRUE(report_.errors.empty());
}

TEST_F(ReadTsvFileTest, AMissingFileIsAnError) {
    ReadTsvFile(folder_.Path() / "no.tsv", records_, report_);
    ASSERT_EQ(report_.errors.size(), 1U);
    EXPECT_TRUE(report_.errors[0].ends_with("no.tsv: cannot be read"));
}

TEST_F(ReadTsvFileTest, Utf16IsRefusedAsAWhole) {
    Read(
        std::string("\xFF\xFE"
                    "A\0\t\0x\0\n\0",
                    10));
    EXPECT_EQ(report_.errors, std::vector<std::string>{path_ + ": is UTF-16; save it as UTF-8"});
}

struct BadLine {
    const char* name;
    std::string line;
    const char* reason;
};

class BadLineTest : public ReadTsvFileTest, public testing::WithParamInterface<BadLine> {};

TEST_P(BadLineTest, IsRefusedWithFileLineColumnAndReason) {
    Read("A\tgood\n" + GetParam().line + "\nZ\tgood\n");
    EXPECT_EQ(report_.errors, std::vector<std::string>{path_ + ":2" + GetParam().reason});
    EXPECT_EQ(records_, (std::vector<std::string>{"A\tgood", "Z\tgood"}));
}

INSTANTIATE_TEST_SUITE_P(
    Lines, BadLineTest,
    testing::Values(
        BadLine{"NoTab", "ABC", ": no TAB between abbreviation and expansion"},
        BadLine{"EmptyAbbreviation", "\tx", ":1: the abbreviation is empty"},
        BadLine{"BlankAbbreviation", "  \tx", ":1: the abbreviation is empty"},
        BadLine{"EmptyExpansion", "ABC\t", ":5: the expansion is empty"},
        BadLine{"ExpansionOfTabs", "ABC\t\t ", ":5: the expansion is empty"},
        BadLine{"NulInAbbreviation", std::string("A\0B\tx", 5),
                ":2: the abbreviation contains the control character U+0000"},
        BadLine{"NulInExpansion", std::string("AB\tx\0", 5),
                ":5: the expansion contains the control character U+0000"},
        BadLine{"ControlCharacter", "A\x1B\tx",
                ":2: the abbreviation contains the control character U+001B"},
        BadLine{"Delete", "AB\tx\x7F", ":5: the expansion contains the control character U+007F"},
        BadLine{"UpperControl", "AB\tx\u0085",
                ":5: the expansion contains the control character U+0085"},
        BadLine{"OutsideTheCodePage", "\u00C9B\tx\u00C9日本",
                ":6: the expansion contains 日 (U+65E5), which Windows-1252 lacks"},
        BadLine{"OutsideTheFirstPlane", "A\U0001F600\tx",
                ":2: the abbreviation contains \U0001F600 (U+01F600), which Windows-1252 lacks"},
        BadLine{"TheReplacementCharacter", "AB\t\uFFFD",
                ":4: the expansion contains \uFFFD (U+FFFD), which Windows-1252 lacks"},
        BadLine{"NotUtf8", "AB\t\u00C9\xC3x",
                ":5: the expansion contains the byte C3, which is not UTF-8"}),
    CaseName());

TEST(AddEntry, ATabInTheAbbreviationIsRefused) {
    std::vector<std::string> records;
    InputReport report;
    AddEntry("A\tB", "x", "here:1", records, report);
    EXPECT_EQ(report.errors, std::vector<std::string>{"here:1: the abbreviation contains a TAB"});
    EXPECT_TRUE(records.empty());
}

class AccentTest : public testing::TestWithParam<const char*> {};

TEST_P(AccentTest, InTheAbbreviationIsWarnedOfButKept) {
    std::vector<std::string> records;
    InputReport report;
    AddEntry(GetParam(), "x", "here:1", records, report);
    EXPECT_EQ(records.size(), 1U);
    ASSERT_EQ(report.warnings.size(), 1U);
    EXPECT_EQ(report.warnings[0], "here:1: the abbreviation " + std::string(GetParam()) +
                                      " contains an accent, ligature, superscript or soft hyphen; "
                                      "look-ups may miss it");
}

INSTANTIATE_TEST_SUITE_P(Kinds, AccentTest, testing::Values("É", "Æ", "m²", "a\u00ADb", "straße"));

TEST(AddEntry, ABlankAtTheEdgeOfTheAbbreviationIsWarnedOfButKept) {
    std::vector<std::string> records;
    InputReport report;
    AddEntry("LAN ", "x", "here:1", records, report);
    AddEntry(" LAN", "x", "here:2", records, report);
    EXPECT_EQ(records, (std::vector<std::string>{"LAN \tx", " LAN\tx"}));
    ASSERT_EQ(report.warnings.size(), 2U);
    EXPECT_EQ(report.warnings[1],
              "here:2: the abbreviation  LAN begins or ends with a blank; look-ups may miss it");
}

TEST(AddEntry, AnAccentInTheExpansionIsFine) {
    std::vector<std::string> records;
    InputReport report;
    AddEntry("CNIL", "Commission Nationale de l'Informatique et des Libertés", "here:1", records,
             report);
    EXPECT_TRUE(report.warnings.empty());
    EXPECT_TRUE(report.errors.empty());
}

}  // namespace
}  // namespace brelex
