// SPDX-License-Identifier: MIT
#include "search/prepared_search.h"

#include <string>
#include <variant>

#include <gtest/gtest.h>

#include "tests/support/fakes.h"
#include "tests/support/named_case.h"

namespace brelex {
namespace {

constexpr const char* kWholeWordsOnly =
    "Use of wildcards is not allowed, if you want to find whole words only. Either uncheck the "
    "'Search Whole Word Only' option or remove all wildcards from the search text.\n\n"
    "Read Help for more information.";
constexpr const char* kRangeAnywhere =
    "Use of a range specifier is not allowed with Position option 'Anywhere'. Either select any "
    "one of the other two Position options or remove the range specifier from the search text.\n\n"
    "Read Help for more information.";
constexpr const char* kFreeAsterisk =
    "Free use of asterisk (*) in search text is not allowed. Enclose it in square brackets ([]) "
    "and then try again.\n\nRead Help for more information about search patterns.";
constexpr const char* kMalformed =
    "The pattern string is invalid. Modify your search text and try again.\n\nRead Help for more "
    "information about search patterns.";
constexpr const char* kAccepted = "";

struct RequestCase {
    const char* name;
    const char* text;
    SearchPosition position;
    bool wholeWord;
    std::string title;
    std::string message;
};

class PrepareSearchTest : public testing::TestWithParam<RequestCase> {};

TEST_P(PrepareSearchTest, GivesAFinderOrSaysWhatIsWrong) {
    SearchRequest request;
    request.text = GetParam().text;
    request.position = GetParam().position;
    request.wholeWord = GetParam().wholeWord;
    const FakeRows rows({"AB\tx"});
    const PreparedSearch prepared = PrepareSearch(request, rows);
    const auto* const refusal = std::get_if<Message>(&prepared);
    ASSERT_EQ(refusal != nullptr, !GetParam().message.empty());
    if (refusal != nullptr) {
        EXPECT_EQ(refusal->text, GetParam().message);
        EXPECT_EQ(refusal->title, GetParam().title);
        EXPECT_EQ(refusal->icon, MessageIcon::None);
        EXPECT_EQ(refusal->buttons, MessageButtons::Ok);
    }
}

constexpr auto kAnywhere = SearchPosition::Anywhere;
constexpr auto kBeginning = SearchPosition::Beginning;
constexpr auto kEnding = SearchPosition::Ending;
constexpr const char* kOption = "Invalid Option";
constexpr const char* kPattern = "Bad Pattern";

INSTANTIATE_TEST_SUITE_P(
    WholeWords, PrepareSearchTest,
    testing::Values(
        RequestCase{"PlainWord", "mail", kAnywhere, true, "", kAccepted},
        RequestCase{"Asterisk", "a*", kAnywhere, true, kOption, kWholeWordsOnly},
        RequestCase{"QuestionMark", "a?", kAnywhere, true, kOption, kWholeWordsOnly},
        RequestCase{"NumberSign", "c#", kAnywhere, true, kOption, kWholeWordsOnly},
        RequestCase{"OpeningBracket", "a[", kAnywhere, true, kOption, kWholeWordsOnly},
        RequestCase{"ClosingBracket", "a]", kAnywhere, true, kOption, kWholeWordsOnly},
        RequestCase{"ExclamationMark", "yahoo!", kAnywhere, true, kOption, kWholeWordsOnly},
        RequestCase{"Hyphen", "e-mail", kAnywhere, true, kOption, kWholeWordsOnly},
        RequestCase{"BeforeTheOtherRules", "[*]", kAnywhere, true, kOption, kWholeWordsOnly}),
    CaseName());

INSTANTIATE_TEST_SUITE_P(
    Ranges, PrepareSearchTest,
    testing::Values(
        RequestCase{"AnywhereARange", "[a-c]", kAnywhere, false, kOption, kRangeAnywhere},
        RequestCase{"AnywhereBracketsAtBothEnds", "[a]x[b]", kAnywhere, false, kOption,
                    kRangeAnywhere},
        RequestCase{"AnywhereEmptyBrackets", "[]", kAnywhere, false, kOption, kRangeAnywhere},
        RequestCase{"BeforeTheAsterisks", "[*]", kAnywhere, false, kOption, kRangeAnywhere},
        RequestCase{"AnywhereARangeInside", "x[a-c]y", kAnywhere, false, "", kAccepted},
        RequestCase{"BeginningWithARange", "[a-c]", kBeginning, false, "", kAccepted},
        RequestCase{"EndingWithARange", "[a-c]", kEnding, false, "", kAccepted}),
    CaseName());

INSTANTIATE_TEST_SUITE_P(
    Asterisks, PrepareSearchTest,
    testing::Values(
        RequestCase{"Free", "a*b", kAnywhere, false, kPattern, kFreeAsterisk},
        RequestCase{"FreeAtTheBeginning", "*b", kBeginning, false, kPattern, kFreeAsterisk},
        RequestCase{"InALongerList", "a[*b]", kEnding, false, kPattern, kFreeAsterisk},
        RequestCase{"InBrackets", "a[*]b", kAnywhere, false, "", kAccepted},
        RequestCase{"FreeBesideOneInBrackets", "a*b[*]", kAnywhere, false, "", kAccepted}),
    CaseName());

INSTANTIATE_TEST_SUITE_P(
    Patterns, PrepareSearchTest,
    testing::Values(
        RequestCase{"WithoutItsClosingBracket", "[abc", kBeginning, false, kPattern, kMalformed},
        RequestCase{"ARangeBackwards", "x[c-a]", kAnywhere, false, kPattern, kMalformed},
        RequestCase{"ABracketAlone", "[", kAnywhere, false, kPattern, kMalformed},
        RequestCase{"TheAsterisksComeFirst", "*[abc", kAnywhere, false, kPattern, kFreeAsterisk},
        RequestCase{"OneThatIsWellFormed", "x[a-c]?#", kEnding, false, "", kAccepted}),
    CaseName());

}  // namespace
}  // namespace brelex
