// SPDX-License-Identifier: MIT
#include "tests/data/entry_rules.h"

#include <gtest/gtest.h>

namespace brelex {
namespace {

TEST(WithoutNotes, TakesNotesOffTheEnd) {
    EXPECT_EQ(WithoutNotes("Random Access Memory (IC)"), "Random Access Memory");
    EXPECT_EQ(WithoutNotes("One (a (b) c) (d)"), "One");
    EXPECT_EQ(WithoutNotes("One (two) three"), "One (two) three");
    EXPECT_EQ(WithoutNotes("(all of it)"), "(all of it)");
    EXPECT_EQ(WithoutNotes("not opened)"), "not opened)");
    EXPECT_EQ(WithoutNotes(""), "");
}

TEST(HasBalancedBrackets, KnowsThoseThatAreNotClosedOrNotOpened) {
    EXPECT_TRUE(HasBalancedBrackets("Chip [set {a}] (IC, (x))"));
    EXPECT_TRUE(HasBalancedBrackets(""));
    EXPECT_FALSE(HasBalancedBrackets("HWE [stack]]"));
    EXPECT_FALSE(HasBalancedBrackets("A (b"));
    EXPECT_FALSE(HasBalancedBrackets("A (b] c)"));
}

TEST(ComparableText, LeavesCaseHyphensBlanksAccentsAndNotesOut) {
    EXPECT_EQ(ComparableText("RAM", "Random-Access Memory (IC)"),
              ComparableText("ram", "random access memory"));
    EXPECT_EQ(ComparableText("A", "Caf\u00E9"), ComparableText("A", "Cafe"));
    EXPECT_NE(ComparableText("C", "See"), ComparableText("C++", "See"));
    EXPECT_NE(ComparableText("AB", "C"), ComparableText("A", "BC"));
}

struct SameWordsCase {
    const char* one;
    const char* other;
};

class SameWords : public testing::TestWithParam<SameWordsCase> {};

TEST_P(SameWords, AreEqual) {
    EXPECT_EQ(ComparableText("X", GetParam().one), ComparableText("X", GetParam().other));
}

INSTANTIATE_TEST_SUITE_P(
    Table, SameWords,
    testing::Values(SameWordsCase{"Request & Response", "Request and Response"},
                    SameWordsCase{"Request + Response", "Request and Response"},
                    SameWordsCase{"Customer-Managed Encryption Keys",
                                  "Customer Managed Encryption Key"},
                    SameWordsCase{"Bases and Boxes", "Base Box"},
                    SameWordsCase{"Quality of the Service", "Quality Service"},
                    SameWordsCase{"The Technologies for a Life on Web", "Technology Life in Web"},
                    SameWordsCase{"Organisation of Behaviour", "Organization of Behavior"},
                    SameWordsCase{"Fibre Data Centre", "Fiber Data Centers"},
                    SameWordsCase{"Public Licence", "Public License"},
                    SameWordsCase{"Anti-Virus Data Base", "Antivirus Database"}));

TEST(ComparableText, KeepsWordsApartThatMeanSomethingElse) {
    EXPECT_NE(ComparableText("X", "Address"), ComparableText("X", "Addres"));
    EXPECT_NE(ComparableText("X", "C++ Code"), ComparableText("X", "C Code"));
    EXPECT_NE(ComparableText("X", "Call Distributor"), ComparableText("X", "Call Distribution"));
}

TEST(NoteItems, AreSeparatedByCommas) {
    using Items = std::vector<std::string_view>;
    EXPECT_EQ(NoteItems("Random Access Memory (memory, IC)"), (Items{"memory", "IC"}));
    EXPECT_EQ(NoteItems("One (x86) (1,024 bytes)"), (Items{"x86", "1,024 bytes"}));
    EXPECT_EQ(NoteItems("One (two) three"), Items());
}

TEST(SmallWordInCapitals, IsFoundWithinAnExpansion) {
    EXPECT_EQ(SmallWordInCapitals("Quality Of Service (web)"), "Of");
    EXPECT_EQ(SmallWordInCapitals("Mean Time to Recovery"), "");
    EXPECT_EQ(SmallWordInCapitals("In Care Of (office)"), "");
    EXPECT_EQ(SmallWordInCapitals("Master In, Slave Out"), "");
    EXPECT_EQ(SmallWordInCapitals("Magic: The Gathering"), "");
    EXPECT_EQ(SmallWordInCapitals("On Time, In Full"), "");
    EXPECT_EQ(SmallWordInCapitals("Dual In-Line Package"), "");
}

struct InitialsCase {
    const char* abbreviation;
    const char* expansion;
    bool plausible;
};

class Initials : public testing::TestWithParam<InitialsCase> {};

TEST_P(Initials, ComeFromTheExpansion) {
    EXPECT_EQ(HasPlausibleInitials(GetParam().abbreviation, GetParam().expansion),
              GetParam().plausible)
        << GetParam().abbreviation;
}

INSTANTIATE_TEST_SUITE_P(
    Table, Initials,
    testing::Values(InitialsCase{"RAM", "Random Access Memory", true},
                    InitialsCase{"RAM", "Read Only Storage", false},
                    InitialsCase{"RAM", "Extra Memory", false},
                    InitialsCase{"ABC", "Alpha Beta (Charlie)", false},
                    InitialsCase{"W3C", "World Wide Web Consortium", true},
                    InitialsCase{"S3", "Simple Storage Service", true},
                    InitialsCase{"B2B", "Business to Business", true},
                    InitialsCase{"2FA", "Two-Factor Authentication", true},
                    InitialsCase{"i18n", "internationalization", true},
                    InitialsCase{"i17n", "internationalization", false},
                    InitialsCase{"K8s", "Kubernetes (containers)", true},
                    InitialsCase{"XSS", "Cross-Site Scripting", true},
                    InitialsCase{"XML", "Extensible Markup Language", true},
                    InitialsCase{"APIs", "Application Programming Interface", true},
                    InitialsCase{"R&D", "Research and Development", true},
                    InitialsCase{"CNET", "Centre National d'\u00C9tudes T", true}));

}  // namespace
}  // namespace brelex
