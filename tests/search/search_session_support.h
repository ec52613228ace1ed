// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "search/search_session.h"
#include "tests/support/fakes.h"

namespace brelex {

/// A search window that records what it is told. A test can make it do something while events run.
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

/// A search session over a few entries, with its window.
class SearchSessionTest : public testing::Test {
  protected:
    SearchSessionTest()
        : SearchSessionTest({"AB\tAddress Bus", "AB\tAudio Bus", "XML\tExtensible Markup Language",
                             "caf\xE9\tSmall Bus"}) {}

    explicit SearchSessionTest(const std::vector<std::string>& records) : rows_(records) {
        values_.AcronymList = &rows_;
        session_.Open();
    }

    /// Types a text and presses the Search button.
    void Search(const std::string& text, bool goOn = false) {
        request_.text = text;
        session_.OnTextChanged(text);
        session_.RunSearch(request_, goOn);
    }

    /// While events run, calls `act` once the search has found `hits` entries.
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
    FakeMessageSink messages_;
    SearchSession session_{values_, view_, messages_};
    SearchRequest request_;
};

}  // namespace brelex
