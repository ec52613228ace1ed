// SPDX-License-Identifier: MIT
// What a session does while a search runs, and where one ends before all entries are done.
#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/search/search_session_support.h"
#include "tests/support/test_files.h"

namespace brelex {
namespace {

constexpr const char* kAborted = "Search was aborted by user";

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
    messages_.behind = [&] {
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
    messages_.behind = [&] {
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
    messages_.behind = [&] { session_.Abandon(); };
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

}  // namespace
}  // namespace brelex
