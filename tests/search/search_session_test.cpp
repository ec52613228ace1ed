// SPDX-License-Identifier: MIT
#include "search/search_session.h"

#include <algorithm>
#include <functional>
#include <new>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/fakes.h"
#include "tests/support/named_case.h"
#include "tests/support/test_files.h"

namespace brelex {
namespace {

constexpr const char* kAborted = "Search was aborted by user";

// A window that keeps what it is told, and in which a test may do something while events run.
class FakeSearchView final : public SearchView {
  public:
    void ShowDisplay(const SearchDisplay& display) override { shown = display; }

    void ShowResult(const std::string& text, Tone tone) override {
        if (tone == Tone::Plain && !text.empty() && !refusesResults.empty()) {
            throw std::runtime_error(refusesResults);
        }
        result = text;
        resultTone = tone;
    }

    void MoveFocus(SearchFocus newFocus) override { focus = newFocus; }

    void AddToHistory() override { ++additionsToHistory; }

    void LetEventsRun(int restMs) override {
        rests.push_back(restMs);
        if (onEvents) {
            onEvents();
        }
    }

    void HideWindow() override {
        isHidden = true;
        wasResultAreaShownWhenHidden = shown.resultAreaShown;
        focus = SearchFocus::SearchText;
    }

    SearchDisplay shown;
    std::string result = "nothing yet";
    Tone resultTone = Tone::Plain;
    SearchFocus focus = SearchFocus::Result;
    int additionsToHistory = 0;
    bool isHidden = false;
    bool wasResultAreaShownWhenHidden = false;
    std::vector<int> rests;
    std::string refusesResults;
    std::function<void()> onEvents;
};

// A message sink behind which a test may look at the window.
class LookingSink final : public MessageSink {
  public:
    MessageAnswer Show(const Message& message) override {
        shown.push_back(message);
        if (look) {
            look();
        }
        return MessageAnswer::Ok;
    }

    std::vector<Message> shown;
    std::function<void()> look;
};

class SearchSessionTest : public testing::Test {
  protected:
    SearchSessionTest()
        : SearchSessionTest({"AB\tAddress Bus", "AB\tAudio Bus", "XML\tExtensible Markup Language",
                             "caf\xE9\tSmall Bus"}) {}

    explicit SearchSessionTest(const std::vector<std::string>& records) : rows_(records) {
        values_.AcronymList = &rows_;
        session_.Open();
    }

    // Types a text and presses the Search button.
    void Search(const std::string& text, bool goOn = false) {
        request_.text = text;
        session_.OnTextChanged(text);
        session_.RunSearch(request_, goOn);
    }

    // Once events run, when a search has found `hits` entries.
    void WhenFound(int hits, const std::function<void()>& act) {
        view_.onEvents = [this, act, text = "Found " + std::to_string(hits)] {
            if (view_.shown.count == text) {
                const auto once = std::exchange(view_.onEvents, nullptr);
                act();
            }
        };
    }

    void ExpectIdle() const {
        EXPECT_FALSE(view_.shown.isBusy);
        EXPECT_FALSE(view_.shown.isAnimated);
        EXPECT_FALSE(session_.AbortRequested());
    }

    FakeRows rows_;
    ProgramValues values_;
    FakeSearchView view_;
    LookingSink messages_;
    SearchSession session_{values_, view_, messages_};
    SearchRequest request_;
};

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
    view_.onEvents = [] { throw std::bad_alloc(); };
    EXPECT_THROW(Search("bus"), std::bad_alloc);
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

// An expansion without an "x" in nine of ten records.
std::vector<std::string> ManyRecords() {
    std::vector<std::string> records;
    records.reserve(1000);
    for (int i = 0; i < 1000; ++i) {
        records.push_back("R" + std::to_string(i) + (i % 10 == 5 ? "\tx" : "\ty"));
    }
    return records;
}

class LongSearch : public SearchSessionTest {
  protected:
    LongSearch() : SearchSessionTest(ManyRecords()) {}

