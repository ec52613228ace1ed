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

struct BadLine {
    const char* name;
    std::string line;
    const char* reason;
};

class BadLineTest : public ReadTsvFileTest, public testing::WithParamInterface<BadLine> {};

TEST_P(BadLineTest, IsRefusedWithFileLineAndReason) {
    Read("A\tgood\n" + GetParam().line + "\nZ\tgood\n");
    EXPECT_EQ(report_.errors, std::vector<std::string>{path_ + ":2: " + GetParam().reason});
    EXPECT_EQ(records_, (std::vector<std::string>{"A\tgood", "Z\tgood"}));
}

INSTANTIATE_TEST_SUITE_P(
    Lines, BadLineTest,
    testing::Values(
        BadLine{"NoTab", "ABC", "no TAB between abbreviation and expansion"},
        BadLine{"EmptyAbbreviation", "\tx", "the abbreviation is empty"},
        BadLine{"BlankAbbreviation", "  \tx", "the abbreviation is empty"},
        BadLine{"EmptyExpansion", "ABC\t", "the expansion is empty"},
        BadLine{"ExpansionOfTabs", "ABC\t\t ", "the expansion is empty"},
        BadLine{"NulInAbbreviation", std::string("A\0B\tx", 5), "the abbreviation contains a NUL"},
        BadLine{"NulInExpansion", std::string("AB\tx\0", 5), "the expansion contains a NUL"},
        BadLine{"ControlCharacter", "A\x1B\tx", "the abbreviation contains a control character"},
        BadLine{"Delete", "AB\tx\x7F", "the expansion contains a control character"},
        BadLine{"UpperControl", "AB\tx\u0085", "the expansion contains a control character"},
        BadLine{"OutsideTheCodePage", "AB\t日本",
                "the expansion contains a character outside Windows-1252, or is not UTF-8"},
        BadLine{"NotUtf8", "AB\t\xFF",
                "the expansion contains a character outside Windows-1252, or is not UTF-8"}),
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
