// SPDX-License-Identifier: MIT
#include "lookup/desktop_answers.h"

#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "database/string_order.h"
#include "tests/support/fakes.h"
#include "tests/support/named_case.h"

namespace brelex {
namespace {

// In the order of a database, in which hyphen and blank come before the TAB.
std::vector<std::string> SampleRows() {
    return {"10GE\tTen Gigabit Ethernet",
            "C#\tA Language",
            "DNS-SD\tDNS-Based Service Discovery",
            "DNS 2\tOf two words",
            "DNS\tDomain Name System",
            "dns\tdomain name system",
            "DNS\tDomain Name System",
            "DNSSEC\tDNS Security Extensions",
            "\x80\tEuro",
            "\xC9T\xC9\tSummer",
            "RAM\tOne",
            "RAM\tTwo",
            "RAM\tThree",
            "RAM\tTwo",
            "RAM\tFour",
            "RAM\tFive",
            "RAM\tSix",
            "RAMDAC\tConverter",
            "Whole record",
            "X*\tAn asterisk",
            "XML\tMarkup"};
}

// Sorted, because the sample is written for reading.
std::vector<std::string> SortedRows() {
    std::vector<std::string> rows = SampleRows();
    std::stable_sort(rows.begin(), rows.end(), [](const std::string& a, const std::string& b) {
        return std::is_lt(CompareTexts(a, b));
    });
    return rows;
}

std::vector<std::string> AnswersOf(const std::vector<std::string>& rows, std::string_view typed) {
    const FakeRows list(rows);
    std::vector<std::string> answers;
    for (const std::int32_t row : AnswersTo(list, typed)) {
        answers.emplace_back(list.RowText(row));
    }
    return answers;
}

struct AnswerCase {
    const char* name;
    std::string typed;
    std::vector<std::string> answers;
};

class AnswersToTest : public testing::TestWithParam<AnswerCase> {};

TEST_P(AnswersToTest, GivesTheEntries) {
    EXPECT_EQ(AnswersOf(SortedRows(), GetParam().typed), GetParam().answers);
}

const std::vector<std::string> kDns = {"DNS\tDomain Name System", "dns\tdomain name system",
                                       "DNS-SD\tDNS-Based Service Discovery", "DNS 2\tOf two words",
                                       "DNSSEC\tDNS Security Extensions"};

INSTANTIATE_TEST_SUITE_P(
    Texts, AnswersToTest,
    testing::Values(
        AnswerCase{"TheExactAbbreviationFirst", "DNS", kDns},
        AnswerCase{"CaseDoesNotMatter", "dNs", kDns},
        AnswerCase{"BlanksAtTheEndsDoNotCount", "  dns ", kDns},
        AnswerCase{"ThoseThatBeginWithIt", "dnss", {"DNSSEC\tDNS Security Extensions"}},
        AnswerCase{"NoMoreThanFive",
                   "RAM",
                   {"RAM\tFive", "RAM\tFour", "RAM\tOne", "RAM\tSix", "RAM\tThree"}},
        AnswerCase{"NoMoreThanFiveThatBeginWithIt",
                   "R",
                   {"RAM\tFive", "RAM\tFour", "RAM\tOne", "RAM\tSix", "RAM\tThree"}},
        AnswerCase{"AnAbbreviationOfTwoWords", "dns 2", {"DNS 2\tOf two words"}},
        AnswerCase{"WordsThatNoAbbreviationHas", "domain name", {}},
        AnswerCase{"LettersThatNoAbbreviationHas", "qqq", {}},
        AnswerCase{"NoShorterBeginning", "XMLQ", {}}, AnswerCase{"Digits", "1", {SampleRows()[0]}},
        AnswerCase{"AnAsteriskIsALetter", "x*", {"X*\tAn asterisk"}},
        AnswerCase{"NoWildcards", "*ML", {}}, AnswerCase{"NoWildcardsEither", "X?L", {}},
        AnswerCase{"AnAccent", "\xC3\xA9t\xC3\xA9", {"\xC9T\xC9\tSummer"}},
        AnswerCase{"ARecordWithoutExpansion", "whole record", {"Whole record"}},
        AnswerCase{"Nothing", "", {}}, AnswerCase{"OnlyBlanks", "   ", {}},
        AnswerCase{"TheEuroSign", "\xE2\x82\xAC", {"\x80\tEuro"}},
        AnswerCase{"ATabLeadsNotIntoTheExpansion", "XML\tMark", {}},
        AnswerCase{"ANulEndsNothing", std::string("XML\0Q", 5), {}},
        AnswerCase{"AControlCharacter", "XML\x1B", {}}, AnswerCase{"Delete", "XML\x7F", {}},
        AnswerCase{"ALineFeed", "XML\n", {}}, AnswerCase{"AnotherScript", "\xD0\x9A", {}},
        AnswerCase{"AnotherScriptAfterAnAbbreviation", "XML\xD0\x9A", {}},
        AnswerCase{"InvalidUtf8", "XML\xFF", {}},
        AnswerCase{"TenThousandLetters", std::string(10000, 'X'), {}}),
    CaseName());

TEST(AnswersTo, AnEmptyDatabaseHasNone) {
    EXPECT_EQ(AnswersOf({}, "A"), std::vector<std::string>());
}

TEST(AnswersTo, TheLongestTextIsLookedUp) {
    const std::string longest(kLongestQuestion, 'A');
    EXPECT_EQ(AnswersOf({longest + "A\tLong"}, longest).size(), 1U);
    EXPECT_EQ(AnswersOf({longest + "A\tLong"}, longest + "A").size(), 0U);
}

TEST(RowOfAnswer, IsTheRowThatTheIdWasMadeOf) {
    const std::vector<std::string> rows = SortedRows();
    const FakeRows list(rows);
    for (const std::string& record : rows) {
        const auto row = RowOfAnswer(list, AnswerId(record));
        ASSERT_TRUE(row) << record;
        EXPECT_EQ(list.RowText(*row), record);
    }
}

TEST(RowOfAnswer, IsTheSameEntryInAnotherDatabase) {
    const FakeRows list({"AAA\tNew", "XML\tMarkup", "ZZZ\tNew"});
    EXPECT_EQ(RowOfAnswer(list, AnswerId("XML\tMarkup")), 1);
    EXPECT_EQ(RowOfAnswer(list, AnswerId("XML\tRemoved")), std::nullopt);
    EXPECT_EQ(RowOfAnswer(FakeRows({}), AnswerId("XML\tMarkup")), std::nullopt);
}

TEST(RowOfAnswer, IsNothingForOtherTexts) {
    const FakeRows list(SortedRows());
    for (const std::string& id :
         {std::string(), std::string("XML"), std::string("XML\t"), std::string("xml\tMarkup"),
          std::string("-1"), std::string("0"), std::string("99999999999999999999"),
          std::string("\xD0\x9A"), std::string("XML\tMarkup\xD0\x9A"), std::string("\xFF"),
          std::string("\0", 1), std::string(1000000, 'X')}) {
        EXPECT_EQ(RowOfAnswer(list, id), std::nullopt) << id.substr(0, 30);
    }
}

TEST(RowToShow, IsThatOfTheEntryOrTheOneThatTypingSelects) {
    const FakeRows list({"AB\tFirst", "AB\tSecond", "AC\tThird", "XML\tMarkup"});
    EXPECT_EQ(RowToShow(list, "AB\tSecond"), 1);
    EXPECT_EQ(RowToShow(list, "AB\tRemoved"), 0);
    EXPECT_EQ(RowToShow(list, "AD\tRemoved"), 0);
    EXPECT_EQ(RowToShow(list, "ac"), 2);
    EXPECT_EQ(RowToShow(list, "x"), 3);
    EXPECT_EQ(RowToShow(list, "XM\xD0\x9A"), 3);
    EXPECT_EQ(RowToShow(list, std::string(1000000, 'X')), 3);
    EXPECT_EQ(RowToShow(list, ""), 0);
    EXPECT_EQ(RowToShow(FakeRows({"AB A\tx", "AB C\tx"}), "AB C\tRemoved"), 1);
    EXPECT_EQ(RowToShow(FakeRows({}), "AB\tFirst"), 0);
}

}  // namespace
}  // namespace brelex