    void ExpectDismissed() {
        EXPECT_TRUE(messages_.shown.empty());
        EXPECT_EQ(view_.result, "");
        EXPECT_NE(view_.focus, SearchFocus::Result);
        ExpectIdle();
    }
};

TEST_F(LongSearch, ShowsThatItIsBusyAndTakesNoInputButStop) {
    int looks = 0;
    view_.onEvents = [&] {
        SearchDisplay busy;
        busy.isBusy = true;
        busy.isAnimated = true;
        busy.resultAreaShown = true;
        busy.status = "Searching through database. Please, wait...";
        busy.count = view_.shown.count;
        EXPECT_EQ(view_.shown, busy);
        EXPECT_TRUE(view_.shown.count.starts_with("Found "));
        EXPECT_EQ(view_.result, "");
        EXPECT_EQ(view_.focus, SearchFocus::StopButton);
        EXPECT_EQ(view_.additionsToHistory, 1);
        ++looks;
    };
    Search("x");
    EXPECT_GT(looks, 100);
    EXPECT_EQ(view_.shown.status, "Number of Hits: 100");
}

TEST_F(LongSearch, CountsItsHitsAndRestsBehindEvery150thRecord) {
    std::vector<std::string> counts;
    view_.onEvents = [&] {
        if (counts.empty() || counts.back() != view_.shown.count) {
            counts.push_back(view_.shown.count);
        }
    };
    Search("x");
    ASSERT_EQ(counts.size(), 101U);
    EXPECT_EQ(counts.front(), "Found 0");
    EXPECT_EQ(counts[7], "Found 7");
    EXPECT_EQ(counts.back(), "Found 100");
    EXPECT_EQ(std::count(view_.rests.begin(), view_.rests.end(), 5), 7);
    EXPECT_EQ(std::count(view_.rests.begin(), view_.rests.end(), 0), 101);
}

TEST_F(LongSearch, StopShowsTheHitsSoFarAndSaysSo) {
    WhenFound(3, [&] {
        session_.PressCancel();
        EXPECT_TRUE(session_.AbortRequested());
        session_.PressCancel();  // once more does no harm
    });
    messages_.look = [&] {
        EXPECT_FALSE(view_.shown.isAnimated);
        EXPECT_TRUE(view_.shown.isBusy);
        EXPECT_EQ(view_.result, "R5\tx\nR15\tx\nR25\tx\n");
    };
    Search("x");
    ASSERT_EQ(messages_.shown.size(), 1U);
    EXPECT_EQ(messages_.shown[0].text, kAborted);
    EXPECT_EQ(messages_.shown[0].title, "Brevilexicon");
    EXPECT_EQ(messages_.shown[0].icon, MessageIcon::Information);
    EXPECT_EQ(view_.shown.status, "Number of Hits: 3");
    EXPECT_EQ(view_.shown.count, kAborted);
    EXPECT_EQ(view_.shown.countTone, Tone::Warning);
    EXPECT_EQ(view_.focus, SearchFocus::Result);
    EXPECT_EQ(session_.NextPosition(), 0);
    EXPECT_FALSE(view_.isHidden);
    ExpectIdle();
    view_.onEvents = nullptr;
    Search("zz");
    EXPECT_EQ(view_.shown.count, "");
    EXPECT_EQ(view_.shown.countTone, Tone::Plain);
}

TEST_F(LongSearch, StoppedBeforeItBeginsItFindsNothing) {
    WhenFound(0, [&] { session_.PressCancel(); });
    Search("x");
    EXPECT_EQ(view_.result, "Search text is not found");
    EXPECT_EQ(view_.shown.status, "Number of Hits: 0");
    EXPECT_EQ(messages_.shown.size(), 1U);
}

TEST_F(LongSearch, ClosingTheWindowEndsItWithoutABox) {
    WhenFound(3, [&] {
        session_.DismissSearchWindow();
        EXPECT_TRUE(view_.isHidden);
        EXPECT_TRUE(session_.AbortRequested());
    });
    Search("x");
    ExpectDismissed();
    EXPECT_EQ(view_.shown.count, kAborted) << "nobody sees it";
    session_.Open();
    EXPECT_EQ(view_.shown.status, "Ready");
    EXPECT_EQ(view_.shown.count, "");
    EXPECT_FALSE(view_.shown.resultAreaShown || view_.shown.canSearch);
    view_.onEvents = nullptr;
    Search("zz");
    EXPECT_EQ(view_.shown.countTone, Tone::Plain);
    ExpectIdle();
}

TEST_F(LongSearch, ClosedAfterStopItSaysNothingEither) {
    WhenFound(3, [&] {
        session_.PressCancel();
        session_.DismissSearchWindow();
    });
    Search("x");
    ExpectDismissed();
}

TEST_F(LongSearch, EndsWithTheProgram) {
    WhenFound(3, [&] { session_.Abandon(); });
    Search("x");
    ExpectDismissed();
    EXPECT_FALSE(view_.isHidden) << "the toolkit sees to that";
}

TEST_F(LongSearch, WhatTheBoxReportsMeanwhileDoesNotCount) {
    WhenFound(0, [&] {
        session_.OnTextChanged("");
        session_.OnTextChanged("x");
        EXPECT_FALSE(view_.shown.canSearch);
    });
    Search("x");
    EXPECT_TRUE(view_.shown.canSearch);
    EXPECT_EQ(view_.shown.status, "Number of Hits: 100");
}

class LimitedSearch : public SearchSessionTest {
  protected:
    LimitedSearch() : SearchSessionTest(NumberedRecords(1100)) {}

