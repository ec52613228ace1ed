// SPDX-License-Identifier: MIT
#include "tools/corrections.h"

#include <gtest/gtest.h>

#include "base/file_io.h"
#include "tests/support/named_case.h"
#include "tests/support/test_files.h"

namespace brelex {
namespace {

class CorrectionsTest : public testing::Test {
  protected:
    void Read(std::string_view bytes) {
        path_ = folder_.Write("corrections.tsv", bytes);
        corrections_.ReadFile(PathOfUtf8(path_), report_);
    }

    std::string Corrected(std::string abbreviation, std::string expansion) {
        const auto entry = corrections_.Apply({std::move(abbreviation), std::move(expansion)});
        return entry ? entry->first + " = " + entry->second : "left out";
    }

    TestFolder folder_;
    std::string path_;
    Corrections corrections_;
    InputReport report_;
};

TEST_F(CorrectionsTest, LeaveOutOrReplaceTheEntriesTheyName) {
    Read(
        "\xEF\xBB\xBF"
        "AB\tOld\r\n\n SD \tSecure Disk \tSD\t\u00C9cran  \nGLM\tMarkup\tGML\tMarkup\n");
    EXPECT_EQ(report_.errors, std::vector<std::string>());
    EXPECT_EQ(Corrected("AB", "Old"), "left out");
    EXPECT_EQ(Corrected("SD", "Secure Disk"), "SD = \u00C9cran");
    EXPECT_EQ(Corrected("GLM", "Markup"), "GML = Markup");
}

TEST_F(CorrectionsTest, LeaveOtherEntriesAsTheyAre) {
    Read("AB\tOld\n");
    EXPECT_EQ(Corrected("AB", "old"), "AB = old");
    EXPECT_EQ(Corrected("ab", "Old"), "ab = Old");
    EXPECT_EQ(Corrected("AB", "Older"), "AB = Older");
}

TEST_F(CorrectionsTest, ThatMatchNothingAreErrorsWithFileAndLine) {
    Read("AB\tOld\n\nCD\tOld\tCD\tNew\nEF\tOld\n");
    EXPECT_EQ(Corrected("CD", "Old"), "CD = New");
    corrections_.ReportUnused(report_);
    EXPECT_EQ(report_.errors,
              (std::vector<std::string>{path_ + ":1: matches no entry of the dictionaries",
                                        path_ + ":4: matches no entry of the dictionaries"}));
}

TEST_F(CorrectionsTest, OfTheSameEntryAreRefused) {
    Read("AB\tOld\nAB\tOld\tAB\tNew\n");
    EXPECT_EQ(report_.errors,
              std::vector<std::string>{path_ + ":2: corrects the same entry as " + path_ + ":1"});
}

TEST_F(CorrectionsTest, InAMissingFileAreAnError) {
    corrections_.ReadFile(folder_.Path() / "no.tsv", report_);
    ASSERT_EQ(report_.errors.size(), 1U);
    EXPECT_TRUE(report_.errors[0].ends_with("no.tsv: cannot be read"));
}

struct BadCorrection {
    const char* name;
    const char* line;
    const char* reason;
};

class BadCorrectionTest : public CorrectionsTest,
                          public testing::WithParamInterface<BadCorrection> {};

TEST_P(BadCorrectionTest, IsRefusedWithFileLineAndReason) {
    Read("A\tgood\n" + std::string(GetParam().line) + "\n");
    ASSERT_EQ(report_.errors.size(), 1U);
    EXPECT_TRUE(report_.errors[0].starts_with(path_ + ":2: " + GetParam().reason))
        << report_.errors[0];
}

constexpr const char* kForm = "neither an entry to leave out";

INSTANTIATE_TEST_SUITE_P(
    Lines, BadCorrectionTest,
    testing::Values(BadCorrection{"OnePart", "AB", kForm}, BadCorrection{"Blanks", " \t ", kForm},
                    BadCorrection{"ThreeParts", "AB\tOld\tAB", kForm},
                    BadCorrection{"FiveParts", "AB\tOld\tAB\tNew\tx", kForm},
                    BadCorrection{"NoAbbreviation", "\tOld\tAB\tNew", kForm},
                    BadCorrection{"NoExpansion", "AB\t\tAB\tNew", kForm},
                    BadCorrection{"NoNewAbbreviation", "AB\tOld\t\tNew",
                                  "the abbreviation is empty"},
                    BadCorrection{"OutsideTheCodePage", "AB\tOld\tAB\t日本",
                                  "the expansion contains 日 (U+65E5), which"}),
    CaseName());

}  // namespace
}  // namespace brelex
