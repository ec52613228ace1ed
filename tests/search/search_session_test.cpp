// SPDX-License-Identifier: MIT
#include "search/search_session.h"

#include <new>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/search/search_session_support.h"
#include "tests/support/named_case.h"

namespace brelex {
namespace {

TEST_F(SearchSessionTest, OpensReadyWithTheResultAreaHidden) {
    SearchDisplay idle;
    idle.status = "Ready";
    EXPECT_EQ(view_.shown, idle);
    EXPECT_FALSE(view_.shown.isBusy || view_.shown.canSearch || view_.shown.canGoOn);
    EXPECT_FALSE(session_.ResultAreaShown());
    EXPECT_EQ(session_.NextPosition(), 0);
    EXPECT_EQ(view_.focus, SearchFocus::SearchText);
}

TEST_F(SearchSessionTest, SearchesOnlyIfThereIsAText) {
    session_.OnTextChanged("a");
    EXPECT_TRUE(view_.shown.canSearch);
    session_.OnTextChanged("");
    EXPECT_FALSE(view_.shown.canSearch);
    EXPECT_EQ(view_.shown.status, "Ready");
}

TEST_F(SearchSessionTest, ShowsTheHitsInLines) {
    Search("BUS");
    EXPECT_EQ(view_.result, "AB\tAddress Bus\nAB\tAudio Bus\ncaf\u00E9\tSmall Bus\n");
    EXPECT_EQ(view_.resultTone, Tone::Plain);
    EXPECT_EQ(view_.shown.status, "Number of Hits: 3");
    EXPECT_EQ(view_.shown.count, "");
    EXPECT_TRUE(view_.shown.resultAreaShown);
    EXPECT_TRUE(view_.shown.canSearch);
    EXPECT_EQ(view_.focus, SearchFocus::Result);
    EXPECT_TRUE(session_.FoundAnything());
    EXPECT_EQ(session_.LastSearchText(), "BUS");
    EXPECT_EQ(view_.additionsToHistory, 1);
    EXPECT_TRUE(messages_.shown.empty());
    ExpectIdle();
}

TEST_F(SearchSessionTest, SaysThatNothingIsFound) {
    Search("zzz");
    EXPECT_EQ(view_.result, "Search text is not found");
    EXPECT_EQ(view_.resultTone, Tone::Warning);
    EXPECT_EQ(view_.shown.status, "Number of Hits: 0");
    EXPECT_EQ(view_.shown.count, "");
    EXPECT_EQ(view_.focus, SearchFocus::SearchText);
    EXPECT_FALSE(session_.FoundAnything());
    Search("bus");
    EXPECT_EQ(view_.resultTone, Tone::Plain);
}

TEST_F(SearchSessionTest, ABoxThatCannotShowItsResultSaysWhy) {
    view_.refusesResults = "There is no room.";
    Search("bus");
    EXPECT_EQ(view_.result, "Unable to display search result\nThere is no room.");
    EXPECT_EQ(view_.resultTone, Tone::Warning);
    EXPECT_EQ(view_.shown.status, "Number of Hits: 3");
    ExpectIdle();
}

TEST_F(SearchSessionTest, AFailureNobodyExpectsLeavesItReady) {
    Search("bus");
    view_.onEvents = [] { throw std::bad_alloc(); };
    EXPECT_THROW(Search("bus"), std::bad_alloc);
    EXPECT_FALSE(session_.FoundAnything());
    EXPECT_EQ(view_.focus, SearchFocus::SearchText);
    EXPECT_EQ(view_.shown.status, "Ready");
    EXPECT_EQ(view_.shown.count, "");
    EXPECT_TRUE(view_.shown.canSearch);
    ExpectIdle();
    view_.onEvents = nullptr;
    Search("bus");
    EXPECT_EQ(view_.shown.status, "Number of Hits: 3");
}

struct RefusedCase {
    const char* name;
    SearchRequest request;
    const char* title;
    const char* beginning;  // of the message
};

class RefusedSearch : public SearchSessionTest, public testing::WithParamInterface<RefusedCase> {};

TEST_P(RefusedSearch, ShowsItsMessageAndChangesNothing) {
    Search("markup");
    const SearchDisplay before = view_.shown;
    const std::string result = view_.result;
    request_ = GetParam().request;
    view_.focus = SearchFocus::StopButton;
    session_.RunSearch(request_, false);
    ASSERT_EQ(messages_.shown.size(), 1U);
    EXPECT_EQ(messages_.shown[0].title, GetParam().title);
    EXPECT_TRUE(messages_.shown[0].text.starts_with(GetParam().beginning));
    EXPECT_EQ(messages_.shown[0].icon, MessageIcon::None);
    EXPECT_EQ(view_.focus, SearchFocus::SearchText);
    EXPECT_EQ(view_.shown, before);
    EXPECT_EQ(view_.result, result);
    EXPECT_EQ(view_.additionsToHistory, 1);
    EXPECT_EQ(session_.LastSearchText(), "markup");
}

INSTANTIATE_TEST_SUITE_P(
    Requests, RefusedSearch,
    testing::Values(RefusedCase{"WildcardInAWholeWord",
                                {.text = "e-mail", .wholeWord = true},
                                "Invalid Option",
                                "Use of wildcards is not allowed"},
                    RefusedCase{"RangeAnywhere",
                                {.text = "[a]"},
                                "Invalid Option",
                                "Use of a range specifier is not allowed"},
                    RefusedCase{
                        "FreeAsterisk", {.text = "a*b"}, "Bad Pattern", "Free use of asterisk (*)"},
                    RefusedCase{"MalformedPattern",
                                {.text = "[abc", .position = SearchPosition::Beginning},
                                "Bad Pattern",
                                "The pattern string is invalid. Modify"}),
    CaseName());

TEST_F(SearchSessionTest, TheFieldLimitsWhatIsTyped) {
    values_.Header.MaxAbbrvLength = 6;
    values_.Header.MaxExpansionLength = 26;
    EXPECT_EQ(session_.TextLimit(SearchIn::Abbreviations), 6U);
    EXPECT_EQ(session_.TextLimit(SearchIn::Expansions), 26U);
    values_.Header.MaxAbbrvLength = -1;
    EXPECT_EQ(session_.TextLimit(SearchIn::Abbreviations), 0U);
}

TEST_F(SearchSessionTest, TrimsTheSearchListOfTheDatabase) {
    values_.Header.SearchListText = "  network1data base1disk  ";
    const SearchSession session(values_, view_, messages_);
    EXPECT_EQ(values_.Header.SearchListText, "network1data base1disk");
}

TEST_F(SearchSessionTest, TheButtonShowsAndHidesTheResultArea) {
    session_.ToggleResultArea();
    EXPECT_TRUE(view_.shown.resultAreaShown);
    session_.ToggleResultArea();
    EXPECT_FALSE(view_.shown.resultAreaShown);
}

TEST_F(SearchSessionTest, DismissedItForgetsAllButWhereItWouldGoOn) {
    Search("bus");
    session_.PressCancel();
    EXPECT_TRUE(view_.isHidden);
    EXPECT_TRUE(view_.wasResultAreaShownWhenHidden) << "it does not shrink before the user's eyes";
    EXPECT_EQ(view_.result, "");
    EXPECT_EQ(view_.focus, SearchFocus::SearchText);
    session_.Open();
    EXPECT_EQ(view_.shown, SearchDisplay());
    EXPECT_FALSE(view_.shown.canSearch);
}

class SearchOfNothing : public SearchSessionTest {
  protected:
    SearchOfNothing() : SearchSessionTest(std::vector<std::string>()) {}
};

TEST_F(SearchOfNothing, FindsNothing) {
    Search("a");
    EXPECT_EQ(view_.shown.status, "Number of Hits: 0");
    EXPECT_EQ(view_.result, "Search text is not found");
}

}  // namespace
}  // namespace brelex