    [[nodiscard]] std::string FirstLine() const {
        return view_.result.substr(0, view_.result.find('\n'));
    }

    [[nodiscard]] std::string Row(std::int32_t row) const {
        return std::string(rows_.RowText(row));
    }
};

TEST_F(LimitedSearch, StopsAt500HitsAndGoesOnFromTheNext) {
    Search("?");
    ASSERT_EQ(messages_.shown.size(), 1U);
    EXPECT_EQ(messages_.shown[0].title, "Search Aborted");
    EXPECT_EQ(messages_.shown[0].icon, MessageIcon::Information);
    EXPECT_EQ(view_.shown.status, "Number of Hits: 500");
    EXPECT_EQ(session_.NextPosition(), 500);
    EXPECT_TRUE(view_.shown.canGoOn);
    EXPECT_EQ(FirstLine(), Row(0));
    ExpectIdle();

    Search("?", true);
    EXPECT_EQ(session_.NextPosition(), 1000);
    EXPECT_EQ(FirstLine(), Row(500));

    Search("?", true);
    EXPECT_EQ(view_.shown.status, "Number of Hits: 100");
    EXPECT_EQ(FirstLine(), Row(1000));
    EXPECT_FALSE(view_.shown.canGoOn);
    EXPECT_EQ(messages_.shown.size(), 2U);

    Search("?", true);  // still checked, but not offered: from the beginning
    EXPECT_EQ(messages_.shown.size(), 3U);
    EXPECT_EQ(FirstLine(), Row(0));

    Search("?", false);  // offered, but not checked
    EXPECT_EQ(FirstLine(), Row(0));
}

TEST_F(LimitedSearch, SaysSoBeforeItShowsTheHits) {
    messages_.look = [&] {
        EXPECT_FALSE(view_.shown.isAnimated);
        EXPECT_FALSE(view_.shown.canGoOn);
        EXPECT_EQ(view_.result, "");
        EXPECT_EQ(session_.NextPosition(), 0);
        EXPECT_EQ(view_.shown.count, "Found 500");
    };
    Search("?");
    EXPECT_EQ(messages_.shown.size(), 1U);
}

TEST_F(LimitedSearch, TheProgramMayEndBehindItsMessage) {
    messages_.look = [&] { session_.Abandon(); };
    Search("?");
    EXPECT_EQ(messages_.shown.size(), 1U);
    EXPECT_EQ(view_.result, "");
    ExpectIdle();
}

TEST_F(LimitedSearch, TheOtherOptionsKeepThePosition) {
    Search("?");
    request_.matchCase = true;
    request_.position = SearchPosition::Beginning;
    request_.in = SearchIn::Abbreviations;
    Search("?", true);
    EXPECT_EQ(session_.NextPosition(), 1000);
    EXPECT_EQ(FirstLine(), Row(500));
}

TEST_F(LimitedSearch, ARefusedRequestKeepsThePosition) {
    Search("?");
    request_.wholeWord = true;
    Search("?", true);
    EXPECT_TRUE(view_.shown.canGoOn);
    EXPECT_EQ(session_.NextPosition(), 500);
}

TEST_F(LimitedSearch, AnotherTextForgetsThePositionButAReportOfTheSameDoesNot) {
    Search("?");
    session_.OnTextChanged("?");
    EXPECT_TRUE(view_.shown.canGoOn);
    session_.OnTextChanged("?a");
    EXPECT_FALSE(view_.shown.canGoOn);
    Search("?", true);
    EXPECT_EQ(FirstLine(), Row(0));
}

TEST_F(LimitedSearch, DismissingTheWindowKeepsThePositionButNotTheOffer) {
    Search("?");
    session_.PressCancel();
    session_.Open();
    EXPECT_EQ(session_.NextPosition(), 500);
    EXPECT_FALSE(view_.shown.canGoOn);
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
