// SPDX-License-Identifier: MIT
#include "search/wildcard_pattern.h"

#include <random>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/named_case.h"

namespace brelex {
namespace {

struct PatternCase {
    const char* name;
    std::u32string pattern;
    std::string text;
    bool matches;
    bool matchCase = true;
};

class WildcardPatternTest : public testing::TestWithParam<PatternCase> {};

TEST_P(WildcardPatternTest, MatchesOrNot) {
    const auto pattern = WildcardPattern::Compile(GetParam().pattern, GetParam().matchCase);
    ASSERT_TRUE(pattern);
    EXPECT_EQ(pattern->Matches(GetParam().text), GetParam().matches);
}

INSTANTIATE_TEST_SUITE_P(
    Elements, WildcardPatternTest,
    testing::Values(PatternCase{"PlainText", U"abc", "abc", true},
                    PatternCase{"TheWholeTextCounts", U"abc", "abcd", false},
                    PatternCase{"AShorterTextDoesNot", U"abc", "ab", false},
                    PatternCase{"EmptyMatchesEmpty", U"", "", true},
                    PatternCase{"EmptyDoesNotMatchMore", U"", "a", false},
                    PatternCase{"QuestionMarkIsOneCharacter", U"a?c", "abc", true},
                    PatternCase{"QuestionMarkIsNotNone", U"a?c", "ac", false},
                    PatternCase{"NumberSignIsADigit", U"rfc #", "rfc 7", true},
                    PatternCase{"NumberSignIsNoLetter", U"rfc #", "rfc x", false},
                    PatternCase{"NumberSignIsTheFirstDigit", U"#", "0", true},
                    PatternCase{"NumberSignIsTheLastDigit", U"#", "9", true},
                    PatternCase{"NumberSignIsNotBeforeTheDigits", U"#", "/", false},
                    PatternCase{"NumberSignIsNotBehindTheDigits", U"#", ":", false},
                    PatternCase{"StarIsAnyRun", U"a*c", "abbbc", true},
                    PatternCase{"StarIsAlsoNone", U"a*c", "ac", true},
                    PatternCase{"StarLooksFurther", U"*ab", "aab", true},
                    PatternCase{"TwoStarsAreOne", U"a**c", "abc", true},
                    PatternCase{"BeginningAndEndDoNotOverlap", U"ab*ba", "aba", false},
                    PatternCase{"MiddleBetweenBoth", U"a*b*c", "axbxc", true},
                    PatternCase{"MiddleMissing", U"a*b*c", "axxc", false},
                    PatternCase{"ListHasIt", U"[abc]x", "bx", true},
                    PatternCase{"ListHasItNot", U"[abc]x", "dx", false},
                    PatternCase{"RangeWithItsLastBound", U"[a-c]", "c", true},
                    PatternCase{"RangeEnds", U"[a-c]", "d", false},
                    PatternCase{"NegatedList", U"[!a-c]", "d", true},
                    PatternCase{"NegatedListHasIt", U"[!a-c]", "b", false},
                    PatternCase{"NegatedListTakesOneCharacter", U"[!a]", "", false},
                    PatternCase{"HyphenFirst", U"[-a]", "-", true},
                    PatternCase{"HyphenLast", U"[a-]", "-", true},
                    PatternCase{"HyphenLastIsNoRange", U"[a-]", "b", false},
                    PatternCase{"HyphenBehindTheNegation", U"[!-a]", "-", false},
                    PatternCase{"HyphenBetweenRanges", U"[a-c-e]", "-", true},
                    PatternCase{"NotARangeBehindARange", U"[a-c-e]", "d", false},
                    PatternCase{"ExclamationMarkInside", U"[a!]", "!", true},
                    PatternCase{"StarInBrackets", U"a[*]b", "a*b", true},
                    PatternCase{"StarInBracketsIsNoWildcard", U"a[*]b", "axb", false},
                    PatternCase{"QuestionMarkInBrackets", U"[?]", "x", false},
                    PatternCase{"NumberSignInBrackets", U"[#]", "#", true},
                    PatternCase{"BracketInBrackets", U"[[]", "[", true},
                    PatternCase{"ClosingBracketAlone", U"a]", "a]", true},
                    PatternCase{"EmptyListMatchesEmpty", U"a[]b", "ab", true},
                    PatternCase{"EmptyListIsNoCharacter", U"a[]b", "axb", false},
                    PatternCase{"EmptyNegatedListIsAnyCharacter", U"[!]", "x", true},
                    PatternCase{"CaseCounts", U"ABC", "abc", false},
                    PatternCase{"CaseDoesNotCount", U"ABC", "aBc", true, false},
                    PatternCase{"RangeOfCapitalsWithoutCase", U"[A-C]x", "bX", true, false},
                    PatternCase{"AccentsInBothCases", U"\u00C9\u0160", "\xE9\x9A", true, false},
                    PatternCase{"TheMultiplicationSignHasNoCase", U"\u00D7", "\xF7", false, false},
                    PatternCase{"RangesGoByUnicode", U"[\u0150-\u0160]", "\x8A", true},
                    PatternCase{"RangesDoNotGoByByte", U"[\u007F-\u00A0]", "\x8A", false},
                    PatternCase{"ABoundOutsideTheCodePage", U"[\u4E00-\u9FFF]", "?", false},
                    PatternCase{"OutsideTheCodePageMatchesNothing", U"\u4E2D", "?", false},
                    PatternCase{"NegatedOutsideTheCodePageMatchesAll", U"[!\u4E2D]", "?", true}),
    CaseName());

struct FindCase {
    const char* name;
    std::u32string pattern;
    std::string text;
    std::string_view found;
};

class WildcardPatternFind : public testing::TestWithParam<FindCase> {};

TEST_P(WildcardPatternFind, IsThePartWithoutTheStarsAtTheEnds) {
    EXPECT_EQ(WildcardPattern::Compile(GetParam().pattern, true)->Find(GetParam().text),
              GetParam().found);
}

INSTANTIATE_TEST_SUITE_P(Patterns, WildcardPatternFind,
                         testing::Values(FindCase{"WithoutStars", U"ab", "ab", "ab"},
                                         FindCase{"AtTheBeginning", U"ab*", "abxx", "ab"},
                                         FindCase{"AtTheEnd", U"*ab", "xxab", "ab"},
                                         FindCase{"Between", U"*ab*", "xabx", "ab"},
                                         FindCase{"BetweenSeveralStars", U"**ab**", "xxabx", "ab"},
                                         FindCase{"AcrossAStar", U"*a*b*", "xaxbx", "axb"},
                                         FindCase{"FromEndToEnd", U"a*b", "axxb", "axxb"},
                                         FindCase{"TheFirstOfSeveral", U"*a*", "xaxa", "a"},
                                         FindCase{"OnlyStars", U"*", "abc", ""}),
                         CaseName());

class MalformedPatternTest : public testing::TestWithParam<const char32_t*> {};

TEST_P(MalformedPatternTest, IsRefused) {
    EXPECT_FALSE(WildcardPattern::Compile(GetParam(), true));
}

INSTANTIATE_TEST_SUITE_P(Patterns, MalformedPatternTest,
                         testing::Values(U"[", U"[abc", U"[!", U"[!abc", U"a[]b[", U"[c-a]",
                                         U"[a-cz-x]", U"[a-", U"x*[", U"[[", U"[!-"));

TEST(WildcardPattern, ARangeMayTurnRoundByFolding) {
    EXPECT_TRUE(WildcardPattern::Compile(U"[Z-a]", true));
    EXPECT_FALSE(WildcardPattern::Compile(U"[Z-a]", false));
    EXPECT_FALSE(WildcardPattern::Compile(U"[a-Z]", true));
    EXPECT_TRUE(WildcardPattern::Compile(U"[a-Z]", false));
}

TEST(WildcardPattern, ManyStarsOverALongTextEndSoon) {
    std::string text(10000, 'a');
    const auto pattern = WildcardPattern::Compile(U"*a*a*a*a*b[*]", true);
    EXPECT_FALSE(pattern->Matches(text));
    EXPECT_TRUE(pattern->Matches(text + "b*"));
}

// The definition, tried out place by place.
bool MatchesPlainly(std::u32string_view pattern, std::string_view text) {
    if (pattern.empty()) {
        return text.empty();
    }
    const char32_t element = pattern.front();
    if (element == U'*') {
        return MatchesPlainly(pattern.substr(1), text) ||
               (!text.empty() && MatchesPlainly(pattern, text.substr(1)));
    }
    bool one = false;
    std::size_t length = 1;
    const char32_t character = text.empty() ? 0 : static_cast<unsigned char>(text.front());
    if (element == U'[') {
        const std::size_t close = pattern.find(U']');
        std::u32string_view list = pattern.substr(1, close - 1);
        length = close + 1;
        if (list.empty()) {
            return MatchesPlainly(pattern.substr(length), text);
        }
        const bool negated = list.front() == U'!';
        list.remove_prefix(negated ? 1 : 0);
        for (std::size_t i = 0; i < list.size(); ++i) {
            const bool range = i + 2 < list.size() && list[i + 1] == U'-';
            const char32_t last = range ? list[i + 2] : list[i];
            one |= character >= list[i] && character <= last;
            i += range ? 2 : 0;
        }
        one = one != negated;
    } else {
        one = element == U'?' ||
              (element == U'#' ? character >= U'0' && character <= U'9' : character == element);
    }
    return one && !text.empty() && MatchesPlainly(pattern.substr(length), text.substr(1));
}

TEST(WildcardPattern, GeneratedPatternsMatchWhatTheDefinitionSays) {
    std::mt19937 random(3);
    const auto any = [&random](std::string_view letters) {
        return static_cast<char32_t>(letters[random() % letters.size()]);
    };
    int matched = 0;
    int compiledPatterns = 0;
    while (compiledPatterns < 4000) {
        std::u32string pattern;
        for (auto length = random() % 9; length > 0; --length) {
            pattern.push_back(any("ab1*?#[]!-"));
        }
        const auto compiled = WildcardPattern::Compile(pattern, true);
        if (!compiled) {
            continue;
        }
        ++compiledPatterns;
        for (int i = 0; i < 20; ++i) {
            std::string text;
            for (auto length = random() % 7; length > 0; --length) {
                text.push_back(static_cast<char>(any("aab1-!")));
            }
            const bool expected = MatchesPlainly(pattern, text);
            matched += expected ? 1 : 0;
            ASSERT_EQ(compiled->Matches(text), expected)
                << std::string(pattern.begin(), pattern.end()) << " and " << text;
        }
    }
    EXPECT_GT(matched, 1000);
}

}  // namespace
}  // namespace brelex
